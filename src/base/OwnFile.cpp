#include "base/OwnFile.h"

#include "base/Files.h"

#include <QFileInfo>

namespace ravelo {

SaveOutcome OwnFile::write(const QByteArray& bytes) {
    if (const auto allowed = permission_ ? permission_() : Result<void>(); !allowed) {
        return {SaveOutcome::Kind::forbidden, allowed.error().message, {}};
    }
    QString putAside;
    if (contents_ == Contents::unreadable) {
        const Result<QString> kept = setAsideUnreadable(path_);
        if (!kept) {
            return {SaveOutcome::Kind::failed, kept.error().message, {}};
        }
        putAside = *kept;
        contents_ = Contents::ours;
    }
    makePrivateFolder(QFileInfo(path_).path()); // Possibly removed meanwhile.
    const Result<void> written = writeFileAtomically(path_, bytes);
    return written ? SaveOutcome{SaveOutcome::Kind::saved, {}, putAside}
                   : SaveOutcome{SaveOutcome::Kind::failed, written.error().message, putAside};
}

} // namespace ravelo
