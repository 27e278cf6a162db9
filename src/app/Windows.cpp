#include "app/Windows.h"

#include "app/FileChoice.h"
#include "app/Platform.h"
#include "app/SecondPlan.h"
#include "app/Transfers.h"
#include "clipboard/ClipboardManager.h"
#include "monitor/ClaudeEnvironment.h"
#include "panel/NotchController.h"
#include "platform/DesktopExtension.h"
#include "platform/DetachedJobs.h"
#include "platform/DisplayServer.h"
#include "platform/PackageUpdates.h"
#include "settings/AppSettings.h"
#include "store/Store.h"
#include "ui/settings/SettingsWindow.h"
#include "ui/setup/OnboardingController.h"
#include "ui/updates/UpdateWindow.h"
#include "updates/Updater.h"

#include <QDir>
#include <QFile>
#include <QProcessEnvironment>

#include <memory>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

Updater& updater(Platform& platform) {
    return Updater::shared([&platform] {
        return std::make_unique<Updater>(std::move(platform.packages), u"" RAVELO_VERSION ""_s);
    });
}

SettingsWindow::SnippetFiles snippetFiles(Transfers& transfers) {
    using Done = SettingsWindow::SnippetFiles::Done;
    const auto withFile = [&transfers](FileChoice::Kind kind,
                                       void (Transfers::*transfer)(const QString&, Done)) {
        return [&transfers, kind, transfer](QWindow& over, const Done& done) {
            FileChoice::ask(over, kind, [&transfers, transfer, done](const QString& path) {
                (transfers.*transfer)(path, done);
            });
        };
    };
    return {withFile(FileChoice::Kind::toWrite, &Transfers::exportSnippets),
            withFile(FileChoice::Kind::toRead, &Transfers::importSnippets)};
}

} // namespace

Windows::Windows(Services services) : notch_(services.notch) {
    Platform& platform = services.platform;
    const TitledWindow::Beside beside{services.panel, [&platform](QWindow& window) {
                                          return platform.display->windowFrame(window);
                                      }};
    settings_ = std::make_unique<SettingsWindow>(SettingsWindow::Subjects{
        beside, services.store, services.settings, std::move(services.quit), platform.displayText,
        platform.extension.get(), platform.display->pasteboard().namesPrograms(),
        services.knowsSelection, std::move(services.erase), platform.shortcut.get(),
        services.canPaste, platform.display->pasteKeys(),
        [&clipboard = services.clipboard](const QString& text) { clipboard.copyText(text); },
        platform.notifier.get(), snippetFiles(services.transfers),
        [this, &platform](const QString& folder, const auto& done) {
            checkAccount(platform, folder, done);
        }});
    setup_ = std::make_unique<OnboardingController>(
        beside, services.settings, platform.display->screens(), platform.extension.get(),
        platform.shortcut.get());
    updates_ = std::make_unique<UpdateWindow>(beside, updater(platform));
    QObject::connect(&notch_, &NotchController::settingsRequested, settings_.get(),
                     &SettingsWindow::show);
}

Windows::~Windows() = default;

/// The folder may be on a disk that hangs.
void Windows::checkAccount(Platform& platform, const QString& folder,
                           const std::function<void(const QString& problem)>& done) {
    const auto problem = std::make_shared<QString>(SecondPlan::tr("No such folder"));
    accountCheck_ = platform.jobs->run(
        [folder, problem] {
            const QString home = QDir::homePath();
            *problem =
                secondAccountProblem(folder, home,
                                     otherClaudeFolders(QFile::encodeName(home),
                                                        QProcessEnvironment::systemEnvironment()));
        },
        [problem, done] { done(*problem); });
}

void Windows::showSetup() {
    notch_.dismiss();
    setup_->show();
}

void Windows::showUpdates() {
    notch_.dismiss();
    updates_->show();
}

} // namespace ravelo
