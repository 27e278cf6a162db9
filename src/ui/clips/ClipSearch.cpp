#include "ui/clips/ClipSearch.h"

#include "clipboard/CaptureRules.h"
#include "ui/clips/SecretText.h"

#include <QElapsedTimer>

#include <utility>

namespace ravelo {

using namespace std::chrono_literals;

namespace {

/// UTF-16 units searched at once: 1 to 2 ms, or 10 ms for text without ASCII.
constexpr qsizetype portion = 1 << 20;

/// Fixed cost of a clip, in the same units.
constexpr qsizetype perClip = 200;

/// Time for an expression at once, and over all clips.
constexpr auto expressionPortion = 2ms;
constexpr auto maxForExpression = 200ms;

/// For the marks of an expression; each visible row needs its own.
constexpr qint64 maxMillisecondsForMarks = 5;
constexpr qsizetype maxMarks = 50;

QList<TextRange> matchesOf(const QRegularExpression& expression, const QString& shown) {
    QList<TextRange> ranges;
    QElapsedTimer spent;
    spent.start();
    auto matches = expression.globalMatch(shown);
    while (ranges.size() < maxMarks && spent.elapsed() < maxMillisecondsForMarks &&
           matches.hasNext()) {
        const auto match = matches.next();
        if (match.capturedLength() > 0) {
            ranges.append({match.capturedStart(), match.capturedLength()});
        }
    }
    return ranges;
}

} // namespace

ClipSearch::ClipSearch(const QLocale& locale)
    : locale_(locale), phrase_(locale), words_(locale, TextSearch::For::words) {}

void ClipSearch::setWritten(const QString& written, Date now) {
    written_ = written;
    query_ = ClipQuery::parse(written, now);
    phrase_.setWanted(query_.text);
    words_.setWanted(query_.text);
}

void ClipSearch::begin(QList<ClipItem> clips, Details details) {
    clips_ = std::move(clips);
    details_ = std::move(details);
    next_ = 0;
    found_ = {};
    byWords_ = false;
    gaveUp_ = false;
    spent_ = {};
}

bool ClipSearch::advance() {
    const auto spentBefore = spent_;
    for (qsizetype left = portion; left > 0 && spent_ - spentBefore < expressionPortion; ++next_) {
        if (next_ == clips_.size()) {
            if (!found_.isEmpty() || byWords_ || query_.expression) {
                return true;
            }
            byWords_ = true;
            words_.skipMissed(phrase_);
            next_ = -1;
            continue;
        }
        const ClipItem& clip = clips_[next_];
        if (query_.accepts(clip, details_(clip.id)) && accepts(clip)) {
            found_.append(clip);
        }
        left -= perClip + clip.text.size();
    }
    return false;
}

QList<ClipItem> ClipSearch::take() {
    clips_ = {};
    details_ = nullptr;
    marker_.emplace(locale_, byWords_ ? TextSearch::For::words : TextSearch::For::phrase);
    marker_->setWanted(query_.text);
    markedBy_ = query_.mistake.isEmpty() ? query_.expression : std::nullopt;
    return std::exchange(found_, {});
}

/// A secret is found by what is shown of it.
bool ClipSearch::accepts(const ClipItem& clip) {
    if (query_.expression) {
        return matches(clip, *query_.expression);
    }
    return clip.secret.isEmpty() ? (byWords_ ? words_ : phrase_).finds(clip.id, clip.text)
                                 : (secretRuns(clip).join(QString()) + u' ' + secretKind(clip))
                                       .contains(query_.text, Qt::CaseInsensitive);
}

bool ClipSearch::matches(const ClipItem& clip, const QRegularExpression& expression) {
    if (!query_.mistake.isEmpty() || clip.kind == ClipKind::image || !clip.secret.isEmpty()) {
        return false;
    }
    if (spent_ > maxForExpression) {
        gaveUp_ = true;
        return false;
    }
    const auto start = std::chrono::steady_clock::now();
    const PatternAnswer answer = tryPattern(expression, clip.text);
    spent_ += std::chrono::steady_clock::now() - start;
    gaveUp_ = gaveUp_ || answer == PatternAnswer::unknown;
    return answer == PatternAnswer::matches;
}

QList<TextRange> ClipSearch::marks(const QString& shown) const {
    if (markedBy_) {
        return matchesOf(*markedBy_, shown);
    }
    return marker_ ? marker_->matches(shown) : QList<TextRange>();
}

} // namespace ravelo
