#include "ui/clips/LinkOpening.h"

#include "platform/FileOpener.h"
#include "store/Records.h"
#include "ui/controls/Toast.h"

#include <algorithm>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr Seconds timeout(2);
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

/// Names of programs and schemes are not trusted.
QString brief(const QString& name) {
    const QString line = name.simplified();
    return line.size() > maxName ? line.first(maxName - 1) + u'…' : line;
}

} // namespace

LinkOpening::LinkOpening(FileOpener& opener, Scheduler& scheduler, Toast& toast)
    : opener_(opener), scheduler_(scheduler), toast_(toast) {}

void LinkOpening::open(const ClipItem& clip) {
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

void LinkOpening::openAsked() {
    if (!link_.isEmpty()) {
        openNow(std::exchange(link_, {}));
    }
}

void LinkOpening::reset() {
    link_.clear();
    looking_.reset();
    timeOut_.reset();
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
            toast_.flash(tr("No program opens %1 links").arg(brief(link.scheme())));
            return;
        }
        link_ = link;
        Q_EMIT asked(tr("Open with %1?").arg(brief(name)));
    });
}

} // namespace ravelo
