#pragma once

#include <QQuickItem>

namespace ravelo {

/// What the program does in one small picture: a desktop with the panel open at its top edge. Drawn
/// for 320 x 186 logical pixels.
class WelcomePicture : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT

public:
    explicit WelcomePicture(QQuickItem* parent = nullptr);

protected:
    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;
};

} // namespace ravelo
