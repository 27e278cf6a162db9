#pragma once

#include "store/Records.h"

#include <QObject>
#include <QQmlEngine>

#include <optional>

namespace ravelo {

/// The text of a clip, changed before it is copied. The clip itself stays. Main thread.
class ClipEditor : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made in C++")
    Q_PROPERTY(bool editing READ isEditing NOTIFY editingChanged)
    /// As it was.
    Q_PROPERTY(QString text READ text NOTIFY editingChanged)

public:
    /// In UTF-16 code units; a field with more would react slowly.
    static constexpr qsizetype longest = 100'000;

    /// No effect for images and secrets; while a text is edited, neither.
    void edit(const ClipItem& clip);

    [[nodiscard]] bool isEditing() const { return text_.has_value(); }

    [[nodiscard]] QString text() const { return text_.value_or(QString()); }

    /// Nothing is copied if there is nothing but white space.
    Q_INVOKABLE void copy(const QString& text);
    Q_INVOKABLE void discard();

Q_SIGNALS:
    void editingChanged();
    void tooLong();
    void copied(const QString& text);

private:
    std::optional<QString> text_;
};

} // namespace ravelo
