#include "store/disk/StoreSaver.h"

#include "base/Scheduler.h"
#include "platform/Worker.h"
#include "store/disk/ShelfPaths.h"
#include "store/disk/StoreFile.h"
#include "vault/Vault.h"

#include <QPointer>

#include <utility>

namespace ravelo {

namespace {

constexpr Seconds saveDelay{0.4};
constexpr Seconds retryDelay{30};

} // namespace

StoreSaver::StoreSaver(Scheduler& scheduler, Worker& worker, std::shared_ptr<Vault> vault,
                       std::function<StoreContents()> current)
    : scheduler_(scheduler),
      worker_(worker),
      vault_(std::move(vault)),
      current_(std::move(current)) {}

void StoreSaver::setFile(const QString& path, OwnFile::Contents contents,
                         const OwnFile::Permission& mayWrite) {
    path_ = path;
    file_ = std::make_shared<OwnFile>(path, contents, mayWrite);
}

void StoreSaver::stop() {
    file_.reset();
    unsaved_.reset();
    pending_.reset();
    retry_.reset();
}

void StoreSaver::save() {
    if (!file_) {
        return;
    }
    unsaved_ = current_();
    pending_ = scheduler_.after(saveDelay, [this] { write(); });
}

void StoreSaver::saveNow(Saved saved) {
    save();
    write(std::move(saved));
}

void StoreSaver::write(Saved saved) {
    pending_.reset();
    if (!unsaved_) {
        return;
    }
    retry_.reset();
    const auto outcome = std::make_shared<SaveOutcome>();
    auto job = [outcome, file = file_, path = path_, vault = vault_,
                contents = std::move(*std::exchange(unsaved_, std::nullopt))]() mutable {
        contents.data.shelfStacks = shelfPaths(contents.shelf);
        const Result<QByteArray> bytes = vault->sealed(path, encodeStore(contents.data));
        *outcome = bytes ? file->write(*bytes)
                         : SaveOutcome{SaveOutcome::Kind::forbidden, bytes.error().message, {}};
    };
    ++writing_;
    worker_.run(std::move(job), [saver = QPointer(this), outcome, saved = std::move(saved)] {
        if (saver) {
            --saver->writing_;
            saver->written(*outcome);
            if (saved) {
                saved(*outcome);
            }
        }
    });
}

void StoreSaver::written(const SaveOutcome& outcome) {
    if (outcome.kind == SaveOutcome::Kind::failed && file_) {
        // Saves the state of that time: a later write may have succeeded meanwhile.
        retry_ = scheduler_.after(retryDelay, [this] { save(); });
    }
    Q_EMIT ended(outcome);
}

void StoreSaver::flush() {
    if (retry_) {
        save();
    }
    do { // What the worker ends may save in turn.
        write();
        worker_.drain();
    } while (unsaved_);
}

} // namespace ravelo
