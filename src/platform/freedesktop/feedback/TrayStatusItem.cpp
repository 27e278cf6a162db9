#include "platform/freedesktop/feedback/TrayStatusItem.h"

#include "base/Scheduler.h"
#include "platform/TrayArea.h"
#include "platform/freedesktop/BusCall.h"

#include <QDBusVariant>
#include <QIcon>
#include <QIconEngine>
#include <QMenu>
#include <QPainter>
#include <QSystemTrayIcon>

#include <algorithm>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

const auto watcherName = u"org.kde.StatusNotifierWatcher"_s;

/// A panel starts its old tray and its watcher one after the other, and Qt checks only once which
/// of them exists.
constexpr Seconds hostTimeout{2};

constexpr std::chrono::seconds questionTimeOut{25};

constexpr int quickLooks = 60;   ///< Two minutes, longer than a login takes.
constexpr Seconds slowLooks{60}; ///< After that, because a bar may be started at any time.

/// Most bars are dark.
constexpr QColor unknownForeground(255, 255, 255, 235);

/// Drawn for each size. If the icon is installed, bars use it by its name, in the colour of their
/// text.
class DrawnIcon final : public QIconEngine {
public:
    DrawnIcon(StatusItem::Icon look, const QColor& foreground)
        : look_(std::move(look)), foreground_(foreground) {}

    void paint(QPainter* painter, const QRect& place, QIcon::Mode /*mode*/,
               QIcon::State /*state*/) override {
        painter->save();
        painter->translate(place.topLeft());
        look_.draw(*painter, place.size(), foreground_);
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect({}, size), mode, state);
        return pixmap;
    }

    QList<QSize> availableSizes(QIcon::Mode /*mode*/, QIcon::State /*state*/) override {
        QList<QSize> sizes;
        for (const int side : {16, 18, 22, 24, 32, 48, 64}) {
            sizes.append({side, side});
        }
        return sizes;
    }

    QString iconName() override { return QIcon::hasThemeIcon(look_.name) ? look_.name : QString(); }

    bool isNull() override { return false; }

    [[nodiscard]] QIconEngine* clone() const override { return new DrawnIcon(look_, foreground_); }

private:
    StatusItem::Icon look_;
    QColor foreground_;
};

void fill(QMenu& menu, const QList<StatusItem::Row>& rows) {
    for (const StatusItem::Row& row : rows) {
        if (row.title.isEmpty()) {
            menu.addSeparator();
        } else if (!row.rows.isEmpty()) {
            fill(*menu.addMenu(row.title), row.rows);
        } else {
            menu.addAction(row.title, row.keys, &menu, row.action);
        }
    }
}

} // namespace

TrayStatusItem::TrayStatusItem(QDBusConnection bus, TrayArea& area, Scheduler& scheduler)
    : bus_(std::move(bus)),
      area_(area),
      scheduler_(scheduler),
      watcher_(watcherName, bus_, QDBusServiceWatcher::WatchForOwnerChange) {}

TrayStatusItem::~TrayStatusItem() = default;

void TrayStatusItem::show(Icon icon, QList<Row> menu) {
    look_ = std::move(icon);
    menu_ = std::make_unique<QMenu>();
    fill(*menu_, menu);
    // Connect before asking, so that no change is missed.
    QObject::connect(&watcher_, &QDBusServiceWatcher::serviceOwnerChanged, &watcher_,
                     [this](const QString&, const QString&, const QString& owner) {
                         watcherCameOrWent(!owner.isEmpty());
                     });
    areaChange_ = area_.onChange([this] { areaChanged(); });
    question_ = findOwner(bus_, watcherName, questionTimeOut,
                          [this](const QString& owner) { watcherCameOrWent(!owner.isEmpty()); });
    areaChanged();
}

void TrayStatusItem::replace(Icon icon, QList<Row> menu) {
    look_ = std::move(icon);
    qDeleteAll(menu_->findChildren<QMenu*>(Qt::FindDirectChildrenOnly));
    menu_->clear();
    fill(*menu_, menu);
    if (icon_) {
        icon_->setIcon(drawn());
    }
}

void TrayStatusItem::setToolTip(const QString& text) {
    if (std::exchange(toolTip_, text) != text && icon_) { // Do not notify without a change.
        icon_->setToolTip(text);
    }
}

void TrayStatusItem::watcherCameOrWent(bool isThere) {
    question_.reset();
    nextLook_.reset();
    if (isThere && !icon_) {
        looks_ = 0;
        lookForHost();
    }
}

/// Qt checks only once, blocking, whether a host shows the items of the watcher. For some seconds
/// after login there is none, so this waits for it.
void TrayStatusItem::lookForHost() {
    auto call = QDBusMessage::createMethodCall(watcherName, u"/StatusNotifierWatcher"_s,
                                               u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    call << watcherName << u"IsStatusNotifierHostRegistered"_s;
    question_ = callBus(bus_, call, questionTimeOut, [this](const QDBusMessage& reply) {
        if (icon_) {
            return;
        }
        if (reply.type() == QDBusMessage::ReplyMessage &&
            reply.arguments().value(0).value<QDBusVariant>().variant().toBool()) {
            makeIcon();
        } else {
            looks_ = std::min(looks_ + 1, quickLooks);
            nextLook_ = scheduler_.after(looks_ < quickLooks ? hostTimeout : slowLooks,
                                         [this] { lookForHost(); });
        }
    });
}

void TrayStatusItem::areaChanged() {
    if (icon_) {
        icon_->setIcon(drawn());
    } else if (area_.isThere()) {
        hostTimeout_ = scheduler_.after(hostTimeout, [this] { makeIcon(); });
    } else {
        hostTimeout_.reset();
    }
}

/// After that, Qt follows hosts itself.
void TrayStatusItem::makeIcon() {
    hostTimeout_.reset();
    icon_ = std::make_unique<QSystemTrayIcon>(drawn());
    icon_->setToolTip(toolTip_);
    icon_->setContextMenu(menu_.get());
    QObject::connect(icon_.get(), &QSystemTrayIcon::activated, menu_.get(),
                     [this](QSystemTrayIcon::ActivationReason reason) {
                         if (reason == QSystemTrayIcon::Trigger) {
                             menu_->actions().constFirst()->trigger();
                         }
                     });
    icon_->show();
}

QIcon TrayStatusItem::drawn() const {
    return QIcon(new DrawnIcon(look_, area_.foreground().value_or(unknownForeground)));
}

} // namespace ravelo
