#pragma once

#include <QObject>
#include <QStringList>

#include <functional>

namespace ravelo {

class LoginItem;
class Preferences;

/// The user's preferences, read once at construction and written when they are set. A value of the
/// wrong type counts as absent, and so does a number that makes the panel invisible or unusable;
/// other numbers beyond the sliders' ranges are used. Main thread only.
class AppSettings : public QObject {
    Q_OBJECT
    Q_PROPERTY(double bgOpacity READ bgOpacity WRITE setBgOpacity NOTIFY bgOpacityChanged)
    Q_PROPERTY(bool fullBlack READ fullBlack WRITE setFullBlack NOTIFY fullBlackChanged)
    Q_PROPERTY(double panelWidth READ panelWidth WRITE setPanelWidth NOTIFY panelWidthChanged)
    Q_PROPERTY(
        bool hotkeyEnabled READ hotkeyEnabled WRITE setHotkeyEnabled NOTIFY hotkeyEnabledChanged)
    Q_PROPERTY(QString lastTab READ lastTab WRITE setLastTab NOTIFY lastTabChanged)
    Q_PROPERTY(bool pinnedBar READ pinnedBar WRITE setPinnedBar NOTIFY pinnedBarChanged)
    Q_PROPERTY(QString macType READ macType WRITE setMacType NOTIFY macTypeChanged)
    Q_PROPERTY(bool newestFirst READ newestFirst WRITE setNewestFirst NOTIFY newestFirstChanged)
    Q_PROPERTY(
        int historyLength READ historyLength WRITE setHistoryLength NOTIFY historyLengthChanged)
    Q_PROPERTY(bool keepTextsExactly READ keepTextsExactly WRITE setKeepTextsExactly NOTIFY
                   keepTextsExactlyChanged)
    Q_PROPERTY(int keepDays READ keepDays WRITE setKeepDays NOTIFY keepDaysChanged)
    Q_PROPERTY(int textLimit READ textLimit WRITE setTextLimit NOTIFY textLimitChanged)
    Q_PROPERTY(int imageLimit READ imageLimit WRITE setImageLimit NOTIFY imageLimitChanged)
    Q_PROPERTY(bool forgetKeyWhileLocked READ forgetKeyWhileLocked WRITE setForgetKeyWhileLocked
                   NOTIFY forgetKeyWhileLockedChanged)
    Q_PROPERTY(QStringList ignoredPrograms READ ignoredPrograms WRITE setIgnoredPrograms NOTIFY
                   ignoredProgramsChanged)
    Q_PROPERTY(QStringList ignoredPatterns READ ignoredPatterns WRITE setIgnoredPatterns NOTIFY
                   ignoredPatternsChanged)
    Q_PROPERTY(
        int forgetSecrets READ forgetSecrets WRITE setForgetSecrets NOTIFY forgetSecretsChanged)
    Q_PROPERTY(bool keyLikeWords READ keyLikeWords WRITE setKeyLikeWords NOTIFY keyLikeWordsChanged)
    Q_PROPERTY(bool keepSelectedText READ keepSelectedText WRITE setKeepSelectedText NOTIFY
                   keepSelectedTextChanged)
    Q_PROPERTY(QString shortcut READ shortcut WRITE setShortcut NOTIFY shortcutChanged)
    Q_PROPERTY(bool returnPastes READ returnPastes WRITE setReturnPastes NOTIFY returnPastesChanged)
    Q_PROPERTY(QString joinWith READ joinWith WRITE setJoinWith NOTIFY joinWithChanged)
    Q_PROPERTY(bool showOrigins READ showOrigins WRITE setShowOrigins NOTIFY showOriginsChanged)
    Q_PROPERTY(bool hideClaudeCode READ hideClaudeCode WRITE setHideClaudeCode NOTIFY
                   hideClaudeCodeChanged)
    Q_PROPERTY(
        bool showPeakHours READ showPeakHours WRITE setShowPeakHours NOTIFY showPeakHoursChanged)
    Q_PROPERTY(bool keepSession READ keepSession WRITE setKeepSession NOTIFY keepSessionChanged)
    Q_PROPERTY(bool handedOverFirst READ handedOverFirst WRITE setHandedOverFirst NOTIFY
                   handedOverFirstChanged)
    Q_PROPERTY(bool notifyTimer READ notifyTimer WRITE setNotifyTimer NOTIFY notifyTimerChanged)
    Q_PROPERTY(bool notifyFiles READ notifyFiles WRITE setNotifyFiles NOTIFY notifyFilesChanged)
    Q_PROPERTY(bool notifySaving READ notifySaving WRITE setNotifySaving NOTIFY notifySavingChanged)
    Q_PROPERTY(bool notifyPlan READ notifyPlan WRITE setNotifyPlan NOTIFY notifyPlanChanged)
    Q_PROPERTY(QString language READ language WRITE setLanguage NOTIFY languageChanged)
    Q_PROPERTY(
        QString secondAccount READ secondAccount WRITE setSecondAccount NOTIFY secondAccountChanged)
    Q_PROPERTY(bool onboarded READ onboarded WRITE setOnboarded NOTIFY onboardedChanged)
    Q_PROPERTY(
        bool launchAtLogin READ launchAtLogin WRITE setLaunchAtLogin NOTIFY launchAtLoginChanged)

public:
    static constexpr int neverKept = 0;
    static constexpr int asAnyText = -1;

