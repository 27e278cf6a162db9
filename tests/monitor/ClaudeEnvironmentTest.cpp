#include "monitor/ClaudeEnvironment.h"

#include <gtest/gtest.h>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

QProcessEnvironment with(const QString& name, const QString& value) {
    QProcessEnvironment environment;
    environment.insert(name, value);
    return environment;
}

TEST(OtherClaudeFolders, areThoseOfEnvironmentAndConfiguration) {
    const std::pair<QString, QByteArrayList> cases[] = {
        {u""_s, {"/h/.config/claude"}},
        {u"/c d/"_s, {"/c d", "/h/.config/claude"}},
        {u"/h/.config/claude"_s, {"/h/.config/claude"}},
        {u"/h/.claude/"_s, {"/h/.config/claude"}},
        {u"relative"_s, {"/h/.config/claude"}},
    };
    for (const auto& [chosen, folders] : cases) {
        EXPECT_EQ(otherClaudeFolders("/h", with(u"CLAUDE_CONFIG_DIR"_s, chosen)), folders)
            << qPrintable(chosen);
    }
}

} // namespace

} // namespace ravelo
