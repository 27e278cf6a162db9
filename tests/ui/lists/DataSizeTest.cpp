#include "ui/lists/DataSize.h"

#include <gtest/gtest.h>

namespace ravelo {

namespace {

using namespace Qt::StringLiterals;

TEST(DataSize, isTheSameForAllSizes) {
    const QLocale english(u"en_US"_s);
    for (const auto& [bytes, text] : {std::pair(qint64(0), u"0 bytes"_s),
                                      {1023, u"1,023 bytes"_s},
                                      {1536, u"1.5 kB"_s},
                                      {10 << 10, u"10 kB"_s},
                                      {1023 << 10, u"1,023 kB"_s},
                                      {1 << 20, u"1.0 MB"_s},
                                      {88 << 20, u"88 MB"_s}}) {
        EXPECT_EQ(dataSize(bytes, english), text);
    }
}

} // namespace

} // namespace ravelo
