#include "ui/windows/TitledWindow.h"

#include <QIcon>
#include <QQmlEngine>
#include <QQuickItem>
#include <QScreen>

#include <algorithm>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

/// Extent of the shadow: its blur, shifted down.
constexpr QMargins shadowReach(72, 72 - 24, 72, 72 + 24);

/// The margin for the shadow, reduced if the screen is too small, down to none.
QMargins roomAround(QSize frame, QSize screen) {
    const QSize spare = screen - frame;
    const double across = double(spare.width()) / (shadowReach.left() + shadowReach.right());
    const double down = double(spare.height()) / (shadowReach.top() + shadowReach.bottom());
    const double part = std::clamp(std::min(across, down), 0.0, 1.0);
    return {int(shadowReach.left() * part), int(shadowReach.top() * part),
            int(shadowReach.right() * part), int(shadowReach.bottom() * part)};
}

} // namespace

TitledWindow::TitledWindow(const Beside& beside, const QString& title, QSize size)
    : QQuickView(beside.panel.engine(), nullptr), panel_(beside.panel), wanted_(size) {
    setTitle(title);
    setIcon(QIcon::fromTheme(u"org.ravelo.Ravelo"_s));
    setFlags(Qt::Window | Qt::FramelessWindowHint);
    setColor(Qt::transparent);
    setResizeMode(QQuickView::SizeRootObjectToView);
    if (beside.makeFrame) {
        frame_ = beside.makeFrame(*this);
        translucency_ = frame_->onTranslucencyChange([this] { fit(); });
    }
    fit();
    connect(this, &QWindow::screenChanged, this, [this](QScreen* screen) {
        follow(screen);
        fit();
    });
    connect(this, &QWindow::visibleChanged, this, [this](bool visible) {
        if (!visible) {
            Q_EMIT closed();
        }
    });
}

TitledWindow::~TitledWindow() {
    disconnect(this, &QWindow::visibleChanged, this, nullptr); // QWindow's destructor hides it.
}

void TitledWindow::load(const QString& page, QObject* host) {
    setInitialProperties(
        {{u"host"_s, QVariant::fromValue(host)}, {u"title"_s, title()}, {u"frame"_s, inside_}});
    setSource(QUrl(u"qrc:/Ravelo/"_s + page));
}

void TitledWindow::fit() {
    constexpr int margin = 20;
    const QSize available = free().size();
    const QSize screen = screenToFit()->size() - QSize(margin, margin);
    const QSize frame = wanted_.boundedTo(screen).boundedTo(available);
    const bool shadowed = frame_ && frame_->isTranslucent();
    const QMargins room = shadowed ? roomAround(frame, available) : QMargins();
    const QRectF before = std::exchange(inside_, QRectF(QPointF(room.left(), room.top()), frame));
    const QSize size = frame.grownBy(room);
    setMinimumSize(size);
    setMaximumSize(size);
    resize(size);
    if (frame_) {
        if (isVisible() && before.topLeft() != inside_.topLeft()) { // The frame stays where it is.
            frame_->moveTo(position() + (before.topLeft() - inside_.topLeft()).toPoint());
        }
        frame_->setRoom(room);
    }
    if (rootObject() != nullptr) {
        rootObject()->setProperty("frame", inside_);
    }
}

/// It appears on the panel's; the user may move it to another.
QScreen* TitledWindow::screenToFit() const {
    return isVisible() ? screen() : panel_.screen();
}

/// A screen that is gone, or has no window of ours any more, may go on reporting: fitting again
/// changes nothing.
void TitledWindow::follow(QScreen* screen) {
    if (screen != nullptr) {
        connect(screen, &QScreen::availableGeometryChanged, this, &TitledWindow::fit,
                Qt::UniqueConnection);
        connect(screen, &QScreen::logicalDotsPerInchChanged, this, &TitledWindow::fit,
                Qt::UniqueConnection); // With it the device pixels of the frame.
    }
}

/// Screen area not covered by the desktop's bars or the closed panel.
QRect TitledWindow::free() const {
    constexpr int highestBar = 100; // Taller panels are open, and will have closed by then.
    const QScreen* const screen = screenToFit();
    QRect room = screen->availableGeometry();
    if (panel_.isVisible() && panel_.screen() == screen && panel_.height() <= highestBar) {
        room.setTop(std::max(room.top(), panel_.y() + panel_.height()));
    }
    return room;
}

void TitledWindow::place() {
    QRectF frame = inside_;
    frame.moveCenter(QRectF(panel_.screen()->availableGeometry()).center());
    // The title stays visible if space is short.
    frame.moveTop(std::max(frame.top(), qreal(free().top())));
    if (frame_) {
        frame_->moveTo((frame.topLeft() - inside_.topLeft()).toPoint());
    }
}

void TitledWindow::bringToFront() {
    follow(screenToFit());
    fit();
    if (isVisible()) {
        showNormal(); // Restores it if minimised.
        raise();
    } else {
        place();
        show();
    }
    requestActivate();
}

} // namespace ravelo
