#include "app/ClaudeCode.h"

#include "app/Platform.h"
#include "app/SecondPlan.h"
#include "monitor/ClaudeEnvironment.h"
#include "monitor/LiveContext.h"
#include "monitor/PlanUsage.h"
#include "platform/ChildProcess.h"
#include "platform/FolderChanges.h"
#include "platform/HttpsClient.h"
#include "platform/SecretStore.h"
#include "settings/AppSettings.h"
#include "ui/usage/Usage.h"

#include <QDir>
#include <QFile>
#include <QProcessEnvironment>

#include <utility>

namespace ravelo {

namespace {

QByteArray home() {
    return QFile::encodeName(QDir::homePath());
}

/// None of these folders depends on what main() adds to the environment.
QByteArrayList otherFolders() {
    return otherClaudeFolders(home(), QProcessEnvironment::systemEnvironment());
}

UsageQuery::Services queryServices(const Platform& platform, ChildProcess& children) {
    return {*platform.scheduler, *platform.jobs, *platform.secrets, *platform.https, children};
}

LiveContext& liveContext(Platform& platform) {
    return LiveContext::shared([&platform] {
        return std::make_unique<LiveContext>(
            LiveContext::Services{*platform.scheduler, *platform.jobs}, home(),
            std::move(platform.transcriptChanges), otherFolders());
    });
}

PlanUsage& planUsage(Platform& platform) {
    return PlanUsage::shared([&platform] {
        return std::make_unique<PlanUsage>(queryServices(platform, *platform.children), home(),
                                           std::move(platform.usageChanges), PlanUsage::provider(),
                                           otherFolders());
    });
}

SecondPlan::Made secondPlan(const Platform& platform, const QByteArray& folder) {
    auto children = platform.makeChildren(folder);
    auto usage = std::make_unique<PlanUsage>(queryServices(platform, *children), home(),
                                             platform.makeFolderChanges(), PlanUsage::provider(),
                                             QByteArrayList(), folder);
    return {std::move(children), std::move(usage)};
}

} // namespace

ClaudeCode::ClaudeCode(Platform& platform, AppSettings& settings)
    : settings_(settings),
      context_(liveContext(platform)),
      plan_(planUsage(platform)),
      second_(std::make_unique<SecondPlan>(
          [&platform](const QByteArray& folder) { return secondPlan(platform, folder); })) {
    followSettings();
}

ClaudeCode::~ClaudeCode() = default;

void ClaudeCode::followSettings() {
    const auto followSession = [this] {
        using Session = ContextReader::Session;
        context_.setSession(settings_.keepSession() ? Session::steady : Session::newest);
    };
    followSession();
    QObject::connect(&settings_, &AppSettings::keepSessionChanged, second_.get(),
                     [this, followSession] {
                         followSession();
                         context_.refresh();
                     });
    const auto followAccount = [this] {
        second_->setFolder(settings_.secondAccount(), QDir::homePath());
    };
    followAccount();
    QObject::connect(&settings_, &AppSettings::secondAccountChanged, second_.get(), followAccount);
}

void ClaudeCode::show(Usage& usage) {
    const auto look = [this, &usage] {
        usage.setInstalled(context_.installed());
    };
    look();
    QObject::connect(&context_, &LiveContext::changed, &usage, look);
    const auto showSecond = [this, &usage] {
        const auto plan = second_->plan();
        usage.setSecondAccount(plan ? otherPlanLine(*plan, Wording::translated) : QString());
    };
    showSecond();
    QObject::connect(second_.get(), &SecondPlan::changed, &usage, showSecond);
}

} // namespace ravelo
