#include "StoreFixture.h"
#include "base/FileUrl.h"
#include "store/images/ImageFiles.h"
#include "support/TestFiles.h"

#include <cstdio>
#include <fstream>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

class StoreSaving : public StoreFixture {
protected:
    void write(const QByteArray& bytes) {
        ASSERT_TRUE(QDir().mkpath(folder()));
        ASSERT_TRUE(writeFileAtomically(storeFile(), bytes));
    }
};

TEST_F(StoreSaving, FirstRunAddsTemplatesAndLinks) {
    start();
    ASSERT_EQ(store_->snippets().size(), 18);
    EXPECT_EQ(store_->snippets()[0].title, u"First reply to lead"_s);
    EXPECT_EQ(store_->snippets()[7].icon, u"signature"_s);
    for (const Snippet& snippet : store_->snippets().last(10)) {
        EXPECT_EQ(snippet.icon, u"link"_s);
        EXPECT_TRUE(snippet.body.startsWith(u"https://"_s)) << qPrintable(snippet.body);
    }
    EXPECT_TRUE(store_->clips().isEmpty());
    EXPECT_EQ(preferences_.value(u"seededSiteLinksV1"_s), true);

    settle(Seconds(0.39));
    EXPECT_FALSE(QFile::exists(storeFile())) << "written before its time";
    settle(Seconds(0.01));
    EXPECT_EQ(saved().snippets, store_->snippets());
}

TEST_F(StoreSaving, OnlyTemplatesAreAddedAgain) {
    preferences_.set(u"seededSiteLinksV1"_s, false);
    start();
    EXPECT_EQ(store_->snippets().size(), 8) << "any value of the flag counts";
    settle();
    EXPECT_FALSE(QFile::exists(storeFile())) << "seeding alone is not saved";
}

TEST_F(StoreSaving, OnlyItsUserCanRead) {
    start();
    store_->addImageClip(png(Qt::red));
    store_->flush();
    EXPECT_EQ(modeOf(folder()), 0700U);
    EXPECT_EQ(modeOf(store_->clipsDir()), 0700U);
    EXPECT_EQ(modeOf(storeFile()), 0600U);
    ASSERT_EQ(imageFiles().size(), 1);
    EXPECT_EQ(modeOf(store_->imagePath(imageFiles()[0])), 0600U);
}

TEST_F(StoreSaving, RetriesAFailedSave) {
    start();
    QString reason;
    QObject::connect(store_.get(), &Store::saveEnded, store_.get(),
                     [&](const SaveOutcome& outcome) { reason = outcome.reason; });
    store_->flush();
    for (const bool atTheEnd : {false, true}) {
        QFile::remove(storeFile());
        ASSERT_TRUE(QDir().mkpath(storeFile() + u"/in the way"_s));
        store_->addClip(u"kept %1"_s.arg(atTheEnd));
        settle();
        ASSERT_TRUE(QFileInfo(storeFile()).isDir());
        EXPECT_EQ(reason, u"Is a directory"_s);
        ASSERT_TRUE(QDir(storeFile()).removeRecursively());
        if (atTheEnd) {
            store_->flush();
        } else {
            settle(Seconds(31));
        }
        ASSERT_TRUE(QFileInfo(storeFile()).isFile()) << atTheEnd;
        EXPECT_EQ(reason, QString());
        EXPECT_EQ(saved().clips[0].text, u"kept %1"_s.arg(atTheEnd));
    }
}

TEST_F(StoreSaving, WritesNothingOnceTheDataIsNotOurs) {
    bool ours = true;
    mayWrite_ = [&]() -> Result<void> {
        return ours ? Result<void>() : failure(u"taken over"_s);
    };
    start();
    store_->addImageClip(png(Qt::red));
    store_->flush();
    const StoreData before = saved();
    ours = false;
    QStringList reasons;
    QObject::connect(store_.get(), &Store::saveEnded, store_.get(),
                     [&](const SaveOutcome& outcome) { reasons.append(outcome.reason); });
    store_->addImageClip(png(Qt::blue));
    store_->clearClips();
    settle();
    settle();
    EXPECT_EQ(reasons, QStringList(u"taken over"_s));
    EXPECT_EQ(saved(), before);
    EXPECT_EQ(imageFiles(), QStringList(before.clips[0].imageFileName));
    EXPECT_EQ(scheduler_.pending(), 0) << "trying again is of no use";
}

