// A keyring that asks the user, on a private bus.

#include "freedesktop/PrivateBus.h"
#include "freedesktop/StandIn.h"
#include "platform/freedesktop/secrets/SecretKeyring.h"

#include <QDBusObjectPath>
#include <QDBusVariant>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

class KeyringPrompts : public testing::Test {
protected:
    void SetUp() override { standIn_.serve(service_, u"org.freedesktop.secrets"_s); }

    std::optional<QVariant> answer(const QDBusMessage& call) {
        asked_.append(call.member());
        if (call.member() == "ReadAlias"_L1) {
            return QVariant::fromValue(QDBusObjectPath(u"/org/freedesktop/secrets/login"_s));
        }
        if (call.member() == "Unlock"_L1) {
            return QVariantList{QVariant::fromValue(QList<QDBusObjectPath>()),
                                QVariant::fromValue(QDBusObjectPath(prompt_))};
        }
        if (call.member() == "Prompt"_L1) {
            return hangs_ ? std::nullopt : std::optional<QVariant>(QVariantList{});
        }
        return QVariantList{};
    }

    void endPrompt(bool dismissed) {
        auto completed =
            QDBusMessage::createSignal(prompt_, u"org.freedesktop.Secret.Prompt"_s, u"Completed"_s);
        completed << dismissed << QVariant::fromValue(QDBusVariant(QString()));
        service_.send(completed);
    }

    /// Whatever was sent before has arrived.
    bool look() {
        bool looked = false;
        const Handle looking = keyring_.look([&](bool) { looked = true; });
        return eventually([&] { return looked; });
    }

    const QString prompt_ = u"/org/freedesktop/secrets/prompt/p1"_s;
    bool hangs_ = false;
    QStringList asked_;
    PrivateBus bus_;
    QDBusConnection service_ = bus_.connect(u"service"_s);
    StandIn standIn_{[this](const QDBusMessage& call) {
        return answer(call);
    }};
    SecretKeyring keyring_{bus_.connect(u"ours"_s), std::chrono::milliseconds(300)};
};

TEST_F(KeyringPrompts, MayBeDismissed) {
    Handle unlocking;
    int ends = 0;
    unlocking = keyring_.unlock([&] {
        unlocking.reset(); // As soon as it answers.
        ++ends;
    });
    ASSERT_TRUE(eventually([&] { return asked_.contains(u"Prompt"_s); }));
    endPrompt(true);
    EXPECT_TRUE(eventually([&] { return ends > 0; })) << "it waits for the prompt";
    EXPECT_TRUE(look());
    EXPECT_EQ(ends, 1);
}

TEST_F(KeyringPrompts, AreNotAnsweredAfterAFailure) {
    hangs_ = true;
    int ends = 0;
    const Handle keeping =
        keyring_.keep(u"a service"_s, u"a label"_s, Secret("0011"), [&](const Result<void>& kept) {
            EXPECT_FALSE(kept) << "the prompt did not come";
            ++ends;
        });
    ASSERT_TRUE(eventually([&] { return ends > 0; }));
    endPrompt(false);
    EXPECT_TRUE(look());
    EXPECT_EQ(ends, 1);
    EXPECT_FALSE(asked_.contains(u"OpenSession"_s)) << "it goes on although it has failed";
}

} // namespace

} // namespace ravelo
