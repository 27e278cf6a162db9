#include "notices/Notices.h"
#include "fakes/ManualScheduler.h"

#include <gtest/gtest.h>

#include <QStringList>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr auto store = Notices::Source::store;
constexpr auto preferences = Notices::Source::preferences;

class NoticesTest : public testing::Test {
public:
    void pass(double seconds) { scheduler.advance(Seconds(seconds)); }

    [[nodiscard]] QString shown() const {
        const QStringList parts{notices.lead(), notices.rest(), notices.action()};
        return parts.join(u'|');
    }

    ManualScheduler scheduler;
    Notices notices{scheduler};
};

const auto nothing = u"||"_s;
const auto again = u"Saved again.||"_s;

QString failing(const QString& time, const QString& reason = u"the disk is full"_s) {
    return u"Not saved for %1:|%2. Nothing is lost while Ravelo runs.|Try again"_s.arg(time,
                                                                                       reason);
}

const auto storeAside = u"Saved copy put aside:|store.json.unreadable, in Ravelo’s data folder. "
                        "The history starts empty.|Open folder"_s;
const auto preferencesAside = u"Preferences put aside:|preferences.json.unreadable. Settings are "
                              "back at their defaults.|Open folder"_s;

TEST_F(NoticesTest, reportsAfterAMinuteThatSavingFails) {
    notices.saveFailed(store, u"the disk is full"_s);
    pass(30);
    notices.saveFailed(store, u"the disk is full"_s);
    pass(29.9);
    EXPECT_EQ(shown(), nothing);
    pass(0.2);
    EXPECT_EQ(shown(), failing(u"1 minute"_s)) << "counted from the first failure";
    notices.dismiss();
    EXPECT_EQ(notices.kind(), Notices::SavingFails) << "it matters until it is over";
    pass(60);
    EXPECT_EQ(shown(), failing(u"2 minutes"_s));
    notices.saveFailed(store, u"the folder is gone"_s);
    EXPECT_EQ(shown(), failing(u"2 minutes"_s, u"the folder is gone"_s));
    pass(3600);
    EXPECT_EQ(shown(), failing(u"62 minutes"_s, u"the folder is gone"_s));
    notices.saved(store);
    EXPECT_EQ(shown(), again);
    pass(3.9);
    EXPECT_EQ(shown(), again);
    pass(0.2);
    EXPECT_EQ(shown(), nothing);
    EXPECT_EQ(scheduler.pending(), 0) << "nothing runs by the clock while nothing fails";
}

TEST_F(NoticesTest, doesNotReportAFailureOfLessThanAMinute) {
    notices.saveFailed(store, u"the disk is full"_s);
    pass(59);
    notices.saved(store);
    EXPECT_EQ(shown(), nothing);
    notices.saveFailed(store, u"the disk is full"_s);
    pass(59);
    EXPECT_EQ(shown(), nothing) << "this one has lasted for 59 s only";
}

TEST_F(NoticesTest, reportsAtOnceThatNothingCanBeSaved) {
    notices.saveFailed(store, u"another Ravelo has taken over"_s, Notices::Retry::no);
    EXPECT_EQ(notices.lead(), u"Not saved any more:"_s);
    EXPECT_EQ(notices.rest(), u"another Ravelo has taken over."_s);
    EXPECT_EQ(notices.action(), QString()) << "there is nothing to try again";
}

TEST_F(NoticesTest, reportsSavedAgainOnceNothingFails) {
    notices.saveFailed(preferences, u"it is read-only"_s);
    pass(90);
    notices.saveFailed(store, u"the disk is full"_s);
    EXPECT_EQ(shown(), failing(u"1 minute"_s, u"it is read-only"_s));
    notices.saved(preferences);
    EXPECT_EQ(shown(), nothing) << "the other has only just begun to fail";
    pass(60);
    EXPECT_EQ(shown(), failing(u"1 minute"_s));
    notices.saved(store);
    EXPECT_EQ(shown(), again);
    notices.saveFailed(store, u"the disk is full"_s);
    EXPECT_EQ(shown(), nothing) << "outdated";
}

