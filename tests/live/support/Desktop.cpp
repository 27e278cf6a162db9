#include "live/support/Desktop.h"

#include "platform/x11/connection/Properties.h"

#include <QTemporaryFile>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace ravelo::live {

namespace {

/// Whether the window manager shows a window that asks for it; while it starts it does not.
bool showsWindows(x11::Connection& connection) {
    const xcb_window_t probe = xcb_generate_id(connection.get());
    xcb_create_window(connection.get(), XCB_COPY_FROM_PARENT, probe, connection.root(), 0, 0, 1, 1,
                      0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_map_window(connection.get(), probe);
    const auto has = [&](const QByteArray& property) {
        return !x11::PropertyRequest(connection, probe, connection.atom(property))
                    .cardinals()
                    .empty();
    };
    for (int tries = 0; tries < 20 && !has("WM_STATE"); ++tries) {
        usleep(5000); // There is no event loop yet.
    }
    const bool shown = has("WM_STATE");
    xcb_destroy_window(connection.get(), probe);
    return shown;
}

bool waitForWindowManager() {
    const auto connection = x11::Connection::create();
    for (int tries = 0; connection && tries < 100; ++tries) {
        if (showsWindows(**connection)) {
            return true;
        }
    }
    return false;
}

/// Unlike Xvfb the server with this driver has several outputs.
constexpr char configuration[] = R"(
Section "Monitor"
    Identifier "monitor"
    HorizSync 5-1000
    VertRefresh 5-200
EndSection
Section "Device"
    Identifier "device"
    Driver "dummy"
    VideoRam 65536
EndSection
Section "Screen"
    Identifier "screen"
    Device "device"
    Monitor "monitor"
    DefaultDepth 24
EndSection
Section "ServerFlags"
    Option "AutoAddDevices" "false"
EndSection
)";

} // namespace

Desktop::Desktop() {
    if (!startServer() || !run(u"xrandr"_s, {u"--addmode"_s, u"DUMMY1"_s, u"1280x1024"_s}) ||
        !showSecondMonitor()) {
        return;
    }
    auto windowManager =
        std::make_unique<Client>(u"openbox"_s, QStringList{u"--sm-disable"_s, u"--config-file"_s,
                                                           u"/etc/xdg/openbox/rc.xml"_s});
    if (waitForWindowManager()) {
        windowManager_ = std::move(windowManager);
    }
}

bool Desktop::startServer() {
    QTemporaryFile file;
    int ends[2] = {};
    if (!file.open() || file.write(configuration) < 0 || !file.flush() || pipe(ends) != 0) {
        return false;
    }
    // A seat other than "seat0" needs no console.
    server_ = std::make_unique<Client>(
        u"/usr/lib/xorg/Xorg"_s,
        QStringList{u"-config"_s, file.fileName(), u"-displayfd"_s, QString::number(ends[1]),
                    u"-logfile"_s, u"/dev/null"_s, u"-seat"_s, u"none"_s, u"-nolisten"_s, u"tcp"_s,
                    u"-noreset"_s, u"-quiet"_s});
    close(ends[1]);
    QByteArray display; // The server writes its number when it is ready, and a new line.
    char digit = 0;
    while (read(ends[0], &digit, 1) == 1 && digit != '\n') {
        display.append(digit);
    }
    close(ends[0]);
    qputenv("DISPLAY", ':' + display);
    return !display.isEmpty();
}

bool showSecondMonitor() {
    return run(u"xrandr"_s,
               {u"--output"_s, u"DUMMY0"_s, u"--mode"_s, u"1920x1080"_s, u"--output"_s, u"DUMMY1"_s,
                u"--mode"_s, u"1280x1024"_s, u"--right-of"_s, u"DUMMY0"_s});
}

bool run(const QString& program, const QStringList& arguments) {
    return QProcess::execute(program, arguments) == 0;
}

} // namespace ravelo::live
