#include "app/Console.h"

#include <gtest/gtest.h>

namespace ravelo {
namespace {

TEST(Console, EscapesControlSequences) {
    struct Case {
        QByteArray text;
        QByteArray shown;
    };

    const Case cases[] = {
        {"plain ü\xe4\xb8\xad \xf0\x9f\x8d\x85\n", "plain ü\xe4\xb8\xad \xf0\x9f\x8d\x85\n"},
        {"\x1b]0;title\x07", "\\x1b]0;title\\x07"},
        {"a\rb\tc\x7f", "a\\x0db\\tc\\x7f"},
        {"\xc2\x9b"
         "31m",
         "\\xc2\\x9b31m"}, // The same as escape and bracket, in one character.
        {"\x9b"
         "31m",
         "\\x9b31m"}, // And in one byte.
        {"\xe4\xb8", "\\xe4\\xb8"},
        {QByteArray("\0", 1), "\\x00"},
        {"back\\slash", "back\\slash"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(harmless(c.text), c.shown);
        EXPECT_EQ(harmless(c.shown), c.shown);
    }
    EXPECT_EQ(harmless(QByteArray("a\nb\0c", 5), '\0'), QByteArray("a\\nb\0c", 6));
}

} // namespace
} // namespace ravelo
