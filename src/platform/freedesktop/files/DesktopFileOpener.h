#pragma once

#include "base/Handle.h"
#include "platform/FileOpener.h"

#include <QByteArray>
#include <QDBusConnection>
#include <QList>
#include <QObject>

namespace ravelo {

class DetachedJobs;
class Programs;

/// Uses xdg-open, and to show a file in its folder org.freedesktop.FileManager1 on the session
/// bus.
class DesktopFileOpener final : public QObject, public FileOpener {
    Q_OBJECT

public:
    /// `programs` and `jobs` must outlive it.
    DesktopFileOpener(QDBusConnection bus, Programs& programs, DetachedJobs& jobs);

    void open(const QUrl& file) override;
    [[nodiscard]] Handle findProgram(const QUrl& what,
                                     std::function<void(QString name)> done) override;
    void showInFolder(const QUrl& file) override;

private:
    QDBusConnection bus_;
    Programs& programs_;
    DetachedJobs& jobs_;
    QList<QByteArray> waiting_; ///< Opened when the opener is found.
    Handle looking_;
};

} // namespace ravelo
