#include "base/Uuid.h"

#include <gtest/gtest.h>

namespace ravelo {

namespace {

struct Text {
    const char* text;
    const char* canonical; ///< Null where the text is no UUID.
};

class UuidTest : public testing::TestWithParam<Text> {};

TEST_P(UuidTest, TakesOnlyTheCanonicalForm) {
    const auto id = parseUuid(QString::fromUtf8(GetParam().text));
    ASSERT_EQ(id.has_value(), GetParam().canonical != nullptr);
    if (id) {
        EXPECT_EQ(uuidText(*id).toStdString(), GetParam().canonical);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Table, UuidTest,
    testing::Values(
        Text{"0A1B2C3D-4E5F-6789-ABCD-EF0123456789", "0A1B2C3D-4E5F-6789-ABCD-EF0123456789"},
        Text{"0a1b2c3d-4e5f-6789-abcd-ef0123456789", "0A1B2C3D-4E5F-6789-ABCD-EF0123456789"},
        Text{"00000000-0000-0000-0000-000000000000", "00000000-0000-0000-0000-000000000000"},
        Text{"", nullptr}, Text{"{0A1B2C3D-4E5F-6789-ABCD-EF0123456789}", nullptr},
        Text{"0A1B2C3D4E5F6789ABCDEF0123456789", nullptr},
        Text{"0A1B2C3D-4E5F-6789-ABCD-EF012345678", nullptr},
        Text{"0A1B2C3D-4E5F-6789-ABCD-EF01234567890", nullptr},
        Text{"0A1B2C3D-4E5F-6789-ABCD-EF012345678G", nullptr},
        Text{"0A1B2C3-D4E5F-6789-ABCD-EF0123456789", nullptr},
        Text{" 0A1B2C3D-4E5F-6789-ABCD-EF012345678", nullptr},
        Text{"0A1B2C3D-4E5F-6789-ABCD-EF0123456789\n", nullptr},
        Text{"٠A1B2C3D-4E5F-6789-ABCD-EF0123456789", nullptr}));

} // namespace

} // namespace ravelo
