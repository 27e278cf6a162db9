#include "app/Platform.h"

#include <gtest/gtest.h>

#include <utility>

namespace ravelo {
namespace {

TEST(Platform, IsTheOneThatIsAskedForOrAClearError) {
    const std::pair<const char*, QString> rows[] = {
        {"", {}},
        {"x11", {}},
        {"gnome", {}},
        {"wayland", QStringLiteral("RAVELO_PLATFORM: this version cannot use Wayland directly")},
        {"X11", QStringLiteral("RAVELO_PLATFORM must be x11, wayland or gnome, not \"X11\"")},
    };
    for (const auto& [wanted, error] : rows) {
        qputenv("RAVELO_PLATFORM", wanted);
        const auto chosen = Platform::choose();
        EXPECT_EQ(chosen ? QString() : chosen.error().message, error) << wanted;
    }
    qunsetenv("RAVELO_PLATFORM");
}

} // namespace
} // namespace ravelo
