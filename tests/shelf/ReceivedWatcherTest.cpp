#include "shelf/ReceivedWatcher.h"

#include "base/FileUrl.h"
#include "fakes/FakeNearby.h"
#include "fakes/ManualScheduler.h"
#include "shelf/PartialNames.h"

#include <gtest/gtest.h>

#include <sstream>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

/// Events in shorthand: "+a" a is written and closed, "0a" likewise but empty, ">a" is moved in,
/// "a>b" is renamed, "-a" is deleted; "[ a b ]" is a listing of older files, "{ a 0b }" one of
/// files that arrived meanwhile.
FolderNews newsOf(const std::string& words) {
    using Kind = FolderChange::Kind;
    static quint32 renaming = 0;
    FolderNews news;
    bool listing = false;
    std::istringstream stream(words);
    for (std::string word; stream >> word;) {
        const QByteArray rest = QByteArray::fromStdString(word.substr(1));
        if (const auto arrow = word.find('>'); arrow != std::string::npos) {
            const QByteArray from = QByteArray::fromStdString(word.substr(0, arrow));
            const QByteArray to = QByteArray::fromStdString(word.substr(arrow + 1));
            const quint32 number = from.isEmpty() ? 0 : ++renaming;
            if (!from.isEmpty()) {
                news.changes.append({Kind::movedOut, from, false, number});
            }
            if (!to.isEmpty()) {
                news.changes.append({Kind::movedIn, to, false, number});
            }
        } else if (word == "[" || word == "{") {
            listing = true;
            news.listing = FolderListing{
                {}, word == "[" ? FolderListing::Unknown::old : FolderListing::Unknown::arrived};
        } else if (word == "]" || word == "}") {
            listing = false;
        } else if (listing) {
            news.listing->entries.append(word[0] == '0' ? FolderEntry{rest, true}
                                                        : FolderEntry{word.c_str(), false});
        } else {
            news.changes.append(
                {word[0] == '-' ? Kind::deleted : Kind::written, rest, word[0] == '0', 0});
        }
    }
    return news;
}

struct Downloads {
    [[nodiscard]] std::string names() const {
        QByteArrayList list;
        for (const QUrl& url : watcher.files()) {
            list.append(filePath(url).mid(6));
        }
        return list.join(' ').toStdString();
    }

    ManualScheduler scheduler;
    FakeFolderWatch folder;
    ReceivedWatcher watcher{folder, scheduler, u"/down"_s};
};

class Received : public testing::Test, protected Downloads {};

TEST(ReceivedFiles, areThoseThatArrivedWhole) {
    struct Case {
        const char* name;
        const char* happens; ///< With "old" and "old.part" there; "|" separates reports.
        const char* files;
    };

    const Case cases[] = {{"inTheOrderOfTheirArrival", "+b +a >c", "b a c"},
                          {"writtenTwice", "+a +b +a | +a", "a b"},
                          {"writtenAgainOnceItWasGone", "+a +b | -a | +a", "b a"},
                          {"downloaded", "+a.part a.part>a", "a"},
                          {"downloadedIntoItsPlaceholder", "0a +a.part | a.part>a +a", "a"},
                          {"whatBeganBefore", "old.part>b", "b"},
                          {"downloadedOverAnOldOne", "a.part>old", "old"},
                          {"downloadedOverAReceivedOne", "+a +b a.part>a", "a b"},
                          {"halfOfIt", "+a.part +.hidden +x.TMP >b.crdownload", ""},
                          {"anOldOneEdited", "+old | .x>old | old.tmp>old", ""},
                          {"anOldOneRenamed", "old>new | +new", ""},
                          {"aReceivedOneRenamed", "+a +b | a>c", "c b"},
                          {"renamedOverAnotherOne", "+a +b | b>a", "a"},
                          {"renamedWhileItIsWritten", "0a a>b | +b", "b"},
                          {"madeByARenamingOfItsOwn", ".com.x.1>a.crdownload a.crdownload>a", "a"},
                          {"hidden", "+a a>.a", ""},
                          {"deletedAndMovedAway", "+a +b +c | -a b>", "c"},
                          {"aRenamingWithoutItsFirstHalf", "x> >a", "a"},
                          {"whatWasMissed", "+a +b | { old b 0e c d.part d }", "b c d"},
                          {"anotherFolderInItsPlace", "+a +b | [ b c ] +d | +c", "b d"},
                          {"aFolderThatWent", "+a | [ ]", ""},
                          {"aFolderThatWasMade", "+a | [ ] | { b } +c", "b c"}};
    for (const Case& c : cases) {
        Downloads downloads;
        downloads.folder.report(newsOf("[ old old.part ]"));
        EXPECT_EQ(downloads.names(), "") << c.name;
        std::istringstream stream(c.happens);
        for (std::string part; std::getline(stream, part, '|');) {
            downloads.folder.report(newsOf(part));
        }
        downloads.scheduler.advance(Seconds(0.1));
        EXPECT_EQ(downloads.names(), c.files) << c.name;
    }
}

TEST_F(Received, notifiesTenTimesASecondAndReceivesForFour) {
    int calls = 0;
    const Handle listening = watcher.onChange([&] { ++calls; });
    folder.report(newsOf("[ old ]"));
    folder.report(newsOf("+old 0x +y.part"));
    EXPECT_EQ(calls, 0);
    EXPECT_FALSE(watcher.receiving());
    folder.report(newsOf("+a +b"));
    EXPECT_EQ(calls, 1) << "at once";
    folder.report(newsOf("+c"));
    folder.report(newsOf("+d -a"));
    EXPECT_EQ(names(), "a b");
    scheduler.advance(Seconds(0.1));
    EXPECT_EQ(calls, 2);
    EXPECT_EQ(names(), "b c d");
    scheduler.advance(Seconds(3.8));
    EXPECT_TRUE(watcher.receiving());
    folder.report(newsOf("+e"));
    scheduler.advance(Seconds(3.9));
    folder.report(newsOf("+e"));
    EXPECT_TRUE(watcher.receiving()) << "e came 3.9 s ago";
    EXPECT_EQ(calls, 3);
    scheduler.advance(Seconds(0.1));
    EXPECT_FALSE(watcher.receiving());
    EXPECT_EQ(calls, 4);
    EXPECT_EQ(scheduler.pending(), 0);
}

TEST(PartialName, isRecognizedByItsSuffix) {
    const auto kindOf = [](const QByteArrayList& names) {
        std::string kinds;
        for (const QByteArray& name : names) {
            kinds += "wtd"[static_cast<int>(kindOfName(name))];
        }
        return kinds;
    };
    EXPECT_EQ(kindOf({"a", "a.pdf", "part", "a.parts", "a.part.zip", "a.", "\xff", "tmp"}),
              "wwwwwwww");
    EXPECT_EQ(kindOf({"a.part", "A.PART", "a.pdf.crdownload", "a.!qB", ".a.part"}), "ddddd");
    EXPECT_EQ(kindOf({".a", ".goutputstream-X", "a.tmp", "a.Temp", "a~"}), "ttttt");
}

} // namespace
} // namespace ravelo
