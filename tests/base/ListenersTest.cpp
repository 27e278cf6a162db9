#include "base/Listeners.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace ravelo {

namespace {

TEST(Listeners, CanBeAddedAndDroppedDuringANotification) {
    Listeners<char> listeners;
    std::string heard;
    Handle second;
    Handle late;
    const Handle first = listeners.add([&](char c) {
        heard += c;
        second.reset();
        if (late) {
            return;
        }
        late = listeners.add([&](char later) { heard += std::string("late ") + later; });
    });
    second = listeners.add([&](char) { heard += "dropped"; });
    listeners.notify('a');
    EXPECT_EQ(heard, "a");
    listeners.notify('b');
    EXPECT_EQ(heard, "ablate b");
}

TEST(Listeners, CanDestroyTheirListAndOutliveIt) {
    std::optional<Listeners<>> listeners(std::in_place);
    int calls = 0;
    Handle first = listeners->add([&] {
        ++calls;
        listeners.reset();
    });
    Handle second = listeners->add([&] { ++calls; });
    listeners->notify();
    EXPECT_EQ(calls, 2);
    first.reset();
    second.reset();
}

TEST(Handle, CancelsOnce) {
    int cancelled = 0;
    Handle a([&] { ++cancelled; });
    Handle b = std::move(a);
    EXPECT_FALSE(a); // NOLINT(bugprone-use-after-move): that it is empty is the point.
    EXPECT_TRUE(b);
    EXPECT_EQ(cancelled, 0);
    b = Handle([&] { cancelled += 10; });
    EXPECT_EQ(cancelled, 1) << "assigning cancels the old one";
    b.reset();
    b.reset();
    EXPECT_EQ(cancelled, 11);
}

} // namespace

} // namespace ravelo
