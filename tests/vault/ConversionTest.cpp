#include "vault/Conversion.h"

#include "base/Files.h"
#include "vault/Vault.h"

#include <QDir>
#include <QDirIterator>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

const QByteArray marker("MARKER-IN-A-FILE");

/// A folder like that of a store; every file has the marker in it.
class Conversions : public testing::Test {
protected:
    Conversions() {
        file_.wrap(*key_, wrapper_);
        refill();
    }

    void refill() {
        QDir(path_).removeRecursively();
        EXPECT_TRUE(QDir().mkpath(path_ + u"/clips"_s));
        for (const QString& name : names_) {
            EXPECT_TRUE(writeFileAtomically(path_ + u'/' + name, marker + name.toUtf8()));
        }
        // What a killed save left, and what is not ours.
        EXPECT_TRUE(writeFileAtomically(path_ + u"/store.json.abcDEF"_s, marker));
        EXPECT_TRUE(writeFileAtomically(path_ + u"/clips/a.forms.abcDEF"_s, marker));
        EXPECT_TRUE(writeFileAtomically(path_ + u"/lock"_s, "lock"));
    }

    /// A start: the vault as it is found, opened if it is locked.
    std::unique_ptr<Vault> started() {
        auto vault = std::make_unique<Vault>(path_);
        EXPECT_EQ(vault->trouble(), Vault::Trouble::none);
        if (const auto file = vault->keyFile()) {
            auto key = file->unwrap(wrapper_);
            EXPECT_TRUE(key);
            vault->open(*file, std::make_shared<const StoreKey>(std::move(*key)));
        }
        return vault;
    }

