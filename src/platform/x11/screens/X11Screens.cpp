#include "platform/x11/screens/X11Screens.h"

#include "platform/x11/connection/Properties.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <utility>

namespace ravelo::x11 {

namespace {

QRect nativeGeometry(const QScreen& screen) {
    const QRect logical = screen.geometry();
    return {logical.topLeft(), (QSizeF(logical.size()) * screen.devicePixelRatio()).toSize()};
}

bool contains(const std::vector<uint32_t>& values, uint32_t value) {
    return std::find(values.begin(), values.end(), value) != values.end();
}

void watchProperties(Connection& connection, xcb_window_t window, bool watched = true) {
    const uint32_t mask = watched ? XCB_EVENT_MASK_PROPERTY_CHANGE : XCB_EVENT_MASK_NO_EVENT;
    xcb_change_window_attributes(connection.get(), window, XCB_CW_EVENT_MASK, &mask);
}

} // namespace

X11Screens::X11Screens(Connection& connection, Events& events)
    : connection_(connection),
      clientList_(connection.atom("_NET_CLIENT_LIST")),
      strut_(connection.atom("_NET_WM_STRUT")),
      strutPartial_(connection.atom("_NET_WM_STRUT_PARTIAL")),
      windowType_(connection.atom("_NET_WM_WINDOW_TYPE")),
      dock_(connection.atom("_NET_WM_WINDOW_TYPE_DOCK")),
      subscription_(events.onEvent([this](const auto& event) { handle(event); })) {
    watchProperties(connection_, connection_.root());
    QObject::connect(qGuiApp, &QGuiApplication::screenAdded, &context_, [this](QScreen* screen) {
        watch(screen);
        refreshSoon();
    });
    QObject::connect(qGuiApp, &QGuiApplication::screenRemoved, &context_,
                     [this] { refreshSoon(); });
    QObject::connect(qGuiApp, &QGuiApplication::primaryScreenChanged, &context_,
                     [this] { refreshSoon(); });
    for (QScreen* screen : QGuiApplication::screens()) {
        watch(screen);
    }
    monitors_ = read();
}

std::vector<Screen> X11Screens::all() const {
    std::vector<Screen> screens;
    screens.reserve(monitors_.size());
    for (const Monitor& monitor : monitors_) {
        screens.push_back(monitor.screen);
    }
    return screens;
}

std::optional<Screen> X11Screens::main() const {
    const QScreen* primary = QGuiApplication::primaryScreen();
    const Monitor* found = primary == nullptr ? nullptr : monitor(primary->name());
    return found == nullptr ? std::nullopt : std::optional(found->screen);
}

Handle X11Screens::onChange(std::function<void()> callback) {
    return listeners_.add(std::move(callback));
}

QPointF X11Screens::toLogical(QPoint native) const {
    return x11::toLogical(monitors_, native);
}

QPoint X11Screens::toNative(QPointF logical) const {
    return x11::toNative(monitors_, logical);
}

const Monitor* X11Screens::monitor(const QString& id) const {
    const auto found = std::find_if(monitors_.begin(), monitors_.end(),
                                    [&](const Monitor& each) { return each.screen.id == id; });
    return found == monitors_.end() ? nullptr : &*found;
}

void X11Screens::watch(QScreen* screen) {
    QObject::connect(screen, &QScreen::geometryChanged, &context_, [this] { refreshSoon(); });
    QObject::connect(screen, &QScreen::logicalDotsPerInchChanged, &context_,
                     [this] { refreshSoon(); });
}

void X11Screens::handle(const xcb_generic_event_t& event) {
    const auto* change = eventAs<xcb_property_notify_event_t>(event, XCB_PROPERTY_NOTIFY);
    if (change == nullptr) {
        return;
    }
    const bool windowsChanged = change->window == connection_.root() && change->atom == clientList_;
    const bool barChanged = contains(bars_, change->window) &&
                            (change->atom == strut_ || change->atom == strutPartial_);
    if (windowsChanged || barChanged) {
        refreshSoon();
    }
}

void X11Screens::refreshSoon() {
    if (!std::exchange(refreshing_, true)) {
        QMetaObject::invokeMethod(
            &context_, [this] { refresh(); }, Qt::QueuedConnection);
    }
}

void X11Screens::refresh() {
    refreshing_ = false;
    auto monitors = read();
    const bool changed = monitors != monitors_;
    monitors_ = std::move(monitors);
    if (changed) {
        listeners_.notify();
    }
}

std::vector<Monitor> X11Screens::read() {
    findBars();
    const auto struts = readStruts();
    const QSize root = windowSize(connection_, connection_.root());
    std::vector<Monitor> monitors;
    for (const QScreen* screen : QGuiApplication::screens()) {
        Monitor monitor;
        monitor.screen.id = screen->name();
        monitor.screen.frame = screen->geometry();
        monitor.native = nativeGeometry(*screen);
        monitor.scale = screen->devicePixelRatio();
        const QRect free = withoutStruts(monitor.native, root, struts);
        // Within the frame, which Qt has rounded.
        monitor.screen.visibleFrame = x11::toLogical(monitor, free) & monitor.screen.frame;
        monitors.push_back(std::move(monitor));
    }
    return monitors;
}

void X11Screens::findBars() {
    struct Question {
        xcb_window_t window;
        PropertyRequest type;
        PropertyRequest strut;
        PropertyRequest strutPartial;
    };

    std::vector<Question> questions;
    for (const xcb_window_t window :
         PropertyRequest(connection_, connection_.root(), clientList_).cardinals()) {
        questions.push_back({window,
                             {connection_, window, windowType_},
                             {connection_, window, strut_},
                             {connection_, window, strutPartial_}});
    }
    const auto before = std::exchange(bars_, {});
    for (Question& question : questions) {
        const bool isBar = contains(question.type.cardinals(), dock_) ||
                           !question.strut.cardinals().empty() ||
                           !question.strutPartial.cardinals().empty();
        if (isBar) {
            bars_.push_back(question.window);
        }
        if (isBar || contains(before, question.window)) {
            watchProperties(connection_, question.window, isBar);
        }
    }
}

std::vector<Strut> X11Screens::readStruts() {
    std::vector<std::pair<PropertyRequest, PropertyRequest>> requests;
    requests.reserve(bars_.size());
    for (const xcb_window_t window : bars_) {
        requests.emplace_back(PropertyRequest(connection_, window, strutPartial_),
                              PropertyRequest(connection_, window, strut_));
    }
    std::vector<Strut> struts;
    for (auto& [partial, whole] : requests) {
        if (const auto strut = parseStrut(partial.cardinals())) {
            struts.push_back(*strut);
        } else if (const auto oldForm = parseStrut(whole.cardinals())) {
            struts.push_back(*oldForm);
        }
    }
    return struts;
}

} // namespace ravelo::x11
