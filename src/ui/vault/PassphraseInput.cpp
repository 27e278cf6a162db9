#include "ui/vault/PassphraseInput.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QStringEncoder>

#include <array>
#include <cstring>
#include <utility>

#include <string.h>

namespace ravelo {

namespace {

constexpr size_t maxBytes = 1024;

bool isLast(char byte) {
    return (static_cast<uchar>(byte) & 0xc0) != 0x80; // Not a continuation byte.
}

} // namespace

PassphraseInput::PassphraseInput(QQuickItem* parent) : QQuickItem(parent), bytes_(maxBytes) {
    setFlag(ItemAcceptsInputMethod);
    setActiveFocusOnTab(true);
}

LockedBytes PassphraseInput::take() {
    LockedBytes taken = LockedBytes::copyOf(view());
    clear();
    return taken;
}

void PassphraseInput::clear() {
    bytes_ = LockedBytes(maxBytes);
    used_ = 0;
    length_ = 0;
    Q_EMIT changed();
}

bool PassphraseInput::equals(const PassphraseInput* other) const {
    return other != nullptr && other->view() == view();
}

void PassphraseInput::add(QStringView text) {
    for (qsizetype at = 0; at < text.size();) {
        const qsizetype units = text[at].isHighSurrogate() && at + 1 < text.size() ? 2 : 1;
        std::array<char, 8> utf8{};
        QStringEncoder encode(QStringEncoder::Utf8);
        const auto count = encode.appendToBuffer(utf8.data(), text.mid(at, units)) - utf8.data();
        if (text[at].isPrint() || units == 2) {
            if (used_ + count <= qsizetype(maxBytes)) {
                std::memcpy(bytes_.data() + used_, utf8.data(), static_cast<size_t>(count));
                used_ += count;
                ++length_;
            }
        }
        explicit_bzero(utf8.data(), utf8.size());
        at += units;
    }
    Q_EMIT changed();
}

void PassphraseInput::removeLast() {
    while (used_ > 0) {
        --used_;
        const char byte = std::exchange(reinterpret_cast<char&>(bytes_.data()[used_]), '\0');
        if (isLast(byte)) {
            --length_;
            break;
        }
    }
    Q_EMIT changed();
}

void PassphraseInput::keyPressEvent(QKeyEvent* event) {
    constexpr auto commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    const QString text = event->text();
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        Q_EMIT accepted();
    } else if (event->key() == Qt::Key_Backspace) {
        (event->modifiers() & Qt::ControlModifier) != 0 ? clear() : removeLast();
    } else if (event->modifiers() == Qt::ControlModifier && event->key() == Qt::Key_U) {
        clear();
    } else if (!text.isEmpty() && text[0].isPrint() && (event->modifiers() & commands) == 0) {
        add(text);
    } else {
        event->ignore();
    }
}

void PassphraseInput::inputMethodEvent(QInputMethodEvent* event) {
    add(event->commitString());
}

QVariant PassphraseInput::inputMethodQuery(Qt::InputMethodQuery query) const {
    switch (query) {
    case Qt::ImEnabled:
        return true;
    case Qt::ImHints:
        return static_cast<int>(Qt::ImhHiddenText | Qt::ImhSensitiveData | Qt::ImhNoPredictiveText |
                                Qt::ImhNoAutoUppercase);
    default:
        return QQuickItem::inputMethodQuery(query);
    }
}

/// Nothing stays in a field that is not shown any more.
void PassphraseInput::itemChange(ItemChange change, const ItemChangeData& data) {
    if (change == ItemVisibleHasChanged && !data.boolValue && length_ > 0) {
        clear();
    }
    QQuickItem::itemChange(change, data);
}

} // namespace ravelo
