#pragma once

#include <QString>
#include <QStringList>

namespace ravelo {

/// The pictures that the desktop has for kinds of files. Any thread, but for the main one: it looks
/// for files.
class FileIcons {
public:
    virtual ~FileIcons() = default;

    /// The file of the first of the icons `names` that there is, best for `size` device pixels;
    /// empty where there is none.
    [[nodiscard]] virtual QString find(const QStringList& names, int size) const = 0;
};

} // namespace ravelo
