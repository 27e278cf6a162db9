#pragma once

#include "ui/controls/Tab.h"

namespace ravelo {

class Store;

/// The tab with the quick note. Main thread.
class Notes : public ravelo::Tab {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made in C++")
    /// Saved at every change.
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)

public:
    /// `store` outlives the tab.
    explicit Notes(Store& store);

    [[nodiscard]] QString text() const;

    void setText(const QString& text);

Q_SIGNALS:
    void textChanged();

private:
    Store& store_;
};

} // namespace ravelo
