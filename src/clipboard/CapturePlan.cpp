#include "clipboard/CapturePlan.h"

#include "store/PasteboardImage.h"

namespace ravelo {

namespace {

constexpr QLatin1StringView concealedType("org.nspasteboard.ConcealedType");
constexpr QLatin1StringView passwordHint("x-kde-passwordManagerHint");

bool isUnasked(const PasteboardSnapshot& snapshot, QLatin1StringView type) {
    return snapshot.types.contains(type) && !snapshot.answers.contains(type);
}

} // namespace

QString nextCaptureType(const PasteboardSnapshot& snapshot, ImageDecoder& decoder) {
    if (isUnasked(snapshot, passwordHint)) {
        return passwordHint;
    }
    if (isConcealed(snapshot)) {
        return {};
    }
    if (isUnasked(snapshot, plainTextType)) {
        return plainTextType;
    }
    return capturedText(snapshot).isEmpty() ? nextImageType(snapshot, decoder) : QString();
}

bool isConcealed(const PasteboardSnapshot& snapshot) {
    if (snapshot.types.contains(concealedType)) {
        return true;
    }
    if (!snapshot.types.contains(passwordHint)) {
        return false;
    }
    const auto hint = snapshot.answers.value(passwordHint);
    return !hint || hint->trimmed().startsWith("secret");
}

QString capturedText(const PasteboardSnapshot& snapshot) {
    return QString::fromUtf8(snapshot.answers.value(plainTextType).value_or(QByteArray()))
        .trimmed();
}

} // namespace ravelo
