// What was deleted comes back, whole and to its place, or is gone.

#include "store/Deleted.h"
#include "StoreFixture.h"
#include "store/ClipHistory.h"

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

class Undo : public StoreFixture {
protected:
    Undo() { start(); }

    void add(const QString& words) {
        for (const QString& word : words.split(u' ')) {
            store_->addClip(word);
        }
    }

    void remove(const QString& text) {
        store_->deleteClip(std::ranges::find(store_->clips(), text, &ClipItem::text)->id, deleted_);
    }

    void pin(const QString& text) {
        store_->togglePin(std::ranges::find(store_->clips(), text, &ClipItem::text)->id);
    }

    Store::Restored undo() {
        Store::Restored restored;
        store_->restore(deleted_, [&](const Store::Restored& outcome) { restored = outcome; });
        worker_.drain();
        return restored;
    }

    std::shared_ptr<Deleted> deleted_ = std::make_shared<Deleted>();
};

struct UndoCase {
    const char* name;
    std::function<void(std::function<void(const QString&)> remove, Store& store,
                       const std::shared_ptr<Deleted>& deleted)>
        change; ///< Of "a b d c", the first two pinned.
    std::string restored;
};

class UndoOrder : public Undo, public testing::WithParamInterface<UndoCase> {};

TEST_P(UndoOrder, isWhatItWas) {
    add(u"a b c d"_s);
    scheduler_.advance(Seconds(1));
    pin(u"a"_s);
    pin(u"b"_s);
    const std::string before = texts();
    GetParam().change([this](const QString& text) { remove(text); }, *store_, deleted_);
    ASSERT_NE(texts(), before);
    const Store::Restored restored = undo();
    EXPECT_EQ(texts(), GetParam().restored);
    EXPECT_EQ(restored.problem, QString());
    EXPECT_EQ(saved().clips, store_->clips()) << "not written at once";
    EXPECT_TRUE(std::ranges::find(store_->clips(), u"b"_s, &ClipItem::text)->pinned);
}

INSTANTIATE_TEST_SUITE_P(
    All, UndoOrder,
    testing::Values(
        UndoCase{"first", [](auto remove, Store&, const auto&) { remove(u"a"_s); }, "a b d c"},
        UndoCase{"pinned", [](auto remove, Store&, const auto&) { remove(u"b"_s); }, "a b d c"},
        UndoCase{"last", [](auto remove, Store&, const auto&) { remove(u"d"_s); }, "a b d c"},
        UndoCase{"severalAtOnce",
                 [](auto remove, Store&, const auto&) {
                     remove(u"b"_s);
                     remove(u"a"_s);
                     remove(u"c"_s);
                 },
                 "a b d c"},
        UndoCase{"cleared",
                 [](auto, Store& store, const auto& deleted) { store.clearClips(deleted); },
                 "a b d c"},
        UndoCase{"copiedMeanwhile",
                 [](auto remove, Store& store, const auto&) {
                     remove(u"a"_s);
                     remove(u"d"_s);
                     store.addClip(u"new"_s);
                 },
                 "new a b d c"},
        UndoCase{"itselfCopiedAgain",
                 [](auto, Store& store, const auto& deleted) {
                     store.clearClips(deleted);
                     store.addClip(u"d"_s);
                 },
                 "d a b c"}),
    [](const auto& row) { return row.param.name; });

TEST_F(Undo, imageIsOffTheDiskAndComesBackToTheByte) {
    store_->addImageClip(png(Qt::red));
    settle();
    const ClipItem clip = store_->clips()[0];
    const auto bytes = readFile(store_->imagePath(clip.imageFileName));
    store_->deleteClip(clip.id, deleted_);
    worker_.drain(); // No time passes.
    EXPECT_EQ(imageFiles(), QStringList());
    EXPECT_FALSE(
        readFile(storeFile()).value_or(QByteArray()).contains(clip.imageFileName.toUtf8()));
    EXPECT_EQ(undo().count, 1);
    EXPECT_EQ(readFile(store_->imagePath(clip.imageFileName)), bytes);
    EXPECT_EQ(saved().clips, QList<ClipItem>{clip});
}

