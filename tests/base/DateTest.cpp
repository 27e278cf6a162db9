#include "base/Date.h"

#include <gtest/gtest.h>

namespace ravelo {

namespace {

TEST(Date, CountsFromTheReferenceInstant) {
    const std::pair<const char*, double> cases[] = {
        {"2001-01-01T00:00:00Z", 0},
        {"2000-12-31T23:59:59.500Z", -0.5},
        {"2026-05-09T06:13:20.125Z", 800000000.125},
        {"2026-05-09T08:13:20+02:00", 800000000},
        {"1970-01-01T00:00:00Z", -978307200},
    };
    for (const auto& [text, seconds] : cases) {
        const QDateTime time = QDateTime::fromString(QString::fromLatin1(text), Qt::ISODateWithMs);
        EXPECT_EQ(toDate(time).sinceReference, seconds) << text;
        EXPECT_EQ(toDateTime({seconds}), time) << text;
    }
}

} // namespace

} // namespace ravelo
