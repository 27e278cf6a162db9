#include "store/history/ClipForms.h"
#include "StoreFixture.h"
#include "base/Uuid.h"
#include "store/history/Deleted.h"
#include "store/transfer/Transfer.h"
#include "support/TestFiles.h"
#include "vault/Vault.h"

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

const ClipForms rich{u"org.example.W\u00f6rter"_s,
                     {{u"text/html"_s, QByteArray("<b>\0</b>", 8)},
                      {u"application/x-openoffice-embed-source-xml;windows_formatname=\"Star\""_s,
                       QByteArray("PK\3\4", 4)},
                      {u"text/rtf"_s, "{\\rtf1 \\b b}"}}};

TEST(ClipForms, readTheSameOnceWritten) {
    for (const ClipForms& kept : {rich, ClipForms{u"Kate"_s}, ClipForms()}) {
        const QByteArray bytes = encodeForms(kept);
        const auto again = decodeForms(bytes);
        ASSERT_TRUE(again);
        EXPECT_EQ(again->program, kept.program);
        EXPECT_EQ(again->forms.size(), kept.forms.size());
        EXPECT_EQ(encodeForms(*again), bytes);
    }
}

TEST(ClipForms, allOrNothing) {
    const QByteArray good = encodeForms(rich);
    for (qsizetype size = 0; size < good.size(); ++size) {
        EXPECT_FALSE(decodeForms(good.first(size))) << "cut after " << size;
    }
    const auto with = [](const QString& type, qsizetype size) {
        return encodeForms({{}, {{type, QByteArray(size, 'x')}}});
    };
    QByteArray newer = good;
    newer[7] = 2;
    const std::pair<const char*, QByteArray> cases[] = {
        {"foreign", "{\"version\":1}"},
        {"a later version", newer},
        {"more after the end", good + 'x'},
        {"too large", with(u"text/html"_s, maxFormsSize + 1)},
        {"a mark", with(u"x-kde-passwordManagerHint"_s, 6)},
        {"plain text", with(plainTextType, 6)},
        {"an image", with(u"image/png"_s, 6)},
        {"twice", encodeForms({{}, {{u"text/html"_s, "a"}, {u"text/html"_s, "b"}}})},
        {"no UTF-8", QByteArray(good).replace(good.indexOf("org."), 1, "\xff")},
    };
    for (const auto& [what, bytes] : cases) {
        EXPECT_FALSE(decodeForms(bytes)) << what;
    }
    EXPECT_TRUE(decodeForms(with(u"text/html"_s, maxFormsSize)));
}

TEST(ClipForms, officeFormsButNotTheirPicturesAndLinks) {
    const std::pair<QString, bool> cases[] = {
        {u"application/x-openoffice-objectdescriptor-xml;typename=\"a bitmap-link\""_s, true},
        {u"application/vnd.oasis.opendocument.spreadsheet"_s, true},
        {u"application/x-openoffice-link;windows_formatname=\"Link\""_s, false},
        {u"application/x-openoffice-gdimetafile"_s, false},
        {u"application/x-openoffice-bitmap"_s, false},
        {u"application/x-kde-cutselection"_s, false},
        {u"application/x-qt-windows-mime;value=\"Rich Text Format\""_s, false},
        {u"text/html;\u00e4"_s, false},
    };
    for (const auto& [type, kept] : cases) {
        EXPECT_EQ(isKeptForm(type), kept) << qPrintable(type);
    }
}

/// A clip "rich" with other forms among others without.
class StoreForms : public StoreFixture {
protected:
    StoreForms() {
        start();
        settle();
        store_->addClip(u"plain"_s);
        store_->addClip(u"rich"_s);
        id_ = store_->clips()[0].id;
        store_->setForms(id_, rich);
        settle();
    }

    [[nodiscard]] std::optional<QByteArray> onDisk() const {
        const auto kept = readForms(*store_->vault(), store_->formsPath(id_));
        return kept ? std::optional(encodeForms(*kept)) : std::nullopt;
    }

    QUuid id_;
};

TEST_F(StoreForms, areBesideTheClipAndNotInTheStoreFile) {
    EXPECT_EQ(imageFiles(), QStringList{uuidText(id_) + u".forms"_s});
    EXPECT_EQ(onDisk(), encodeForms(rich));
    EXPECT_EQ(modeOf(store_->formsPath(id_)), 0600U);
    EXPECT_EQ(saved().clips, store_->clips());
    EXPECT_FALSE(store_->hasForms(store_->clips()[1].id));
    restart();
    settle();
    EXPECT_TRUE(store_->hasForms(id_));
    EXPECT_EQ(store_->detailsOf(id_), ClipDetails()) << "read without need";
    store_->lookUpDetails();
    settle();
    EXPECT_EQ(store_->detailsOf(id_), detailsOf(rich));
}

TEST_F(StoreForms, goWithTheirClip) {
    const auto setRules = [this](const HistoryRules& rules) {
        store_->setHistoryRules(rules);
        store_->addClip(u"next"_s);
    };
    const std::pair<const char*, std::function<void()>> cases[] = {
        {"deleted",
         [&] {
             store_->deleteClip(id_);
         }},
        {"cleared",
         [&] {
             store_->clearClips();
         }},
        {"the last hour cleared",
         [&] {
             store_->clearLastHour();
         }},
        {"erased",
         [&] {
             store_->erase([](const auto& /*outcome*/) {});
         }},
        {"pushed out",
         [&] {
             for (int i = 0; i < HistoryRules().limit; ++i) {
                 store_->addClip(u"text %1"_s.arg(i));
             }
         }},
        {"copied again after another",
         [&] {
             store_->addClip(u"next"_s);
             store_->addClip(u"rich"_s);
         }},
        {"copied again as plain text",
         [&] {
             store_->setForms(id_, {});
         }},
        {"too old",
         [&] {
             setRules({.keepFor = 86400});
             settle(Seconds(90000));
         }},
        {"too large with the others",
         [&] {
             setRules({.textBytes = 30});
             store_->addClip(u"more"_s);
         }},
    };
    for (const auto& [how, remove] : cases) {
        SCOPED_TRACE(how);
        QDir(folder()).removeRecursively();
        start();
        settle();
        store_->addClip(u"rich"_s);
        id_ = store_->clips()[0].id;
        store_->setForms(id_, rich);
        settle();
        ASSERT_TRUE(onDisk());
        remove();
        settle();
        EXPECT_EQ(imageFiles(), QStringList());
        EXPECT_FALSE(store_->hasForms(id_));
    }
}

