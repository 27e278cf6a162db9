// Deleted records are restored, complete and in their place, or are gone.

#include "store/history/Deleted.h"
#include "StoreFixture.h"
#include "store/history/ClipHistory.h"

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

    void remove(const QStringList& texts) {
        QSet<QUuid> ids;
        for (const QString& text : texts) {
            ids.insert(std::ranges::find(store_->clips(), text, &ClipItem::text)->id);
        }
        int changes = 0;
        const auto counting =
            QObject::connect(store_.get(), &Store::clipsChanged, [&] { ++changes; });
        store_->deleteClips(ids, deleted_);
        QObject::disconnect(counting);
        EXPECT_EQ(changes, 1) << "not deleted in one go";
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

TEST_F(Undo, restoresTheOrder) {
    struct Row {
        /// "-a,b" deletes a and b at once, "+a" copies it, "clear" clears the history.
        QString steps;
        std::string restored;
    };

    const Row table[] = {{u"-a"_s, "a b d c"},
                         {u"-b"_s, "a b d c"},
                         {u"-d"_s, "a b d c"},
                         {u"-b -a -c"_s, "a b d c"},
                         {u"-b,c,d"_s, "a b d c"},
                         {u"clear"_s, "a b d c"},
                         {u"-a -d +new"_s, "new a b d c"},
                         {u"clear +d"_s, "d a b c"}};
    for (const Row& row : table) {
        SCOPED_TRACE(qPrintable(row.steps));
        QFile::remove(storeFile());
        deleted_ = std::make_shared<Deleted>();
        start();
        add(u"a b c d"_s);
        scheduler_.advance(Seconds(1));
        pin(u"a"_s);
        pin(u"b"_s);
        const std::string before = texts();
        for (const QString& step : row.steps.split(u' ')) {
            if (step == u"clear") {
                store_->clearClips(deleted_);
            } else {
                step.startsWith(u'-') ? remove(step.mid(1).split(u','))
                                      : store_->addClip(step.mid(1));
            }
        }
        ASSERT_NE(texts(), before);
        const Store::Restored restored = undo();
        EXPECT_EQ(texts(), row.restored);
        EXPECT_EQ(restored.problem, QString());
        EXPECT_EQ(saved().clips, store_->clips()) << "not written at once";
        EXPECT_TRUE(std::ranges::find(store_->clips(), u"b"_s, &ClipItem::text)->pinned);
    }
}

TEST_F(Undo, anImageIsDeletedFromTheDiskAndRestored) {
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

TEST_F(Undo, aSnippetIsRestoredWithItsPlaceAndImage) {
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

TEST_F(Undo, restoresTextsIfImagesCannotBe) {
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

TEST_F(Undo, restoresOnlySnippetsAfterTheHistoryWasCleared) {
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

TEST_F(Undo, restoresTheOldestAboveTheLimitUntilTheNextCopy) {
    const int limit = HistoryRules().limit;
    for (int i = 0; i < limit; ++i) {
        store_->addClip(u"text %1"_s.arg(i));
    }
    remove({u"text 0"_s});
    store_->addClip(u"new"_s);
    EXPECT_EQ(undo().count, 1);
    EXPECT_EQ(store_->clips().back().text, u"text 0"_s);
    store_->addClip(u"newer"_s);
    EXPECT_EQ(store_->clips().size(), limit);
}

TEST_F(Undo, keepsTheLastDeletedImagesWithinItsLimit) {
    QDir folder(store_->clipsDir());
    const Vault& vault = *store_->vault();
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
        deleted_->add({record(name)}, folder.path(), vault);
        folder.remove(name);
    }
    const Deleted::Restorable all = deleted_->restore(folder.path(), vault, {});
    EXPECT_EQ(imageFiles(), QStringList({u"2.png"_s, u"3.png"_s}));
    EXPECT_EQ(all.problem, u"too large to keep in memory"_s);
}

} // namespace

} // namespace ravelo
