#include "shelf/NearbySend.h"

#include "base/FileUrl.h"
#include "fakes/FakeDetachedJobs.h"
#include "fakes/FakeNearby.h"
#include "fakes/ManualScheduler.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

using Way = NearbySend::Way;

class Nearby : public testing::Test {
protected:
    /// Checks; the services answer as set.
    void refresh(const QList<NearbyDevice>& devices) {
        int calls = 0;
        const Handle waiting = nearby_.refresh([&] { ++calls; });
        EXPECT_EQ(calls, 0);
        devices_.answer(devices);
        scheduler_.advance(Seconds(0));
        EXPECT_EQ(calls, 1);
    }

    QUrl file(const QByteArray& name) {
        const QByteArray path = folder_.path().toUtf8() + '/' + name;
        EXPECT_TRUE(std::ofstream(path.constData()));
        return fileUrl(path);
    }

    void send(const QList<QUrl>& files, const QString& device) {
        sent_.reset();
        nearby_.send(files, device, [this](const auto& outcome) {
            sent_ = outcome.sent;
            folders_ = outcome.folders;
        });
        scheduler_.advance(Seconds(0));
    }

    QTemporaryDir folder_;
    ManualScheduler scheduler_;
    FakeNearbyDevices devices_;
    FakePrograms programs_{scheduler_};
    FakeDetachedJobs jobs_{scheduler_};
    NearbySend nearby_{{devices_, programs_, jobs_, scheduler_}};
    std::optional<qsizetype> sent_;
    qsizetype folders_ = 0;
};

TEST_F(Nearby, prefersDevicesToAProgram) {
    int changes = 0;
    const Handle listening = nearby_.onChange([&] { ++changes; });
    EXPECT_EQ(nearby_.way(), Way::none);
    refresh({});
    EXPECT_EQ(nearby_.way(), Way::none);
    EXPECT_EQ(changes, 0);
    programs_.installed = {u"blueman-sendto"_s};
    refresh({});
    EXPECT_EQ(nearby_.way(), Way::program);
    const QList<NearbyDevice> byName = {{u"2"_s, u"a"_s}, {u"3"_s, u"B"_s}, {u"1"_s, u"c"_s}};
    refresh({byName[2], byName[0], byName[1]});
    EXPECT_EQ(nearby_.way(), Way::devices);
    EXPECT_EQ(nearby_.devices(), byName);
    refresh(byName);
    EXPECT_EQ(changes, 2) << "once for each that differs";
}

TEST_F(Nearby, aCheckTimesOut) {
    refresh({{u"1"_s, u"a"_s}});
    int calls = 0;
    const Handle first = nearby_.refresh([&] { ++calls; });
    const Handle second = nearby_.refresh([&] { ++calls; });
    (void)nearby_.refresh([&] { ADD_FAILURE() << "the handle was dropped"; });
    EXPECT_EQ(devices_.looks, 2) << "those at a time share one";
    scheduler_.advance(Seconds(30));
    EXPECT_EQ(calls, 2);
    EXPECT_EQ(nearby_.way(), Way::none);
    EXPECT_TRUE(nearby_.devices().isEmpty());
    refresh({{u"1"_s, u"a"_s}});
    EXPECT_EQ(calls, 2) << "once each";
    EXPECT_EQ(nearby_.way(), Way::devices);
}

TEST_F(Nearby, sendsOnlyFilesToADevice) {
    const QList<QUrl> files = {file("a b%"),    fileUrl("/no/such"), file(".hidden"),
                               fileUrl("/tmp"), file("(\xc3\xa4)"),  file("\xe4")};
    send(files, u"phone"_s);
    ASSERT_EQ(devices_.sent.size(), 1);
    EXPECT_EQ(devices_.sent[0].deviceId, u"phone"_s);
    const QByteArray folder = "file://" + folder_.path().toUtf8();
    EXPECT_EQ(
        devices_.sent[0].addresses,
        (QList<QByteArray>{folder + "/a%20b%25", folder + "/.hidden", folder + "/%28%C3%A4%29"}));
    EXPECT_EQ(sent_, std::nullopt);
    devices_.answerSend(true);
    EXPECT_EQ(sent_, 3);
    EXPECT_EQ(folders_, 1) << "/tmp";
    send(files, u"phone"_s);
    devices_.answerSend(false);
    EXPECT_EQ(sent_, 0);
    send(files, u"phone"_s);
    scheduler_.advance(Seconds(30));
    EXPECT_EQ(sent_, 0) << "a service that hangs";
    EXPECT_EQ(scheduler_.pending(), 0);
    std::remove(filePath(files.last()).constData()); // QTemporaryDir cannot.
}

TEST_F(Nearby, startsTheProgramWithPaths) {
    const QList<QUrl> files = {file("--a b"), fileUrl("/no/such")};
    send(files, {});
    EXPECT_EQ(sent_, 0) << "none was found";
    programs_.installed = {u"bluetooth-sendto"_s, u"blueman-sendto"_s};
    refresh({});
    send(files, {});
    EXPECT_EQ(sent_, 1);
    send({fileUrl("/no/such")}, {});
    EXPECT_EQ(sent_, 0);
    jobs_.hung = true;
    send(files, {});
    scheduler_.advance(Seconds(30));
    EXPECT_EQ(sent_, 0) << "a disk that hangs";
    EXPECT_EQ(programs_.started,
              (QList<QList<QByteArray>>{{"/usr/bin/bluetooth-sendto", filePath(files[0])}}));
}

} // namespace
} // namespace ravelo
