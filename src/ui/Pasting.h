#pragma once

#include "base/Handle.h"

#include <QObject>
#include <QQmlEngine>
#include <QQuickItem>

#include <map>

namespace ravelo {

class Pasteboard;

/// Pastes into text fields. A field's own paste would read the clipboard on the main thread and
/// stand still for as long as its owner does not answer; this one asks and goes on. Main thread.
class Pasting : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("the panel has one")

public:
    explicit Pasting(Pasteboard& pasteboard) : pasteboard_(pasteboard) {}

    // NOLINTNEXTLINE(readability-identifier-naming): QML demands capitals.
    enum Lines { OneLine, ManyLines };
    Q_ENUM(Lines)

    /// Replaces the selection of `field` by the text that is on the pasteboard, as soon as it
    /// comes. A field of one line (a TextInput) gets a space for each line break, one of many lines
    /// (a TextEdit) gets the text as it is.
    Q_INVOKABLE void into(QQuickItem* field, ravelo::Pasting::Lines lines);

private:
    Pasteboard& pasteboard_;
    int pastes_ = 0;
    std::map<int, Handle> readings_; ///< By number; those up to the newest answer are settled.
};

} // namespace ravelo
