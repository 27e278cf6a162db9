#include "platform/system/PreferenceFile.h"

#include "base/Files.h"
#include "platform/Worker.h"

#include <QFileInfo>
#include <QJsonDocument>

#include <utility>

namespace ravelo {

PreferenceFile::PreferenceFile(QString path, Worker& worker)
    : path_(std::move(path)), worker_(worker) {
    const QJsonDocument document = QJsonDocument::fromJson(readFile(path_).value_or(QByteArray()));
    file_ = document.isObject() ? FileState::ours : FileState::unreadable;
    values_ = document.object();
}

PreferenceFile::~PreferenceFile() {
    worker_.drain();
}

QJsonValue PreferenceFile::value(const QString& key) const {
    return values_.value(key);
}

void PreferenceFile::set(const QString& key, const QJsonValue& value) {
    if (values_.value(key) == value) {
        return;
    }
    values_.insert(key, value);
    if (writing_) {
        changedMeanwhile_ = true;
    } else {
        write();
    }
}

void PreferenceFile::write() {
    writing_ = true;
    auto job = [path = path_, values = values_, file = std::exchange(file_, FileState::ours)] {
        if (file == FileState::unreadable) {
            setAsideUnreadable(path);
        }
        makePrivateFolder(QFileInfo(path).path());
        (void)writeFileAtomically(path, QJsonDocument(values).toJson());
    };
    worker_.run(std::move(job), [this] {
        writing_ = false;
        if (std::exchange(changedMeanwhile_, false)) {
            write();
        }
    });
}

} // namespace ravelo
