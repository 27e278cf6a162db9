#pragma once

#include "platform/FolderChanges.h"

#include <QByteArrayList>

#include <map>

namespace ravelo {

/// Files that may be missing, and may be anywhere: watches the folders that decide whether they are
/// there. Any one thread; blocks on the disk.
class WatchedFiles {
public:
    /// Watches the folders up to `top`; of files elsewhere, the folder and the one above it.
    WatchedFiles(FolderChanges& changes, QByteArray top);

    void add(const QByteArray& file, FolderChanges::What what);

    /// To be called before each look at the files. False if a change might go unnoticed.
    [[nodiscard]] bool watch();

private:
    void addFolder(const QByteArray& folder, FolderChanges::What what);

    FolderChanges& changes_;
    QByteArray top_;
    std::map<QByteArray, FolderChanges::What> folders_;
    QByteArrayList read_; ///< Files whose contents count.
};

} // namespace ravelo
