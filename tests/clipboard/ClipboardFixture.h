#pragma once

#include "clipboard/CapturePause.h"
#include "clipboard/ClipboardManager.h"

#include "fakes/FakeDetachedJobs.h"
#include "fakes/FakeServices.h"
#include "fakes/InProcessDecoder.h"
#include "fakes/ManualScheduler.h"
#include "fakes/ManualWorker.h"
#include "fakes/MemoryPasteboard.h"
#include "fakes/MemoryPreferences.h"
#include "store/Store.h"
#include "support/TestFiles.h"
#include "support/TestPictures.h"

#include <QTemporaryDir>

#include <functional>
#include <optional>

namespace ravelo {

using namespace Qt::StringLiterals;

inline PasteboardEntry text(const char* utf8) {
    return {plainTextType, utf8};
}

inline QHash<QString, QByteArray> byType(const QList<PasteboardEntry>& forms) {
    QHash<QString, QByteArray> hash;
    for (const PasteboardEntry& form : forms) {
        hash.insert(form.type, form.bytes);
    }
    return hash;
}

/// A manager with its pasteboard, store and worker.
struct ClipboardWorld {
    /// Unlike most, this pasteboard does not always report changes.
    explicit ClipboardWorld(bool reportsAll = false) {
        pasteboard.reportsAll = reportsAll;
        pasteboard.offerText(u"there before the start"_s);
        manager.emplace(store, pasteboard, scheduler, jobs, pause);
        manager->start();
    }

    void settle() {
        scheduler.advance(Seconds(0.6));
        worker.drain();
        scheduler.advance(Seconds(0)); // What was written may have to be read again.
    }

    [[nodiscard]] QString imageFile(const QByteArray& bytes = picture("png")) const {
        return makeFile(folder.filePath(u"a.png"_s), bytes);
    }

    [[nodiscard]] QStringList texts() const {
        QStringList list;
        for (const ClipItem& clip : store.clips()) {
            list.append(clip.text);
        }
        return list;
    }

    QTemporaryDir folder;
    ManualScheduler scheduler;
    ManualWorker worker{ManualWorker::Mode::whenTold};
    MemoryPreferences preferences;
    MemoryPasteboard pasteboard{scheduler};
    FakeAlertSound sound;
    FakeDetachedJobs jobs{scheduler};
    std::shared_ptr<ImageDecoder> decoder = std::make_shared<InProcessDecoder>();
    Store store{folder.path(),
                {scheduler, worker, preferences, pasteboard, sound, jobs, jobs, jobs, decoder}};
    CapturePause pause{preferences, scheduler};
    std::optional<ClipboardManager> manager;
};

class Clipboard : public testing::Test, public ClipboardWorld {};

inline const PasteboardEntry secret{u"x-kde-passwordManagerHint"_s, "secret"};

inline const QList<PasteboardEntry> abc = {text("abc")};
inline const QList<PasteboardEntry> png = {{u"image/png"_s, picture("png")}};

using Happening = std::function<void(ClipboardWorld&)>;

inline Happening offering(const QList<PasteboardEntry>& offered) {
    return [offered](ClipboardWorld& on) {
        on.pasteboard.offer(offered);
    };
}

/// Offers it as a copy by one program.
inline Happening by(const PasteboardOwner& owner, const QList<PasteboardEntry>& offered) {
    return [owner, offered](ClipboardWorld& on) {
        on.pasteboard.owner = owner;
        on.pasteboard.offer(offered);
        on.settle();
    };
}

inline Happening later(double seconds) {
    return [seconds](ClipboardWorld& on) {
        on.scheduler.advance(Seconds(seconds));
    };
}

inline void lose(ClipboardWorld& on) {
    on.pasteboard.loseOwner();
}

/// The next owner comes before the manager notices the end.
inline void loseUnseen(ClipboardWorld& on) {
    on.pasteboard.notifies = false;
    on.pasteboard.loseOwner();
}

inline void deleteNewest(ClipboardWorld& on) {
    on.store.deleteClip(on.store.clips().front().id);
}

inline void pinNewest(ClipboardWorld& on) {
    on.store.togglePin(on.store.clips().front().id);
}

inline void clearAll(ClipboardWorld& on) {
    on.store.clearClips();
}

inline const PasteboardOwner one{1};
inline const PasteboardOwner other{2};

} // namespace ravelo
