#include "clipboard/CapturePlan.h"

#include "base/FileUrl.h"
#include "base/UriList.h"

#include <QSysInfo>

namespace ravelo {

namespace {

constexpr QLatin1StringView concealedType("org.nspasteboard.ConcealedType");
constexpr QLatin1StringView passwordHint("x-kde-passwordManagerHint");

bool isUnasked(const PasteboardSnapshot& snapshot, QLatin1StringView type) {
    return snapshot.types.contains(type) && !snapshot.answers.contains(type);
}

/// GTK 4.8 puts the paths of several files on one line.
bool mayBePathsInALine(const QString& text) {
    return text.startsWith(u'/') && text.contains(u" /") && !text.contains(u'\n');
}

/// Their paths if they are all on this machine.
QByteArrayList copiedPaths(const PasteboardSnapshot& snapshot) {
    const QByteArray list = snapshot.answers.value(filesType).value_or(QByteArray());
    QByteArrayList paths;
    for (const QUrl& file : localFiles(list, QSysInfo::machineHostName().toUtf8())) {
        paths.append(filePath(file));
    }
    return paths;
}

} // namespace

QString nextCaptureType(const PasteboardSnapshot& snapshot, const QStringList& useless) {
    if (isUnasked(snapshot, passwordHint)) {
        return passwordHint;
    }
    if (isConcealed(snapshot)) {
        return {};
    }
    if (isUnasked(snapshot, plainTextType)) {
        return plainTextType;
    }
    const QString text = capturedText(snapshot);
    if (mayBePathsInALine(text) && isUnasked(snapshot, filesType)) {
        return filesType;
    }
    return text.isEmpty() ? nextImageType(snapshot, useless) : QString();
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

QString capturedText(const PasteboardSnapshot& snapshot, TextEnds ends) {
    QString text = QString::fromUtf8(snapshot.answers.value(plainTextType).value_or(QByteArray()));
    QString trimmed = text.trimmed();
    if (mayBePathsInALine(trimmed)) {
        const QByteArrayList paths = copiedPaths(snapshot);
        if (trimmed == QString::fromUtf8(paths.join(' ')).trimmed()) {
            return QString::fromUtf8(paths.join('\n')).trimmed();
        }
    }
    return ends == TextEnds::trimmed || trimmed.isEmpty() ? trimmed : text;
}

QString offeredText(const PasteboardSnapshot& snapshot) {
    return QString::fromUtf8(snapshot.answers.value(plainTextType).value_or(QByteArray()))
        .trimmed();
}

bool isFromFile(const PasteboardSnapshot& snapshot) {
    return capturedText(snapshot).isEmpty() &&
           !snapshot.answers.value(filesType).value_or(QByteArray()).isEmpty();
}

std::optional<TooLarge> tooLargeToKeep(const PasteboardSnapshot& snapshot) {
    if (!capturedText(snapshot).isEmpty() || !imageType(snapshot).isEmpty()) {
        return std::nullopt;
    }
    if (const auto text = snapshot.tooLarge.find(plainTextType); text != snapshot.tooLarge.end()) {
        return TooLarge{TooLarge::Kind::text, *text};
    }
    return oversizedImage(snapshot);
}

} // namespace ravelo
