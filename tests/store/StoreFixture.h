#pragma once

#include "base/Files.h"
#include "fakes/FakeDetachedJobs.h"
#include "fakes/FakeServices.h"
#include "fakes/InProcessDecoder.h"
#include "fakes/ManualScheduler.h"
#include "fakes/ManualWorker.h"
#include "fakes/MemoryPasteboard.h"
#include "fakes/MemoryPreferences.h"
#include "store/Store.h"
#include "store/disk/StoreFile.h"
#include "support/SignalCount.h"
#include "support/TestPictures.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

namespace ravelo {

/// A store in a temporary folder, on virtual time. The worker runs in `settle` and `restart`.
class StoreFixture : public testing::Test {
protected:
    void start() { store_ = std::make_unique<Store>(folder(), services()); }

    /// Quits properly and starts again.
    void restart() {
        store_->flush();
        start();
    }

    /// Lets time pass and the worker finish.
    void settle(Seconds time = Seconds(0.4)) {
        scheduler_.advance(time);
        worker_.drain();
    }

    [[nodiscard]] Store::Services services() {
        return {scheduler_, worker_,      preferences_, pasteboard_, sound_,
                jobs_,      copiedFiles_, conversions_, decoder_,    mayWrite_};
    }

    [[nodiscard]] QString folder() const { return directory_.filePath(QStringLiteral("Ravelo")); }

    [[nodiscard]] QString storeFile() const { return folder() + QStringLiteral("/store.json"); }

    /// The contents of the file; fails if it is missing or undecodable.
    [[nodiscard]] StoreData saved() const {
        const auto data = decodeStore(readFile(storeFile()).value_or(QByteArray()));
        EXPECT_TRUE(data) << "no decodable store file";
        return data.value_or(StoreData());
    }

    [[nodiscard]] QStringList imageFiles() const {
        return QDir(folder() + QStringLiteral("/clips")).entryList(QDir::Files | QDir::Hidden);
    }

    [[nodiscard]] static PasteboardSnapshot png(QColor color) {
        const QString type = QStringLiteral("image/png");
        return {{type}, {{type, picture("png", color)}}};
    }

    /// The clips in list order; an image by its colour.
    [[nodiscard]] std::string texts() const {
        QStringList words;
        for (const ClipItem& clip : store_->clips()) {
            words.append(
                clip.kind != ClipKind::image
                    ? clip.text
                    : QString::fromStdString(colorOf(
                          readFile(store_->imagePath(clip.imageFileName)).value_or(QByteArray()))));
        }
        return words.join(QLatin1Char(' ')).toStdString();
    }

    QTemporaryDir directory_;
    ManualScheduler scheduler_;
    ManualWorker worker_{ManualWorker::Mode::whenTold};
    MemoryPreferences preferences_;
    MemoryPasteboard pasteboard_{scheduler_};
    FakeAlertSound sound_;
    FakeDetachedJobs jobs_{scheduler_};
    FakeDetachedJobs copiedFiles_{scheduler_};
    FakeDetachedJobs conversions_{scheduler_};
    std::shared_ptr<InProcessDecoder> decoder_ = std::make_shared<InProcessDecoder>();
    OwnFile::Permission mayWrite_;
    std::unique_ptr<Store> store_;
};

} // namespace ravelo
