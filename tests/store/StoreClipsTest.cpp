#include "StoreFixture.h"
#include "store/history/Deleted.h"
#include "support/TestFiles.h"

#include <functional>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

class StoreClips : public StoreFixture {
protected:
    StoreClips() {
        start();
        store_->flush();
    }

    /// Nothing waits to be saved.
    void expectNoSave() { EXPECT_EQ(scheduler_.pending(), 0) << "a save is pending"; }

    /// The address of a blue picture.
    [[nodiscard]] QByteArray copiedFile() const {
        const QString path = directory_.filePath(u"copied.bmp"_s);
        return QUrl::fromLocalFile(makeFile(path, picture("bmp", Qt::blue))).toEncoded();
    }

    QUuid add(const QString& text) {
        store_->addClip(text);
        return store_->clips()[0].id;
    }
};

TEST_F(StoreClips, OperationsSaveAndNotifyOnlyChanges) {
    const SignalCount emitted(store_.get(), &Store::clipsChanged);
    store_->addClip(u" \n"_s);
    store_->togglePin(QUuid::createUuid());
    store_->deleteClip(QUuid::createUuid());
    EXPECT_EQ(emitted.count(), 0);
    expectNoSave();

    const QUuid a = add(u"a"_s);
    const QUuid b = add(u"b"_s);
    store_->togglePin(a);
    store_->deleteClip(b);
    EXPECT_EQ(emitted.count(), 4);
    settle();
    EXPECT_EQ(saved().clips, store_->clips());
    EXPECT_TRUE(saved().clips[0].pinned);
    EXPECT_EQ(saved().clips[0].date, Date{scheduler_.now().sinceReference - 0.4});
}

TEST_F(StoreClips, SecretsAreNeverWritten) {
    const auto addSecret = [this](const QString& text) {
        store_->addClip(text, {}, {[](const QString&) {
                            return Verdict{true, u"github"_s};
                        }});
        return store_->clips()[0].id;
    };
    store_->setForgetAfter(Seconds(600));
    add(u"a"_s);
    const QUuid secret = addSecret(u"marker"_s);
    const auto kept = std::make_shared<Deleted>();
    store_->deleteClip(secret, kept);
    settle();
    store_->restore(kept, [](const Store::Restored&) {});
    settle();
    EXPECT_EQ(texts(), "marker a");
    EXPECT_FALSE(readFile(storeFile())->contains("marker"));
    store_->flush();
    EXPECT_FALSE(readFile(storeFile())->contains("marker"));
    scheduler_.advance(Seconds(600));
    EXPECT_EQ(texts(), "a") << "forgotten";

    store_->keepSecret(addSecret(u"one"_s));
    store_->togglePin(addSecret(u"two"_s));
    addSecret(u"three"_s);
    store_->setForgetAfter(Seconds(0));
    scheduler_.advance(Seconds(0));
    settle();
    EXPECT_EQ(texts(), "two a one") << "sorted by the pin";
    EXPECT_EQ(saved().clips, store_->clips());

    store_->setForgetAfter(Seconds(600));
    const QUuid four = addSecret(u"four"_s);
    addSecret(u"five"_s);
    scheduler_.advance(Seconds(300));
    scheduler_.setNow(Date{scheduler_.now().sinceReference - 3600});
    store_->keepSecret(four);
    scheduler_.advance(Seconds(300));
    EXPECT_EQ(texts(), "four two a one") << "also if the clock was set back";
}

TEST_F(StoreClips, AddsAnImageOnceItsFileIsWritten) {
    store_->addImageClip(png(Qt::red));
    EXPECT_EQ(texts(), "");
    settle(Seconds(0));
    EXPECT_EQ(texts(), "red");
    const ClipItem clip = store_->clips()[0];
    EXPECT_EQ(clip.imageFileName.size(), 40);
    EXPECT_NE(clip.imageFileName.first(36), clip.id.toString(QUuid::WithoutBraces).toUpper());
    EXPECT_EQ(imageFiles(), QStringList(clip.imageFileName));
}

