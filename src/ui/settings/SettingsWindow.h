#pragma once

#include "base/Handle.h"
#include "base/Result.h"
#include "settings/AppSettings.h"
#include "store/Store.h"
#include "ui/settings/PastePermission.h"
#include "ui/windows/ExtensionOffer.h"
#include "ui/windows/ShortcutChoice.h"
#include "ui/windows/TitledWindow.h"

#include <QObject>
#include <QQmlEngine>

#include <functional>
#include <memory>

namespace ravelo {

class Notifier;

/// The settings window: created at first use, hidden when closed. Main thread.
class SettingsWindow : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made in C++")
    Q_PROPERTY(ravelo::AppSettings* settings READ settings CONSTANT)
    Q_PROPERTY(QString display READ display CONSTANT)
    /// What else is needed to start at login; empty if nothing is.
    Q_PROPERTY(QString loginNote READ loginNote CONSTANT)
    Q_PROPERTY(ravelo::ExtensionOffer* extension READ extension CONSTANT)
    Q_PROPERTY(ravelo::ShortcutChoice* shortcut READ shortcut CONSTANT)
    /// Whether the desktop lets us type.
    Q_PROPERTY(bool canPaste READ canPaste CONSTANT)
    Q_PROPERTY(ravelo::PastePermission* pastePermission READ pastePermission CONSTANT)
    /// Whether the desktop says which program copies, and what is selected.
    Q_PROPERTY(bool knowsPrograms READ knowsPrograms CONSTANT)
    Q_PROPERTY(bool knowsSelection READ knowsSelection CONSTANT)
    /// Whether the desktop has notifications; yes until it is known.
    Q_PROPERTY(bool hasNotifications READ hasNotifications NOTIFY hasNotificationsChanged)
    Q_PROPERTY(int clipCount READ clipCount NOTIFY clipsChanged)
    Q_PROPERTY(int lastHourCount READ lastHourCount NOTIFY clipsChanged)
    Q_PROPERTY(QString textSize READ textSize NOTIFY clipsChanged)
    Q_PROPERTY(QString imageSize READ imageSize NOTIFY clipsChanged)
    /// The setting, as it was when the program started.
    Q_PROPERTY(QString usedLanguage READ usedLanguage CONSTANT)
    Q_PROPERTY(int snippetCount READ snippetCount NOTIFY snippetsChanged)
    /// How the last export or import of snippets ended.
    Q_PROPERTY(QString snippetNews READ snippetNews NOTIFY snippetNewsChanged)
    Q_PROPERTY(bool snippetsFailed READ snippetsFailed NOTIFY snippetNewsChanged)

    /// Why the folder that was entered last is not used.
    Q_PROPERTY(QString accountProblem READ accountProblem NOTIFY accountProblemChanged)

public:
    /// Asks for a file and writes snippets to it, or reads them. Reports how many there were, or
    /// why none; nothing if the user chose no file.
    struct SnippetFiles {
        using Done = std::function<void(const Result<qsizetype>&)>;
        using Action = std::function<void(QWindow& over, Done done)>;

        Action exportTo;
        Action importFrom;
    };

    /// All outlive this.
    struct Subjects {
        TitledWindow::Beside beside;
        Store& store;
        AppSettings& settings;
        std::function<void()> quit;            ///< Quits the program, asynchronously.
        QString display;                       ///< Which display server is in use, and why.
        DesktopExtension* extension = nullptr; ///< Null if the desktop needs none.
        bool knowsPrograms = true;
        bool knowsSelection = true;
        std::function<void()> erase = {}; ///< Everything; then the program ends.
        GlobalShortcut* shortcut = nullptr;
        bool canPaste = true;
        PasteKeys* pasteKeys = nullptr;
        std::function<void(const QString& text)> copy = {};
        Notifier* notifier = nullptr;
        SnippetFiles snippets = {};
        /// Reports why a folder cannot be that of a second account; an empty text if it can.
        std::function<void(const QString& folder, std::function<void(const QString& problem)>)>
            checkAccount = {};
    };

    explicit SettingsWindow(Subjects subjects);
    ~SettingsWindow() override;

    [[nodiscard]] AppSettings* settings() const { return &subjects_.settings; }

    [[nodiscard]] const QString& display() const { return subjects_.display; }

    [[nodiscard]] ExtensionOffer* extension() { return &extension_; }

    [[nodiscard]] ShortcutChoice* shortcut() { return &shortcut_; }

    [[nodiscard]] bool canPaste() const { return subjects_.canPaste; }

    [[nodiscard]] PastePermission* pastePermission() { return &pastePermission_; }

    [[nodiscard]] bool knowsPrograms() const { return subjects_.knowsPrograms; }

    [[nodiscard]] bool knowsSelection() const { return subjects_.knowsSelection; }

    [[nodiscard]] static QString loginNote();

    [[nodiscard]] bool hasNotifications() const { return hasNotifications_; }

    [[nodiscard]] int clipCount() const;

    [[nodiscard]] int lastHourCount() const;
    /// Such as "3.1 MB".
    [[nodiscard]] QString textSize() const;
    [[nodiscard]] QString imageSize() const;

    [[nodiscard]] const QString& usedLanguage() const { return usedLanguage_; }

    [[nodiscard]] int snippetCount() const;

    [[nodiscard]] const QString& snippetNews() const { return snippetNews_; }

    [[nodiscard]] bool snippetsFailed() const { return snippetsFailed_; }

    [[nodiscard]] const QString& accountProblem() const { return accountProblem_; }

    /// The former one stays if there is a problem.
    Q_INVOKABLE void chooseSecondAccount(const QString& folder);

    Q_INVOKABLE void exportSnippets();
    Q_INVOKABLE void importSnippets();

    void show();

    /// Null before first use.
    [[nodiscard]] TitledWindow* window() const { return window_.get(); }

    Q_INVOKABLE void clearClips() { subjects_.store.clearClips(); }

    /// What is shown changes with time, too.
    Q_INVOKABLE void refreshSizes() { Q_EMIT clipsChanged(); }

    Q_INVOKABLE void clearLastHour() { subjects_.store.clearLastHour(); }

    Q_INVOKABLE void erase() {
        if (subjects_.erase) {
            subjects_.erase();
        }
    }

    Q_INVOKABLE void copyText(const QString& text) {
        if (subjects_.copy) {
            subjects_.copy(text);
        }
    }

    Q_INVOKABLE void quit() { subjects_.quit(); }

Q_SIGNALS:
    void clipsChanged();
    void hasNotificationsChanged();
    void snippetsChanged();
    void snippetNewsChanged();
    void accountProblemChanged();

private:
    void lookForNotifications();
    void setSnippetNews(const QString& news, bool failed);

    Subjects subjects_;
    ExtensionOffer extension_;
    ShortcutChoice shortcut_;
    PastePermission pastePermission_;
    bool hasNotifications_ = true;
    Handle looking_;
    std::unique_ptr<TitledWindow> window_;
    QString usedLanguage_;
    QString accountProblem_;
    QString snippetNews_;
    bool snippetsFailed_ = false;
};

} // namespace ravelo
