#pragma once

#include "base/Result.h"

#include <QByteArray>
#include <QString>

#include <functional>

namespace ravelo {

/// How a save went.
struct SaveOutcome {
    enum class Kind {
        saved,
        failed,   ///< It may work later.
        forbidden ///< The file is not ours to write any more.
    };

    Kind kind = Kind::saved;
    QString reason; ///< Unless saved; in words fit for the user.
    QString
        putAside; ///< Where an unreadable file in its place is kept now; empty if there was none.
};

/// A file that we write whole, again and again. The contents that were there before are ours or
/// make no sense to us; in that case they are put aside before the first write. Made on the main
/// thread and then left to the worker, whose jobs share it.
class OwnFile {
public:
    enum class Contents { ours, unreadable };
    /// Whether we may write at this moment; an error says why not. Any thread.
    using Permission = std::function<Result<void>()>;

    /// Without a permission every write is allowed.
    OwnFile(QString path, Contents contents, Permission permission)
        : path_(std::move(path)), contents_(contents), permission_(std::move(permission)) {}

    /// Makes its folder if that is missing (0700). Blocks until the disk has it.
    [[nodiscard]] SaveOutcome write(const QByteArray& bytes);

private:
    QString path_;
    Contents contents_;
    Permission permission_;
};

} // namespace ravelo
