#include "store/transfer/Transfer.h"

#include "StoreFixture.h"
#include "store/transfer/Archive.h"
#include "store/transfer/KnownRecords.h"
#include "support/TestFiles.h"
#include "vault/Vault.h"

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

class Transfer : public StoreFixture {
protected:
    Transfer() {
        start();
        store_->addClip(u"text"_s);
        store_->addImageClip(png(Qt::red));
        store_->setNote(u"a note"_s);
        store_->addToShelf({QUrl::fromLocalFile(directory_.path())});
        settle();
    }

    Result<int> exported() { return exportStore(store_->contents(), *store_->vault(), archive_); }

    Result<Import> import() { return importStore(archive_, *store_->vault(), *decoder_, {}); }

    Result<StoreContents> imported() {
        return import().map([](const Import& import) { return import.contents; });
    }

    /// What an import does; the number of new snippets.
    qsizetype importAll() {
        auto contents = imported();
        dropKnownRecords(contents->data, store_->contents().data, *store_->vault(), *decoder_, {});
        const auto added = store_->addAll(*contents, [](const auto& /*outcome*/) {});
        settle();
        return added.value_or(-1);
    }

    static QSet<QUuid> idsOf(const QList<ClipItem>& clips) {
        QSet<QUuid> ids;
        for (const ClipItem& clip : clips) {
            ids.insert(clip.id);
        }
        return ids;
    }

    [[nodiscard]] QSet<QUuid> ids() const { return idsOf(store_->clips()); }

    /// An archive with these entries, in place of the exported one.
    void pack(const QList<std::pair<QByteArray, QByteArray>>& entries) {
        QFile file(archive_);
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        for (const auto& [name, contents] : entries) {
            ASSERT_TRUE(writeEntry(file, name, contents));
        }
        ASSERT_TRUE(endArchive(file));
    }

    QString archive_ = directory_.filePath(u"archive.tar"_s);
};

TEST_F(Transfer, EverythingComesBackUnderNewNamesAndIds) {
    const StoreData before = store_->contents().data;
    ASSERT_EQ(exported(), 0);
    EXPECT_EQ(modeOf(archive_), 0600U);
    EXPECT_FALSE(exported()) << "it replaces no file";
    store_->clearClips();
    store_->setNote({});
    settle();
    const auto contents = imported();
    ASSERT_TRUE(contents) << qPrintable(contents.error().message);
    std::optional<SaveOutcome> outcome;
    store_->addAll(*contents, [&](const SaveOutcome& saved) { outcome = saved; });
    settle();
    ASSERT_TRUE(outcome);
    EXPECT_EQ(outcome->kind, SaveOutcome::Kind::saved);
    EXPECT_EQ(texts(), "red text");
    EXPECT_EQ(store_->note(), u"a note"_s);
    EXPECT_EQ(store_->snippets(), before.snippets) << "equal ones are not doubled";
    EXPECT_NE(store_->clips()[0].id, before.clips[0].id);
    EXPECT_NE(store_->clips()[0].imageFileName, before.clips[0].imageFileName);
    EXPECT_EQ(saved().clips, store_->clips());
}

TEST_F(Transfer, ABadArchiveChangesNothing) {
    ASSERT_TRUE(exported());
    const QByteArray good = *readFile(archive_);
    const QByteArray json = encodeStore(store_->contents().data);
    const QByteArray name = "clips/" + store_->clips()[0].imageFileName.toUtf8();
    const QStringList images = imageFiles();
    const auto expectRefused = [&](const char* what) {
        EXPECT_FALSE(imported()) << what;
        EXPECT_EQ(imageFiles(), images) << what;
    };
    for (const qsizetype size :
         {qsizetype(0), qsizetype(511), good.size() / 2, good.size() - 1024}) {
        ASSERT_TRUE(writeFileAtomically(archive_, good.first(size)));
        expectRefused("cut");
    }
    QByteArray changed = good;
    changed[124] = '7';
    ASSERT_TRUE(writeFileAtomically(archive_, changed));
    expectRefused("a wrong sum");
    pack({{name, picture("png", Qt::red)}});
    expectRefused("no store");
    pack({{"store.json", "{}"}});
    expectRefused("not a store");
    pack({{"store.json", json}});
    expectRefused("an image is missing");
    pack({{name, picture("png", Qt::red)}, {"clips/other.png", "x"}, {"store.json", json}});
    EXPECT_TRUE(imported()) << "a file that nothing names is ignored";
}

