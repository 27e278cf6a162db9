#pragma once

#include "base/Handle.h"
#include "base/OwnFile.h"
#include "platform/Preferences.h"

#include <QJsonObject>

#include <memory>

namespace ravelo {

class Scheduler;
class Worker;

/// The preferences as one JSON object (RFC 8259) in a file that only its user can read. Read once,
/// at construction; every change goes to the worker at once, and changes that come during a write
/// share the next one. A file that is no JSON object is put aside before it is replaced. After a
/// failed write the values stay in memory and are written again later, or with the next change.
class PreferenceFile final : public Preferences {
public:
    struct Services {
        Scheduler& scheduler;
        Worker& worker;
        OwnFile::Permission mayWrite = {};
    };

    /// Makes the file's folder with the first write. The services outlive this object.
    PreferenceFile(QString path, Services services);

    /// Waits until the last change is written, or has failed once more.
    ~PreferenceFile() override;

    PreferenceFile(const PreferenceFile&) = delete;
    PreferenceFile& operator=(const PreferenceFile&) = delete;

    [[nodiscard]] QJsonValue value(const QString& key) const override;
    void set(const QString& key, const QJsonValue& value) override;

    /// There was a file at the start, and it could not be read: this is not a first start.
    [[nodiscard]] bool wasUnreadable() const { return wasUnreadable_; }

    /// Where the unreadable file is kept; empty as long as none had to be put aside.
    [[nodiscard]] const QString& putAside() const { return putAside_; }

    /// Writes again what could not be written, now.
    void retry();

    /// Like `retry`, and waits for it. For the end of the program; needs no event loop.
    void flush();

    /// After each write.
    std::function<void(const Result<void>&)> onSaved;
    /// Once `putAside` is known.
    std::function<void()> onPutAside;

private:
    void write();
    void written(const SaveOutcome& outcome);

    QString path_;
    Services services_;
    QJsonObject values_;
    std::shared_ptr<OwnFile> file_; ///< The worker's.
    QString putAside_;
    Handle retry_;
    bool wasUnreadable_ = false;
    bool unsaved_ = false; ///< The last write failed.
    bool writing_ = false;
    bool changedMeanwhile_ = false;
};

} // namespace ravelo
