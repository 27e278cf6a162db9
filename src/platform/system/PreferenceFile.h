#pragma once

#include "base/Handle.h"
#include "base/OwnFile.h"
#include "platform/Preferences.h"

#include <QJsonObject>

#include <memory>

namespace ravelo {

class Scheduler;
class Worker;

/// The preferences as a JSON object (RFC 8259) in a file that only its user can read. Read once, at
/// construction; written after each change, with changes during a write combined. A file that is
/// not a JSON object is put aside before it is replaced. A failed write is retried later or with
/// the next change.
class PreferenceFile final : public Preferences {
public:
    struct Services {
        Scheduler& scheduler;
        Worker& worker;
        OwnFile::Permission mayWrite = {};
    };

    /// The first write creates the folder. The services must outlive this.
    PreferenceFile(QString path, Services services);

    /// Waits until the last change is written or has failed again.
    ~PreferenceFile() override;

    PreferenceFile(const PreferenceFile&) = delete;
    PreferenceFile& operator=(const PreferenceFile&) = delete;

    [[nodiscard]] QJsonValue value(const QString& key) const override;
    void set(const QString& key, const QJsonValue& value) override;

    /// The file existed at the start but could not be read, so this is not the first start.
    [[nodiscard]] bool wasUnreadable() const { return wasUnreadable_; }

    /// Nothing was read at the start.
    [[nodiscard]] bool wasEmpty() const { return wasEmpty_; }

    /// Retries a failed write now.
    void retry();

    /// Like `retry`, but waits for it without an event loop, for the end of the program.
    void flush();

    /// Writes nothing from now on, and lets the worker remove the file and what was put aside. Then
    /// calls `done`. The values stay in memory.
    void erase(std::function<void(const Result<void>&)> done);

    /// For a program that keeps running after `erase`, because something was not erased: the next
    /// change writes everything.
    void resume() { erased_ = false; }

    /// After each write.
    std::function<void(const SaveOutcome&)> onSaved;

private:
    void write();
    void written(const SaveOutcome& outcome);

    QString path_;
    Services services_;
    QJsonObject values_;
    std::shared_ptr<OwnFile> file_; ///< For the worker only.
    Handle retry_;
    bool wasUnreadable_ = false;
    bool wasEmpty_ = false;
    bool unsaved_ = false; ///< The last write failed.
    bool writing_ = false;
    bool changedMeanwhile_ = false;
    bool erased_ = false;
};

/// Removes a preference file and what was put aside beside it. Blocks; any thread.
[[nodiscard]] Result<void> erasePreferences(const QString& path);

} // namespace ravelo
