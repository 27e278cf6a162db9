// A store whose files are encrypted, and deletion that leaves nothing.

#include "StoreFixture.h"
#include "store/history/Deleted.h"
#include "support/TestFiles.h"
#include "vault/Conversion.h"
#include "vault/Vault.h"

#include <QDirIterator>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

class Locking : public StoreFixture {
protected:
    Locking() {
        file_.wrap(*key_, wrapper_);
        start();
        store_->addClip(u"before"_s);
        store_->addImageClip(png(Qt::red));
        store_->flush();
        EXPECT_TRUE(beginEncryption(*store_->vault(), file_, key_, {}));
        startLocked();
    }

    void startLocked() {
        store_.reset();
        start();
        ASSERT_TRUE(store_->isLocked());
        ASSERT_TRUE(store_->clips().isEmpty());
        ASSERT_TRUE(store_->snippets().isEmpty()) << "no templates in place of what is there";
    }

    void unlock() {
        store_->vault()->open(file_, key_);
        store_->unlock();
        worker_.drain();
        settle();
    }

    /// By colour, through the vault.
    QString colour(const ClipItem& clip) {
        return QString::fromStdString(colorOf(
            store_->vault()->bytes(store_->imagePath(clip.imageFileName)).value_or(QByteArray())));
    }

    QStringList all() {
        QStringList words;
        for (const ClipItem& clip : store_->clips()) {
            words.append(clip.kind == ClipKind::image ? colour(clip) : clip.text);
        }
        return words;
    }

