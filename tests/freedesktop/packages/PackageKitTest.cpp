#include "platform/freedesktop/packages/PackageKit.h"

#include "freedesktop/PrivateBus.h"
#include "freedesktop/StandIn.h"

#include <QDBusObjectPath>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

using Kind = UpdateProblem::Kind;

const QString transaction = u"org.freedesktop.PackageKit.Transaction"_s;
constexpr uint success = 1;
constexpr uint failed = 2;
constexpr uint notAuthorized = 48;

/// What a transaction reports.
struct Course {
    QStringList packages;
    uint error = 0;
};

/// PackageKit, as far as this program uses it: reports by the names of methods.
class Recorder {
public:
    Recorder(PrivateBus& bus, QHash<QString, Course> courses)
        : courses_(std::move(courses)), bus_(bus.connect(u"packagekit"_s)) {
        standIn_.serve(bus_, u"org.freedesktop.PackageKit"_s);
    }

    QList<QDBusMessage> calls;

private:
    QVariant answer(const QDBusMessage& call) {
        if (call.member() == "CreateTransaction"_L1) {
            return QVariant::fromValue(QDBusObjectPath(u"/%1_of_it"_s.arg(QChar(u'a' + count_++))));
        }
        if (call.member() != "SetHints"_L1) {
            calls.append(call);
            QMetaObject::invokeMethod(
                &standIn_, [this, call] { play(call.path(), courses_.value(call.member())); },
                Qt::QueuedConnection);
        }
        return {};
    }

    void play(const QString& path, const Course& course) {
        const auto send = [&](const QString& name, const QVariantList& arguments,
                              const QString& interface = transaction) {
            auto signal = QDBusMessage::createSignal(path, interface, name);
            signal.setArguments(arguments);
            bus_.send(signal);
        };
        for (const uint percent : {30U, 101U}) {
            send(u"PropertiesChanged"_s,
                 {transaction, QVariantMap{{u"Percentage"_s, percent}}, QStringList()},
                 u"org.freedesktop.DBus.Properties"_s);
        }
        for (const QString& id : course.packages) {
            constexpr uint info = 5 | (2 << 16); // Besides the kind of update how urgent it is.
            send(u"Package"_s, {info, id, u"summary"_s});
        }
        if (course.error != 0) {
            send(u"ErrorCode"_s, {course.error, u"two\nlines"_s});
        }
        send(u"Finished"_s, {course.error == 0 ? success : failed, 5U});
    }

    QHash<QString, Course> courses_;
    int count_ = 0;
    QDBusConnection bus_;
    StandIn standIn_{[this](const QDBusMessage& call) {
        return std::optional(answer(call));
    }};
};

PackageUpdates::Checked check(PrivateBus& bus) {
    PackageKit packages(bus.connect(u"ours"_s), u"ravelo"_s);
    std::optional<PackageUpdates::Checked> found;
    const Handle work = packages.check([&](const auto& checked) { found = checked; });
    EXPECT_TRUE(eventually([&] { return found.has_value(); }));
    return found.value_or(std::nullopt);
}

TEST(PackageKit, checksForANewerPackage) {
    const QString own = u"ravelo;0.2;amd64;manual:stable-main"_s;
    const QString built = u"ravelo;0.2;amd64;manual:local"_s;
    const QString newer = u"ravelo;0.3;amd64;stable-main"_s;
    const auto problem = [](Kind kind, const QString& details = {}) {
        return tl::unexpected(UpdateProblem{kind, details});
    };

    struct Case {
        QHash<QString, Course> courses;
        PackageUpdates::Checked found;
        qsizetype calls;
    };

    const Case cases[] = {
        {{}, problem(Kind::notFromRepository), 1},
        {{{u"Resolve"_s, {{own}}}, {u"GetUpdates"_s, {{u"ravelo-x;9;all;s"_s, newer}}}},
         AvailableUpdate{u"0.3"_s, newer},
         3},
        {{{u"Resolve"_s, {{own}}}, {u"GetUpdates"_s, {{u"ravelo-x;9;all;s"_s}}}}, std::nullopt, 3},
        {{{u"Resolve"_s, {{built}}}}, problem(Kind::notFromRepository), 3},
        {{{u"Resolve"_s, {{built}}}, {u"GetUpdates"_s, {{newer}}}},
         AvailableUpdate{u"0.3"_s, newer},
         3},
        {{{u"Resolve"_s, {{own}}}, {u"RefreshCache"_s, {{}, notAuthorized}}},
         problem(Kind::notAllowed, u"two lines"_s),
         2},
        {{{u"Resolve"_s, {{own}}}, {u"GetUpdates"_s, {{newer}, 2}}},
         problem(Kind::failed, u"two lines"_s),
         3},
    };
    for (const Case& c : cases) {
        PrivateBus bus;
        const Recorder service(bus, c.courses);
        EXPECT_EQ(check(bus), c.found);
        EXPECT_EQ(service.calls.size(), c.calls);
    }
    PrivateBus empty;
    EXPECT_EQ(check(empty), PackageUpdates::Checked(problem(Kind::noService)));
}

TEST(PackageKit, timesOut) {
    PrivateBus bus;
    QDBusConnection service = bus.connect(u"packagekit"_s);
    StandIn mute([](const QDBusMessage& call) -> std::optional<QVariant> {
        return call.member() == "CreateTransaction"_L1
                   ? QVariant::fromValue(QDBusObjectPath(u"/transaction"_s))
                   : QVariant();
    });
    mute.serve(service, u"org.freedesktop.PackageKit"_s);
    PackageKit packages(bus.connect(u"ours"_s), u"ravelo"_s, std::chrono::milliseconds(50));
    std::optional<PackageUpdates::Checked> found;
    const Handle work = packages.check([&](const auto& checked) { found = checked; });
    ASSERT_TRUE(eventually([&] { return found.has_value(); })) << "waits for ever";
    EXPECT_EQ(*found, PackageUpdates::Checked(tl::unexpected(
                          UpdateProblem{Kind::failed, u"PackageKit does not answer."_s})));
}

TEST(PackageKit, installsSignedPackagesAndReportsProgress) {
    for (const uint error : {0U, notAuthorized}) {
        PrivateBus bus;
        const Recorder service(bus, {{u"UpdatePackages"_s, {{}, error}}});
        PackageKit packages(bus.connect(u"ours"_s), u"ravelo"_s);
        QList<std::optional<int>> percents;
        std::optional<PackageUpdates::Installed> done;
        const Handle work = packages.install(
            {u"0.3"_s, u"ravelo;0.3;amd64;s"_s}, [&](auto percent) { percents.append(percent); },
            [&](const auto& installed) { done = installed; });
        ASSERT_TRUE(eventually([&] { return done.has_value(); }));
        EXPECT_EQ(done->has_value(), error == 0);
        EXPECT_TRUE(*done || done->error().kind == Kind::notAllowed);
        EXPECT_EQ(percents, (QList<std::optional<int>>{30, std::nullopt}));
        ASSERT_EQ(service.calls.size(), 1);
        constexpr qulonglong onlyTrusted = 2;
        EXPECT_EQ(service.calls[0].arguments(),
                  (QVariantList{onlyTrusted, QStringList{u"ravelo;0.3;amd64;s"_s}}));
    }
}

} // namespace

} // namespace ravelo
