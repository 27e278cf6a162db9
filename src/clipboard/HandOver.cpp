#include "clipboard/HandOver.h"

#include "clipboard/CapturePlan.h"

#include <QHashFunctions>

#include <algorithm>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr Seconds handOverTime{2};

bool isImageForm(const QString& type) {
    return type.startsWith("image/"_L1) || type == filesType;
}

ContentsKey keyOf(ContentsKey::Kind kind, const QByteArray& bytes) {
    return {kind, bytes.size(), qHashBits(bytes.constData(), static_cast<size_t>(bytes.size()))};
}

} // namespace

std::optional<ContentsKey> contentsKey(const PasteboardSnapshot& snapshot) {
    // Untrimmed text could differ: programs that pass a text on may drop the rest.
    if (const QString text = offeredText(snapshot); !text.isEmpty()) {
        return keyOf(ContentsKey::Kind::text, text.toUtf8());
    }
    // They were requested in turn until one was good, so the good one is the largest.
    QByteArray image;
    for (auto answer = snapshot.answers.cbegin(); answer != snapshot.answers.cend(); ++answer) {
        if (isImageForm(answer.key()) && answer->value_or(QByteArray()).size() > image.size()) {
            image = **answer;
        }
    }
    if (!image.isEmpty()) {
        return keyOf(ContentsKey::Kind::image, image);
    }
    const auto largest = std::ranges::max_element(snapshot.tooLarge);
    return largest == snapshot.tooLarge.end()
               ? std::nullopt
               : std::optional(ContentsKey{ContentsKey::Kind::tooLarge, qsizetype(*largest), 0});
}

bool isHandOver(const HeldContents& before, Wanted wanted, const ContentsKey& next,
                const PasteboardOwner& owner, Seconds now) {
    if (before.key != next) {
        return false;
    }
    if (owner.kind == PasteboardOwner::Kind::manager) {
        return true;
    }
    if (before.ownerEnded) {
        return now - *before.ownerEnded <= handOverTime;
    }
    return wanted == Wanted::yes && owner.id != before.owner && now - before.since <= handOverTime;
}

} // namespace ravelo