TEST_F(StoreClips, AnImageThatCannotBeWrittenIsReported) {
    mayWrite_ = []() -> Result<void> {
        return failure(u"the disk is full"_s);
    };
    start();
    QStringList reasons;
    QObject::connect(store_.get(), &Store::imageNotKept, store_.get(),
                     [&](const QString& reason) { reasons.append(reason); });
    store_->addImageClip(png(Qt::red));
    store_->addImageClip({{u"image/png"_s}, {{u"image/png"_s, "no image"}}});
    settle();
    settle();
    EXPECT_EQ(reasons, QStringList(u"the disk is full"_s)) << "the other one is no image";
}

TEST_F(StoreClips, OrderOfCopyingIsKept) {
    store_->addClip(u"1"_s);
    store_->addImageClip(png(Qt::red));
    store_->addClip(u"2"_s);
    store_->addImageClip(png(Qt::blue));
    store_->addClip(u"3"_s);
    EXPECT_EQ(texts(), "1");
    scheduler_.advance(Seconds(5));
    worker_.drain();
    EXPECT_EQ(texts(), "3 blue 2 red 1");
    EXPECT_EQ(store_->clips()[0].date, Date{scheduler_.now().sinceReference - 5})
        << "the moment of copying, not of writing";
    store_->addClip(u"4"_s);
    EXPECT_EQ(texts(), "4 3 blue 2 red 1") << "nothing to wait for any more";
}

TEST_F(StoreClips, RecreatesAMissingFolderForAnImage) {
    ASSERT_TRUE(QDir(store_->clipsDir()).removeRecursively());
    store_->addImageClip(png(Qt::red));
    settle(Seconds(0));
    EXPECT_EQ(texts(), "red");
}

class CopiedPicture : public StoreClips {
protected:
    /// Copies a file, then a text, while a mount hangs or not.
    void copy() {
        const QString type = u"text/uri-list"_s;
        store_->addImageClip({{type}, {{type, copiedFile()}}});
        store_->addClip(u"later"_s);
    }
};

TEST_F(CopiedPicture, KeepsItsPlaceInTheOrder) {
    copy();
    EXPECT_EQ(texts(), "") << "it is read before what came after it is added";
    settle(Seconds(0));
    EXPECT_EQ(texts(), "later blue");
}

TEST_F(CopiedPicture, IsGivenUpIfItCannotBeRead) {
    copiedFiles_.hung = true;
    copy();
    store_->setNote(u"typed"_s);
    store_->save();
    settle(Seconds(1));
    EXPECT_EQ(saved().note, u"typed"_s) << "saving does not wait for it";
    settle(Seconds(1));
    EXPECT_EQ(texts(), "later");
    copy();
    store_->addClip(u"last"_s);
    store_->flush();
    EXPECT_EQ(saved().clips.size(), 2) << "nor does the end of the program";
    EXPECT_EQ(texts(), "last later");
}

TEST_F(StoreClips, BadImageAddsNothing) {
    for (const bool unwritable : {false, true}) {
        if (unwritable) {
            ASSERT_TRUE(QDir(store_->clipsDir()).removeRecursively());
            ASSERT_TRUE(QFile(store_->clipsDir()).open(QFile::WriteOnly)) << "a file in its place";
        }
        store_->addImageClip(unwritable ? png(Qt::red) : PasteboardSnapshot{{u"image/bmp"_s}, {}});
        settle(Seconds(0));
        expectNoSave();
        EXPECT_EQ(texts(), "");
        EXPECT_EQ(imageFiles(), QStringList());
    }
    store_->addClip(u"a"_s);
    EXPECT_EQ(texts(), "a");
}

