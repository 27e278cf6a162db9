#pragma once

#include "platform/FileTransfer.h"

#include <QProcessEnvironment>
#include <QString>

namespace ravelo {

/// org.freedesktop.portal.FileTransfer on the session bus. The portal refuses a caller that it may
/// not inspect, and nobody may inspect us: a short-lived child, `ravelo-portal`, asks for us.
class FileTransferPortal final : public FileTransfer {
public:
    /// `program` is where ravelo-portal is. Of `environment` it gets what names the bus.
    FileTransferPortal(QString program, const QProcessEnvironment& environment);

    [[nodiscard]] Handle retrieve(const QByteArray& key,
                                  std::function<void(const QList<QUrl>&)> done) override;

private:
    QString program_;
    QProcessEnvironment environment_;
};

} // namespace ravelo
