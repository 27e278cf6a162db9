#include "app/HistoryLength.h"

#include "../store/StoreFixture.h"
#include "settings/AppSettings.h"

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

StoreContents withClips(int count) {
    StoreContents contents;
    for (int i = 0; i < count; ++i) {
        contents.data.clips.append(
            {QUuid::createUuid(), u"text %1"_s.arg(i), ClipKind::text, {}, false, {}});
    }
    return contents;
}

class HistoryLengthTest : public StoreFixture {
protected:
    HistoryLengthTest() { start(); }

    void import(int clips) {
        store_->addAll(withClips(clips), [](const auto& /*outcome*/) {});
        settle();
    }

    FakeLoginItem loginItem_;
    AppSettings settings_{preferences_, loginItem_};
};

TEST_F(HistoryLengthTest, GrowsWithAnImport) {
    const HistoryLength length(settings_, *store_, HistoryLength::Preferences::kept);
    for (const auto& [clips, expected] :
         {std::pair(60, 60), {61, 200}, {200, 200}, {201, 1000}, {1001, 1000}, {10, 1000}}) {
        store_->clearClips();
        import(clips);
        EXPECT_EQ(settings_.historyLength(), expected) << clips;
    }
    EXPECT_EQ(preferences_.value(u"historyLength"_s), 1000) << "for the next start";
}

TEST_F(HistoryLengthTest, GrowsAtTheStartOnlyIfThePreferencesWereLost) {
    import(300);
    {
        const HistoryLength length(settings_, *store_, HistoryLength::Preferences::kept);
        EXPECT_EQ(settings_.historyLength(), 60) << "chosen, so the next copy may shorten it";
    }
    const HistoryLength length(settings_, *store_, HistoryLength::Preferences::lost);
    EXPECT_EQ(settings_.historyLength(), 1000);
}

} // namespace

} // namespace ravelo
