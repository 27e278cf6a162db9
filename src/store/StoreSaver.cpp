#include "store/StoreSaver.h"

#include "base/Files.h"
#include "base/Scheduler.h"
#include "platform/Worker.h"
#include "store/ShelfPaths.h"
#include "store/StoreFile.h"

#include <QPointer>

#include <utility>

namespace ravelo {

namespace {

constexpr Seconds saveDelay{0.4};
constexpr Seconds retryDelay{30};

} // namespace

StoreSaver::StoreSaver(Scheduler& scheduler, Worker& worker, std::function<Contents()> current)
    : scheduler_(scheduler), worker_(worker), current_(std::move(current)) {}

std::optional<StoreSaver::Contents> StoreSaver::load(const QString& path,
                                                     const OwnFile::Permission& mayWrite) {
    const std::optional<QByteArray> bytes = readFile(path);
    std::optional<StoreData> data = bytes ? decodeStore(*bytes) : std::nullopt;
    file_ = std::make_shared<OwnFile>(
        path, data ? OwnFile::Contents::ours : OwnFile::Contents::unreadable, mayWrite);
    if (!data) {
        return std::nullopt;
    }
    QList<QList<QUrl>> shelf = shelfStacks(std::exchange(data->shelfStacks, {}));
    return Contents{std::move(*data), std::move(shelf)};
}

void StoreSaver::save() {
    unsaved_ = current_();
    pending_ = scheduler_.after(saveDelay, [this] { write(); });
}

void StoreSaver::saveNow() {
    save();
    write();
}

void StoreSaver::write() {
    pending_.reset();
    if (!unsaved_) {
        return;
    }
    retry_.reset();
    const auto outcome = std::make_shared<SaveOutcome>();
    auto job = [outcome, file = file_,
                contents = std::move(*std::exchange(unsaved_, std::nullopt))]() mutable {
        contents.data.shelfStacks = shelfPaths(contents.shelf);
        *outcome = file->write(encodeStore(contents.data));
    };
    worker_.run(std::move(job), [saver = QPointer(this), outcome] {
        if (saver) {
            saver->written(*outcome);
        }
    });
}

void StoreSaver::written(const SaveOutcome& outcome) {
    if (outcome.kind == SaveOutcome::Kind::failed) {
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