TEST_F(StoreSaving, BurstGivesOneWriteOfTheStateAtTheLastSave) {
    start();
    store_->flush();
    const SignalCount emitted(store_.get(), &Store::noteChanged);
    for (int i = 1; i <= 10; ++i) {
        store_->setNote(QString::number(i));
        store_->setNote(QString::number(i));
        EXPECT_EQ(emitted.count(), i);
        store_->save();
        scheduler_.advance(Seconds(0.1));
        EXPECT_EQ(worker_.pending(), 0) << "written after save " << i;
    }
    store_->setNote(u"not saved"_s);
    scheduler_.advance(Seconds(0.31));
    EXPECT_EQ(worker_.pending(), 1) << "the one write";
    scheduler_.advance(Seconds(10));
    EXPECT_EQ(worker_.pending(), 1) << "no other one follows";
    worker_.drain();
    EXPECT_EQ(saved().note, u"10"_s);
}

TEST_F(StoreSaving, KeepsEverythingOverARestart) {
    const StoreData data = {{{QUuid::createUuid(), u"a"_s, ClipKind::text, {0.1}, true, {}}},
                            {{QUuid::createUuid(), u"t"_s, u"b"_s, u"car"_s, u"X.png"_s}},
                            u"one"_s,
                            u"two"_s,
                            {{QUuid::createUuid(), {{1, 2}, {3.5, 4}}}},
                            {{directory_.path()}}};
    preferences_.set(u"seededSiteLinksV1"_s, true);
    write(encodeStore(data));
    start();
    EXPECT_EQ(store_->note(), u"one"_s);
    store_->addClip(u"b"_s);
    restart();
    StoreData now = saved();
    ASSERT_EQ(now.clips.size(), 2);
    EXPECT_EQ(now.clips.takeFirst().text, u"b"_s);
    EXPECT_EQ(now, data);
}

TEST_F(StoreSaving, VanishedFilesLeaveTheShelf) {
    const QString here = directory_.path();
    StoreData data;
    data.shelfStacks = {{u"/no-such"_s}, {here, u"/no-such"_s, u"/"_s}, {}, {u"/"_s}};
    write(encodeStore(data));
    start();
    EXPECT_EQ(saved().shelfStacks, data.shelfStacks) << "written back 0.4 s later, not at once";
    settle();
    EXPECT_EQ(saved().shelfStacks, QList<QStringList>({{here, u"/"_s}, {u"/"_s}}));
}

TEST_F(StoreSaving, FilesOfUnknownStateStayOnTheShelf) {
    const QString loop = directory_.filePath(u"loop"_s);
    ASSERT_TRUE(QFile::link(loop, loop));
    StoreData data;
    data.shelfStacks = {{u"/no-such"_s, loop, u"/not-mounted/file"_s}};
    write(encodeStore(data));
    start();
    settle();
    EXPECT_EQ(saved().shelfStacks, QList<QStringList>({{loop, u"/not-mounted/file"_s}}));

    write(encodeStore(data));
    jobs_.hung = true;
    start();
    settle(Seconds(3));
    EXPECT_EQ(saved().shelfStacks, data.shelfStacks) << "a mount whose server is gone";
}

TEST_F(StoreSaving, AFileParkedAgainMeanwhileIsKept) {
    StoreData data;
    data.shelfStacks = {{u"/no-such"_s, u"/no-other"_s}};
    write(encodeStore(data));
    start();
    store_->addToShelf({QUrl(u"file:///no-such"_s)});
    settle();
    EXPECT_EQ(saved().shelfStacks, QList<QStringList>({{u"/no-such"_s}}));
}

TEST(OrphanedImages, AreOldOursAndUnnamed) {
    const QString id = u"0F8FAD5B-D9CB-469F-A165-70867728950E"_s;

    struct Row {
        QString name;
        double age;
        bool orphan;
    };

    const Row table[] = {{id + u".png"_s, 86401, true},
                         {id + u".png"_s, 86399, false},
                         {id + u".png"_s, -86401, false},
                         {id + u".jpg"_s, 90000, false},
                         {id, 90000, false},
                         {u"mine.png"_s, 90000, false},
                         {id + u".png.Xy0XXX"_s, 90000, true},
                         {id + u".png.X.0XXX"_s, 90000, false},
                         {id + u".png.backup"_s, 90000, false},
                         {id + u".png.240101"_s, 90000, false},
                         {u".png"_s, 90000, false}};
    const Date now{1e9};
    for (const Row& row : table) {
        const QList<FoundImage> found = {{row.name, {now.sinceReference - row.age}}};
        EXPECT_EQ(orphanedImages(found, {}, now).size(), row.orphan ? 1 : 0)
            << qPrintable(row.name) << ' ' << row.age << " s old";
        EXPECT_EQ(orphanedImages(found, {row.name}, now), QStringList()) << "named";
    }
}

class Orphans : public StoreSaving {
protected:
    /// After a start a week later.
    QStringList imagesAWeekLater() {
        scheduler_.setNow({toDate(QDateTime::currentDateTime()).sinceReference + 7 * 86400});
        start();
        worker_.drain();
        return imageFiles();
    }

