#include "platform/freedesktop/files/DesktopFileOpener.h"

#include "base/FileUrl.h"
#include "platform/DetachedJobs.h"
#include "platform/Programs.h"
#include "platform/freedesktop/files/DefaultProgram.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QLocale>
#include <QMimeDatabase>

#include <memory>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

QUrl folderOf(const QUrl& file) {
    return file.adjusted(QUrl::StripTrailingSlash).adjusted(QUrl::RemoveFilename);
}

/// "pt_BR", "pt" for Brazil.
QStringList languages() {
    const QString language = QLocale().name();
    return {language, language.section(u'_', 0, 0)};
}

QString programFor(const QUrl& what) {
    const auto folders = ProgramFolders::usual();
    if (!what.isLocalFile()) {
        return defaultProgram(u"x-scheme-handler/"_s + what.scheme(), folders, languages());
    }
    const QMimeType type =
        QMimeDatabase().mimeTypeForFile(what.path(), QMimeDatabase::MatchExtension);
    QString name = defaultProgram(type.name(), folders, languages());
    for (const QString& wider : type.allAncestors()) {
        name = name.isEmpty() ? defaultProgram(wider, folders, languages()) : name;
    }
    return name;
}

} // namespace

DesktopFileOpener::DesktopFileOpener(QDBusConnection bus, Programs& programs, DetachedJobs& jobs)
    : bus_(std::move(bus)), programs_(programs), jobs_(jobs) {}

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

Handle DesktopFileOpener::findProgram(const QUrl& what, std::function<void(QString)> done) {
    const auto name = std::make_shared<QString>();
    return jobs_.run([name, what] { *name = programFor(what); },
                     [name, done = std::move(done)] { done(*name); });
}

void DesktopFileOpener::showInFolder(const QUrl& file) {
    auto call = QDBusMessage::createMethodCall(u"org.freedesktop.FileManager1"_s,
                                               u"/org/freedesktop/FileManager1"_s,
                                               u"org.freedesktop.FileManager1"_s, u"ShowItems"_s);
    call << QStringList{QString::fromLatin1(fileAddress(file))} << QString();
    const QDBusPendingCall answer = bus_.asyncCall(call);
    if (answer.isFinished()) { // Without a bus it never emits `finished`.
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
