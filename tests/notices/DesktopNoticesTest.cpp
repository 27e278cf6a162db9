#include "notices/DesktopNotices.h"

#include "fakes/FakeNotifier.h"
#include "fakes/FakeServices.h"
#include "fakes/ManualScheduler.h"
#include "fakes/MemoryPreferences.h"
#include "fakes/UsageWorld.h"
#include "notices/Notices.h"
#include "settings/AppSettings.h"

#include <gtest/gtest.h>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

class DesktopNoticesTest : public testing::Test {
protected:
    DesktopNoticesTest() { start(); }

    void start() {
        desktop_ = std::make_unique<DesktopNotices>(DesktopNotices::Services{
            notifier_, settings_, preferences_, scheduler_, plan_.usage, notices_, [this] {
                return locked_;
            }});
        desktop_->onStartTimer = [this](double minutes) {
            started_.append(minutes);
        };
    }

    void turnAllOn() {
        settings_.notifyTimer.set(true);
        settings_.notifyFiles.set(true);
        settings_.notifySaving.set(true);
        settings_.notifyPlan.set(true);
    }

    void everythingHappens() {
        desktop_->timerEnded(25);
        receive(++files_);
        notices_.saveFailed(Notices::Source::store, u"the disk is full"_s, Notices::Retry::no);
        notices_.saved(Notices::Source::store);
        scheduler_.advance(Seconds(5));
    }

    void receive(int count) {
        QList<QUrl> files;
        for (int i = 0; i < count; ++i) {
            files.append(QUrl::fromLocalFile(u"/downloads/secret %1"_s.arg(i)));
        }
        using Arrivals = DesktopNotices::Arrivals;
        desktop_->filesReceived(files, Arrivals::goOn);
        desktop_->filesReceived(files, Arrivals::over);
    }

    [[nodiscard]] UsageWindow window(double percent, double hours) const {
        return {percent, Date{scheduler_.now().sinceReference + hours * 3600}};
    }

    /// What is shown once these figures are known.
    [[nodiscard]] QStringList after(const std::optional<UsageWindow>& session,
                                    const std::optional<UsageWindow>& week = {}) {
        plan_.write({session, week});
        scheduler_.advance(Seconds(5));
        return notifier_.titles();
    }

    ManualScheduler scheduler_;
    MemoryPreferences preferences_;
    FakeLoginItem loginItem_;
    AppSettings settings_{preferences_, loginItem_};
    UsageWorld plan_{scheduler_};
    Notices notices_{scheduler_};
    FakeNotifier notifier_;
    bool locked_ = false;
    int files_ = 0;
    QList<double> started_;
    std::unique_ptr<DesktopNotices> desktop_;
};

TEST_F(DesktopNoticesTest, areShownOnlyWhereWantedAndUnlocked) {
    everythingHappens();
    EXPECT_EQ(after(window(99, 1)), QStringList()) << "all are off at first";
    locked_ = true;
    turnAllOn();
    everythingHappens();
    EXPECT_EQ(notifier_.titles(), QStringList()) << "the screen is locked";
    locked_ = false;
    desktop_->screenUnlocked();
    EXPECT_EQ(notifier_.titles(), QStringList{u"5h session: 99% used"_s}) << "still true";
    everythingHappens();
    for (const Notification& shown : notifier_.shown) {
        EXPECT_FALSE((shown.title + shown.text).contains(u"secret"_s)) << "a file is named";
    }
    EXPECT_EQ(notifier_.titles(),
              QStringList({u"The timer has ended"_s, u"A file has arrived"_s, u"Saving fails"_s}));
    everythingHappens();
    EXPECT_EQ(notifier_.titles().value(2), u"Saving fails"_s) << "it worked in between";
}

