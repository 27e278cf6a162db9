#pragma once

#include "platform/FileTransfer.h"

#include <QDBusConnection>

#include <utility>

namespace ravelo {

/// org.freedesktop.portal.FileTransfer on the session bus.
class FileTransferPortal final : public FileTransfer {
public:
    explicit FileTransferPortal(QDBusConnection bus) : bus_(std::move(bus)) {}

    [[nodiscard]] Handle retrieve(const QByteArray& key,
                                  std::function<void(const QList<QUrl>&)> done) override;

private:
    QDBusConnection bus_;
};

} // namespace ravelo
