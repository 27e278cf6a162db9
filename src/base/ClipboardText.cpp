#include "base/ClipboardText.h"

#include <QByteArrayView>
#include <QString>
#include <QUtf8StringView>

#include <algorithm>

namespace ravelo {

namespace {

/// The surest first; lower case.
constexpr QByteArrayView preferred[] = {
    "utf8_string", "text/plain;charset=utf-8", "string", "text/plain", "text", "compound_text"};

QByteArray normalized(const QByteArray& name) {
    return name.toLower().replace(' ', "").replace('"', "");
}

std::ptrdiff_t rank(const QByteArray& target) {
    const QByteArray name = normalized(target);
    return std::ranges::find(preferred, QByteArrayView(name)) - std::begin(preferred);
}

bool isLatin1(const QByteArray& target, const QByteArray& type) {
    // Some give STRING's bytes under a type of their own; none gives UTF-8 and calls it STRING.
    return type == "STRING" || (target == "STRING" && type != "UTF8_STRING");
}

} // namespace

bool isPlainText(const QByteArray& target) {
    const QByteArray name = normalized(target);
    return name.startsWith("text/plain;") || rank(target) < std::ssize(preferred);
}

QList<QByteArray> textTargets(const QList<QByteArray>& targets) {
    QList<QByteArray> result;
    std::ranges::copy_if(targets, std::back_inserter(result), [](const QByteArray& target) {
        return rank(target) < std::ssize(preferred);
    });
    std::ranges::stable_sort(result, {}, rank);
    return result;
}

std::optional<QByteArray> toUtf8(const QByteArray& target, const QByteArray& type,
                                 const QByteArray& bytes) {
    if (type == "COMPOUND_TEXT" && bytes.contains('\x1b')) {
        return std::nullopt; // Switches to another character set; without it it is Latin-1.
    }
    if (!isLatin1(target, type) && QUtf8StringView(bytes).isValidUtf8()) {
        return bytes;
    }
    return QString::fromLatin1(bytes).toUtf8();
}

} // namespace ravelo
