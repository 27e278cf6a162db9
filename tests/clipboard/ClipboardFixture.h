#pragma once

#include "clipboard/ClipboardManager.h"

#include "fakes/FakeAlertSound.h"
#include "fakes/FakeDetachedJobs.h"
#include "fakes/InProcessDecoder.h"
#include "fakes/ManualScheduler.h"
#include "fakes/ManualWorker.h"
#include "fakes/MemoryPasteboard.h"
#include "fakes/MemoryPreferences.h"
#include "store/Store.h"

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>
#include <optional>

namespace ravelo {

using namespace Qt::StringLiterals;

inline QByteArray picture(const char* format) {
    QImage image(3, 2, QImage::Format_ARGB32);
    image.fill(Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

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

class Clipboard : public testing::Test {
public:
    Clipboard() {
        pasteboard.offerText(u"there before the start"_s);
        manager.emplace(store, pasteboard, scheduler, jobs);
        manager->start();
    }

    void settle() {
        scheduler.advance(Seconds(0.6));
        worker.drain();
        scheduler.advance(Seconds(0)); // What was written may have to be read again.
    }

    [[nodiscard]] QString imageFile(const QByteArray& bytes = picture("png")) const {
        const QString path = folder.filePath(u"a.png"_s);
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        return path;
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
    std::optional<ClipboardManager> manager;
};

inline const PasteboardEntry secret{u"x-kde-passwordManagerHint"_s, "secret"};

inline const QList<PasteboardEntry> abc = {text("abc")};
inline const QList<PasteboardEntry> png = {{u"image/png"_s, picture("png")}};

using Happening = std::function<void(Clipboard&)>;

inline Happening offering(const QList<PasteboardEntry>& offered) {
    return [offered](Clipboard& on) {
        on.pasteboard.offer(offered);
    };
}

/// Offers it as a copy by one program.
inline Happening by(PasteboardOwner owner, const QList<PasteboardEntry>& offered) {
    return [owner, offered](Clipboard& on) {
        on.pasteboard.owner = owner;
        on.pasteboard.offer(offered);
        on.settle();
    };
}

inline Happening later(double seconds) {
    return [seconds](Clipboard& on) {
        on.scheduler.advance(Seconds(seconds));
    };
}

inline void lose(Clipboard& on) {
    on.pasteboard.loseOwner();
}

/// The next owner comes before the manager notices the end.
inline void loseUnseen(Clipboard& on) {
    on.pasteboard.notifies = false;
    on.pasteboard.loseOwner();
}

inline void deleteNewest(Clipboard& on) {
    on.store.deleteClip(on.store.clips().front().id);
}

inline void pinNewest(Clipboard& on) {
    on.store.togglePin(on.store.clips().front().id);
}

inline void clearAll(Clipboard& on) {
    on.store.clearClips();
}

inline const PasteboardOwner one{1};
inline const PasteboardOwner other{2};

} // namespace ravelo
