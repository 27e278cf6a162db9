#pragma once

#include "platform/Preferences.h"

#include <QJsonObject>

namespace ravelo {

class Worker;

/// The preferences as one JSON object (RFC 8259) in a file that only its user can read. Read once,
/// at construction; every change is handed to the worker at once, and while a write is going on
/// those that come meanwhile share the next one. A file that is no JSON object is set aside before
/// it is replaced. Failures are silent: the values stay in memory and go with the next write.
class PreferenceFile final : public Preferences {
public:
    /// Makes the file's folder with the first write. The worker outlives this object.
    PreferenceFile(QString path, Worker& worker);

    /// Waits until the last change is written.
    ~PreferenceFile() override;

    PreferenceFile(const PreferenceFile&) = delete;
    PreferenceFile& operator=(const PreferenceFile&) = delete;

    [[nodiscard]] QJsonValue value(const QString& key) const override;
    void set(const QString& key, const QJsonValue& value) override;

private:
    enum class FileState { ours, unreadable };

    void write();

    QString path_;
    Worker& worker_;
    QJsonObject values_;
    FileState file_ = FileState::ours;
    bool writing_ = false;
    bool changedMeanwhile_ = false;
};

} // namespace ravelo
