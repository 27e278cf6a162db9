#include "platform/x11/selection/PasteboardConversation.h"

#include "base/ClipboardText.h"

#include <algorithm>

namespace ravelo::x11 {

namespace {

constexpr qsizetype maxTargets = 512;

} // namespace

PasteboardConversation::PasteboardConversation(Connection& connection, PasteboardSnapshot known,
                                               PasteboardPlan plan, Done done)
    : connection_(connection),
      plan_(std::move(plan)),
      done_(std::move(done)),
      snapshot_(std::move(known)) {}

std::optional<TransferRequest> PasteboardConversation::next() {
    if (step_ == Step::targets) {
        return request(QByteArrayLiteral("TARGETS"));
    }
    while (fallbacks_.isEmpty()) {
        wanted_ = plan_(snapshot_);
        if (wanted_.isEmpty() || snapshot_.answers.contains(wanted_)) {
            return std::nullopt;
        }
        snapshot_.answers.insert(wanted_, std::nullopt);
        fallbacks_ = targetsFor(wanted_);
    }
    return request(fallbacks_.takeFirst());
}

void PasteboardConversation::take(TransferResult result) {
    if (step_ == Step::targets) {
        step_ = Step::contents;
        takeTargets(result ? result->bytes : QByteArray());
        return;
    }
    if (result) {
        fallbacks_.clear();
        snapshot_.answers[wanted_] =
            wanted_ == plainTextType
                ? toUtf8(target_, connection_.names({&result->type, 1}).front(), result->bytes)
                : result->bytes;
    } else if (result.error().reason != TransferFailure::refused) {
        fallbacks_.clear(); // It would be as slow or as large under another name.
    }
    if (!result && result.error().reason == TransferFailure::tooLarge) {
        snapshot_.tooLarge.insert(wanted_, result.error().bytes);
    }
}

TransferRequest PasteboardConversation::request(const QByteArray& target) {
    target_ = target;
    return {connection_.atom(target), maxAnswerSize(target)};
}

QList<QByteArray> PasteboardConversation::targetsFor(const QString& type) const {
    if (type == plainTextType) {
        return textTargets(offered_);
    }
    const QByteArray target = type.toLatin1();
    return offered_.contains(target) ? QList{target} : QList<QByteArray>();
}

void PasteboardConversation::takeTargets(const QByteArray& atoms) {
    const qsizetype size = sizeof(xcb_atom_t);
    if (atoms.size() / size > maxTargets) {
        return; // A mark of secrecy could be among those that are not looked at.
    }
    std::vector<xcb_atom_t> targets(static_cast<std::size_t>(atoms.size() / size));
    std::copy_n(atoms.constData(), targets.size() * sizeof(xcb_atom_t),
                reinterpret_cast<char*>(targets.data()));
    for (const QByteArray& name : connection_.names(targets)) {
        if (!name.isEmpty() && !offered_.contains(name)) {
            offered_.append(name);
        }
    }
    for (const QByteArray& name : std::as_const(offered_)) {
        const QString type = isPlainText(name) ? QString(plainTextType) : QString::fromLatin1(name);
        if (!snapshot_.types.contains(type)) {
            snapshot_.types.append(type);
        }
    }
}

} // namespace ravelo::x11
