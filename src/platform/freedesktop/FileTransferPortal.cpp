#include "platform/freedesktop/FileTransferPortal.h"

#include "base/FileUrl.h"
#include "platform/freedesktop/BusCall.h"

#include <QStringList>
#include <QVariantMap>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::seconds timeOut{5}; // It may have thousands of files to look at.

QList<QUrl> filesIn(const QDBusMessage& reply) {
    QList<QUrl> files;
    if (reply.type() == QDBusMessage::ReplyMessage && reply.signature() == "as"_L1) {
        for (const QString& path : reply.arguments().constFirst().toStringList()) {
            if (path.startsWith(u'/')) {
                files.append(fileUrl(path.toUtf8()));
            }
        }
    }
    return files;
}

} // namespace

Handle FileTransferPortal::retrieve(const QByteArray& key,
                                    std::function<void(const QList<QUrl>&)> done) {
    auto call = QDBusMessage::createMethodCall(
        u"org.freedesktop.portal.Documents"_s, u"/org/freedesktop/portal/documents"_s,
        u"org.freedesktop.portal.FileTransfer"_s, u"RetrieveFiles"_s);
    call << QString::fromUtf8(key) << QVariantMap();
    return callBus(bus_, call, timeOut,
                   [done = std::move(done)](const QDBusMessage& reply) { done(filesIn(reply)); });
}

} // namespace ravelo
