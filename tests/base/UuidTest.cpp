#include "base/Uuid.h"

#include <gtest/gtest.h>

namespace ravelo {

namespace {

TEST(Uuid, AcceptsOnlyTheCanonicalForm) {
    const std::string canonical = "0A1B2C3D-4E5F-6789-ABCD-EF0123456789";
    for (const char* text :
         {"0A1B2C3D-4E5F-6789-ABCD-EF0123456789", "0a1b2c3d-4e5f-6789-abcd-ef0123456789"}) {
        const auto id = parseUuid(QString::fromUtf8(text));
        ASSERT_TRUE(id) << text;
        EXPECT_EQ(uuidText(*id).toStdString(), canonical);
    }
    EXPECT_TRUE(parseUuid(QStringLiteral("00000000-0000-0000-0000-000000000000")));
    for (const char* text :
         {"", "{0A1B2C3D-4E5F-6789-ABCD-EF0123456789}", "0A1B2C3D4E5F6789ABCDEF0123456789",
          "0A1B2C3D-4E5F-6789-ABCD-EF012345678", "0A1B2C3D-4E5F-6789-ABCD-EF01234567890",
          "0A1B2C3D-4E5F-6789-ABCD-EF012345678G", "0A1B2C3-D4E5F-6789-ABCD-EF0123456789",
          " 0A1B2C3D-4E5F-6789-ABCD-EF012345678", "0A1B2C3D-4E5F-6789-ABCD-EF0123456789\n",
          "٠A1B2C3D-4E5F-6789-ABCD-EF0123456789"}) {
        EXPECT_FALSE(parseUuid(QString::fromUtf8(text))) << text;
    }
}

} // namespace

} // namespace ravelo
