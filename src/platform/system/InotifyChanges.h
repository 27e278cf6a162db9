#pragma once

#include "platform/FolderChanges.h"

#include <QHash>

namespace ravelo {

/// By inotify(7), whose events are read only on request. `onChange` needs an event loop.
class InotifyChanges final : public FolderChanges {
public:
    InotifyChanges();
    ~InotifyChanges() override;

    InotifyChanges(const InotifyChanges&) = delete;
    InotifyChanges& operator=(const InotifyChanges&) = delete;

    [[nodiscard]] bool watch(const QByteArray& folder, What what) override;
    void unwatch(const QByteArray& folder) override;
    [[nodiscard]] Changes take() override;
    [[nodiscard]] Handle onChange(std::function<void()> callback) override;

private:
    void note(int watch, quint32 mask, Changes& changes);

    int queue_;
    QHash<QByteArray, int> watches_;
    QHash<int, QByteArray> folders_; ///< The inverse.
};

} // namespace ravelo
