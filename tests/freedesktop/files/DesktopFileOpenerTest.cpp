#include "platform/freedesktop/files/DesktopFileOpener.h"
#include "fakes/FakeDetachedJobs.h"
#include "fakes/FakeNearby.h"
#include "fakes/ManualScheduler.h"
#include "freedesktop/PrivateBus.h"
#include "freedesktop/StandIn.h"

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

enum class Manager { answers, refuses, none, noBus };

class ShowInFolder : public testing::TestWithParam<Manager> {};

TEST_P(ShowInFolder, asksTheFileManagerOrOpensTheFolder) {
    PrivateBus bus;
    QDBusConnection service = bus.connect(u"service"_s);
    QVariantList asked;
    StandIn manager([&](const QDBusMessage& call) -> std::optional<QVariant> {
        asked = call.arguments();
        if (GetParam() == Manager::answers) {
            return QVariant();
        }
        service.send(call.createErrorReply(QDBusError::Failed, u"not today"_s));
        return std::nullopt;
    });
    if (GetParam() == Manager::answers || GetParam() == Manager::refuses) {
        manager.serve(service, u"org.freedesktop.FileManager1"_s);
    }
    ManualScheduler scheduler;
    FakePrograms programs(scheduler);
    FakeDetachedJobs jobs(scheduler);
    programs.installed = {u"xdg-open"_s};
    DesktopFileOpener opener(GetParam() == Manager::noBus ? QDBusConnection(u"there is none"_s)
                                                          : bus.connect(u"ours"_s),
                             programs, jobs);
    opener.showInFolder(QUrl(u"file:///home/some%20one/a%20%C3%BC.txt"_s));
    const bool served = GetParam() == Manager::answers;
    EXPECT_TRUE(eventually([&] {
        scheduler.advance(Seconds(0.01));
        return served ? !asked.isEmpty() : !programs.started.isEmpty();
    }));
    if (served) {
        EXPECT_EQ(asked, (QVariantList{QStringList{u"file:///home/some%20one/a%20%C3%BC.txt"_s},
                                       QString()}));
        EXPECT_TRUE(programs.started.isEmpty());
    } else {
        EXPECT_EQ(programs.started,
                  (QList<QList<QByteArray>>{{"/usr/bin/xdg-open", "/home/some one/"}}));
    }
}

INSTANTIATE_TEST_SUITE_P(All, ShowInFolder,
                         testing::Values(Manager::answers, Manager::refuses, Manager::none,
                                         Manager::noBus));

} // namespace

} // namespace ravelo
