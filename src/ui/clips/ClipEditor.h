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
    /// As it is now.
    Q_PROPERTY(QString draft READ draft WRITE setDraft NOTIFY draftChanged)
    /// The panel was closed in between.
    Q_PROPERTY(bool resumed READ isResumed NOTIFY editingChanged)

public:
    /// In UTF-16 code units; a field with more would react slowly.
    static constexpr qsizetype longest = 100'000;

    /// No effect for images and secrets; while a text is edited, neither.
    void edit(const ClipItem& clip);

    [[nodiscard]] bool isEditing() const { return text_ && !aside_; }

    [[nodiscard]] QString text() const { return text_.value_or(QString()); }

    [[nodiscard]] QString draft() const { return draft_; }

    void setDraft(const QString& draft);

    [[nodiscard]] bool isResumed() const { return resumed_; }

    /// The panel closes: a changed text is kept until it opens again.
    void putAside();
    void resume();

    /// Nothing is copied if there is nothing but white space.
    Q_INVOKABLE void copy();
    Q_INVOKABLE void discard();

Q_SIGNALS:
    void editingChanged();
    void draftChanged();
    void tooLong();
    void copied(const QString& text);

private:
    std::optional<QString> text_;
    QString draft_;
    bool aside_ = false;
    bool resumed_ = false;
};

} // namespace ravelo
