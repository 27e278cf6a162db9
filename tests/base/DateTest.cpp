#include "base/Date.h"

#include <gtest/gtest.h>

namespace ravelo {

namespace {

using Moment = std::pair<const char*, double>;

class DateTest : public testing::TestWithParam<Moment> {};

TEST_P(DateTest, CountsFromTheReferenceInstant) {
    const QDateTime time =
        QDateTime::fromString(QString::fromLatin1(GetParam().first), Qt::ISODateWithMs);
    ASSERT_TRUE(time.isValid());
    EXPECT_EQ(toDate(time).sinceReference, GetParam().second);
    EXPECT_EQ(toDateTime({GetParam().second}), time);
}

INSTANTIATE_TEST_SUITE_P(Table, DateTest,
                         testing::Values(Moment("2001-01-01T00:00:00Z", 0),
                                         Moment("2000-12-31T23:59:59.500Z", -0.5),
                                         Moment("2026-05-09T06:13:20.125Z", 800000000.125),
                                         Moment("2026-05-09T08:13:20+02:00", 800000000),
                                         Moment("1970-01-01T00:00:00Z", -978307200)));

} // namespace

} // namespace ravelo
