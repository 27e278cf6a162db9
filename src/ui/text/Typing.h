#pragma once

#include "base/Handle.h"

#include <QObject>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

#include <map>

namespace ravelo {

class Pasteboard;

/// What else can be undone in a window besides edits in its text fields.
class UndoOffers {
public:
    virtual ~UndoOffers() = default;

    /// Total number of offers so far.
    [[nodiscard]] virtual int offers() const = 0;

    /// Undoes the current offer; false if there is none.
    virtual bool act() = 0;
};

/// What text fields of all windows of an engine share. Pasting: a field's own paste reads the
/// clipboard on the main thread and blocks until the owner answers; this one is asynchronous. It
/// also reports that a window wants keyboard focus, or has lost the focused item. Main thread.
class Typing : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    // NOLINTNEXTLINE(readability-identifier-naming): QML demands capitals.
    enum Lines { OneLine, ManyLines };
    Q_ENUM(Lines)

    /// Must be created before `engine` loads any field and outlive it.
    Typing(Pasteboard& pasteboard, QQmlEngine& engine);

    static Typing* create(QQmlEngine* engine, QJSEngine* /*scripts*/);

    /// Ctrl+Z in a field of `window` also undoes what `undo` offers. `undo` outlives the window.
    void setUndo(const QQuickWindow& window, UndoOffers& undo) { undo_[&window] = &undo; }

    /// Replaces the selection of `field` with the pasteboard's text as soon as it arrives. In a
    /// TextInput each line break becomes a space; a TextEdit gets the text unchanged.
    Q_INVOKABLE void paste(QQuickItem* field, ravelo::Typing::Lines lines);

    /// Puts a field's text on the pasteboard.
    Q_INVOKABLE void copy(const QString& text) { Q_EMIT copied(text); }

    /// The user is about to type into `item`.
    Q_INVOKABLE void wantKeyboard(QQuickItem* item) { Q_EMIT keyboardWanted(item->window()); }

    /// The item that had the focus before `item` is gone: focus the start of the window's content.
    Q_INVOKABLE void freeKeyboard(QQuickItem* item) { Q_EMIT keyboardFreed(item->window()); }

    /// What has the focus in the window of `item`, or gets it with the keyboard; null if nothing
    /// does.
    Q_INVOKABLE [[nodiscard]] static QQuickItem* focused(const QQuickItem* item);

    /// The UndoOffers of the window of `item`.
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
    std::map<int, Handle> readings_; ///< By number; those up to the latest answer are done.
    std::map<const QQuickWindow*, UndoOffers*> undo_;
};

} // namespace ravelo
