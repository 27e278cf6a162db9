#include "platform/x11/PrepareApplication.h"

#include <QByteArray>

#include <gtest/gtest.h>

#include <optional>

namespace ravelo::x11 {

namespace {

/// A variable of the environment, for one test.
class Variable {
public:
    Variable(const char* name, const std::optional<QByteArray>& value)
        : name_(name), before_(qgetenv(name)), wasSet_(qEnvironmentVariableIsSet(name)) {
        set(value);
    }

    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

    ~Variable() { set(wasSet_ ? std::optional(before_) : std::nullopt); }

private:
    void set(const std::optional<QByteArray>& value) {
        value ? qputenv(name_, *value) : qunsetenv(name_);
    }

    const char* name_;
    QByteArray before_;
    bool wasSet_;
};

TEST(PrepareApplication, ChoosesThePlatformForItsOwnApplicationOnly) {
    using Value = std::optional<QByteArray>;

    struct Case {
        const char* name;
        Value display;
        Value platform;
        QByteArray chosen;
    };

    const Case cases[] = {{"X11", ":0", {}, "xcb"},
                          {"Wayland with Xwayland", ":1", "wayland", "xcb"},
                          {"Wayland first, for all programs", ":1", "wayland;xcb", "xcb"},
                          {"Wayland without Xwayland", {}, "wayland", "wayland"},
                          {"without a screen", ":0", "offscreen", "offscreen"},
                          {"no session", {}, {}, {}}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const Variable display("DISPLAY", c.display);
        const Variable platform("QT_QPA_PLATFORM", c.platform);
        const Variable idleTime("QT_QPA_UPDATE_IDLE_TIME", std::nullopt);
        Handle preparation = prepareApplication();
        EXPECT_EQ(qgetenv("QT_QPA_PLATFORM"), c.chosen);
        EXPECT_EQ(qgetenv("QT_QPA_UPDATE_IDLE_TIME"), "0");
        EXPECT_TRUE(qEnvironmentVariableIsSet("QT_XCB_NO_MITSHM"));
        preparation.reset();
        EXPECT_EQ(qEnvironmentVariableIsSet("QT_QPA_PLATFORM"), c.platform.has_value());
        EXPECT_EQ(qgetenv("QT_QPA_PLATFORM"), c.platform.value_or(QByteArray()));
        EXPECT_FALSE(qEnvironmentVariableIsSet("QT_XCB_NO_MITSHM"));
    }
}

} // namespace

} // namespace ravelo::x11
