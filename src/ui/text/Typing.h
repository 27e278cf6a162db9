#pragma once

#include "base/Handle.h"

#include <QObject>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

#include <map>

namespace ravelo {

class Pasteboard;

/// What can be undone in a window besides the changes in its text fields.
class UndoOffers {
public:
    virtual ~UndoOffers() = default;

    /// How many there have been.
    [[nodiscard]] virtual int offers() const = 0;

    /// Undoes what is offered; false if nothing is.
    virtual bool act() = 0;
};

/// What the text fields of all windows of an engine need beyond themselves. It pastes: a field's
/// own paste would read the clipboard on the main thread and hang for as long as its owner does not
/// answer; this one asks and goes on. Others learn here when a window wants the keyboard, or has
/// lost track of it. Main thread.
class Typing : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    // NOLINTNEXTLINE(readability-identifier-naming): QML demands capitals.
    enum Lines { OneLine, ManyLines };
    Q_ENUM(Lines)

    /// Made before `engine` loads any field, and outlives it.
    Typing(Pasteboard& pasteboard, QQmlEngine& engine);

    static Typing* create(QQmlEngine* engine, QJSEngine* /*scripts*/);

    /// Ctrl+Z in a field of `window` also undoes what `undo` offers. It outlives the window.
    void setUndo(const QQuickWindow& window, UndoOffers& undo) { undo_[&window] = &undo; }

    /// Replaces the selection of `field` by the text on the pasteboard as soon as it arrives. A
    /// field of one line (a TextInput) gets a space for each line break, one of many lines (a
    /// TextEdit) gets the text as it is.
    Q_INVOKABLE void paste(QQuickItem* field, ravelo::Typing::Lines lines);

    /// Puts the text of a field on the pasteboard.
    Q_INVOKABLE void copy(const QString& text) { Q_EMIT copied(text); }

    /// The user is about to type into `item`.
    Q_INVOKABLE void wantKeyboard(QQuickItem* item) { Q_EMIT keyboardWanted(item->window()); }

    /// What had the keyboard before `item` is gone: it goes where the window's content starts.
    Q_INVOKABLE void freeKeyboard(QQuickItem* item) { Q_EMIT keyboardFreed(item->window()); }

    /// See UndoOffers, for the window of `item`.
    Q_INVOKABLE [[nodiscard]] int offers(QQuickItem* item) const;
    Q_INVOKABLE bool undo(QQuickItem* item);

Q_SIGNALS:
    void copied(const QString& text);
    void keyboardWanted(QQuickWindow* window);
    void keyboardFreed(QQuickWindow* window);

private:
    [[nodiscard]] UndoOffers* undoOf(const QQuickItem& item) const;

    Pasteboard& pasteboard_;
    int pastes_ = 0;
    std::map<int, Handle> readings_; ///< By number; those up to the newest answer are settled.
    std::map<const QQuickWindow*, UndoOffers*> undo_;
};

} // namespace ravelo
