#include "ui/clips/LinkOpening.h"

#include "base/FileUrl.h"
#include "base/Files.h"
#include "platform/FileOpener.h"
#include "platform/TimedJob.h"
#include "store/Records.h"
#include "ui/controls/Toast.h"

#include <algorithm>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr Seconds timeout(2);

/// Rows that come later would move under the pointer.
constexpr Seconds lookTimeout(0.2);
constexpr qsizetype maxPath = 4096;
constexpr qsizetype maxName = 40;

bool isTrusted(const QString& scheme) {
    return scheme == u"http" || scheme == u"https" || scheme == u"mailto";
}

bool isScript(const QString& scheme) {
    return scheme == u"javascript" || scheme == u"data" || scheme == u"vbscript";
}

/// The address in a clip, invalid if there is none. Addresses without "://" are stored as texts,
/// but few texts with a colon are links.
QUrl linkIn(const ClipItem& clip) {
    const QString text = clip.text.trimmed();
    if (clip.kind == ClipKind::url) {
        return QUrl(text);
    }
    const bool oneWord = std::ranges::none_of(text, [](QChar one) { return one.isSpace(); });
    const QUrl link = clip.kind == ClipKind::text && oneWord ? QUrl(text) : QUrl();
    return link.scheme() == u"mailto" || isScript(link.scheme()) ? link : QUrl();
}

/// The file that a clip names by a path or a link; invalid if it names none.
QUrl fileIn(const ClipItem& clip) {
    const QString text = clip.text.trimmed();
    const bool oneLine = text.size() <= maxPath && !text.contains(u'\n');
    if (!clip.secret.isEmpty() || clip.kind == ClipKind::image || !oneLine) {
        return {};
    }
    if (text.startsWith(u'/')) {
        return fileUrl(text.toUtf8());
    }
    const QUrl link = text.startsWith("file:"_L1) ? QUrl(text) : QUrl();
    const QByteArray path = filePath(link);
    return path.isEmpty() ? QUrl() : fileUrl(path);
}

Handle lookFor(const QUrl& file, DetachedJobs& jobs, Scheduler& scheduler, Seconds limit,
               std::function<void(bool isThere)> done) {
    return runTimed<Presence>(
        jobs, scheduler, limit, [path = filePath(file)] { return presenceOf(path); },
        [done = std::move(done)](const std::optional<Presence>& found) {
            done(found == Presence::there);
        });
}

/// Names of programs and schemes are not trusted.
QString brief(const QString& name) {
    const QString line = name.simplified();
    return line.size() > maxName ? line.first(maxName - 1) + u'…' : line;
}

} // namespace

LinkOpening::LinkOpening(FileOpener& opener, DetachedJobs& jobs, Scheduler& scheduler, Toast& toast)
    : opener_(opener), jobs_(jobs), scheduler_(scheduler), toast_(toast) {}

void LinkOpening::open(const ClipItem& clip) {
    if (const QUrl file = fileIn(clip); file.isValid()) {
        openFile(file);
        return;
    }
    const QUrl link = linkIn(clip);
    if (!link.isValid() || link.scheme().isEmpty()) {
        return;
    }
    reset();
    if (isScript(link.scheme())) {
        toast_.flash(tr("Not opened"));
    } else if (isTrusted(link.scheme())) {
        openNow(link);
    } else {
        ask(link);
    }
}

void LinkOpening::openFile(const QUrl& file) {
    reset();
    looking_ = lookFor(file, jobs_, scheduler_, timeout, [this, file](bool isThere) {
        if (isThere) {
            ask(file); // Some kinds of files start programs.
        } else {
            toast_.flash(tr("Not there any more"));
        }
    });
}

void LinkOpening::look(const ClipItem& clip) {
    setFile(false);
    const QUrl file = fileIn(clip);
    presence_ = file.isValid() ? lookFor(file, jobs_, scheduler_, lookTimeout,
                                         [this](bool isThere) { setFile(isThere); })
                               : Handle();
}

void LinkOpening::setFile(bool isFile) {
    if (std::exchange(isFile_, isFile) != isFile) {
        Q_EMIT fileChanged();
    }
}

void LinkOpening::openAsked() {
    if (!link_.isEmpty()) {
        openNow(std::exchange(link_, {}));
    }
}

void LinkOpening::reset() {
    link_.clear();
    looking_.reset();
    timeOut_.reset();
    presence_.reset();
}

void LinkOpening::openNow(const QUrl& link) {
    opener_.open(link);
    Q_EMIT opened();
}

void LinkOpening::ask(const QUrl& link) {
    timeOut_ = scheduler_.after(timeout, [this] {
        looking_.reset();
        toast_.flash(tr("Not opened"));
    });
    looking_ = opener_.findProgram(link, [this, link](const QString& name) {
        timeOut_.reset();
        if (name.isEmpty()) {
            toast_.flash(link.isLocalFile()
                             ? tr("No program opens %1").arg(brief(link.fileName()))
                             : tr("No program opens %1 links").arg(brief(link.scheme())));
            return;
        }
        link_ = link;
        Q_EMIT asked(tr("Open with %1?").arg(brief(name)));
    });
}

} // namespace ravelo
