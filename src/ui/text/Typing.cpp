#include "ui/text/Typing.h"

#include "platform/Pasteboard.h"
#include "ui/text/ExactText.h"

#include <QPointer>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr auto engineProperty = "raveloTyping";

QString textOnly(const PasteboardSnapshot& seen) {
    const bool wanted = seen.types.contains(plainTextType) && !seen.answers.contains(plainTextType);
    return wanted ? QString(plainTextType) : QString();
}

QString inOneLine(QString text) {
    return text.replace(u"\r\n"_s, u" "_s).replace(u'\r', u' ').replace(u'\n', u' ');
}

void replaceSelection(QQuickItem& field, const QString& text) {
    const int start = field.property("selectionStart").toInt();
    const int end = field.property("selectionEnd").toInt();
    QMetaObject::invokeMethod(&field, "remove", Q_ARG(int, start), Q_ARG(int, end));
    QMetaObject::invokeMethod(&field, "insert", Q_ARG(int, start), Q_ARG(QString, text));
    field.setProperty("cursorPosition", static_cast<int>(start + text.size()));
}

} // namespace

Typing::Typing(Pasteboard& pasteboard, QQmlEngine& engine) : pasteboard_(pasteboard) {
    engine.setProperty(engineProperty, QVariant::fromValue(this));
}

Typing* Typing::create(QQmlEngine* engine, QJSEngine* /*scripts*/) {
    auto* typing = engine->property(engineProperty).value<Typing*>();
    QJSEngine::setObjectOwnership(typing, QJSEngine::CppOwnership);
    return typing;
}

int Typing::offers(QQuickItem* item) const {
    const UndoOffers* undo = undoOf(*item);
    return undo == nullptr ? 0 : undo->offers();
}

QQuickItem* Typing::focused(const QQuickItem* item) {
    QQuickItem* found = nullptr;
    for (QQuickItem* inner = item->window()->contentItem()->scopedFocusItem(); inner != nullptr;
         inner = inner->scopedFocusItem()) {
        found = inner;
    }
    // QML would own what a method returns, and delete a row that has no parent.
    QQmlEngine::setObjectOwnership(found, QQmlEngine::CppOwnership);
    return found;
}

bool Typing::undo(QQuickItem* item) {
    UndoOffers* undo = undoOf(*item);
    return undo != nullptr && undo->act();
}

UndoOffers* Typing::undoOf(const QQuickItem& item) const {
    const auto found = undo_.find(item.window());
    return found == undo_.end() ? nullptr : found->second;
}

void Typing::paste(QQuickItem* field, Lines lines) {
    const int number = ++pastes_;
    readings_[number] = pasteboard_.read(textOnly, [this, number, target = QPointer(field),
                                                    lines](const PasteboardSnapshot& snapshot) {
        readings_.erase(readings_.begin(), readings_.upper_bound(number));
        const auto bytes = snapshot.answers.value(plainTextType);
        if (target.isNull() || !bytes) {
            return;
        }
        const QString text = QString::fromUtf8(*bytes);
        if (lines == OneLine) {
            replaceSelection(*target, inOneLine(text));
        } else {
            replaceSelection(*target,
                             *target->property("textDocument").value<QQuickTextDocument*>(), text);
        }
    });
}

} // namespace ravelo
