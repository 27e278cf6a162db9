#include "shelf/OfferedFiles.h"

#include "base/UriList.h"
#include "platform/DragOffer.h"

#include <QSysInfo>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype maxKeyLength = 1024;

/// A key travels as text over the bus. Some sources end it with NUL.
QByteArray cleanKey(QByteArray key) {
    while (key.endsWith('\0')) {
        key.chop(1);
    }
    const bool good = key.size() <= maxKeyLength && !key.contains('\0') && key.isValidUtf8();
    return good ? key : QByteArray();
}

} // namespace

const std::optional<QList<QUrl>>& OfferedFiles::named() {
    if (offer_ && !named_) {
        if (const auto list = offer_->data({u"text/uri-list"_s})) {
            named_ = localFiles(*list, QSysInfo::machineHostName().toUtf8());
        }
    }
    return named_;
}

const std::optional<QByteArray>& OfferedFiles::transferKey() {
    if (offer_ && !key_) {
        // The second is the older name of the first.
        if (const auto key = offer_->data(
                {u"application/vnd.portal.filetransfer"_s, u"application/vnd.portal.files"_s})) {
            key_ = cleanKey(*key);
        }
    }
    return key_;
}

Carries OfferedFiles::carries() {
    const auto& files = named();
    const auto& key = transferKey(); // Always both, so that both are asked for.
    if ((files && !files->isEmpty()) || (key && !key->isEmpty())) {
        return Carries::files;
    }
    return files && key ? Carries::nothing : Carries::unknown;
}

} // namespace ravelo
