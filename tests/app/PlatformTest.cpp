#include "app/DisplayChoice.h"

#include <gtest/gtest.h>

#include <utility>

namespace ravelo {
namespace {

using namespace Qt::StringLiterals;

/// What is chosen with these values of the two variables that the user can set, or why nothing is.
QString chosen(const char* ravelo, const char* qt) {
    qputenv("RAVELO_PLATFORM", ravelo);
    qputenv("QT_QPA_PLATFORM", qt);
    const auto choice = chooseDisplay();
    return choice ? describe(*choice) : choice.error().message;
}

TEST(DisplayChoice, isTheOneThatIsAskedForOrAClearError) {
    qunsetenv("DISPLAY");
    qputenv("WAYLAND_DISPLAY", "/nowhere/wayland"); // A stray one.
    const QString gone = u"cannot connect to the Wayland compositor /nowhere/wayland"_s;

    struct Row {
        const char* ravelo;
        const char* qt;
        QString expected;
    };

    const Row rows[] = {
        {"x11", "offscreen", u"X11 (set by RAVELO_PLATFORM)"_s},
        {"wayland", "offscreen", gone},
        {"gnome", "offscreen", u"GNOME (set by RAVELO_PLATFORM)"_s},
        {"X11", "offscreen", u"RAVELO_PLATFORM must be x11, wayland or gnome, not \"X11\""_s},
        {"", "offscreen", u"X11 (set by QT_QPA_PLATFORM)"_s},
        {"", "xcb", u"no display: DISPLAY is not set"_s},
        {"", "", u"no display: DISPLAY is not set"_s},
    };
    for (const auto& [ravelo, qt, expected] : rows) {
        EXPECT_EQ(chosen(ravelo, qt), expected) << ravelo << ", " << qt;
    }
    qunsetenv("RAVELO_PLATFORM");
    EXPECT_EQ(describe({Display::x11, {}}), u"X11"_s) << "there was no choice";
}

} // namespace
} // namespace ravelo
