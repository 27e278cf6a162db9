// Offers and answers of a clipboard owner: lines of types, an empty line, then the bytes for each
// of them.

#include "Input.h"
#include "base/ClipboardText.h"
#include "clipboard/CapturePlan.h"

#include <QUtf8StringView>

using namespace ravelo;

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
    for (QString next = nextCaptureType(snapshot); !next.isEmpty();
         next = nextCaptureType(snapshot)) {
        // Until it is read, the hint counts as secret: nothing else may be requested.
        fuzz::require(!snapshot.answers.contains(next) &&
                      (next == u"x-kde-passwordManagerHint" || !isConcealed(snapshot)));
        snapshot.answers.insert(next, given);
    }
    (void)capturedText(snapshot);
    return 0;
}
