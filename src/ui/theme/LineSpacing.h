#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QQuickTextDocument>

namespace ravelo {

/// Gives every line of a document the same height, which TextEdit cannot do.
class LineSpacing : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickTextDocument* document READ document WRITE setDocument NOTIFY changed)
    Q_PROPERTY(double line READ line WRITE setLine NOTIFY changed) ///< Logical pixels.

public:
    using QObject::QObject;

    [[nodiscard]] QQuickTextDocument* document() const { return document_; }

    [[nodiscard]] double line() const { return line_; }

    void setDocument(QQuickTextDocument* document);
    void setLine(double line);

Q_SIGNALS:
    void changed();

private:
    void apply();

    QQuickTextDocument* document_ = nullptr;
    double line_ = 0;
    bool applying_ = false;
};

} // namespace ravelo
