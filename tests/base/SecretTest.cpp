#include "base/Secret.h"

#include <gtest/gtest.h>

#include <optional>

namespace ravelo {
namespace {

TEST(Secret, isOverwrittenWhenItsLastCopyGoes) {
    std::optional<Secret> first(Secret(QByteArray("a token")));
    std::optional<Secret> second = first;
    const QByteArray witness = first->bytes(); // Shares the buffer and so sees what becomes of it.
    first.reset();
    EXPECT_EQ(witness, "a token") << "a copy still holds it";
    second.reset();
    EXPECT_EQ(witness, QByteArray(7, '\0'));
}

TEST(Secret, leavesTheBytesOfOthersAlone) {
    const QByteArray shared("shared");
    static constexpr char constant[] = "constant"; // Cannot be written to.
    {
        const Secret one(shared);
        const Secret other(QByteArray::fromRawData(constant, 8));
        const Secret nothing{QByteArray()};
        EXPECT_TRUE(nothing.isEmpty() && Secret().isEmpty());
        EXPECT_EQ(one.bytes() + other.bytes(), "sharedconstant");
    }
    EXPECT_EQ(shared, "shared");
}

} // namespace
} // namespace ravelo
