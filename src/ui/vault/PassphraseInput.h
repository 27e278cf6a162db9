#pragma once

#include "vault/LockedBytes.h"

#include <QQmlEngine>
#include <QQuickItem>

namespace ravelo {

/// Takes a passphrase by key and keeps it in locked memory; shows nothing itself. Its text is never
/// a string, an undo step, or known to screen readers. Paste is not possible: the clipboard is no
/// place for it. Main thread.
class PassphraseInput : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(int length READ length NOTIFY changed)

public:
    explicit PassphraseInput(QQuickItem* parent = nullptr);

    /// In characters.
    [[nodiscard]] int length() const { return length_; }

    /// Moves it out; the field is empty afterwards.
    [[nodiscard]] LockedBytes take();

    [[nodiscard]] QByteArrayView view() const { return bytes_.view().first(used_); }

    /// A key that something else got.
    Q_INVOKABLE void type(const QString& text) { add(text); }

    Q_INVOKABLE void clear();
    Q_INVOKABLE [[nodiscard]] bool equals(const ravelo::PassphraseInput* other) const;

Q_SIGNALS:
    void changed();
    void accepted(); ///< Return.

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    [[nodiscard]] QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;

private:
    void add(QStringView text);
    void removeLast();

    LockedBytes bytes_; ///< UTF-8.
    qsizetype used_ = 0;
    int length_ = 0;
};

} // namespace ravelo
