#include "platform/freedesktop/DesktopFileOpener.h"

#include "base/FileUrl.h"
#include "platform/Programs.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>

#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

QUrl folderOf(const QUrl& file) {
    return file.adjusted(QUrl::StripTrailingSlash).adjusted(QUrl::RemoveFilename);
}

} // namespace

DesktopFileOpener::DesktopFileOpener(QDBusConnection bus, Programs& programs)
    : bus_(std::move(bus)), programs_(programs) {}

void DesktopFileOpener::open(const QUrl& file) {
    const QByteArray what = file.isLocalFile() ? filePath(file) : file.toEncoded();
    if (what.isEmpty()) {
        return;
    }
    waiting_.append(what);
    looking_ = programs_.find({u"xdg-open"_s}, [this](const QByteArray& opener) {
        for (const QByteArray& one : std::exchange(waiting_, {})) {
            if (!opener.isEmpty()) {
                programs_.start(opener, {one});
            }
        }
    });
}

void DesktopFileOpener::showInFolder(const QUrl& file) {
    auto call = QDBusMessage::createMethodCall(u"org.freedesktop.FileManager1"_s,
                                               u"/org/freedesktop/FileManager1"_s,
                                               u"org.freedesktop.FileManager1"_s, u"ShowItems"_s);
    call << QStringList{QString::fromLatin1(fileAddress(file))} << QString();
    const QDBusPendingCall answer = bus_.asyncCall(call);
    if (answer.isFinished()) { // There is no bus; nobody would tell.
        open(folderOf(file));
        return;
    }
    auto* const watcher = new QDBusPendingCallWatcher(answer, this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, file] {
        if (watcher->isError()) {
            open(folderOf(file));
        }
        watcher->deleteLater();
    });
}

} // namespace ravelo
