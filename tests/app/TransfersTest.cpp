#include "app/Transfers.h"

#include "../store/StoreFixture.h"

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

class TransfersTest : public StoreFixture {
protected:
    TransfersTest() {
        start();
        store_->addImageClip(png(Qt::red));
        settle();
        transfers_.emplace(Transfers::Services{*store_, jobs_, decoder_, {}});
        transfers_->exportTo(archive_, note());
        settle();
        EXPECT_EQ(answer(), 0);
        store_->clearClips(); // Or an import would have nothing new.
        settle();
    }

    Transfers::Reply note() {
        answer_.reset();
        return [this](const Answer& answer) {
            answer_ = answer;
        };
    }

    [[nodiscard]] int answer() const { return answer_ ? answer_->status : -1; }

    QString archive_ = directory_.filePath(u"archive.tar"_s);
    std::optional<Transfers> transfers_;
    std::optional<Answer> answer_;
};

TEST_F(TransfersTest, OneAtATime) {
    transfers_->importFrom(archive_, note());
    std::optional<Answer> other;
    transfers_->exportTo(archive_, [&](const Answer& answer) { other = answer; });
    ASSERT_TRUE(other) << "the first waits for the worker";
    EXPECT_EQ(other->errors, u"another export or import is running"_s);
}

TEST_F(TransfersTest, AnImportOutlivesAClearedHistory) {
    transfers_->importFrom(archive_, note());
    worker_.drain(); // It may write from now on.
    store_->clearClips();
    settle();
    settle();
    EXPECT_EQ(answer(), 0);
    EXPECT_EQ(texts(), "red");
    EXPECT_EQ(imageFiles().size(), 1) << "only what was cleared goes";

    transfers_->importFrom(archive_, note());
    store_->clearClips();
    worker_.drain();
    const QString leftover = store_->imagePath(u"0F8FAD5B-D9CB-469F-A165-70867728950E.png"_s);
    ASSERT_TRUE(writeFileAtomically(leftover, "MARKER"));
    settle();
    settle();
    EXPECT_EQ(answer(), 0);
    EXPECT_FALSE(QFile::exists(leftover)) << "leftovers go once it is over";
    EXPECT_EQ(imageFiles().size(), 1);
}

TEST_F(TransfersTest, AnImportThatEndsTooLateSaysSoAndLeavesNoFiles) {
    transfers_->importFrom(archive_, note());
    worker_.drain();
    store_->erase([](const auto& /*outcome*/) {});
    worker_.drain();
    scheduler_.advance(Seconds(1)); // Without the worker: Ravelo ends once all is erased.
    ASSERT_EQ(answer(), 1);
    EXPECT_TRUE(answer_->errors.endsWith(u"what is stored was erased meanwhile"_s))
        << qPrintable(answer_->errors);
    EXPECT_FALSE(QFile::exists(store_->clipsDir()));
}

} // namespace

} // namespace ravelo
