#include "StoreFixture.h"

#include <QJsonArray>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

/// Counts the callbacks and records the state in the last one.
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

TEST_F(StoreTimer, RunsToItsEndAndNotifiesOnce) {
    EXPECT_EQ(store_->timerRemaining(), 0) << "before the first one";
    store_->startTimer(u" \tdeep work "_s, 25);
    EXPECT_EQ(store_->timerLabel(), u"deep work"_s);
    EXPECT_EQ(store_->timerDuration(), 1500);
    EXPECT_EQ(changes_, 1);
    EXPECT_TRUE(runningAtChange_) << "set before the notification";

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

TEST_F(StoreTimer, StopKeepsLabelAndLength) {
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
    for (const bool stopped : {false, true}) {
        sound_.plays = 0;
        store_->startTimer(u"first"_s, 1);
        scheduler_.advance(Seconds(30));
        if (stopped) {
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
    store_->startTimer(u"second"_s, -1);
    EXPECT_EQ(store_->timerLabel(), u"first"_s);
    EXPECT_EQ(store_->timerRemaining(), 60);
    EXPECT_EQ(changes_, 1);
}

TEST_F(StoreTimer, CountsUptimeAndNeverBelowZero) {
    // Both are due in one step; the first sees a timer that is over already.
    double remaining = -1;
    const Handle other =
        scheduler_.after(Seconds(60), [&] { remaining = store_->timerRemaining(); });
    store_->startTimer({}, 1);
    scheduler_.setNow(Date{scheduler_.now().sinceReference + 86400});
    EXPECT_EQ(store_->timerRemaining(), 60) << "whatever the wall clock is set to";
    scheduler_.advance(Seconds(3600));
    EXPECT_EQ(remaining, 0);
}

TEST_F(StoreTimer, IsNotRestored) {
    store_->startTimer(u"tea"_s, 3);
    restart();
    EXPECT_FALSE(store_->timerRunning());
    EXPECT_EQ(store_->timerLabel(), QString());
    scheduler_.advance(Seconds(200)); // What was waiting must not wake the store that is gone.
}

TEST_F(StoreTimer, RemindersAreVisibleIfOpenAndNotEmpty) {
    const SignalCount emitted(store_.get(), &Store::remindersChanged);
    const QStringList texts = {u"Call the framer"_s, u"Order veneer"_s};
    store_->setReminderOpen(true);
    EXPECT_FALSE(visibleAtChange_) << "there are none";
    store_->setReminders(texts);
    EXPECT_TRUE(visibleAtChange_) << "set before the notification";
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
    EXPECT_EQ(emitted.count(), 2) << "of the store that is gone";
}

TEST_F(StoreTimer, RemindersAreReadAtTheStart) {
    const QJsonValue none(QJsonValue::Undefined);

    struct Row {
        const char* what;
        QJsonValue reminders;
        QJsonValue single;
        QStringList read;
    };

    const Row table[] = {{"none", none, none, {}},
                         {"list", QJsonArray{u"b"_s, u"a"_s}, u"old"_s, {u"b"_s, u"a"_s}},
                         {"older single one", none, u"old"_s, {u"old"_s}},
                         {"empty list", QJsonArray{}, u"old"_s, {u"old"_s}},
                         {"empty single one", none, u""_s, {}},
                         {"not only texts", QJsonArray{u"a"_s, 1}, u"old"_s, {u"old"_s}},
                         {"no list", u"a"_s, 7, {}}};
    for (const Row& row : table) {
        preferences_.set(u"reminders"_s, row.reminders);
        preferences_.set(u"reminder"_s, row.single);
        start();
        EXPECT_EQ(store_->reminders(), row.read) << row.what;
        EXPECT_FALSE(store_->reminderOpen()) << row.what;
    }
}

} // namespace

} // namespace ravelo