TEST_F(DesktopNoticesTest, showAFailureLaterIfItMayNotBeShownAtOnce) {
    const QStringList failure{u"Saving fails"_s};
    locked_ = true;
    notices_.saveFailed(Notices::Source::store, u"the disk is full"_s, Notices::Retry::no);
    settings_.notifySaving.set(true);
    EXPECT_EQ(notifier_.titles(), QStringList()) << "the screen is locked";
    locked_ = false;
    desktop_->screenUnlocked();
    EXPECT_EQ(notifier_.titles(), failure) << "saving still fails";
    desktop_->screenUnlocked();
    EXPECT_EQ(notifier_.titles(), QStringList()) << "once";

    settings_.notifySaving.set(false);
    notices_.saved(Notices::Source::store);
    notices_.saveFailed(Notices::Source::store, u"the disk is full"_s, Notices::Retry::no);
    EXPECT_EQ(notifier_.titles(), QStringList()) << "turned off";
    settings_.notifySaving.set(true);
    EXPECT_EQ(notifier_.titles(), failure) << "turned on while saving fails";
}

TEST_F(DesktopNoticesTest, offerAnotherTimer) {
    turnAllOn();
    desktop_->timerEnded(25);
    ASSERT_EQ(notifier_.shown.size(), 1);
    const auto actions = notifier_.shown[0].actions;
    ASSERT_EQ(actions.size(), 2);
    EXPECT_EQ(actions[0].label, u"Start again"_s);
    EXPECT_EQ(actions[1].label, u"5 more minutes"_s);
    actions[0].run();
    actions[1].run();
    EXPECT_EQ(started_, QList<double>({25, 5}));
}

TEST_F(DesktopNoticesTest, countReceivedFilesOnce) {
    turnAllOn();
    receive(3);
    EXPECT_EQ(notifier_.titles(), QStringList{u"3 files have arrived"_s});
    receive(1);
    receive(1);
    EXPECT_EQ(notifier_.titles(), QStringList()) << "some were removed";
    receive(2);
    EXPECT_EQ(notifier_.titles(), QStringList{u"A file has arrived"_s});
}

TEST_F(DesktopNoticesTest, followThePlan) {
    turnAllOn();
    EXPECT_EQ(after(window(79.9, 2)), QStringList());
    EXPECT_EQ(after(window(80, 2)), QStringList{u"5h session: 80% used"_s});
    EXPECT_EQ(after(window(85, 2)), QStringList()) << "once";
    UsageWindow jitter = window(86, 2);
    jitter.resets->sinceReference += 1;
    EXPECT_EQ(after(jitter), QStringList()) << "the same window";
    EXPECT_EQ(after(window(79, 2)), QStringList()) << "rounded";
    EXPECT_EQ(after(window(81, 2), UsageWindow{96, {}}), QStringList{u"Week: 96% used"_s});
    start();
    EXPECT_EQ(notifier_.titles(), QStringList()) << "after a restart";
    EXPECT_EQ(after(window(96, 2)), QStringList{u"5h session: 96% used"_s});
    EXPECT_EQ(after(window(100, 2)), QStringList());

    scheduler_.advance(Seconds(7200 - 30));
    EXPECT_EQ(notifier_.titles(), QStringList()) << "not yet";
    scheduler_.advance(Seconds(60));
    EXPECT_EQ(notifier_.titles(), QStringList{u"5h session was reset"_s}) << "without new figures";
    EXPECT_EQ(after(window(1, 5)), QStringList()) << "once";
    EXPECT_EQ(after(window(82, 4)), QStringList{u"5h session: 82% used"_s});
    EXPECT_EQ(after(window(99, 9)),
              QStringList({u"5h session was reset"_s, u"5h session: 99% used"_s}));
    EXPECT_EQ(after(window(3, 9)), QStringList{u"5h session was reset"_s}) << "early";
    settings_.notifyPlan.set(false);
    EXPECT_EQ(after(window(99, 9)), QStringList());
    EXPECT_EQ(after(window(1, 9)), QStringList());
    settings_.notifyPlan.set(true);
    EXPECT_EQ(notifier_.titles(), QStringList());
}

} // namespace
} // namespace ravelo
