#pragma once

#include "base/Handle.h"
#include "platform/StatusItem.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>

#include <memory>

class QIcon;
class QMenu;
class QSystemTrayIcon;

namespace ravelo {

class Scheduler;
class TrayArea;

/// A StatusNotifierItem (org.kde.StatusNotifierWatcher on the session bus) or an icon in the
/// display server's tray; created when one of the two exists. Needs a QApplication. Main thread.
class TrayStatusItem final : public StatusItem {
public:
    /// Area and scheduler outlive it.
    TrayStatusItem(QDBusConnection bus, TrayArea& area, Scheduler& scheduler);
    ~TrayStatusItem() override;

    void show(Icon icon, QList<Row> menu) override;
    void replace(Icon icon, QList<Row> menu) override;
    void setToolTip(const QString& text) override;

private:
    void watcherCameOrWent(bool isThere);
    void lookForHost();
    void areaChanged();
    void makeIcon();
    [[nodiscard]] QIcon drawn() const;

    QDBusConnection bus_;
    TrayArea& area_;
    Scheduler& scheduler_;
    QDBusServiceWatcher watcher_;
    Icon look_;
    QString toolTip_;
    std::unique_ptr<QMenu> menu_; ///< Outlives the icon.
    std::unique_ptr<QSystemTrayIcon> icon_;
    Handle question_;
    Handle nextLook_;
    int looks_ = 0;
    Handle hostTimeout_;
    Handle areaChange_;
};

} // namespace ravelo