    /// All files that contain the marker as it is.
    QStringList plainFiles() {
        QStringList plain;
        for (QDirIterator files(path_, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
             files.hasNext();) {
            if (const QString file = files.next(); readFile(file)->contains(marker)) {
                plain.append(file);
            }
        }
        return plain;
    }

    void expectAllReadable(const Vault& vault, const std::string& when) {
        for (const QString& name : names_) {
            EXPECT_EQ(vault.bytes(path_ + u'/' + name), marker + name.toUtf8())
                << qPrintable(name) << ' ' << when;
        }
    }

    /// Allows so many changes.
    static OwnFile::Permission limited(int changes) {
        return [left = std::make_shared<int>(changes)]() -> Result<void> {
            return (*left)-- > 0 ? Result<void>() : failure(u"interrupted"_s);
        };
    }

    QTemporaryDir directory_;
    QString path_ = directory_.filePath(u"Ravelo"_s);
    QStringList names_ = {u"store.json"_s,
                          u"store.json.unreadable"_s,
                          u"store.json.unreadable2"_s,
                          u"clips/0F8FAD5B-D9CB-469F-A165-70867728950E.png"_s,
                          u"clips/b.png"_s,
                          u"clips/0F8FAD5B-D9CB-469F-A165-70867728950E.forms"_s};
    LockedBytes wrapper_ = LockedBytes::random(KeyFile::wrapperLength);
    std::shared_ptr<const StoreKey> key_ = std::make_shared<const StoreKey>(StoreKey::random());
    KeyFile file_ = KeyFile::of(*key_, KeyFile::Guard::keyring, {1, 8});
};

TEST_F(Conversions, LeaveNoPlainCopyAndComeBack) {
    Vault vault(path_);
    ASSERT_TRUE(beginEncryption(vault, file_, key_, {}));
    EXPECT_EQ(plainFiles(), QStringList());
    expectAllReadable(vault, "while encrypted");
    EXPECT_EQ(Vault(path_).read(path_ + u"/store.json"_s).kind, Vault::Contents::Kind::locked);
    ASSERT_TRUE(endEncryption(vault, {}));
    EXPECT_EQ(plainFiles().size(), names_.size());
    EXPECT_EQ(vault.state(), Vault::State::plain);
    EXPECT_FALSE(QFile::exists(vault.keyPath()));
    expectAllReadable(Vault(path_), "at the end");
}

TEST_F(Conversions, InterruptedAnywhereAreFinishedByTheNextStart) {
    const int changes = 2 * int(names_.size()) + 4;
    for (int stop = 0; stop < changes; ++stop) {
        const std::string when = "stopped after " + std::to_string(stop);
        refill();
        Vault vault(path_);
        const OwnFile::Permission some = limited(stop);
        if (beginEncryption(vault, file_, key_, some)) {
            (void)endEncryption(vault, some);
        }
        {
            const auto half = started();
            expectAllReadable(*half, "half-converted, " + when);
            const bool encrypts =
                half->keyFile() && half->keyFile()->goal == KeyFile::Goal::encrypted;
            EXPECT_TRUE(finishConversion(*half, {})) << when;
            EXPECT_EQ(plainFiles().isEmpty(), encrypts) << when;
            expectAllReadable(*half, "finished, " + when);
        }
        expectAllReadable(*started(), "at the next start, " + when);
    }
}

TEST_F(Conversions, ADamagedFileStaysAsItIs) {
    Vault vault(path_);
    ASSERT_TRUE(beginEncryption(vault, file_, key_, {}));
    QByteArray bytes = *readFile(path_ + u"/clips/b.png"_s);
    bytes.back() = char(bytes.back() ^ 1);
    ASSERT_TRUE(writeFileAtomically(path_ + u"/clips/b.png"_s, bytes));
    ASSERT_TRUE(endEncryption(vault, {}));
    EXPECT_EQ(readFile(path_ + u"/clips/b.png"_s), bytes);
    EXPECT_EQ(plainFiles().size(), names_.size() - 1);
}

TEST_F(Conversions, WhatIsSealedWhileLockedOpensLater) {
    Vault vault(path_);
    ASSERT_TRUE(beginEncryption(vault, file_, key_, {}));
    const Vault locked(path_);
    const QString image = path_ + u"/clips/new.png"_s;
    ASSERT_TRUE(locked.write(image, marker, {}));
    EXPECT_EQ(plainFiles(), QStringList());
    EXPECT_EQ(locked.bytes(image), marker) << "shown meanwhile, from memory";
    EXPECT_EQ(Vault(path_).read(image).kind, Vault::Contents::Kind::locked);
    EXPECT_EQ(started()->bytes(image), marker);
    ASSERT_TRUE(QFile::rename(image, path_ + u"/clips/other.png"_s));
    EXPECT_EQ(started()->read(path_ + u"/clips/other.png"_s).kind, Vault::Contents::Kind::damaged);
}

TEST_F(Conversions, NothingIsWrittenPlainWithoutAKey) {
    Vault vault(path_);
    ASSERT_TRUE(beginEncryption(vault, file_, key_, {}));
    ASSERT_TRUE(QFile::remove(vault.keyPath()));
    const Vault keyless(path_);
    EXPECT_EQ(keyless.trouble(), Vault::Trouble::keyless);
    EXPECT_FALSE(keyless.write(path_ + u"/store.json"_s, marker, {}));
    ASSERT_TRUE(writeFileAtomically(vault.keyPath(), "RavKey\x1a\x02"));
    EXPECT_EQ(Vault(path_).trouble(), Vault::Trouble::newer);
    ASSERT_TRUE(writeFileAtomically(vault.keyPath(), "junk"));
    EXPECT_EQ(Vault(path_).trouble(), Vault::Trouble::damaged);
    EXPECT_FALSE(Vault(path_).write(path_ + u"/store.json"_s, marker, {}));
}

TEST_F(Conversions, ErasingLeavesNothingButTheLock) {
    Vault vault(path_);
    ASSERT_TRUE(beginEncryption(vault, file_, key_, {}));
    ASSERT_TRUE(QDir().mkpath(path_ + u"/waiting"_s));
    ASSERT_TRUE(writeFileAtomically(path_ + u"/waiting/x"_s, marker));
    ASSERT_TRUE(eraseFiles(path_, {}));
    EXPECT_EQ(QDir(path_).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList(u"lock"_s));
    EXPECT_TRUE(eraseFiles(path_, {})) << "again";
}

} // namespace

} // namespace ravelo