    QStringList filesWith(const QByteArray& marker) {
        QStringList found;
        for (QDirIterator files(folder(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
             files.hasNext();) {
            if (const QString file = files.next(); readFile(file)->contains(marker)) {
                found.append(file);
            }
        }
        return found;
    }

    LockedBytes wrapper_ = LockedBytes::random(KeyFile::wrapperLength);
    std::shared_ptr<const StoreKey> key_ = std::make_shared<const StoreKey>(StoreKey::random());
    KeyFile file_ = KeyFile::of(*key_, KeyFile::Guard::keyring, {1, 8});
};

TEST_F(Locking, NothingIsOverwrittenWithoutTheKey) {
    const auto stored = readFile(storeFile());
    store_->addClip(u"SECRET-OF-NOW"_s);
    store_->clearClips();
    store_->addClip(u"SECRET-OF-NOW"_s);
    store_->flush();
    EXPECT_EQ(readFile(storeFile()), stored);
    EXPECT_EQ(filesWith("SECRET-OF-NOW"), QStringList()) << "sealed";
    EXPECT_EQ(imageFiles().size(), 1);
}

TEST_F(Locking, WhatCameMeanwhileIsMergedWhenItOpens) {
    store_->addClip(u"one"_s);
    settle();
    scheduler_.advance(Seconds(10));
    startLocked(); // The first waits in a file of its own now.
    store_->addClip(u"two"_s);
    store_->addImageClip(png(Qt::blue));
    settle();
    EXPECT_EQ(all(), QStringList({u"blue"_s, u"two"_s})) << "shown while locked";
    unlock();
    EXPECT_EQ(all(), QStringList({u"blue"_s, u"two"_s, u"one"_s, u"red"_s, u"before"_s}));
    EXPECT_EQ(store_->snippets().size(), 18);
    EXPECT_EQ(QDir(folder() + u"/waiting"_s).entryList(QDir::Files), QStringList())
        << "nothing waits any more";
    EXPECT_EQ(filesWith("before"), QStringList());
    startLocked();
    unlock();
    EXPECT_EQ(store_->clips().size(), 5) << "at the next start";
}

TEST_F(Locking, AFailedSaveAfterOpeningKeepsWhatWaits) {
    bool full = false;
    mayWrite_ = [&]() -> Result<void> {
        return full ? failure(u"the disk is full"_s) : Result<void>();
    };
    startLocked();
    store_->addClip(u"one"_s);
    settle();
    startLocked();
    full = true;
    unlock();
    EXPECT_EQ(QDir(folder() + u"/waiting"_s).entryList(QDir::Files).size(), 1);
    store_.reset(); // A kill.
    full = false;
    start();
    unlock();
    EXPECT_EQ(store_->clips().front().text, u"one"_s);
}

TEST_F(Locking, LockingDropsEverythingOnceItIsSaved) {
    unlock();
    store_->addClip(u"last"_s);
    int dropped = 0;
    store_->lock([&] {
        ++dropped;
        store_->vault()->lock();
    });
    EXPECT_EQ(dropped, 0) << "not saved yet";
    worker_.drain();
    EXPECT_EQ(dropped, 1);
    EXPECT_TRUE(store_->isLocked());
    EXPECT_TRUE(store_->clips().isEmpty());
    EXPECT_TRUE(store_->snippets().isEmpty());
    store_->addClip(u"while locked"_s);
    settle();
    unlock();
    EXPECT_EQ(all(), QStringList({u"while locked"_s, u"last"_s, u"red"_s, u"before"_s}));
}

TEST_F(Locking, WhatUnlockingReplacesGoesWithItsFiles) {
    unlock();
    const QUuid before = store_->clips()[1].id;
    store_->setForms(before, {u"Kate"_s});
    settle();
    ASSERT_EQ(imageFiles().size(), 2);
    store_->vault()->lock();
    startLocked();
    store_->addClip(u"before"_s);
    settle();
    unlock();
    EXPECT_EQ(all(), QStringList({u"before"_s, u"red"_s}));
    EXPECT_EQ(imageFiles().size(), 1) << "the image alone";
    store_->vault()->lock();
    startLocked();
    for (int i = 0; i < HistoryRules().limit; ++i) {
        store_->addClip(u"text %1"_s.arg(i));
    }
    settle();
    unlock();
    EXPECT_EQ(imageFiles(), QStringList()) << "the image was pushed out";
}

TEST_F(Locking, UnlockingDropsNoMoreThanWhatCameMeanwhileReplaces) {
    unlock();
    HistoryRules longer;
    longer.limit = 200;
    store_->setHistoryRules(longer);
    for (int i = 0; i < 98; ++i) {
        store_->addClip(u"text %1"_s.arg(i));
    }
    settle();
    store_->vault()->lock();
    startLocked(); // With the standard rules, as if the preferences were lost.
    store_->addClip(u"later"_s);
    settle();
    unlock();
    EXPECT_EQ(store_->clips().size(), 100);
    EXPECT_EQ(store_->clips()[0].text, u"later"_s);
}

TEST_F(Locking, AStoreByALaterVersionIsLeftAlone) {
    ASSERT_TRUE(QFile::remove(folder() + u"/key"_s));
    const QByteArray newer = R"({"version":2,"clips":[],"snippets":[],"note":"","note2":"",)"
                             R"("drawing":[],"shelfStacks":[]})";
    ASSERT_TRUE(writeFileAtomically(storeFile(), newer));
    store_.reset();
    start();
    QStringList reasons;
    QObject::connect(store_.get(), &Store::saveEnded, store_.get(),
                     [&](const SaveOutcome& outcome) { reasons.append(outcome.reason); });
    store_->addClip(u"a"_s);
    store_->flush();
    EXPECT_EQ(readFile(storeFile()), newer);
    EXPECT_EQ(reasons, QStringList(u"what is stored was written by a newer Ravelo"_s));
    EXPECT_EQ(QDir(folder()).entryList({u"*unreadable*"_s}), QStringList());
}

class Erasing : public Locking {
protected:
    Erasing() {
        unlock();
        EXPECT_TRUE(endEncryption(*store_->vault(), {}));
    }
};

TEST_F(Erasing, ClearingRemovesCopiesAndOrphansToo) {
    ASSERT_TRUE(writeFileAtomically(storeFile() + u".unreadable"_s, "MARKER"));
    ASSERT_TRUE(writeFileAtomically(storeFile() + u".abcDEF"_s, "MARKER"));
    for (const QString& name : {u"0F8FAD5B-D9CB-469F-A165-70867728950E.png"_s,
                                u"0F8FAD5B-D9CB-469F-A165-70867728950E.png.abcDEF"_s}) {
        ASSERT_TRUE(writeFileAtomically(store_->clipsDir() + u'/' + name, "MARKER"));
    }
    ASSERT_TRUE(writeFileAtomically(store_->clipsDir() + u"/mine.png"_s, "not ours"));
    store_->addClip(u"MARKER"_s);
    settle();
    store_->clearClips();
    store_->addImageClip(png(Qt::green)); // On its way while the leftovers go.
    settle();
    settle();
    EXPECT_EQ(filesWith("MARKER"), QStringList());
    EXPECT_EQ(imageFiles().size(), 2) << "the new image, and a file that is not ours";
}

TEST_F(Erasing, TheLastHourGoesAndTheRestStays) {
    scheduler_.advance(Seconds(3600));
    store_->addClip(u"new"_s);
    store_->addClip(u"pinned"_s);
    store_->togglePin(store_->clips()[0].id);
    EXPECT_EQ(store_->lastHourCount(), 1);
    const auto kept = std::make_shared<Deleted>();
    store_->clearLastHour(kept);
    worker_.drain();
    EXPECT_EQ(all(), QStringList({u"pinned"_s, u"red"_s, u"before"_s}));
    EXPECT_EQ(filesWith("new\""), QStringList());
}

TEST_F(Erasing, ImagesThatTextsPushedOutGoWithTheLastHourAndWithALimit) {
    const auto pushOut = [this] {
        store_->addImageClip(png(Qt::green));
        settle();
        for (int i = 0; i < HistoryRules().limit; ++i) {
            store_->addClip(u"text %1"_s.arg(i));
        }
        settle();
    };
    scheduler_.setNow(toDate(QDateTime::currentDateTime())); // Files have the time of the disk.
    const QStringList old = imageFiles();
    makeOld(store_->clipsDir() + u'/' + old[0]);
    pushOut();
    EXPECT_EQ(imageFiles().size(), 2) << "left for a later start";
    store_->clearLastHour();
    settle();
    EXPECT_EQ(imageFiles(), old) << "older than an hour";
    store_->setHistoryRules({.imageBytes = 1 << 20});
    pushOut();
    EXPECT_EQ(imageFiles(), old);
}

TEST_F(Erasing, AFailureIsReported) {
    QStringList problems;
    const ClipItem image = store_->clips()[0];
    const QString path = store_->imagePath(image.imageFileName);
    bool readOnly = true;
    mayWrite_ = [&] {
        return readOnly ? Result<void>(failure(u"the folder is read-only"_s)) : Result<void>();
    };
    store_.reset();
    start();
    QObject::connect(store_.get(), &Store::removalEnded, store_.get(),
                     [&](const QString& problem) { problems.append(problem); });
    store_->deleteClip(image.id);
    worker_.drain();
    EXPECT_EQ(problems, QStringList(u"the folder is read-only"_s));
    EXPECT_TRUE(QFile::exists(path));
    readOnly = false;
    store_->addImageClip(png(Qt::blue));
    settle();
    settle();
    store_->deleteClip(store_->clips()[0].id);
    worker_.drain();
    EXPECT_EQ(problems.size(), 1) << "another deletion does not make up for it";
    store_->clearClips();
    worker_.drain();
    EXPECT_EQ(problems.last(), QString());
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(Erasing, EverythingGoesAndNothingComesBack) {
    std::optional<Result<void>> done;
    store_->addClip(u"on its way"_s);
    store_->erase([&](const Result<void>& outcome) { done = outcome; });
    store_->addImageClip(png(Qt::green)); // While the preferences are still being erased, too.
    worker_.drain();
    ASSERT_TRUE(done && *done);
    store_->addClip(u"later"_s);
    store_->addImageClip(png(Qt::green));
    EXPECT_TRUE(store_->clips().isEmpty());
    store_->flush();
    EXPECT_EQ(QDir(folder()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
}

TEST_F(Erasing, IfItFailsWhatIsLeftStaysAndSavingGoesOn) {
    bool readOnly = true;
    mayWrite_ = [&] {
        return readOnly ? Result<void>(failure(u"the folder is read-only"_s)) : Result<void>();
    };
    store_.reset();
    start();
    worker_.drain();
    std::optional<Result<void>> done;
    store_->erase([&](const Result<void>& outcome) { done = outcome; });
    worker_.drain();
    ASSERT_TRUE(done && !*done);
    store_->resume();
    readOnly = false;
    store_->addClip(u"later"_s);
    store_->addImageClip(png(Qt::green));
    settle();
    settle();
    EXPECT_EQ(all(), QStringList({u"green"_s, u"later"_s, u"red"_s, u"before"_s}));
    EXPECT_EQ(saved().clips.size(), 4);
}

TEST_F(Locking, WithoutItsKeyAnErasedStoreBeginsPlain) {
    unlock();
    store_->erase([](const auto& /*outcome*/) {});
    worker_.drain();
    store_->resume(); // The preferences were not erased, say.
    store_->addClip(u"later"_s);
    settle();
    EXPECT_EQ(saved().clips.size(), 1);
}

TEST_F(Locking, ErasingEndsAnUnlock) {
    store_->vault()->open(file_, key_);
    store_->unlock();
    store_->erase([](const auto& /*outcome*/) {});
    worker_.drain();
    store_->flush();
    EXPECT_FALSE(QFile::exists(storeFile())) << "what was read is not saved again";
    EXPECT_TRUE(store_->clips().isEmpty());
}

TEST_F(Locking, ALockThatCannotSaveSaysWhy) {
    bool full = false;
    mayWrite_ = [&]() -> Result<void> {
        return full ? failure(u"the disk is full"_s) : Result<void>();
    };
    startLocked();
    unlock();
    full = true;
    store_->addClip(u"last"_s);
    store_->lock([&] { store_->vault()->lock(); });
    EXPECT_EQ(store_->lockProblem(), QString()) << "not yet";
    worker_.drain();
    EXPECT_FALSE(store_->isLocked());
    EXPECT_EQ(store_->lockProblem(), u"the disk is full"_s);
    full = false;
    store_->lock([&] { store_->vault()->lock(); });
    worker_.drain();
    EXPECT_TRUE(store_->isLocked());
    EXPECT_EQ(store_->lockProblem(), QString());
}

TEST_F(Locking, ADeletedImageDoesNotStayInMemory) {
    store_->addImageClip(png(Qt::blue));
    settle();
    const QString path = store_->imagePath(store_->clips()[0].imageFileName);
    const QByteArray sealed = *readFile(path);
    ASSERT_TRUE(store_->vault()->bytes(path)) << "shown while locked";
    store_->deleteClip(store_->clips()[0].id);
    worker_.drain();
    ASSERT_TRUE(writeFileAtomically(path, sealed));
    EXPECT_FALSE(store_->vault()->bytes(path));
}

TEST_F(Locking, WithParkedFilesDuringTheirCheck) {
    const QUrl file = QUrl::fromLocalFile(storeFile());
    unlock();
    store_->addToShelf({file});
    settle();
    startLocked();
    store_->vault()->open(file_, key_);
    store_->unlock();
    worker_.drain();
    jobs_.hung = true;
    store_->lock([&] { store_->vault()->lock(); });
    worker_.drain();
    ASSERT_TRUE(store_->isLocked());
    settle(Seconds(3));
    unlock();
    EXPECT_EQ(store_->shelf().files(), QList<QUrl>{file});
}

TEST_F(Erasing, OldClipsGoAfterTheirTime) {
    store_->setHistoryRules({HistoryRules::Order::newerFirst, 60, 86400});
    settle(Seconds(86400 - 100));
    store_->addClip(u"younger"_s);
    EXPECT_EQ(store_->clips().size(), 3);
    settle(Seconds(3600));
    EXPECT_EQ(all(), QStringList(u"younger"_s)) << "without a new copy";
    EXPECT_EQ(imageFiles(), QStringList());
}

TEST_F(Erasing, AMistakenChoiceCanBeTakenBackForAMinute) {
    settle(Seconds(86400 * 2));
    store_->setHistoryRules({HistoryRules::Order::newerFirst, 60, 86400});
    settle(Seconds(59));
    EXPECT_EQ(store_->clips().size(), 2);
    store_->setHistoryRules({});
    settle(Seconds(120));
    EXPECT_EQ(store_->clips().size(), 2);
}

} // namespace

} // namespace ravelo