    Orphans() {
        start();
        store_->addImageClip(png(Qt::red));
        store_->flush();
        named_ = imageFiles();
        EXPECT_TRUE(
            QFile::copy(store_->imagePath(named_[0]),
                        store_->clipsDir() + u"/0F8FAD5B-D9CB-469F-A165-70867728950E.png"_s));
    }

    QStringList named_;
};

TEST_F(Orphans, AreDeletedAtALaterStart) {
    EXPECT_EQ(imagesAWeekLater(), named_);
}

TEST_F(Orphans, AreKeptIfAnUnreadableStoreMayNameThem) {
    write("junk");
    EXPECT_EQ(imagesAWeekLater().size(), 2) << "no store, so no names are known";
    store_->addClip(u"a"_s);
    store_->flush();
    EXPECT_EQ(imagesAWeekLater().size(), 2) << "put aside, it may name them";
    ASSERT_TRUE(QFile::remove(storeFile() + u".unreadable"_s));
    EXPECT_EQ(imagesAWeekLater().size(), 0) << "no longer named";
}

TEST_F(StoreSaving, AFileIsFoundAgainWhateverItsName) {
    start();
    QList<QUrl> files;
    for (const char* name : {"a b%20c#?", "l\nm", "\xc3\xa4", "file:", "\xe4\xff%"}) {
        const QByteArray path = directory_.path().toUtf8() + '/' + name;
        ASSERT_TRUE(std::ofstream(path.constData()));
        files.append(fileUrl(path));
    }
    store_->addToShelf(files);
    restart();
    EXPECT_EQ(store_->shelf().files(), files);
    std::remove(filePath(files.last()).constData()); // QTemporaryDir cannot.
    restart();
    settle();
    EXPECT_EQ(store_->shelf().files(), files.first(4));
    store_->addToShelf(files.first(4));
    EXPECT_EQ(scheduler_.pending(), 0) << "nothing to save";
}

TEST_F(StoreSaving, AnUnreadableFileIsSetAsideBeforeItIsReplaced) {
    preferences_.set(u"seededSiteLinksV1"_s, true);
    const QString aside = storeFile() + u".unreadable"_s;
    for (const char* contents :
         {"", "junk", "[]", "{}",
          R"({"clips":[],"snippets":[],"note":"","drawing":[],"shelfStacks":[]})"}) {
        SCOPED_TRACE(contents);
        QFile::remove(aside);
        write(contents);
        start();
        EXPECT_TRUE(store_->clips().isEmpty());
        EXPECT_EQ(store_->snippets().size(), 8);
        settle();
        EXPECT_EQ(readFile(storeFile()), contents) << "untouched as long as nothing is saved";
        EXPECT_EQ(QDir(folder()).entryList(QDir::Files), QStringList(u"store.json"_s));

        store_->addClip(u"a"_s);
        QStringList asides;
        QObject::connect(store_.get(), &Store::saveEnded, store_.get(),
                         [&](const SaveOutcome& outcome) { asides.append(outcome.putAside); });
        restart();
        EXPECT_EQ(texts(), "a");
        EXPECT_EQ(asides, QStringList(aside));
        EXPECT_EQ(readFile(aside), contents);
        EXPECT_EQ(modeOf(aside), 0600U);
        restart();
        EXPECT_EQ(QDir(folder()).entryList(QDir::Files).size(), 2)
            << "a good file is not set aside";
    }
}

TEST_F(StoreSaving, FlushWritesEverythingPending) {
    start();
    store_->addImageClip(png(Qt::red));
    store_->addClip(u"a"_s);
    store_->setNote(u"typed"_s);
    store_->save();
    store_->flush();
    EXPECT_EQ(saved().note, u"typed"_s);
    EXPECT_EQ(saved().clips.size(), 2);
    EXPECT_EQ(texts(), "a red");
    scheduler_.advance(Seconds(1));
    EXPECT_EQ(worker_.pending(), 0) << "nothing is left to be written";
}

TEST_F(StoreSaving, SavesAreWrittenInOrder) {
    start();
    for (const QString& note : {u"1"_s, u"2"_s, u"3"_s}) {
        store_->setNote(note);
        store_->save();
        scheduler_.advance(Seconds(1));
    }
    EXPECT_EQ(worker_.pending(), 3) << "a slow disk";
    worker_.drain();
    EXPECT_EQ(saved().note, u"3"_s);
}

TEST_F(StoreSaving, WorksWithoutADisk) {
    QFile file(folder());
    ASSERT_TRUE(file.open(QFile::WriteOnly)) << "a file in place of the folder";
    start();
    store_->addClip(u"a"_s);
    store_->addImageClip(png(Qt::red));
    settle();
    EXPECT_EQ(texts(), "a");
}

} // namespace

} // namespace ravelo