TEST_F(Transfer, AnImageThatCannotBeDecodedGoesWithItsClip) {
    const ClipItem image = store_->clips()[0];
    store_->setForms(image.id, {u"GIMP"_s});
    Snippet snippet = store_->snippets()[0];
    snippet.imageFileName = image.imageFileName;
    store_->updateSnippet(snippet);
    const QString file = store_->imagePath(image.imageFileName);
    ASSERT_TRUE(writeFileAtomically(file, readFile(file)->first(60)));
    settle();
    ASSERT_EQ(exported(), 0);
    const QStringList files = imageFiles();
    const auto rest = import();
    ASSERT_TRUE(rest) << qPrintable(rest.error().message);
    EXPECT_EQ(rest->missing, 1);
    ASSERT_EQ(rest->contents.data.clips.size(), 1);
    EXPECT_EQ(rest->contents.data.clips[0].text, u"text"_s);
    EXPECT_EQ(rest->contents.data.snippets[0].body, snippet.body);
    EXPECT_EQ(rest->contents.data.snippets[0].imageFileName, QString());
    EXPECT_EQ(imageFiles(), files) << "what was kept beside the clip is left out, too";
}

TEST_F(Transfer, ItsOwnExportDoublesNothing) {
    const QByteArray odd = picture("png", Qt::blue) + "tail"; // Imported, it has other bytes.
    store_->addImageClip({{u"image/png"_s}, {{u"image/png"_s, odd}}});
    settle();
    store_->togglePin(store_->clips().last().id);
    settle();
    store_->setDrawing({{QUuid::createUuid(), {{1, 2}, {3, 4}}}});
    ASSERT_TRUE(exported());
    const QStringList images = imageFiles();
    const QList<ClipItem> clips = store_->clips();
    importAll();
    EXPECT_EQ(store_->drawing().size(), 1);
    EXPECT_EQ(ids(), idsOf(clips));
    EXPECT_EQ(imageFiles(), images);
    store_->togglePin(clips[1].id);
    ASSERT_TRUE(QFile::remove(archive_));
    ASSERT_TRUE(exported());
    store_->togglePin(clips[1].id);
    importAll();
    EXPECT_EQ(ids().size(), clips.size() + 1) << "only one of both is pinned";
}

TEST_F(Transfer, SnippetsWithTheSameImageAreNotDoubled) {
    Snippet snippet = store_->snippets()[0];
    snippet.imageFileName = u"0F8FAD5B-D9CB-469F-A165-70867728950E.png"_s;
    ASSERT_TRUE(writeFileAtomically(store_->imagePath(snippet.imageFileName),
                                    picture("png", Qt::blue) + "tail"));
    store_->updateSnippet(snippet);
    ASSERT_TRUE(exported());
    const qsizetype before = imageFiles().size();
    EXPECT_EQ(importAll(), 0);
    EXPECT_EQ(imageFiles().size(), before);
    snippet.body += u"other"_s;
    store_->updateSnippet(snippet);
    EXPECT_EQ(importAll(), 1) << "the text differs";
    snippet.body.chop(5);
    store_->updateSnippet(snippet);
    ASSERT_TRUE(
        writeFileAtomically(store_->imagePath(snippet.imageFileName), picture("png", Qt::green)));
    store_->removeSnippet(store_->snippets().last().id);
    EXPECT_EQ(importAll(), 1) << "the image differs";
}

TEST_F(Transfer, OnlyItsOwnSaveIsReported) {
    ASSERT_TRUE(exported());
    int saves = 0;
    QObject::connect(store_.get(), &Store::saveEnded, store_.get(), [&] { ++saves; });
    store_->addClip(u"before"_s);
    scheduler_.advance(Seconds(1)); // The worker has it.
    int savesThen = 0;
    store_->addAll(*imported(), [&](const auto& /*outcome*/) { savesThen = saves; });
    worker_.drain();
    EXPECT_EQ(savesThen, 2);
}

TEST_F(Transfer, AnUnreadableImageIsLeftOut) {
    ASSERT_TRUE(QFile::remove(store_->imagePath(store_->clips()[0].imageFileName)));
    EXPECT_EQ(exported(), 1);
    const auto contents = imported();
    ASSERT_TRUE(contents);
    EXPECT_EQ(contents->data.clips.size(), 1);
}

} // namespace

} // namespace ravelo