    AppSettings(Preferences& preferences, LoginItem& loginItem);

    [[nodiscard]] double bgOpacity() const;
    [[nodiscard]] bool fullBlack() const;
    [[nodiscard]] double panelWidth() const; ///< Logical pixels.
    [[nodiscard]] bool hotkeyEnabled() const;
    [[nodiscard]] QString lastTab() const;
    [[nodiscard]] bool pinnedBar() const;
    /// "auto", "notch" or "none"; other texts count as "auto".
    [[nodiscard]] QString macType() const;
    /// Newer clips come first, also after a pin.
    [[nodiscard]] bool newestFirst() const;
    /// How many unpinned clips are kept: 60, 200 or 1,000. Any other number counts as absent.
    [[nodiscard]] int historyLength() const;
    /// Copied texts keep white space at their ends.
    [[nodiscard]] bool keepTextsExactly() const;
    /// How long unpinned clips are kept: 30, 7 or 1; 0 for ever. Any other number counts as absent.
    [[nodiscard]] int keepDays() const;
    /// Of all texts and of all images together, in MB; 0 for none.
    [[nodiscard]] int textLimit() const;
    [[nodiscard]] int imageLimit() const;
    /// Of the encrypted store, while the screen is locked.
    [[nodiscard]] bool forgetKeyWhileLocked() const;

    /// Copies from programs with these names are not captured.
    [[nodiscard]] const QStringList& ignoredPrograms() const { return ignoredPrograms_; }

    /// Nor are texts that match one of these expressions.
    [[nodiscard]] const QStringList& ignoredPatterns() const { return ignoredPatterns_; }

    /// When secrets are forgotten: after 1, 10 or 60 minutes, `neverKept` or `asAnyText`. Any other
    /// number counts as absent.
    [[nodiscard]] int forgetSecrets() const { return forgetSecrets_; }

    /// Single words that look like keys count as secrets.
    [[nodiscard]] bool keyLikeWords() const { return keyLikeWords_; }

    /// Selected text, too, is captured.
    [[nodiscard]] bool keepSelectedText() const { return keepSelectedText_; }

    /// The keys that open the panel from anywhere, see KeyCombination; empty for none.
    [[nodiscard]] const QString& shortcut() const { return shortcut_; }

    /// Return pastes at once, and Shift+Return only copies; otherwise it is the other way round.
    [[nodiscard]] bool returnPastes() const { return returnPastes_; }

    /// What several clips are joined by: "line", "space", "comma" or "nothing"; other texts count
    /// as "line".
    [[nodiscard]] const QString& joinWith() const { return joinWith_; }

    /// Clips show the program they were copied from, and the size of images and files.
    [[nodiscard]] bool showOrigins() const { return showOrigins_; }

    /// Hides Claude Code's usage if it is not installed.
    [[nodiscard]] bool hideClaudeCode() const;

    /// Peak hours are shown beside the session.
    [[nodiscard]] bool showPeakHours() const { return showPeakHours_; }

    /// Stay with the session that wrote last until it has been quiet for a minute.
    [[nodiscard]] bool keepSession() const { return keepSession_; }

    /// Show what Claude Code hands to its status line instead of what its transcripts say.
    [[nodiscard]] bool handedOverFirst() const { return handedOverFirst_; }

    /// Claude Code's folder of a second account; empty if there is none.
    [[nodiscard]] const QString& secondAccount() const { return secondAccount_; }

    /// Desktop notifications when the timer ends, ...
    [[nodiscard]] bool notifyTimer() const { return notifyTimer_; }

    /// ... when files were received, ...
    [[nodiscard]] bool notifyFiles() const { return notifyFiles_; }

    /// ... when saving fails, ...
    [[nodiscard]] bool notifySaving() const { return notifySaving_; }

    /// ... and when the plan reaches a threshold or is reset.
    [[nodiscard]] bool notifyPlan() const { return notifyPlan_; }

