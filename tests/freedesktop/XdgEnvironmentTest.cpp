#include "platform/freedesktop/XdgEnvironment.h"

#include <QByteArray>
#include <QtGlobal>

#include <gtest/gtest.h>

namespace ravelo {
namespace {

TEST(XdgEnvironment, KeepsAbsolutePathsOnly) {
    struct Case {
        const char* variable;
        const char* value;
        const char* kept; ///< Null if it is unset.
    };

    const Case cases[] = {
        {"XDG_DATA_HOME", "data", nullptr},       {"XDG_DATA_HOME", "/a:b c", "/a:b c"},
        {"XDG_CONFIG_HOME", "./config", nullptr}, {"XDG_CACHE_HOME", "~/cache", nullptr},
        {"XDG_RUNTIME_DIR", "run", nullptr},      {"XDG_RUNTIME_DIR", "", nullptr},
        {"XDG_DATA_DIRS", "a:/b::/c", "/b:/c"},   {"XDG_CONFIG_DIRS", "a:b", nullptr},
    };
    for (const Case& c : cases) {
        const bool wasSet = qEnvironmentVariableIsSet(c.variable);
        const QByteArray before = qgetenv(c.variable);
        qputenv(c.variable, c.value);
        ignoreRelativeXdgPaths();
        EXPECT_EQ(qEnvironmentVariableIsSet(c.variable), c.kept != nullptr) << c.value;
        EXPECT_EQ(qgetenv(c.variable), QByteArray(c.kept)) << c.value;
        wasSet ? qputenv(c.variable, before) : qunsetenv(c.variable);
    }
}

} // namespace
} // namespace ravelo
