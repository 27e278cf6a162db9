#include "platform/system/InotifyChanges.h"

#include <QSocketNotifier>

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

#include <sys/inotify.h>
#include <sys/vfs.h>
#include <unistd.h>

namespace ravelo {

namespace {

constexpr quint32 nameEvents =
    IN_CREATE | IN_DELETE | IN_MOVE | IN_MOVE_SELF | IN_DELETE_SELF | IN_ONLYDIR;
constexpr quint32 contentEvents = nameEvents | IN_MODIFY | IN_ATTRIB;

/// inotify reports no changes by another machine or by the program that serves the file system.
bool isElsewhere(const QByteArray& folder) {
    // statfs(2): NFS, CIFS (two), SMB, AFS (two), Ceph, Coda, 9P, FUSE, Lustre, GPFS, OCFS2,
    // vboxsf.
    constexpr std::array<quint32, 14> kinds = {
        0x6969,     0xFF534D42, 0xFE534D42, 0x517B,     0x5346414F, 0x6B414653, 0x00C36400,
        0x73757245, 0x01021997, 0x65735546, 0x0BD00BD0, 0x47504653, 0x7461636F, 0x786F4256};
    struct statfs info = {};
    return statfs(folder.constData(), &info) != 0 ||
           std::find(kinds.begin(), kinds.end(), static_cast<quint32>(info.f_type)) != kinds.end();
}

} // namespace

InotifyChanges::InotifyChanges() : queue_(inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {}

InotifyChanges::~InotifyChanges() {
    if (queue_ >= 0) {
        close(queue_);
    }
}

bool InotifyChanges::watch(const QByteArray& folder, What what) {
    if (queue_ < 0 || isElsewhere(folder)) {
        unwatch(folder);
        return false;
    }
    const int watch = inotify_add_watch(queue_, folder.constData(),
                                        what == What::names ? nameEvents : contentEvents);
    if (watches_.value(folder, -1) != watch) {
        unwatch(folder); // The folder was replaced.
    }
    const auto other = folders_.constFind(watch);
    if (watch < 0 || (other != folders_.cend() && *other != folder)) {
        return false; // Two paths to one folder: changes are reported for the first only.
    }
    watches_.insert(folder, watch);
    folders_.insert(watch, folder);
    return true;
}

void InotifyChanges::unwatch(const QByteArray& folder) {
    const auto found = watches_.constFind(folder);
    if (found == watches_.cend()) {
        return;
    }
    if (folders_.value(*found) == folder) {
        inotify_rm_watch(queue_, *found);
        folders_.remove(*found);
    }
    watches_.erase(found);
}

FolderChanges::Changes InotifyChanges::take() {
    Changes changes;
    alignas(inotify_event) std::array<char, 16384> buffer;
    ssize_t size = 0;
    while (queue_ >= 0 && (size = read(queue_, buffer.data(), buffer.size())) > 0) {
        for (ssize_t at = 0; at < size;) {
            inotify_event event = {};
            std::memcpy(&event, buffer.data() + at, sizeof event);
            note(event.wd, event.mask, changes);
            at += static_cast<ssize_t>(sizeof event + event.len);
        }
    }
    return changes;
}

Handle InotifyChanges::onChange(std::function<void()> callback) {
    if (queue_ < 0) {
        return {};
    }
    auto* const notifier = new QSocketNotifier(queue_, QSocketNotifier::Read);
    QObject::connect(notifier, &QSocketNotifier::activated, notifier,
                     [notifier, callback = std::move(callback)] {
                         notifier->setEnabled(false); // There are changes until they are taken.
                         callback();
                     });
    return Handle([notifier] {
        notifier->setEnabled(false);
        notifier->deleteLater();
    });
}

void InotifyChanges::note(int watch, quint32 mask, Changes& changes) {
    if ((mask & IN_Q_OVERFLOW) != 0) {
        changes.lost = true;
        return;
    }
    const auto folder = folders_.constFind(watch);
    if (folder == folders_.cend()) {
        return; // From a watch that was removed.
    }
    changes.folders.insert(*folder);
    if ((mask & IN_IGNORED) != 0) { // Deleted or unmounted.
        watches_.remove(*folder);
        folders_.erase(folder);
    }
}

} // namespace ravelo
