// Offers and answers of a clipboard owner: lines of types, an empty line, then the bytes for each
// of them.

#include "Input.h"
#include "base/ClipboardText.h"
#include "clipboard/CapturePlan.h"

#include <QUtf8StringView>

using namespace ravelo;

namespace {

/// Asks for what `next` names until it has enough, and gives the same bytes each time.
template <typename Next>
void answerAll(PasteboardSnapshot& snapshot, const QByteArray& given, Next next) {
    for (QString type = next(snapshot); !type.isEmpty(); type = next(snapshot)) {
        // Until they are read, these marks count as secret: nothing else may be requested.
        const bool isMark = type.contains(u"x-kde-passwordManagerHint") ||
                            type.contains(u"CanIncludeInClipboardHistory");
        fuzz::require(!snapshot.answers.contains(type) && (isMark || !isConcealed(snapshot)));
        snapshot.answers.insert(type, given);
    }
}

void requireKeepable(const PasteboardSnapshot& snapshot) {
    qsizetype size = 0;
    for (const PasteboardEntry& form : capturedForms(snapshot)) {
        fuzz::require(isKeptForm(form.type) &&
                      (form.type != gnomeFilesType || !form.bytes.startsWith("cut\n")));
        size += form.bytes.size();
    }
    fuzz::require(size <= maxFormsSize && (size == 0 || !isConcealed(snapshot)));
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size) {
    const QByteArray input = fuzz::view(bytes, size).toByteArray();
    const qsizetype end = std::max<qsizetype>(input.indexOf("\n\n"), 0);
    const QList<QByteArray> targets = input.first(end).split('\n');
    const QByteArray given = input.mid(end + 2);

    PasteboardSnapshot snapshot;
    for (const QByteArray& target : textTargets(targets)) {
        fuzz::require(isPlainText(target));
        const auto text = toUtf8(target, targets.last(), given);
        fuzz::require(!text || QUtf8StringView(*text).isValidUtf8());
        snapshot.types = QStringList{plainTextType};
        snapshot.answers.insert(plainTextType, text);
    }
    for (const QByteArray& target : targets) {
        snapshot.types.append(QString::fromUtf8(target));
    }
    answerAll(snapshot, given, [](const auto& known) { return nextCaptureType(known); });
    answerAll(snapshot, given, nextFormType);
    requireKeepable(snapshot);
    const bool hasText = !capturedText(snapshot).isEmpty();
    fuzz::require(!hasText || copiedFilesText(snapshot).isEmpty());
    fuzz::require(!hasText || !tooLargeToKeep(snapshot));
    return 0;
}
