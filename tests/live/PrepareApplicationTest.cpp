#include "platform/x11/PrepareApplication.h"

#include <QByteArray>

#include <gtest/gtest.h>

#include <optional>
#include <ostream>

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

struct SessionCase {
    const char* name;
    std::optional<QByteArray> display;
    std::optional<QByteArray> platform;
    QByteArray chosen;

    friend std::ostream& operator<<(std::ostream& out, const SessionCase& each) {
        return out << each.name;
    }
};

class PrepareApplicationTest : public testing::TestWithParam<SessionCase> {};

TEST_P(PrepareApplicationTest, ChoosesThePlatformForItsOwnApplicationOnly) {
    const Variable display("DISPLAY", GetParam().display);
    const Variable platform("QT_QPA_PLATFORM", GetParam().platform);
    const Variable idleTime("QT_QPA_UPDATE_IDLE_TIME", std::nullopt);
    Handle preparation = prepareApplication();
    EXPECT_EQ(qgetenv("QT_QPA_PLATFORM"), GetParam().chosen);
    EXPECT_EQ(qgetenv("QT_QPA_UPDATE_IDLE_TIME"), "0");
    EXPECT_TRUE(qEnvironmentVariableIsSet("QT_XCB_NO_MITSHM"));
    preparation.reset();
    EXPECT_EQ(qEnvironmentVariableIsSet("QT_QPA_PLATFORM"), GetParam().platform.has_value());
    EXPECT_EQ(qgetenv("QT_QPA_PLATFORM"), GetParam().platform.value_or(QByteArray()));
    EXPECT_FALSE(qEnvironmentVariableIsSet("QT_XCB_NO_MITSHM"));
}

INSTANTIATE_TEST_SUITE_P(
    All, PrepareApplicationTest,
    testing::Values(SessionCase{"X11", ":0", {}, "xcb"},
                    SessionCase{"Wayland with Xwayland", ":1", "wayland", "xcb"},
                    SessionCase{"Wayland first, for all programs", ":1", "wayland;xcb", "xcb"},
                    SessionCase{"Wayland without Xwayland", {}, "wayland", "wayland"},
                    SessionCase{"without a screen", ":0", "offscreen", "offscreen"},
                    SessionCase{"no session", {}, {}, {}}));

} // namespace

} // namespace ravelo::x11
