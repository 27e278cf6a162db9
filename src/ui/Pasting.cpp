#include "ui/Pasting.h"

#include "platform/Pasteboard.h"

#include <QPointer>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

QString textOnly(const PasteboardSnapshot& seen) {
    const bool wanted = seen.types.contains(plainTextType) && !seen.answers.contains(plainTextType);
    return wanted ? QString(plainTextType) : QString();
}

QString onOneLine(QString text) {
    return text.replace(u"\r\n"_s, u" "_s).replace(u'\n', u' ').replace(u'\r', u' ');
}

void replaceSelection(QQuickItem& field, const QString& text) {
    const int start = field.property("selectionStart").toInt();
    const int end = field.property("selectionEnd").toInt();
    QMetaObject::invokeMethod(&field, "remove", Q_ARG(int, start), Q_ARG(int, end));
    QMetaObject::invokeMethod(&field, "insert", Q_ARG(int, start), Q_ARG(QString, text));
    field.setProperty("cursorPosition", static_cast<int>(start + text.size()));
}

} // namespace

void Pasting::into(QQuickItem* field, Lines lines) {
    reading_ = pasteboard_.read(
        textOnly, [target = QPointer(field), lines](const PasteboardSnapshot& snapshot) {
            const auto bytes = snapshot.answers.value(plainTextType);
            if (target.isNull() || !bytes) {
                return;
            }
            const QString text = QString::fromUtf8(*bytes);
            replaceSelection(*target, lines == OneLine ? onOneLine(text) : text);
        });
}

} // namespace ravelo