TEST_F(Undo, snippetComesBackToItsPlaceWithItsImage) {
    Snippet snippet = store_->snippets()[3];
    snippet.imageFileName = u"b.png"_s;
    ASSERT_TRUE(writeFileAtomically(store_->imagePath(u"b.png"_s), "bytes"));
    store_->updateSnippet(snippet);
    const QList<Snippet> before = store_->snippets();
    store_->removeSnippet(snippet.id, deleted_);
    worker_.drain();
    EXPECT_EQ(imageFiles(), QStringList());
    EXPECT_EQ(undo().count, 1);
    EXPECT_EQ(store_->snippets(), before);
    EXPECT_EQ(saved().snippets, before);
    EXPECT_EQ(readFile(store_->imagePath(u"b.png"_s)), "bytes");
}

TEST_F(Undo, textsComeBackWhereImagesCannot) {
    bool full = false;
    mayWrite_ = [&]() -> Result<void> {
        return full ? failure(u"the disk is full"_s) : Result<void>();
    };
    start();
    add(u"a"_s);
    store_->addImageClip(png(Qt::red));
    settle();
    store_->clearClips(deleted_);
    worker_.drain();
    full = true;
    const Store::Restored restored = undo();
    EXPECT_EQ(restored.count, 1);
    EXPECT_EQ(restored.problem, u"the disk is full"_s);
    EXPECT_EQ(texts(), "a");
    ASSERT_TRUE(restored.canRetry);
    full = false;
    EXPECT_EQ(undo().count, 1) << "the image is lost after one attempt";
    EXPECT_EQ(imageFiles().size(), 1);
}

TEST_F(Undo, bringsOnlyWhatIsNotInTheHistoryBackAfterAClearing) {
    store_->addImageClip(png(Qt::red));
    settle();
    const QList<Snippet> snippets = store_->snippets();
    store_->deleteClip(store_->clips()[0].id, deleted_);
    store_->removeSnippet(snippets[0].id, deleted_);
    worker_.drain();
    Store::Restored restored;
    store_->restore(deleted_, [&](const Store::Restored& outcome) { restored = outcome; });
    store_->clearClips();
    worker_.drain();
    worker_.drain();
    EXPECT_EQ(texts(), "");
    EXPECT_EQ(imageFiles(), QStringList());
    EXPECT_EQ(store_->snippets(), snippets);
    EXPECT_EQ(restored.count, 1);
    EXPECT_EQ(restored.problem, u"the history was cleared"_s);
}

TEST_F(Undo, bringsTheOldestBackAboveTheLimitUntilTheNextCopy) {
    const int limit = HistoryRules().limit;
    for (int i = 0; i < limit; ++i) {
        store_->addClip(u"text %1"_s.arg(i));
    }
    remove(u"text 0"_s);
    store_->addClip(u"new"_s);
    EXPECT_EQ(undo().count, 1);
    EXPECT_EQ(store_->clips().back().text, u"text 0"_s);
    store_->addClip(u"newer"_s);
    EXPECT_EQ(store_->clips().size(), limit);
}

TEST_F(Undo, keepsTheLastDeletedOfWhatIsTooMuch) {
    QDir folder(store_->clipsDir());
    const auto record = [&](const QString& name) {
        QFile file(folder.filePath(name));
        const qint64 mebibytes = name == u"large.png" ? 65 : 30;
        EXPECT_TRUE(file.open(QFile::WriteOnly) && file.resize(mebibytes << 20));
        ClipItem clip;
        clip.id = QUuid::createUuid();
        clip.imageFileName = name;
        return DeletedRecord{clip, {clip.id}, {}};
    };
    for (const QString& name : {u"1.png"_s, u"2.png"_s, u"3.png"_s, u"large.png"_s}) {
        deleted_->add({record(name)}, folder.path());
        folder.remove(name);
    }
    const Deleted::Restorable all = deleted_->restore(folder.path(), {});
    EXPECT_EQ(imageFiles(), QStringList({u"2.png"_s, u"3.png"_s}));
    EXPECT_EQ(all.problem, u"too large to keep in memory"_s);
}

} // namespace

} // namespace ravelo