TEST_F(StoreClips, DeletingAndClearingDeleteTheFiles) {
    for (const Qt::GlobalColor color : {Qt::red, Qt::green, Qt::blue}) {
        store_->addImageClip(png(color));
        settle();
    }
    const ClipItem pinned = store_->clips()[2];
    store_->togglePin(pinned.id);
    store_->deleteClip(store_->clips()[1].id);
    settle();
    EXPECT_EQ(texts(), "red blue");
    EXPECT_EQ(imageFiles().size(), 2);
    store_->clearClips();
    settle();
    EXPECT_EQ(texts(), "red");
    EXPECT_EQ(imageFiles(), QStringList(pinned.imageFileName));
    EXPECT_EQ(decoder_->forgotten.size(), 2) << "kept pictures of what was deleted";
    EXPECT_FALSE(
        decoder_->forgotten.contains(QFile::encodeName(store_->imagePath(pinned.imageFileName))));
}

TEST_F(StoreClips, DeletingDoesNotWaitForAConversion) {
    const QUuid deleted = add(u"deleted"_s);
    settle();
    conversions_.hung = true;
    store_->addImageClip(png(Qt::red));
    scheduler_.advance(Seconds(0.1));
    EXPECT_EQ(worker_.pending(), 0) << "the worker has to convert it";
    store_->deleteClip(deleted);
    settle(Seconds(0));
    EXPECT_EQ(saved().clips.size(), 0);
    store_->flush();
    EXPECT_EQ(texts(), "red") << "the end of the program waits for it";
    EXPECT_EQ(saved().clips.size(), 1);
}

TEST_F(StoreClips, ClearingDropsPendingCopies) {
    store_->addImageClip(png(Qt::red));
    store_->addClip(u"secret"_s);
    store_->clearClips();
    store_->addClip(u"later"_s);
    settle();
    EXPECT_EQ(texts(), "later");
    settle();
    EXPECT_EQ(imageFiles(), QStringList());
}

TEST_F(StoreClips, OnlyAnImageDeletesTheFileOfAnImageItPushesOut) {
    store_->addImageClip(png(Qt::red));
    store_->addImageClip(png(Qt::blue));
    settle(Seconds(0));
    for (int i = 0; i < 59; ++i) {
        add(QString::number(i));
    }
    worker_.drain();
    EXPECT_EQ(store_->clips().size(), 60);
    EXPECT_EQ(imageFiles().size(), 2) << "a text leaves it";
    store_->addImageClip(png(Qt::green));
    settle();
    EXPECT_EQ(imageFiles().size(), 2) << "the red one stays an orphan, the blue one goes";
}

TEST_F(StoreClips, NameFromTheFileNeverReachesOutsideTheFolder) {
    StoreData data;
    data.clips = {
        {QUuid::createUuid(), u"Image"_s, ClipKind::image, {1}, false, u"../store.json"_s}};
    ASSERT_TRUE(writeFileAtomically(storeFile(), encodeStore(data)));
    start();
    store_->clearClips();
    worker_.drain();
    EXPECT_TRUE(QFile::exists(storeFile()));
}

TEST_F(StoreClips, SnippetsAreSavedIfTheyChange) {
    const Snippet other = {QUuid::createUuid(), u"new"_s, u"B"_s, u"car"_s, {}};
    StoreData data;
    for (const char* title : {"a", "b", "c"}) {
        data.snippets.append({QUuid::createUuid(), QString::fromLatin1(title), {}, {}, {}});
    }
    Snippet& b = data.snippets[1];
    b.imageFileName = u"b.png"_s;
    Snippet changed = other;
    changed.id = b.id;

    struct Row {
        const char* what;
        std::function<void()> change;
        QString titles;
        bool hasImage = true;
    };

    const Row table[] = {
        {"added", [&] { store_->addSnippet(other); }, u"a b c new"_s},
        {"replaced", [&] { store_->updateSnippet(changed); }, u"a new c"_s},
        {"updated, not there", [&] { store_->updateSnippet(other); }, u"a b c"_s},
        {"removed", [&] { store_->removeSnippet(b.id); }, u"a c"_s, false},
        {"removed, not there", [&] { store_->removeSnippet(other.id); }, u"a b c"_s},
    };
    for (const auto& [what, change, titles, hasImage] : table) {
        ASSERT_TRUE(writeFileAtomically(storeFile(), encodeStore(data)));
        start();
        ASSERT_TRUE(writeFileAtomically(store_->imagePath(b.imageFileName), "picture"));
        settle();
        const SignalCount emitted(store_.get(), &Store::snippetsChanged);
        change();
        const bool changes = titles != u"a b c"_s;
        EXPECT_EQ(emitted.count(), changes ? 1 : 0) << what;
        EXPECT_EQ(scheduler_.pending(), changes && hasImage ? 1 : 0) << "saves of " << what;
        settle();
        QStringList saved;
        for (const Snippet& snippet : this->saved().snippets) {
            saved.append(snippet.title);
        }
        EXPECT_EQ(saved.join(u' '), titles) << what;
        EXPECT_EQ(this->saved().snippets, store_->snippets()) << what;
        EXPECT_EQ(imageFiles(), hasImage ? QStringList(b.imageFileName) : QStringList()) << what;
    }
}

