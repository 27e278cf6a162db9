#pragma once

#include "platform/Screens.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QLatin1StringView>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>
#include <variant>
#include <vector>

/// The messages between Ravelo and its extension of GNOME Shell; protocol.js is the other side.
/// Each is a JSON object on a line of its own, and "is" names it. They travel over a socket on
/// which Ravelo listens. The first ones are the greetings; who gets another version than its own
/// hangs up.
namespace ravelo::gnome {

inline constexpr int protocolVersion = 2;

/// Below XDG_RUNTIME_DIR.
inline constexpr QLatin1StringView socketPath("ravelo-shell/socket");

/// A line that is longer does not count.
inline constexpr qsizetype maxLine = 64 << 10;

enum class Selection { clip, drag };

// What the extension reports.

/// The greeting.
struct Hello {
    int version;
};

/// The monitors, in logical pixels.
struct ScreensReport {
    std::vector<Screen> screens;
    std::size_t primary;
};

/// What the user has chosen for all programs.
struct Look {
    bool animations;
    QString icons; ///< Name of an icon theme.
};

/// The pointer, or a drag, is at the top edge of this screen, or of none.
struct Edge {
    std::optional<std::size_t> screen;
};

/// A button was pressed outside the panel: on another window of Ravelo's, or elsewhere.
struct Pressed {
    bool own;
};

/// The clipboard has these contents. `kept` by the shell after their owner's end, `offered` by the
/// shell for Ravelo. `initial` if Ravelo has just connected.
struct Copied {
    quint32 serial;
    QList<QByteArray> types;
    bool kept;
    bool offered;
    bool initial;
};

struct DragBegan {
    quint32 serial;
    QList<QByteArray> types;
};

struct DragEnded {};

/// The answer to `want`. With `descriptor` the line begins with a NUL byte that carries one to read
/// from; with `poured` it is the first line of a connection of its own, and the bytes follow it.
struct Given {
    enum class How { descriptor, poured, refused };

    How how;
    Selection of;
    quint32 serial;
    QByteArray type;
};

/// The answer to `askAboutKeyboard`; also sent when the panel gets the keyboard.
struct KeyboardReport {
    quint32 serial; ///< The question's, or 0.
    /// The window of another program that has the keyboard, or gets it back from the panel.
    std::optional<quint32> window;
    QStringList names; ///< Its app id, or class and instance.
    bool focused;      ///< It has the keyboard.
    bool modifiersDown;
    QString layout; ///< XKB's name of the user's layout, such as "us" or "rs+latin".
};

/// The screen is locked; the extension hangs up until it is unlocked.
struct Locked {};

using Report = std::variant<Hello, ScreensReport, Look, Edge, Pressed, Copied, DragBegan, DragEnded,
                            Given, KeyboardReport, Locked>;

/// The report on a line, without its end and without the NUL byte; nothing if it is none. Pure.
[[nodiscard]] std::optional<Report> parseReport(QByteArrayView line);

// What Ravelo wants of the extension, as lines.

/// The greeting: the title of the panel's window, and the size of the strip at the top edge in
/// logical pixels.
[[nodiscard]] QByteArray hello(const QString& title, QSize strip);

/// Asks for the contents of this type. The extension may cut them after `cap` + 1 bytes.
[[nodiscard]] QByteArray want(Selection of, quint32 serial, const QByteArray& type, qsizetype cap);

/// Puts the panel on the screen with this index in `ScreensReport`.
[[nodiscard]] QByteArray place(std::size_t screen);

enum class Focus { take, giveBack };
[[nodiscard]] QByteArray focus(Focus focus);

/// Asks which window has the keyboard, and whether modifiers are held.
[[nodiscard]] QByteArray askAboutKeyboard(quint32 serial);

/// Offers a text on the clipboard in Ravelo's place, unless the clipboard has this type already:
/// Ravelo's own write, which may have come after all.
[[nodiscard]] QByteArray offer(const QString& text, const QByteArray& unless);

} // namespace ravelo::gnome
