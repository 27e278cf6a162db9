#include "ui/settings/SettingsWindow.h"

#include "platform/Notifier.h"
#include "ui/lists/DataSize.h"

#include <QLocale>

#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

QString currentDesktop() {
    return qEnvironmentVariable("XDG_CURRENT_DESKTOP");
}

} // namespace

SettingsWindow::SettingsWindow(Subjects subjects)
    : subjects_(std::move(subjects)),
      extension_(subjects_.extension),
      shortcut_(subjects_.shortcut, subjects_.settings, currentDesktop()),
      pastePermission_(subjects_.pasteKeys),
      usedLanguage_(subjects_.settings.language()) {
    connect(&subjects_.store, &Store::clipsChanged, this, &SettingsWindow::clipsChanged);
    connect(&subjects_.store, &Store::snippetsChanged, this, &SettingsWindow::snippetsChanged);
}

SettingsWindow::~SettingsWindow() = default;

QString SettingsWindow::loginNote() {
    const QString compositor = compositorWithFile(currentDesktop());
    return compositor.isEmpty()
               ? QString()
               : tr("On %1, also start ravelo from its configuration file.").arg(compositor);
}

int SettingsWindow::clipCount() const {
    return static_cast<int>(subjects_.store.clips().size());
}

int SettingsWindow::lastHourCount() const {
    return static_cast<int>(subjects_.store.lastHourCount());
}

QString SettingsWindow::textSize() const {
    return dataSize(subjects_.store.textBytes(), QLocale());
}

QString SettingsWindow::imageSize() const {
    return dataSize(subjects_.store.imageBytes(), QLocale());
}

int SettingsWindow::snippetCount() const {
    return static_cast<int>(subjects_.store.snippets().size());
}

void SettingsWindow::chooseSecondAccount(const QString& folder) {
    const auto finish = [this, folder](const QString& problem) {
        accountProblem_ = problem;
        if (problem.isEmpty()) {
            subjects_.settings.secondAccount.set(folder);
        }
        Q_EMIT accountProblemChanged();
    };
    if (subjects_.checkAccount) {
        subjects_.checkAccount(folder, finish);
    } else {
        finish({});
    }
}

void SettingsWindow::setSnippetNews(const QString& news, bool failed) {
    snippetNews_ = news;
    snippetsFailed_ = failed;
    Q_EMIT snippetNewsChanged();
}

void SettingsWindow::exportSnippets() {
    if (!subjects_.snippets.exportTo) {
        return;
    }
    subjects_.snippets.exportTo(*window_, [this](const Result<qsizetype>& done) {
        setSnippetNews(!done        ? done.error().message
                       : *done == 1 ? tr("1 snippet exported.")
                                    : tr("%1 snippets exported.").arg(QLocale().toString(*done)),
                       !done);
    });
}

void SettingsWindow::importSnippets() {
    if (!subjects_.snippets.importFrom) {
        return;
    }
    subjects_.snippets.importFrom(*window_, [this](const Result<qsizetype>& done) {
        setSnippetNews(!done        ? done.error().message
                       : *done == 0 ? tr("All of them are there already.")
                       : *done == 1 ? tr("1 snippet imported.")
                                    : tr("%1 snippets imported.").arg(QLocale().toString(*done)),
                       !done);
    });
}

void SettingsWindow::show() {
    setSnippetNews({}, false);
    Q_EMIT clipsChanged();
    subjects_.settings.refreshLaunchAtLogin();
    lookForNotifications();
    if (!window_) {
        window_ = std::make_unique<TitledWindow>(subjects_.beside, tr("Ravelo Settings"),
                                                 QSize(460, 600));
        window_->load(u"Settings/SettingsView.qml"_s, this);
    }
    window_->bringToFront();
}

void SettingsWindow::lookForNotifications() {
    if (subjects_.notifier == nullptr) {
        return;
    }
    looking_ = subjects_.notifier->look([this](bool available) {
        hasNotifications_ = available;
        Q_EMIT hasNotificationsChanged();
    });
}

} // namespace ravelo
