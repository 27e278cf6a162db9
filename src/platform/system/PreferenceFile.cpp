#include "platform/system/PreferenceFile.h"

#include "base/Files.h"
#include "base/Scheduler.h"
#include "platform/Worker.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

#include <utility>

namespace ravelo {

namespace {

constexpr Seconds retryDelay{30};

} // namespace

PreferenceFile::PreferenceFile(QString path, Services services)
    : path_(std::move(path)), services_(std::move(services)) {
    const QJsonDocument document = QJsonDocument::fromJson(readFile(path_).value_or(QByteArray()));
    wasUnreadable_ = !document.isObject() && QFileInfo::exists(path_);
    values_ = document.object();
    wasEmpty_ = values_.isEmpty();
    file_ = std::make_shared<OwnFile>(
        path_, document.isObject() ? OwnFile::Contents::ours : OwnFile::Contents::unreadable,
        services_.mayWrite);
}

PreferenceFile::~PreferenceFile() {
    onSaved = nullptr;
    flush();
}

QJsonValue PreferenceFile::value(const QString& key) const {
    return values_.value(key);
}

void PreferenceFile::set(const QString& key, const QJsonValue& value) {
    if (values_.value(key) == value) {
        return;
    }
    values_.insert(key, value);
    write();
}

void PreferenceFile::retry() {
    if (unsaved_) {
        write();
    }
}

void PreferenceFile::flush() {
    services_.worker.drain();
    retry();
    services_.worker.drain();
}

void PreferenceFile::erase(std::function<void(const Result<void>&)> done) {
    erased_ = true;
    const auto outcome = std::make_shared<Result<void>>();
    services_.worker.run([path = path_, outcome] { *outcome = erasePreferences(path); },
                         [outcome, done = std::move(done)] { done(*outcome); });
}

Result<void> erasePreferences(const QString& path) {
    const QFileInfo file(path);
    Result<void> done;
    for (const QFileInfo& one :
         file.dir().entryInfoList({file.fileName() + u'*'}, QDir::Files | QDir::System)) {
        if (const Result<void> removed = removeWithTarget(one.filePath()); !removed) {
            done = removed;
        }
    }
    const Result<void> synced = syncFolderOf(path);
    return done ? synced : done;
}

void PreferenceFile::write() {
    if (erased_) {
        return;
    }
    if (writing_) {
        changedMeanwhile_ = true;
        return;
    }
    writing_ = true;
    retry_.reset();
    const auto outcome = std::make_shared<SaveOutcome>();
    auto job = [file = file_, values = values_, outcome] {
        *outcome = file->write(QJsonDocument(values).toJson());
    };
    services_.worker.run(std::move(job), [this, outcome] { written(*outcome); });
}

void PreferenceFile::written(const SaveOutcome& outcome) {
    writing_ = false;
    unsaved_ = outcome.kind != SaveOutcome::Kind::saved;
    if (std::exchange(changedMeanwhile_, false)) {
        write();
    } else if (outcome.kind == SaveOutcome::Kind::failed) {
        retry_ = services_.scheduler.after(retryDelay, [this] { write(); });
    }
    if (onSaved) {
        onSaved(outcome);
    }
}

} // namespace ravelo