TEST_F(StoreForms, comeBackWithTheirClip) {
    const auto deleted = std::make_shared<Deleted>();
    store_->deleteClip(id_, deleted);
    worker_.drain();
    ASSERT_EQ(imageFiles(), QStringList());
    store_->restore(deleted, [](const auto& /*outcome*/) {});
    settle();
    EXPECT_EQ(onDisk(), encodeForms(rich));
    EXPECT_TRUE(store_->hasForms(id_));

    store_->deleteClip(id_, deleted);
    worker_.drain();
    store_->restore(deleted, [](const auto& /*outcome*/) {});
    store_->clearClips();
    settle();
    settle();
    EXPECT_EQ(imageFiles(), QStringList()) << "the history was cleared meanwhile";

    store_->addClip(u"rich"_s);
    id_ = store_->clips()[0].id;
    store_->setForms(id_, rich);
    settle();
    store_->deleteClip(id_, deleted);
    store_->addClip(u"rich"_s);
    store_->restore(deleted, [](const auto& /*outcome*/) {});
    settle();
    settle();
    EXPECT_EQ(imageFiles(), QStringList()) << "the text was copied again meanwhile";
}

TEST_F(StoreForms, countAsText) {
    EXPECT_EQ(store_->textBytes(), 9 + formsSize(rich));
    EXPECT_EQ(store_->imageBytes(), 0);
}

TEST_F(StoreForms, areNotKeptOfSecrets) {
    store_->addClip(u"token"_s, {}, {[](const QString&) {
                        return Verdict{true, u"github"_s};
                    }});
    const QUuid secret = store_->clips()[0].id;
    store_->setForms(secret, rich);
    settle();
    EXPECT_EQ(imageFiles().size(), 1) << "only those of the other clip";
}

TEST_F(StoreForms, orphansGoAfterADay) {
    const QString orphan = store_->formsPath(QUuid::createUuid());
    ASSERT_TRUE(writeFileAtomically(orphan, encodeForms(rich)));
    makeOld(orphan);
    makeOld(store_->formsPath(id_));
    restart();
    settle();
    EXPECT_EQ(imageFiles(), QStringList{uuidText(id_) + u".forms"_s});
}

TEST_F(StoreForms, areExportedAndImportedUnderANewName) {
    const QString archive = directory_.filePath(u"archive.tar"_s);
    ASSERT_TRUE(exportStore(store_->contents(), *store_->vault(), archive));
    store_->clearClips();
    settle();
    const auto contents = importStore(archive, *store_->vault(), *decoder_, {});
    ASSERT_TRUE(contents) << qPrintable(contents.error().message);
    store_->addAll(contents->contents, [](const auto& /*outcome*/) {});
    settle();
    const QUuid before = std::exchange(id_, store_->clips()[0].id);
    EXPECT_NE(id_, before);
    EXPECT_EQ(onDisk(), encodeForms(rich));
    EXPECT_TRUE(store_->hasForms(id_));

    const auto again = importStore(archive, *store_->vault(), *decoder_, {});
    ASSERT_TRUE(again);
    store_->addAll(again->contents, [](const auto& /*outcome*/) {});
    settle();
    EXPECT_EQ(imageFiles().size(), 1) << "those of a clip that is there already";
}

TEST_F(StoreForms, describeNothingIfTheyAreNotWritten) {
    int refusals = 0;
    mayWrite_ = [&]() -> Result<void> {
        return refusals-- > 0 ? failure(u"the disk is full"_s) : Result<void>();
    };
    restart();
    settle();
    refusals = 1;
    store_->setForms(id_, {u"Kate"_s, rich.forms});
    worker_.drain();
    EXPECT_EQ(imageFiles(), QStringList()) << "forms of an earlier copy";
    EXPECT_EQ(store_->detailsOf(id_), ClipDetails());
    EXPECT_FALSE(store_->hasForms(id_));
}

TEST_F(StoreForms, areLookedUpOnceAndNotOfWhatIsGone) {
    restart();
    settle();
    const int before = jobs_.given;
    for (int letter = 0; letter < 3; ++letter) {
        store_->lookUpDetails();
    }
    settle();
    EXPECT_EQ(jobs_.given, before + 1);
    EXPECT_EQ(store_->detailsOf(id_), detailsOf(rich));

    for (const bool erased : {false, true}) {
        restart();
        settle();
        ASSERT_EQ(store_->detailsOf(id_), ClipDetails());
        store_->lookUpDetails();
        erased ? store_->erase([](const auto& /*outcome*/) {}) : store_->deleteClip(id_);
        settle();
        EXPECT_EQ(store_->detailsOf(id_), ClipDetails()) << "erased: " << erased;
        start();
        store_->addClip(u"rich"_s);
        id_ = store_->clips()[0].id;
        store_->setForms(id_, rich);
        settle();
    }
}

} // namespace

} // namespace ravelo
