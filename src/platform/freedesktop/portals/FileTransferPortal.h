#pragma once

#include "platform/FileTransfer.h"

#include <QObject>
#include <QProcessEnvironment>
#include <QString>

namespace ravelo {

/// org.freedesktop.portal.FileTransfer on the session bus. The portal refuses callers that it
/// cannot inspect, as it cannot inspect us, so a short-lived child, `ravelo-portal`, makes the
/// call.
class FileTransferPortal final : public FileTransfer {
public:
    /// `program` is the path of ravelo-portal. It gets the variables of `environment` for the bus.
    FileTransferPortal(QString program, const QProcessEnvironment& environment);

    [[nodiscard]] Handle retrieve(const QByteArray& key,
                                  std::function<void(const QList<QUrl>&)> done) override;

private:
    QString program_;
    QProcessEnvironment environment_;
    QObject children_;
};

} // namespace ravelo
