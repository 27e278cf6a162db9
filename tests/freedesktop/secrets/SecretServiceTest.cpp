// A Secret Service that records its calls, on a private bus.

#include "platform/freedesktop/secrets/SecretService.h"
#include "freedesktop/PrivateBus.h"
#include "freedesktop/StandIn.h"
#include "platform/freedesktop/secrets/SecretKeyring.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusVariant>

#include <optional>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

using Paths = QList<QDBusObjectPath>;

struct ServiceCase {
    const char* name;
    Paths unlocked;
    Paths locked;
    QString hangsAt; ///< A method, or none.
    std::optional<QByteArray> secret;
    QStringList asked;
};

const QDBusObjectPath first(u"/org/freedesktop/secrets/collection/login/1"_s);
const QDBusObjectPath second(u"/org/freedesktop/secrets/collection/login/2"_s);
const QDBusObjectPath session(u"/org/freedesktop/secrets/session/s1"_s);

class SecretServiceTest : public testing::TestWithParam<ServiceCase> {
protected:
    std::optional<QVariant> answer(const QDBusMessage& call) {
        asked_.append(call.member());
        if (call.member() == GetParam().hangsAt) {
            return std::nullopt;
        }
        if (call.member() == "SearchItems"_L1) {
            QMap<QString, QString> attributes;
            call.arguments().value(0).value<QDBusArgument>() >> attributes;
            EXPECT_EQ(attributes, (QMap<QString, QString>{{u"service"_s, u"a name"_s}}));
            return QVariantList{QVariant::fromValue(GetParam().unlocked),
                                QVariant::fromValue(GetParam().locked)};
        }
        if (call.member() == "OpenSession"_L1) {
            EXPECT_EQ(call.arguments().value(0), u"plain"_s);
            return QVariantList{QVariant::fromValue(QDBusVariant(QString())),
                                QVariant::fromValue(session)};
        }
        if (call.member() == "GetSecret"_L1) {
            EXPECT_EQ(call.path(), first.path());
            EXPECT_EQ(call.arguments().value(0).value<QDBusObjectPath>(), session);
            QDBusArgument secret;
            secret.beginStructure();
            secret << session << QByteArray() << QByteArray("pass\nword") << u"text/plain"_s;
            secret.endStructure();
            return QVariantList{QVariant::fromValue(secret)};
        }
        return QVariantList{};
    }

    PrivateBus bus_;
    QDBusConnection service_ = bus_.connect(u"service"_s);
    QDBusConnection ours_ = bus_.connect(u"ours"_s);
    QStringList asked_;
};

TEST_P(SecretServiceTest, readsUnlockedItems) {
    StandIn standIn([this](const QDBusMessage& call) { return answer(call); });
    ASSERT_TRUE(service_.registerVirtualObject(u"/"_s, &standIn, QDBusConnection::SubPath));
    if (GetParam().hangsAt != u"there is none"_s) {
        ASSERT_TRUE(service_.registerService(u"org.freedesktop.secrets"_s));
    }
    SecretService secrets(ours_,
                          std::chrono::milliseconds(GetParam().hangsAt.isEmpty() ? 20000 : 200));
    int answers = 0;
    std::optional<Secret> secret; // Its bytes are erased when it is destroyed.
    const Handle search = secrets.find(u"a name"_s, [&](const std::optional<Secret>& found) {
        ++answers;
        secret = found;
    });
    ASSERT_TRUE(
        eventually([&] { return answers > 0 && asked_.size() >= GetParam().asked.size(); }));
    EXPECT_EQ(secret ? std::optional(secret->bytes()) : std::nullopt, GetParam().secret);
    EXPECT_EQ(asked_, GetParam().asked);
    EXPECT_EQ(answers, 1);
}

const QStringList allOfIt = {u"SearchItems"_s, u"OpenSession"_s, u"GetSecret"_s, u"Close"_s};

INSTANTIATE_TEST_SUITE_P(
    All, SecretServiceTest,
    testing::Values(
        ServiceCase{"item", {first, second}, {}, {}, "pass\nword", allOfIt},
        ServiceCase{"itemBesideALockedOne", {first}, {second}, {}, "pass\nword", allOfIt},
        ServiceCase{"noItem", {}, {}, {}, {}, {u"SearchItems"_s}},
        ServiceCase{"lockedItem", {}, {first}, {}, {}, {u"SearchItems"_s}},
        ServiceCase{"hangsAtOnce", {first}, {}, u"SearchItems"_s, {}, {u"SearchItems"_s}},
        ServiceCase{"hangsLater", {first}, {}, u"GetSecret"_s, {}, allOfIt},
        ServiceCase{"noService", {first}, {}, u"there is none"_s, {}, {}}),
    [](const auto& row) { return row.param.name; });

TEST(SecretServiceWithoutABus, findsNothing) {
    SecretService secrets(QDBusConnection(u"no such bus"_s), std::chrono::milliseconds(1));
    secrets
        .find(u"a name"_s,
              [](const std::optional<Secret>&) { ADD_FAILURE() << "the handle was dropped"; })
        .reset();
    bool answered = false;
    const Handle search = secrets.find(u"a name"_s, [&](const std::optional<Secret>& found) {
        EXPECT_FALSE(found);
        answered = true;
    });
    EXPECT_TRUE(eventually([&] { return answered; }));
}

TEST(SecretKeyring, MayBeDroppedByTheAnswerThatItsPromptWasDismissed) {
    PrivateBus bus;
    QDBusConnection service = bus.connect(u"service"_s);
    const QDBusObjectPath prompt(u"/org/freedesktop/secrets/prompt/1"_s);
    StandIn standIn([&](const QDBusMessage& call) {
        QVariantList answer;
        if (call.member() == "ReadAlias"_L1) {
            answer = {QVariant::fromValue(first)};
        } else if (call.member() == "Unlock"_L1) {
            answer = {QVariant::fromValue(Paths()), QVariant::fromValue(prompt)};
        } else if (call.member() == "Prompt"_L1) {
            auto completed = QDBusMessage::createSignal(
                prompt.path(), u"org.freedesktop.Secret.Prompt"_s, u"Completed"_s);
            completed << true << QVariant::fromValue(QDBusVariant(QString()));
            EXPECT_TRUE(service.send(completed));
        }
        return answer;
    });
    standIn.serve(service, u"org.freedesktop.secrets"_s);
    SecretKeyring keyring(bus.connect(u"ours"_s));
    int answers = 0;
    Handle asking = keyring.unlock([&answers, &asking] {
        asking.reset();
        ++answers;
    });
    EXPECT_TRUE(eventually([&] { return answers > 0; }));
    EXPECT_EQ(answers, 1);
}

} // namespace

} // namespace ravelo
