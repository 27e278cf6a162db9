// The extension as GNOME Shell manages it, with stand-ins for the shell and for gsettings.

#include "platform/gnome/ShellExtension.h"
#include "freedesktop/PrivateBus.h"
#include "freedesktop/StandIn.h"
#include "platform/gnome/Protocol.h"

#include <QDir>
#include <QTemporaryDir>

namespace ravelo::gnome {

using namespace Qt::StringLiterals;

namespace {

using State = DesktopExtension::State;

class ShellExtensionTest : public testing::Test {
public:
    ShellExtensionTest() {
        set("XDG_CURRENT_DESKTOP", "GNOME");
        set("WAYLAND_DISPLAY", "none");
        set("XDG_RUNTIME_DIR", QFile::encodeName(folder_.path()));
        set("XDG_DATA_DIRS", QFile::encodeName(folder_.path()));
        set("PATH", QFile::encodeName(folder_.path()) + ":" + qgetenv("PATH"));
        auto bus = bus_.connect(u"shell"_s);
        shell_.serve(bus, u"org.gnome.Shell"_s);
        write(u"settings"_s, "['other@name']");
        write(u"gsettings"_s,
              "#!/bin/sh\nkept=\"$(dirname \"$0\")/settings\"\n"
              "[ \"$2 $3\" = 'org.gnome.shell enabled-extensions' ] || exit 1\n"
              "case $1 in get) cat \"$kept\" ;; set) printf %s \"$4\" >\"$kept\" ;; esac\n");
        QFile::setPermissions(folder_.filePath(u"gsettings"_s), QFile::ReadOwner | QFile::ExeOwner);
    }

    ~ShellExtensionTest() override {
        for (const auto& [name, value] : before_) {
            value.isNull() ? qunsetenv(name) : qputenv(name, value);
        }
    }

    ShellExtensionTest(const ShellExtensionTest&) = delete;
    ShellExtensionTest& operator=(const ShellExtensionTest&) = delete;

protected:
    void write(const QString& name, const QByteArray& bytes) {
        QDir().mkpath(QFileInfo(folder_.filePath(name)).path());
        QFile file(folder_.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    [[nodiscard]] QByteArray settings() const {
        QFile file(folder_.filePath(u"settings"_s));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    [[nodiscard]] std::unique_ptr<ShellExtension> start(ShellExtension::Used used) {
        return std::make_unique<ShellExtension>(bus_.connect(u"ravelo"_s), used);
    }

    void reportChange() {
        auto signal = QDBusMessage::createSignal(
            u"/org/gnome/Shell"_s, u"org.gnome.Shell.Extensions"_s, u"ExtensionStateChanged"_s);
        signal << QString(extensionId) << QVariantMap();
        bus_.connect(u"shell"_s).send(signal);
    }

    bool knows_ = true;        ///< The shell has seen it at the login.
    bool keepsPromise_ = true; ///< To run it.
    bool enabled_ = false;

private:
    void set(const char* name, const QByteArray& value) {
        before_.emplace_back(name, qgetenv(name));
        qputenv(name, value);
    }

    std::vector<std::pair<const char*, QByteArray>> before_;
    QTemporaryDir folder_;
    PrivateBus bus_;
    StandIn shell_{[this](const QDBusMessage& call) -> std::optional<QVariant> {
        EXPECT_EQ(call.arguments(), QVariantList{QString(extensionId)});
        if (call.member() == u"EnableExtension") {
            enabled_ = knows_ && keepsPromise_;
            return knows_;
        }
        return knows_ ? QVariantMap{{u"state"_s, enabled_ ? 1.0 : 2.0},
                                    {u"ravelo-protocol"_s, double(protocolVersion)}}
                      : QVariantMap();
    }};
};

TEST_F(ShellExtensionTest, IsTurnedOnAtOnceIfTheShellKnowsIt) {
    const auto extension = start(ShellExtension::Used::no);
    EXPECT_TRUE(eventually([&] { return extension->state() == State::off; }));
    EXPECT_FALSE(enabled_) << "without being asked";
    extension->turnOn();
    EXPECT_TRUE(eventually([&] { return extension->state() == State::waitsForStart; }));
    EXPECT_EQ(settings(), "['other@name']") << "the shell's business";
    const auto next = start(ShellExtension::Used::yes);
    EXPECT_TRUE(eventually([&] { return next->state() == State::on; }));
    enabled_ = false;
    reportChange();
    EXPECT_TRUE(eventually([&] { return next->state() == State::off; })) << "turned off elsewhere";
}

TEST_F(ShellExtensionTest, IsTurnedOnForTheNextLoginIfItWasInstalledAfterThisOne) {
    knows_ = false;
    const auto missing = start(ShellExtension::Used::no);
    EXPECT_TRUE(eventually([&] { return missing->state() == State::missing; }));
    write(u"gnome-shell/extensions/%1/metadata.json"_s.arg(extensionId), "{}");
    const auto extension = start(ShellExtension::Used::no);
    EXPECT_TRUE(eventually([&] { return extension->state() == State::off; }));
    extension->turnOn();
    EXPECT_TRUE(eventually([&] { return extension->state() == State::waitsForLogin; }));
    EXPECT_EQ(settings(), "['other@name', 'companion@ravelo.org']");
}

TEST_F(ShellExtensionTest, SaysIfItCannotBeTurnedOn) {
    knows_ = false;
    write(u"gnome-shell/extensions/%1/metadata.json"_s.arg(extensionId), "{}");
    const auto extension = start(ShellExtension::Used::no);
    ASSERT_TRUE(eventually([&] { return extension->state() == State::off; }));
    qputenv("PATH", "/nowhere"); // Without gsettings.
    extension->turnOn();
    EXPECT_TRUE(eventually([&] { return extension->state() == State::failed; }));
}

TEST_F(ShellExtensionTest, SaysIfTheShellPromisesToRunItButDoesNot) {
    keepsPromise_ = false;
    const auto extension = start(ShellExtension::Used::no);
    ASSERT_TRUE(eventually([&] { return extension->state() == State::off; }));
    extension->turnOn();
    EXPECT_TRUE(eventually([&] { return extension->state() == State::failed; }));
}

TEST_F(ShellExtensionTest, IsOfNoConcernElsewhere) {
    qputenv("XDG_CURRENT_DESKTOP", "KDE");
    EXPECT_FALSE(isExtensionRunning());
    const auto extension = start(ShellExtension::Used::no);
    extension->turnOn();
    EXPECT_EQ(extension->state(), State::notNeeded);
    EXPECT_FALSE(enabled_);
}

} // namespace
} // namespace ravelo::gnome
