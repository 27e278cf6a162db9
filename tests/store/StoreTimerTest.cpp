#include "StoreFixture.h"

#include <QJsonArray>

#include <limits>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

/// Counts the calls of the hook and keeps what the last of them found.
class StoreTimer : public StoreFixture {
protected:
    StoreTimer() {
        start();
        watch();
    }

    void watch() {
        store_->onTimerChange = [this] {
            ++changes_;
            runningAtChange_ = store_->timerRunning();
            visibleAtChange_ = store_->reminderVisible();
        };
    }

    int changes_ = 0;
    bool runningAtChange_ = false;
    bool visibleAtChange_ = false;
};

TEST_F(StoreTimer, RunsItsWholeLengthAndIsToldOnceEachTime) {
    EXPECT_EQ(store_->timerRemaining(), 0) << "before the first one";
    store_->startTimer(u" \tdeep work "_s, 25);
    EXPECT_EQ(store_->timerLabel(), u"deep work"_s);
    EXPECT_EQ(store_->timerDuration(), 1500);
    EXPECT_EQ(changes_, 1);
    EXPECT_TRUE(runningAtChange_) << "set before it is told";

    scheduler_.advance(Seconds(0.25));
    EXPECT_EQ(store_->timerRemaining(), 1499.75);
    scheduler_.advance(Seconds(1499.74));
    EXPECT_TRUE(store_->timerRunning());
    EXPECT_EQ(changes_, 1) << "nothing ticks";
    scheduler_.advance(Seconds(0.01));
    EXPECT_FALSE(store_->timerRunning());
    EXPECT_EQ(sound_.plays, 1);
    EXPECT_EQ(changes_, 2);
    EXPECT_FALSE(runningAtChange_);
    EXPECT_EQ(store_->timerRemaining(), 1500) << "of a timer that does not run";
}

TEST_F(StoreTimer, StopKeepsLabelAndLengthAndNothingFinishes) {
    store_->startTimer(u"tea"_s, 3);
    store_->stopTimer();
    EXPECT_FALSE(store_->timerRunning());
    EXPECT_EQ(store_->timerLabel(), u"tea"_s);
    EXPECT_EQ(store_->timerDuration(), 180);
    EXPECT_EQ(changes_, 2);
    scheduler_.advance(Seconds(200));
    EXPECT_EQ(sound_.plays, 0);
    EXPECT_EQ(changes_, 2);
}

TEST_F(StoreTimer, EndOfAReplacedTimerDoesNotEndTheNextOne) {
    enum class Between { nothing, stop };
    for (const Between between : {Between::nothing, Between::stop}) {
        sound_.plays = 0;
        store_->startTimer(u"first"_s, 1);
        scheduler_.advance(Seconds(30));
        if (between == Between::stop) {
            store_->stopTimer();
        }
        store_->startTimer(u"second"_s, 1);
        scheduler_.advance(Seconds(59));
        EXPECT_TRUE(store_->timerRunning()) << "the first one's end was 29 s ago";
        EXPECT_EQ(store_->timerRemaining(), 1);
        scheduler_.advance(Seconds(1));
        EXPECT_EQ(sound_.plays, 1);
    }
}

TEST_F(StoreTimer, ImpossibleLengthChangesNothing) {
    store_->startTimer(u"first"_s, 1);
    for (const double minutes : {-1.0, 1e300, std::numeric_limits<double>::quiet_NaN()}) {
        store_->startTimer(u"second"_s, minutes);
    }
    EXPECT_EQ(store_->timerLabel(), u"first"_s);
    EXPECT_EQ(store_->timerRemaining(), 60);
    EXPECT_EQ(changes_, 1);
}

TEST_F(StoreTimer, LateWakeUpLeavesNothingNegative) {
    // Two things fall due in one go; the first of them looks at a timer that is over already.
    double remaining = -1;
    const Handle other =
        scheduler_.after(Seconds(60), [&] { remaining = store_->timerRemaining(); });
    store_->startTimer({}, 1);
    scheduler_.advance(Seconds(3600));
    EXPECT_EQ(remaining, 0);
}

TEST_F(StoreTimer, CountsTheTimeThatReallyPasses) {
    store_->startTimer({}, 10);
    scheduler_.setNow(Date{scheduler_.now().sinceReference + 86400});
    EXPECT_EQ(store_->timerRemaining(), 600) << "whatever the wall clock is set to";
}

TEST_F(StoreTimer, DoesNotOutliveTheProgram) {
    store_->startTimer(u"tea"_s, 3);
    restart();
    EXPECT_FALSE(store_->timerRunning());
    EXPECT_EQ(store_->timerLabel(), QString());
    scheduler_.advance(Seconds(200)); // What was waiting must not wake the store that is gone.
}

TEST_F(StoreTimer, RemindersAreVisibleWhereThereAreSomeAndTheyAreWanted) {
    const Told told(store_.get(), &Store::remindersChanged);
    const QStringList texts = {u"Call the framer"_s, u"Order veneer"_s};
    store_->setReminderOpen(true);
    EXPECT_FALSE(visibleAtChange_) << "there are none";
    store_->setReminders(texts);
    EXPECT_TRUE(visibleAtChange_) << "set before it is told";
    EXPECT_EQ(preferences_.value(u"reminderOpen"_s), true);
    EXPECT_EQ(preferences_.value(u"reminders"_s), QJsonArray::fromStringList(texts));
    EXPECT_EQ(changes_, 2);

    restart();
    EXPECT_TRUE(store_->reminderVisible());
    EXPECT_EQ(store_->reminders(), texts);

    watch();
    store_->setReminders({});
    EXPECT_FALSE(store_->reminderVisible());
    EXPECT_TRUE(store_->reminderOpen());
    EXPECT_EQ(changes_, 3);
    EXPECT_EQ(told.count(), 2) << "of the store that is gone";
}

struct Kept {
    const char* what;
    QJsonValue reminders;
    QJsonValue single;
    QStringList read;
};

void PrintTo(const Kept& kept, std::ostream* out) {
    *out << kept.what;
}

class KeptReminders : public StoreFixture, public testing::WithParamInterface<Kept> {};

TEST_P(KeptReminders, AreReadAtTheStart) {
    preferences_.set(u"reminders"_s, GetParam().reminders);
    preferences_.set(u"reminder"_s, GetParam().single);
    start();
    EXPECT_EQ(store_->reminders(), GetParam().read);
    EXPECT_FALSE(store_->reminderOpen());
}

const QJsonValue none(QJsonValue::Undefined);

INSTANTIATE_TEST_SUITE_P(
    Table, KeptReminders,
    testing::Values(Kept{"none", none, none, {}},
                    Kept{"list", QJsonArray{u"b"_s, u"a"_s}, u"old"_s, {u"b"_s, u"a"_s}},
                    Kept{"older single one", none, u"old"_s, {u"old"_s}},
                    Kept{"empty list", QJsonArray{}, u"old"_s, {u"old"_s}},
                    Kept{"empty single one", none, u""_s, {}},
                    Kept{"not only texts", QJsonArray{u"a"_s, 1}, u"old"_s, {u"old"_s}},
                    Kept{"no list", u"a"_s, 7, {}}));

} // namespace

} // namespace ravelo