class SnippetImage : public StoreClips {
protected:
    /// Asks for the image; the answer, once it is there, is in `answers_`.
    [[nodiscard]] Handle ask() {
        return store_->saveClipboardImageForSnippet(
            [this](const QString& name) { answers_.append(name); });
    }

    QStringList answers_;
};

TEST_F(SnippetImage, IsWrittenUnderANewName) {
    pasteboard_.offer({{u"image/tiff"_s, picture("tiff", Qt::blue)}});
    const Handle handle = ask();
    EXPECT_EQ(answers_.size(), 0);
    settle();
    ASSERT_EQ(answers_.size(), 1);
    EXPECT_EQ(answers_[0].size(), 40);
    EXPECT_EQ(imageFiles(), answers_);
    EXPECT_EQ(colorOf(readFile(store_->imagePath(answers_[0])).value_or(QByteArray())), "blue");
    EXPECT_EQ(scheduler_.pending(), 0) << "neither a save nor a time-out is left";
    EXPECT_EQ(texts(), "");
}

TEST_F(SnippetImage, IsTheNewestOnThePasteboard) {
    pasteboard_.offer({{u"image/png"_s, picture("png", Qt::red)}});
    const Handle handle = ask();
    pasteboard_.offer({{u"image/png"_s, picture("png", Qt::blue)}});
    settle();
    ASSERT_EQ(answers_.size(), 1);
    EXPECT_EQ(colorOf(readFile(store_->imagePath(answers_[0])).value_or(QByteArray())), "blue");
}

TEST_F(SnippetImage, HasNoNameIfThereIsNone) {
    pasteboard_.offerText(u"a"_s);
    const Handle handle = ask();
    settle();
    EXPECT_EQ(answers_, QStringList(QString()));
    EXPECT_EQ(imageFiles(), QStringList());
}

TEST_F(SnippetImage, OfASilentOwnerIsGivenUp) {
    pasteboard_.offerSilence();
    const Handle handle = ask();
    settle(Seconds(9.9));
    EXPECT_EQ(answers_.size(), 0);
    settle(Seconds(0.2));
    EXPECT_EQ(answers_, QStringList(QString()));
}

TEST_F(SnippetImage, OfAFileThatCannotBeReadIsGivenUp) {
    pasteboard_.offer({{u"text/uri-list"_s, copiedFile()}});
    for (const bool hung : {true, false}) {
        copiedFiles_.hung = hung;
        const Handle handle = ask();
        settle(Seconds(3));
        ASSERT_EQ(answers_.size(), 1) << "with a hanging mount: " << hung;
        EXPECT_EQ(answers_.takeFirst().isEmpty(), hung);
    }
}

TEST_F(SnippetImage, LeavesNothingBehindIfDropped) {
    for (const double after : {0.0, 0.1}) { // Before and after the reading.
        start();
        pasteboard_.offer({{u"image/png"_s, picture("png", Qt::red)}});
        Handle handle = ask();
        scheduler_.advance(Seconds(after));
        handle.reset();
        store_.reset();
        settle();
        EXPECT_EQ(answers_.size(), 0) << after;
        EXPECT_EQ(imageFiles(), QStringList()) << after;
        EXPECT_EQ(scheduler_.pending(), 0) << after;
    }
}

} // namespace

} // namespace ravelo
