// What may come over the socket, and what the shell says about our extension.

#include "platform/gnome/Inbox.h"
#include "platform/gnome/ShellExtension.h"

#include <gtest/gtest.h>

#include <fcntl.h>

namespace ravelo::gnome {

using namespace Qt::StringLiterals;

namespace {

TEST(GnomeProtocol, ReadsOnlyWhatTheExtensionMaySay) {
    const std::pair<const char*, bool> rows[] = {
        {R"({"is":"hello","version":1})", true},
        {R"({"is":"hello"})", false},
        {R"({"is":"hello","version":-1})", false},
        {R"({"is":"hello","version":1.5})", false},
        {R"({"is":"screens","primary":0,"screens":[]})", true},
        {R"({"is":"screens","primary":0,"screens":[{"frame":[0,0,8,6],"free":[0,1,8,5]}]})", true},
        {R"({"is":"screens","primary":0,"screens":[{"frame":[0,0,8],"free":[0,1,8,5]}]})", false},
        {R"({"is":"screens","primary":0,"screens":[{"frame":[0,0,8,1e9],"free":[0,1,8,5]}]})",
         false},
        {R"({"is":"screens","primary":0,"screens":[{"frame":[0,0,-8,6],"free":[0,1,8,5]}]})",
         false},
        {R"({"is":"look","animations":true,"icons":"Adwaita"})", true},
        {R"({"is":"look","animations":1,"icons":"Adwaita"})", false},
        {R"({"is":"edge"})", true},
        {R"({"is":"edge","screen":1})", true},
        {R"({"is":"edge","screen":"1"})", false},
        {R"({"is":"press","own":false})", true},
        {R"({"is":"press"})", false},
        {R"({"is":"clip","serial":3,"types":["a","b"]})", true},
        {R"({"is":"clip","serial":3,"types":["a",1]})", false},
        {R"({"is":"clip","serial":5000000000,"types":[]})", false},
        {R"({"is":"clip","serial":3})", false},
        {R"({"is":"drag","serial":3,"types":[]})", true},
        {R"({"is":"dragEnd"})", true},
        {R"({"is":"none","of":"drag","serial":3,"type":"a"})", true},
        {R"({"is":"none","of":"selection","serial":3,"type":"a"})", false},
        {R"({"is":"keyboard","serial":1,"names":[],"focused":false,"modifiers":true,"layout":""})",
         true},
        {R"({"is":"keyboard","serial":1,"window":7,"names":["a"],"focused":true,"modifiers":false,"layout":"us"})",
         true},
        {R"({"is":"keyboard","serial":1,"window":-7,"names":[],"focused":true,"modifiers":false,"layout":"us"})",
         false},
        {R"({"is":"keyboard","serial":1,"window":7,"names":[],"modifiers":false,"layout":"us"})",
         false},
        {R"({"is":"keyboard","serial":1,"window":7,"names":[],"focused":true,"layout":"us"})",
         false},
        {R"({"is":"keyboard","serial":1,"window":7,"names":[],"focused":true,"modifiers":false})",
         false},
        {R"({"is":"keyboard","window":7,"names":[],"focused":true,"modifiers":false,"layout":"us"})",
         false},
        {R"({"is":"locked"})", true},
        {R"({"is":"unheard-of"})", false},
        {R"(["hello"])", false},
        {"", false},
        {"{", false},
    };
    for (const auto& [line, valid] : rows) {
        EXPECT_EQ(parseReport(line).has_value(), valid) << line;
    }
    QByteArray types = "\"x\"";
    types += QByteArray(",\"x\"").repeated(512);
    const auto many = parseReport(R"({"is":"clip","serial":1,"types":[)" + types + "]}");
    ASSERT_TRUE(many) << "an owner of many types is no error";
    EXPECT_TRUE(std::get<Copied>(*many).types.isEmpty()) << "too many types to look at each";
}

TEST(GnomeProtocol, KeepsScreensWithWhatTheirBarsLeave) {
    const auto report = parseReport(
        R"({"is":"screens","primary":1,"screens":[{"frame":[0,0,800,600],"free":[0,0,800,600]},)"
        R"({"frame":[800,0,1024.5,768],"free":[800,32,1024.5,736]}]})");
    ASSERT_TRUE(report);
    const auto& screens = std::get<ScreensReport>(*report);
    EXPECT_EQ(screens.primary, 1U);
    ASSERT_EQ(screens.screens.size(), 2U);
    EXPECT_EQ(screens.screens[1],
              (Screen{u"1"_s, {800, 0, 1024.5, 768}, {800, 32, 1024.5, 736}, {}, {}}));
}

std::vector<Descriptor> descriptors(int count) {
    std::vector<Descriptor> result;
    result.reserve(count);
    for (int i = 0; i < count; ++i) {
        result.emplace_back(::open("/dev/null", O_RDONLY | O_CLOEXEC));
    }
    return result;
}

const QByteArray data = R"({"is":"data","of":"clip","serial":1,"type":"a"})";

TEST(GnomeInbox, PutsMessagesTogetherWithTheirDescriptors) {
    Inbox inbox;
    const QByteArray stream =
        QByteArray("{\"is\":\"edge\"}\n") + '\0' + data + "\n{\"is\":\"dragEnd\"}\n";
    for (const char one : stream) { // In the smallest parts.
        inbox.put({&one, 1}, descriptors(one == '\0' ? 1 : 0));
    }
    EXPECT_TRUE(std::holds_alternative<Edge>(inbox.take().value().report));
    const auto given = inbox.take();
    ASSERT_TRUE(given);
    EXPECT_EQ(std::get<Given>(given->report).how, Given::How::descriptor);
    EXPECT_TRUE(given->descriptor);
    EXPECT_TRUE(std::holds_alternative<DragEnded>(inbox.take().value().report));
    EXPECT_FALSE(inbox.take());
    EXPECT_FALSE(inbox.isBroken());
}

TEST(GnomeInbox, SkipsLinesThatAreTooLong) {
    for (const qsizetype part : {qsizetype(1000), 3 * maxLine}) {
        const QByteArray stream =
            QByteArray(2 * maxLine, 'x') + "\n{\"is\":\"edge\"}\n{\"is\":\"dragEnd\"}\n";
        Inbox inbox;
        int taken = 0;
        for (qsizetype at = 0; at < stream.size(); at += part) {
            inbox.put(QByteArrayView(stream).sliced(at, std::min(part, stream.size() - at)), {});
            while (inbox.take()) {
                ++taken;
            }
        }
        EXPECT_EQ(taken, 2) << "in parts of " << part;
        EXPECT_FALSE(inbox.isBroken()) << "in parts of " << part;
    }
}

TEST(GnomeInbox, BreaksOnWhatIsNoMessage) {
    struct Row {
        const char* what;
        QByteArray bytes;
        int descriptors = 0;
    };

    const Row rows[] = {
        {"no JSON", "nonsense\n"},
        {"no descriptor came", '\0' + data + '\n'},
        {"no NUL byte for it", data + '\n', 1},
        {"a NUL byte that is not wanted", '\0' + QByteArray("{\"is\":\"edge\"}\n"), 1},
        {"a flood of descriptors", "{", 65},
        {"a descriptor of unknown use", '\0' + QByteArray(maxLine + 1, 'x') + '\n', 1},
    };
    for (const Row& row : rows) {
        Inbox inbox;
        inbox.put(row.bytes, descriptors(row.descriptors));
        EXPECT_FALSE(inbox.take()) << row.what;
        EXPECT_TRUE(inbox.isBroken()) << row.what;
        inbox.put("{\"is\":\"edge\"}\n", {});
        EXPECT_FALSE(inbox.take()) << "nothing counts after " << row.what;
    }
}

TEST(ShellExtensionState, IsWhatTheShellSaysOfIt) {
    using State = DesktopExtension::State;
    const auto info = [](double state, QVariant protocol) {
        return QVariantMap{{u"state"_s, state}, {u"ravelo-protocol"_s, std::move(protocol)}};
    };
    EXPECT_EQ(stateOf({}), State::missing);
    EXPECT_EQ(stateOf(info(1, double(protocolVersion))), State::on);
    EXPECT_EQ(stateOf(info(2, double(protocolVersion))), State::off);
    EXPECT_EQ(stateOf(info(3, double(protocolVersion))), State::failed);
    EXPECT_EQ(stateOf(info(1, double(protocolVersion - 1))), State::older);
    EXPECT_EQ(stateOf(info(1, {})), State::older);
    EXPECT_EQ(stateOf(info(1, double(protocolVersion + 1))), State::newer);
}

TEST(ShellExtensionSettings, AddsANameToAList) {
    const std::pair<QString, QString> rows[] = {
        {u"@as []"_s, u"['new@name']"_s},
        {u"[]"_s, u"['new@name']"_s},
        {u"['a@b']"_s, u"['a@b', 'new@name']"_s},
        {u"['a@b', 'new@name']"_s, u"['a@b', 'new@name']"_s},
        {u""_s, {}},
        {u"No such schema"_s, {}},
        {u"rm -rf ['a']"_s, {}},
    };
    for (const auto& [list, expected] : rows) {
        EXPECT_EQ(withName(list, "new@name"_L1), expected) << qPrintable(list);
    }
}

} // namespace
} // namespace ravelo::gnome
