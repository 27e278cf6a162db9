#include "shelf/FileDrop.h"

#include "fakes/FakeDisplay.h"
#include "shelf/DropLoading.h"
#include "support/Eventually.h"

#include <gtest/gtest.h>

#include <future>
#include <thread>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

using Files = QList<QUrl>;
using Answer = std::function<void(const Files&)>;

const QUrl a(u"file:///a"_s);
const QUrl b(u"file:///b"_s);
const QUrl c(u"file:///c"_s);

TEST(LoadToShelf, deliversAllFilesAtOnce) {
    QList<Files> given;
    const auto give = [&](const Files& files) {
        given.append(files);
    };
    Answer late;
    std::promise<Answer> elsewhere;
    const Handle loading = loadToShelf({[&](Answer answer) { late = std::move(answer); },
                                        [](const Answer& answer) { answer({b}); },
                                        [](const Answer& answer) { answer({}); },
                                        [&](Answer answer) {
                                            elsewhere.set_value(std::move(answer));
                                        }},
                                       give);
    std::thread other([answer = elsewhere.get_future().get()] { answer({c}); });
    other.join();
    EXPECT_TRUE(given.isEmpty()) << "one has not answered yet";
    late({a, a});
    EXPECT_EQ(given, QList<Files>({{b, c, a, a}}));

    Handle dropped = loadToShelf({[&](Answer answer) {
                                     late = std::move(answer);
                                 }},
                                 give);
    dropped.reset();
    late({a});
    const Handle none = loadToShelf({}, give);
    const Handle noFiles = loadToShelf({[](const Answer& answer) {
                                           answer({});
                                       }},
                                       give);
    EXPECT_EQ(given.size(), 1);

    std::thread last;
    const Handle fromThread =
        loadToShelf({[&](Answer answer) {
                        last = std::thread([answer = std::move(answer)] { answer({a}); });
                    }},
                    [&, main = std::this_thread::get_id()](const Files& files) {
                        EXPECT_EQ(std::this_thread::get_id(), main);
                        give(files);
                    });
    last.join();
    EXPECT_EQ(given.size(), 1);
    EXPECT_TRUE(eventually([&] { return given.size() == 2; }));
}

/// Drags over a shelf.
struct Shelved {
    FakeDragMonitor drags;
    FakeFileTransfer transfers;
    QList<Files> given;
    FileDrop drop{transfers, [] {
                  }};

    Carries enter() { return drop.enter(drags.newest()); }

    void release() {
        drop.drop([this](const Files& files) { given.append(files); });
    }
};

class Drops : public testing::Test, protected Shelved {};

const QUrl named = FakeDragMonitor().file;

TEST(Drop, givesFilesByNameOrByKey) {
    struct Case {
        const char* name;
        bool files; ///< Whether the source names its file itself.
        QByteArray key;
        Files retrieved;
        Files given;
    };

    const Case cases[] = {{"named", true, {}, {}, {named}},
                          {"handed over", true, "key", {b, a}, {b, a}},
                          {"handed over only", false, "key", {a}, {a}},
                          {"not handed over after all", true, "key", {}, {named}},
                          {"no files", false, {}, {}, {}},
                          {"no files by the key either", false, "key", {}, {}}};
    for (const Case& one : cases) {
        SCOPED_TRACE(one.name);
        Shelved shelf;
        const bool hasKey = !one.key.isEmpty();
        shelf.drags.begin(one.files, std::nullopt);
        EXPECT_EQ(shelf.enter(), one.files ? Carries::files : Carries::unknown);
        EXPECT_TRUE(shelf.transfers.keys.isEmpty()) << "a key can be redeemed only once";
        shelf.release();
        shelf.drags.answer(one.files, one.key); // The answer is late.
        shelf.drags.answer(one.files, one.key);
        EXPECT_EQ(shelf.enter(), one.files || hasKey ? Carries::files : Carries::nothing);
        EXPECT_EQ(shelf.transfers.keys, hasKey ? QList{one.key} : QList<QByteArray>());
        if (hasKey) {
            EXPECT_TRUE(shelf.given.isEmpty());
            shelf.transfers.answer(one.retrieved);
        }
        EXPECT_EQ(shelf.given, one.given.isEmpty() ? QList<Files>() : QList<Files>({one.given}));
        shelf.drags.begin(true);
        EXPECT_LE(shelf.given.size(), 1) << "the next drag is not ours";
    }
}

TEST_F(Drops, useValidKeysOnly) {
    const std::pair<QByteArray, QList<QByteArray>> rows[] = {
        {QByteArray("123\0", 4), {"123"}},
        {"\xff", {}},
        {QByteArray("1\0002", 3), {}},
        {QByteArray(1025, 'k'), {}},
    };
    for (const auto& [offered, used] : rows) {
        transfers.keys.clear();
        drags.begin(true, offered);
        enter();
        release();
        EXPECT_EQ(transfers.keys, used) << offered.toHex().constData();
    }
}

TEST_F(Drops, areDeliveredInOrder) {
    for (const char* key : {"first", "second"}) {
        drags.begin(false, key);
        enter();
        release();
    }
    drags.begin(std::nullopt, std::nullopt); // The third one's source is slow.
    enter();
    release();
    drags.begin(false, std::nullopt); // A fourth drag begins meanwhile, and is not dropped here.
    transfers.answer({a});
    transfers.answer({b});
    EXPECT_EQ(given, (QList<Files>{{a}, {b}}));
    drags.answer(true, {}, 1);
    EXPECT_EQ(given, (QList<Files>{{a}, {b}, {named}})) << "the slow source's are lost";
    drags.answer(true);
    EXPECT_EQ(given.size(), 3) << "files that were never dropped here";
}

TEST_F(Drops, keepTheirFilesIfTheNextDragBeginsFirst) {
    drags.begin(true);
    enter();
    drags.begin(false);
    EXPECT_EQ(drop.carries(), Carries::files);
    release();
    EXPECT_EQ(given, QList<Files>{{named}});
}

} // namespace
} // namespace ravelo
