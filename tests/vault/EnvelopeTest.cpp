#include "vault/Envelope.h"

#include "vault/KeyFile.h"

#include <QList>

#include <gtest/gtest.h>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr KeyFile::Cost cheap{1, 8};

class Envelopes : public testing::Test {
protected:
    const StoreKey key_ = StoreKey::random();
    const QString name_ = u"clips/\u00e4.png"_s;
    const QByteArray text_ = QByteArray("a secret\0text", 13);

    [[nodiscard]] QList<QByteArray> bothKinds() const {
        return {key_.seal(name_, text_), sealForLater(key_.id(), key_.publicKey(), name_, text_)};
    }
};

TEST_F(Envelopes, OpenWithTheirKeyAndNameOnly) {
    for (const QByteArray& sealed : bothKinds()) {
        EXPECT_NE(formOf(sealed), FileForm::plain);
        EXPECT_FALSE(sealed.contains("secret"));
        EXPECT_EQ(key_.unseal(name_, sealed), text_);
        EXPECT_EQ(key_.unseal(u"clips/b.png"_s, sealed), std::nullopt) << "renamed";
        EXPECT_EQ(StoreKey::random().unseal(name_, sealed), std::nullopt) << "another store's";
    }
    EXPECT_EQ(key_.unseal(name_, key_.seal(name_, {})), QByteArray()) << "an empty file";
}

TEST_F(Envelopes, NoChangedByteIsAccepted) {
    for (const QByteArray& sealed : bothKinds()) {
        for (qsizetype i = 0; i < sealed.size(); ++i) {
            QByteArray changed = sealed;
            changed[i] = char(changed[i] ^ 1);
            EXPECT_EQ(key_.unseal(name_, changed), std::nullopt) << "byte " << i;
            EXPECT_EQ(key_.unseal(name_, sealed.first(i)), std::nullopt) << "cut at " << i;
        }
    }
}

TEST_F(Envelopes, TwoOfTheSameTextDiffer) {
    EXPECT_NE(key_.seal(name_, text_), key_.seal(name_, text_));
}

TEST(FileForms, ByTheirFirstBytes) {
    struct Row {
        QByteArray bytes;
        FileForm form;
    };

    const Row table[] = {{"", FileForm::plain},
                         {"{\"clips\":[]}", FileForm::plain},
                         {"\x89PNG\r\n\x1a\n..", FileForm::plain},
                         {"Ravelo\x1a\x01", FileForm::plain},
                         {"Ravelo\x1a\x01\x01", FileForm::sealed},
                         {"Ravelo\x1a\x01\x02", FileForm::sealedForLater},
                         {"Ravelo\x1a\x01\x03", FileForm::newer},
                         {"Ravelo\x1a\x02\x01", FileForm::newer}};
    for (const Row& row : table) {
        EXPECT_EQ(formOf(row.bytes), row.form) << row.bytes.toHex().constData();
    }
}

TEST(KeyFiles, UnwrapWithTheirWrapperOnly) {
    const StoreKey key = StoreKey::random();
    KeyFile file = KeyFile::of(key, KeyFile::Guard::passphrase, cheap);
    file.wrap(key, file.stretched(LockedBytes::copyOf("correct horse")));
    const auto read = KeyFile::decoded(file.encoded());
    ASSERT_TRUE(read);
    EXPECT_EQ(*read, file);
    const auto unwrapped = read->unwrap(read->stretched(LockedBytes::copyOf("correct horse")));
    ASSERT_TRUE(unwrapped);
    EXPECT_EQ(unwrapped->master().view(), key.master().view());
    EXPECT_FALSE(read->unwrap(read->stretched(LockedBytes::copyOf("wrong horse"))));
    EXPECT_FALSE(read->unwrap(LockedBytes()));
}

TEST(KeyFiles, NoChangedByteIsAccepted) {
    const StoreKey key = StoreKey::random();
    const LockedBytes wrapper = LockedBytes::random(KeyFile::wrapperLength);
    KeyFile file = KeyFile::of(key, KeyFile::Guard::keyring, cheap);
    file.wrap(key, wrapper);
    file.setGoal(KeyFile::Goal::plain, key);
    ASSERT_TRUE(KeyFile::decoded(file.encoded())->unwrap(wrapper)) << "another goal";
    const QByteArray good = file.encoded();
    for (qsizetype i = 0; i < good.size(); ++i) {
        QByteArray changed = good;
        changed[i] = char(changed[i] ^ 3);
        const auto read = KeyFile::decoded(changed);
        EXPECT_FALSE(read && read->unwrap(wrapper)) << "byte " << i;
        EXPECT_FALSE(KeyFile::decoded(good.first(i))) << "cut at " << i;
    }
    QByteArray newer = good;
    newer[7] = 2;
    EXPECT_EQ(KeyFile::decoded(newer).error(), KeyFile::Problem::newer);
}

TEST(LockedByteStrings, HexRoundTrips) {
    const LockedBytes bytes = LockedBytes::random(32);
    EXPECT_EQ(LockedBytes::fromHex(bytes.hex().bytes(), 32).view(), bytes.view());
    for (const char* bad : {"", "00", "0x", "zz"}) {
        EXPECT_EQ(LockedBytes::fromHex(bad, 32).size(), 0U) << bad;
    }
}

} // namespace

} // namespace ravelo
