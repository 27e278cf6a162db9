#pragma once

#include "base/Handle.h"

#include <QString>
#include <QUrl>

#include <functional>

namespace ravelo {

/// Hands files and links to the desktop's other programs. Fire and forget: never blocks, and does
/// nothing if there is no such program. Main thread.
class FileOpener {
public:
    virtual ~FileOpener() = default;

    /// Opens a file, a folder or a link with the program that the user has chosen for its type.
    virtual void open(const QUrl& what) = 0;

    /// Looks up what `open` would start and calls `done` once, later, with the program's display
    /// name, or an empty one if nothing opens this. Not called if the handle was dropped, nor while
    /// a disk does not respond.
    [[nodiscard]] virtual Handle findProgram(const QUrl& what,
                                             std::function<void(QString name)> done) = 0;

    /// Opens the folder that contains a file, with the file selected if possible.
    virtual void showInFolder(const QUrl& file) = 0;
};

} // namespace ravelo