TEST_F(NoticesTest, showsTheMostSeriousFirst) {
    notices.putAside(preferences, u"/home/me/.config/ravelo/preferences.json.unreadable"_s);
    EXPECT_EQ(shown(), preferencesAside);
    notices.putAside(store, u"/home/me/.local/share/Ravelo/store.json.unreadable"_s);
    EXPECT_EQ(shown(), storeAside);
    notices.saveFailed(store, u"the disk is full"_s);
    pass(60);
    EXPECT_EQ(shown(), failing(u"1 minute"_s));
    notices.saved(store);
    EXPECT_EQ(shown(), again);
    pass(4);
    EXPECT_EQ(shown(), storeAside);
    notices.dismiss();
    EXPECT_EQ(shown(), preferencesAside);
    notices.dismiss();
    EXPECT_EQ(shown(), nothing);
    notices.dismiss();
    EXPECT_EQ(shown(), nothing);
}

TEST_F(NoticesTest, reportsWhatWasNotDeletedAndWhatWaitsForAKey) {
    notices.putAside(store, u"/x/store.json.unreadable"_s);
    notices.setLocked(u"Waiting"_s, u"for it."_s, u"Unlock"_s);
    EXPECT_EQ(shown(), u"Waiting|for it.|Unlock"_s) << "before what was put aside";
    EXPECT_FALSE(notices.dismissible());
    int unlocks = 0;
    QObject::connect(&notices, &Notices::unlock, &notices, [&] { ++unlocks; });
    notices.act();
    EXPECT_EQ(unlocks, 1);
    notices.deletionEnded(u"the folder is read-only"_s);
    EXPECT_EQ(shown(), u"Not deleted from the disk:|the folder is read-only.|"_s);
    EXPECT_TRUE(notices.dismissible());
    notices.warn(u"Not kept:"_s, u"the disk is full"_s);
    EXPECT_EQ(notices.kind(), Notices::NotDeleted) << "that is more serious";
    notices.dismiss();
    EXPECT_EQ(shown(), u"Not kept:|the disk is full.|"_s);
    EXPECT_TRUE(notices.dismissible());
    notices.dismiss();
    EXPECT_EQ(shown(), u"Waiting|for it.|Unlock"_s);
    notices.deletionEnded(u"again"_s);
    notices.deletionEnded({});
    notices.setLocked({}, {}, {});
    EXPECT_EQ(shown(), storeAside);
}

TEST_F(NoticesTest, itsButtonRetriesOrOpensTheFolder) {
    QStringList done;
    QObject::connect(&notices, &Notices::tryAgain, [&] { done.append(u"try"_s); });
    QObject::connect(&notices, &Notices::openFolder,
                     [&](const QString& path) { done.append(path); });
    notices.act();
    EXPECT_EQ(done, QStringList()) << "there is no notice";
    notices.putAside(store, u"/a/store.json.unreadable"_s);
    notices.saveFailed(store, u"the disk is full"_s);
    pass(60);
    notices.act();
    EXPECT_EQ(notices.kind(), Notices::SavingFails) << "until it is known that it worked";
    notices.saved(store);
    notices.act();
    pass(4);
    notices.act();
    EXPECT_EQ(done, (QStringList{u"try"_s, u"/a/store.json.unreadable"_s}));
    EXPECT_EQ(shown(), nothing) << "it was handled";
}

TEST_F(NoticesTest, explainsSecretsAndOffersToKeepThem) {
    int kept = 0;
    QObject::connect(&notices, &Notices::keepSecrets, [&] { ++kept; });
    notices.secretKept(u"GitHub token"_s);
    EXPECT_EQ(notices.lead(), u"This looks like a secret: GitHub token."_s);
    notices.putAside(store, u"/a/store.json.unreadable"_s);
    EXPECT_EQ(notices.kind(), Notices::PutAside) << "that is more serious";
    notices.dismiss();
    EXPECT_EQ(notices.kind(), Notices::SecretKept);
    notices.act();
    EXPECT_EQ(kept, 1);
    EXPECT_EQ(shown(), nothing);
    notices.secretKept(u"GitHub token"_s);
    notices.dismiss();
    EXPECT_EQ(kept, 1);
    EXPECT_EQ(shown(), nothing);
}

} // namespace

} // namespace ravelo
