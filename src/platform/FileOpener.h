#pragma once

#include "base/Handle.h"

#include <QString>
#include <QUrl>

#include <functional>

namespace ravelo {

/// Hands files and links to the desktop's other programs. Fire and forget: nothing is waited for,
/// and a desktop without such a program does nothing. Main thread.
class FileOpener {
public:
    virtual ~FileOpener() = default;

    /// Opens a file, a folder or a link with the program that the user has chosen for its kind.
    virtual void open(const QUrl& what) = 0;

    /// Looks up what `open` would start and calls `done` once, later, with the program's name as
    /// its user knows it, or with an empty one if nothing opens this. Not if the handle was
    /// dropped, nor as long as a disk does not answer.
    [[nodiscard]] virtual Handle findProgram(const QUrl& what,
                                             std::function<void(QString name)> done) = 0;

    /// Opens the folder that a file lies in, with the file selected where that is possible.
    virtual void showInFolder(const QUrl& file) = 0;
};

} // namespace ravelo
