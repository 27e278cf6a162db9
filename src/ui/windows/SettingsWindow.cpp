#include "ui/windows/SettingsWindow.h"

#include "platform/Notifier.h"

#include <QLocale>

#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

/// With one decimal below 10 MB.
QString megabytes(qint64 bytes) {
    if (bytes < (1 << 20)) {
        return SettingsWindow::tr("%1 KB").arg(QLocale().toString((bytes + 1023) / 1024));
    }
    const double size = static_cast<double>(bytes) / (1 << 20);
    return SettingsWindow::tr("%1 MB").arg(QLocale().toString(size, 'f', size < 10 ? 1 : 0));
}

} // namespace

SettingsWindow::SettingsWindow(Subjects subjects)
    : subjects_(std::move(subjects)),
      extension_(subjects_.extension),
      shortcut_(subjects_.shortcut, subjects_.settings,
                qEnvironmentVariable("XDG_CURRENT_DESKTOP")) {
    connect(&subjects_.store, &Store::clipsChanged, this, &SettingsWindow::clipsChanged);
}

SettingsWindow::~SettingsWindow() = default;

int SettingsWindow::clipCount() const {
    return static_cast<int>(subjects_.store.clips().size());
}

int SettingsWindow::lastHourCount() const {
    return static_cast<int>(subjects_.store.lastHourCount());
}

QString SettingsWindow::textSize() const {
    return megabytes(subjects_.store.textBytes());
}

QString SettingsWindow::imageSize() const {
    return megabytes(subjects_.store.imageBytes());
}

void SettingsWindow::show() {
    Q_EMIT clipsChanged();
    subjects_.settings.refreshLaunchAtLogin();
    lookForNotifications();
    if (!window_) {
        window_ = std::make_unique<TitledWindow>(subjects_.beside, tr("Ravelo Settings"),
                                                 QSize(460, 600));
        window_->load(u"SettingsView.qml"_s, this);
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
