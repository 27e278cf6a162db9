#pragma once

#include <QString>
#include <QStringList>

namespace ravelo {

/// The desktop's icons for types of files. Any thread except for the main one: it searches folders
/// on the disk.
class FileIcons {
public:
    virtual ~FileIcons() = default;

    /// The file of the first of the icons `names` that exists, best for `size` device pixels; empty
    /// if there is none.
    [[nodiscard]] virtual QString find(const QStringList& names, int size) const = 0;
};

} // namespace ravelo
