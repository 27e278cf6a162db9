#include "monitor/WatchedFiles.h"

#include <cerrno>

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <utility>

namespace ravelo {

namespace {

QByteArray above(const QByteArray& path) {
    return path.left(std::max(path.lastIndexOf('/'), qsizetype(1)));
}

bool isMissing(const QByteArray& path) {
    return access(path.constData(), F_OK) != 0 && errno == ENOENT;
}

/// Its target is in a folder that is not watched.
bool isLink(const QByteArray& path) {
    struct stat info = {};
    return lstat(path.constData(), &info) == 0 && S_ISLNK(info.st_mode);
}

} // namespace

WatchedFiles::WatchedFiles(FolderChanges& changes, QByteArray top)
    : changes_(changes), top_(std::move(top)) {}

void WatchedFiles::add(const QByteArray& file, FolderChanges::What what) {
    if (what == FolderChanges::What::contents) {
        read_.append(file);
    }
    QByteArray folder = above(file);
    addFolder(folder, what);
    if (!file.startsWith(top_ + '/')) {
        addFolder(above(folder), FolderChanges::What::names);
        return;
    }
    while (folder != top_) {
        folder = above(folder);
        addFolder(folder, FolderChanges::What::names);
    }
}

void WatchedFiles::addFolder(const QByteArray& folder, FolderChanges::What what) {
    FolderChanges::What& known = folders_.emplace(folder, what).first->second;
    known = std::max(known, what);
}

bool WatchedFiles::watch() {
    bool all = true;
    for (const auto& [folder, what] : folders_) { // By name, so each after the one above it.
        if (!changes_.watch(folder, what)) {
            all &= isMissing(folder); // Then the one above reports its arrival.
        }
    }
    return all && std::ranges::none_of(read_, isLink);
}

} // namespace ravelo