    /// Of all texts, from the next start on: "en", "pt_BR" or "de"; empty for the texts as they
    /// are. Anything else counts as absent.
    [[nodiscard]] const QString& language() const { return language_; }

    [[nodiscard]] bool onboarded() const;
    [[nodiscard]] bool launchAtLogin() const;

    void setBgOpacity(double opacity);
    void setFullBlack(bool on);
    void setPanelWidth(double width);
    void setHotkeyEnabled(bool on); ///< Until the program ends: not written back.
    void setLastTab(const QString& tab);
    void setPinnedBar(bool on); ///< Until the program ends: not written back.
    void setMacType(const QString& type);
    void setNewestFirst(bool on);
    void setHistoryLength(int clips);
    void setKeepTextsExactly(bool on);
    void setKeepDays(int days);
    void setTextLimit(int megabytes);
    void setImageLimit(int megabytes);
    void setForgetKeyWhileLocked(bool on);
    void setIgnoredPrograms(const QStringList& names);
    void setIgnoredPatterns(const QStringList& expressions);
    void setForgetSecrets(int minutes);
    void setKeyLikeWords(bool on);
    void setKeepSelectedText(bool on);
    void setShortcut(const QString& keys);
    void setReturnPastes(bool on);
    void setJoinWith(const QString& how);
    void setShowOrigins(bool on);
    void setHideClaudeCode(bool on);
    void setShowPeakHours(bool on);
    void setKeepSession(bool on);
    void setHandedOverFirst(bool on);
    void setNotifyTimer(bool on);
    void setNotifyFiles(bool on);
    void setNotifySaving(bool on);
    void setNotifyPlan(bool on);
    void setLanguage(const QString& language);
    void setSecondAccount(const QString& folder);
    void setOnboarded(bool done);
    void setLaunchAtLogin(bool on); ///< Registers or unregisters at each call.

    /// Reads the state again: desktops have settings for it, too.
    void refreshLaunchAtLogin();

    /// Registers the program to start at login, once per installation.
    void setupLoginItemDefaultIfNeeded();

    std::function<void()> onLayoutChange; ///< After each change of `macType`, once it is written.
    std::function<void(bool)> onHotkeyChange; ///< Never called by this object.
    std::function<void(bool)> onPinnedChange; ///< Never called by this object.

Q_SIGNALS:
    void bgOpacityChanged();
    void fullBlackChanged();
    void panelWidthChanged();
    void hotkeyEnabledChanged();
    void lastTabChanged();
    void pinnedBarChanged();
    void macTypeChanged();
    void newestFirstChanged();
    void historyLengthChanged();
    void keepTextsExactlyChanged();
    void keepDaysChanged();
    void textLimitChanged();
    void imageLimitChanged();
    void forgetKeyWhileLockedChanged();
    void ignoredProgramsChanged();
    void ignoredPatternsChanged();
    void forgetSecretsChanged();
    void keyLikeWordsChanged();
    void keepSelectedTextChanged();
    void shortcutChanged();
    void returnPastesChanged();
    void joinWithChanged();
    void showOriginsChanged();
    void hideClaudeCodeChanged();
    void showPeakHoursChanged();
    void keepSessionChanged();
    void handedOverFirstChanged();
    void notifyTimerChanged();
    void notifyFilesChanged();
    void notifySavingChanged();
    void notifyPlanChanged();
    void languageChanged();
    void secondAccountChanged();
    void onboardedChanged();
    void launchAtLoginChanged();

private:
    template <typename T>
    bool change(T& field, const T& value, void (AppSettings::*changed)());

    void applyLogin();

    Preferences& preferences_;
    LoginItem& loginItem_;
    double bgOpacity_;
    bool fullBlack_;
    double panelWidth_;
    bool hotkeyEnabled_;
    QString lastTab_;
    bool pinnedBar_;
    QString macType_;
    bool newestFirst_;
    int historyLength_;
    bool keepTextsExactly_;
    int keepDays_;
    int textLimit_;
    int imageLimit_;
    bool forgetKeyWhileLocked_;
    QStringList ignoredPrograms_;
    QStringList ignoredPatterns_;
    int forgetSecrets_;
    bool keyLikeWords_;
    bool keepSelectedText_;
    QString shortcut_;
    bool returnPastes_;
    QString joinWith_;
    bool showOrigins_;
    bool hideClaudeCode_;
    bool showPeakHours_;
    bool keepSession_;
    bool handedOverFirst_;
    bool notifyTimer_;
    bool notifyFiles_;
    bool notifySaving_;
    bool notifyPlan_;
    QString language_;
    QString secondAccount_;
    bool onboarded_;
    bool launchAtLogin_;
};

} // namespace ravelo
