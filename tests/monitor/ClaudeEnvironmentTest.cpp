#include "monitor/ClaudeEnvironment.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

QProcessEnvironment with(const QString& name, const QString& value) {
    QProcessEnvironment environment;
    environment.insert(name, value);
    return environment;
}

TEST(OtherClaudeFolders, areThatOfTheEnvironmentAndTheOneInTheConfiguration) {
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

TEST(RenewalFolder, isBelowTheRuntimeFolderOrTheHome) {
    const QTemporaryDir runtime;
    const std::pair<QString, QByteArray> cases[] = {
        {runtime.path(), runtime.path().toUtf8() + "/ravelo-renewal"},
        {runtime.filePath(u"gone"_s), "/h/.cache/ravelo-renewal"},
        {u"."_s, "/h/.cache/ravelo-renewal"},
        {u""_s, "/h/.cache/ravelo-renewal"},
    };
    for (const auto& [folder, expected] : cases) {
        EXPECT_EQ(renewalFolder("/h", with(u"XDG_RUNTIME_DIR"_s, folder)), expected)
            << qPrintable(folder);
    }
}

} // namespace

} // namespace ravelo
