#include "updates/Updater.h"

#include <gtest/gtest.h>

#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

using Kind = UpdateProblem::Kind;

struct Service final : PackageUpdates {
    Handle check(std::function<void(Checked)> done) override {
        ++checks;
        checked = std::move(done);
        return Handle();
    }

    Handle install(const AvailableUpdate& update, std::function<void(std::optional<int>)> progress,
                   std::function<void(Installed)> done) override {
        asked.append(update.packageId);
        progressed = std::move(progress);
        installed = std::move(done);
        return Handle();
    }

    int checks = 0;
    QStringList asked;
    std::function<void(Checked)> checked;
    std::function<void(std::optional<int>)> progressed;
    std::function<void(Installed)> installed;
};

class UpdaterTest : public testing::Test {
protected:
    Service& service_ = *new Service; // The updater's own.
    Updater updater_{std::unique_ptr<PackageUpdates>(&service_), u"0.2"_s};
};

TEST_F(UpdaterTest, ReportsTheResult) {
    const AvailableUpdate update{u"0.3"_s, u"ravelo;0.3;amd64;stable"_s};

    struct Case {
        PackageUpdates::Checked found;
        QString title;
        QString details; ///< A part of it.
        bool canInstall;
    };

    const auto problem = [](Kind kind, const QString& details) {
        return tl::unexpected(UpdateProblem{kind, details});
    };
    const Case cases[] = {
        {std::nullopt, u"Ravelo is up to date"_s, u"You have Ravelo 0.2."_s, false},
        {problem(Kind::noService, {}), u"Cannot check for updates"_s,
         u"PackageKit is not available"_s, false},
        {problem(Kind::notFromRepository, {}), u"Ravelo was not installed from a repository"_s,
         u"newest package"_s, false},
        {problem(Kind::notAllowed, u"no"_s), u"Not allowed"_s, u"polkit"_s, false},
        {problem(Kind::failed, u"No network"_s), u"The update failed"_s, u"No network"_s, false},
        {update, u"Ravelo 0.3 is available"_s, u"You have 0.2."_s, true},
    };
    for (const Case& c : cases) {
        updater_.checkForUpdates();
        EXPECT_EQ(updater_.title(), u"Checking for updates…"_s);
        updater_.checkForUpdates(); // Has no effect.
        service_.checked(c.found);
        EXPECT_EQ(updater_.title(), c.title);
        EXPECT_TRUE(updater_.details().contains(c.details)) << qPrintable(updater_.details());
        EXPECT_EQ(updater_.canInstall(), c.canInstall);
        EXPECT_FALSE(updater_.isBusy());
    }
    EXPECT_EQ(service_.checks, std::ssize(cases));
}

TEST_F(UpdaterTest, InstallsAndReportsProgress) {
    updater_.install();
    EXPECT_TRUE(service_.asked.isEmpty()) << "nothing was found";
    updater_.checkForUpdates();
    service_.checked(AvailableUpdate{u"0.3"_s, u"ravelo;0.3;amd64;stable"_s});
    updater_.install();
    updater_.install();
    EXPECT_EQ(service_.asked, QStringList{u"ravelo;0.3;amd64;stable"_s});
    EXPECT_EQ(updater_.progress(), -1);
    service_.progressed(40);
    EXPECT_EQ(updater_.progress(), 0.4);
    EXPECT_EQ(updater_.details(), u"40 %"_s);
    updater_.checkForUpdates();
    EXPECT_EQ(service_.checks, 1) << "while it installs";
    service_.progressed(std::nullopt);
    EXPECT_EQ(updater_.details(), QString());
    service_.installed({});
    EXPECT_EQ(updater_.title(), u"Ravelo 0.3 is installed"_s);
    EXPECT_FALSE(updater_.canInstall());
}

} // namespace

} // namespace ravelo
