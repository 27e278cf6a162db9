#pragma once

#include <QObject>
#include <QStringList>

#include <functional>

namespace ravelo {

class LoginItem;
class Preferences;

/// The user's preferences, read once at construction and written when they are set. A value of the
/// wrong type counts as absent, and so does one that is not allowed, except for `historyLength`.
/// Main thread only.
class AppSettings : public QObject {
    Q_OBJECT
    Q_PROPERTY(double bgOpacity READ bgOpacity WRITE bgOpacity NOTIFY bgOpacityChanged)
    Q_PROPERTY(bool fullBlack READ fullBlack WRITE fullBlack NOTIFY fullBlackChanged)
    Q_PROPERTY(double panelWidth READ panelWidth WRITE panelWidth NOTIFY panelWidthChanged)
    Q_PROPERTY(
        bool hotkeyEnabled READ hotkeyEnabled WRITE hotkeyEnabled NOTIFY hotkeyEnabledChanged)
    Q_PROPERTY(QString lastTab READ lastTab WRITE lastTab NOTIFY lastTabChanged)
    Q_PROPERTY(bool pinnedBar READ pinnedBar WRITE pinnedBar NOTIFY pinnedBarChanged)
    Q_PROPERTY(QString macType READ macType WRITE macType NOTIFY macTypeChanged)
    Q_PROPERTY(bool newestFirst READ newestFirst WRITE newestFirst NOTIFY newestFirstChanged)
    Q_PROPERTY(int historyLength READ historyLength WRITE historyLength NOTIFY historyLengthChanged)
    Q_PROPERTY(bool keepTextsExactly READ keepTextsExactly WRITE keepTextsExactly NOTIFY
                   keepTextsExactlyChanged)
    Q_PROPERTY(int keepDays READ keepDays WRITE keepDays NOTIFY keepDaysChanged)
    Q_PROPERTY(int textLimit READ textLimit WRITE textLimit NOTIFY textLimitChanged)
    Q_PROPERTY(int imageLimit READ imageLimit WRITE imageLimit NOTIFY imageLimitChanged)
    Q_PROPERTY(bool forgetKeyWhileLocked READ forgetKeyWhileLocked WRITE forgetKeyWhileLocked NOTIFY
                   forgetKeyWhileLockedChanged)
    Q_PROPERTY(QStringList ignoredPrograms READ ignoredPrograms WRITE ignoredPrograms NOTIFY
                   ignoredProgramsChanged)
    Q_PROPERTY(QStringList ignoredPatterns READ ignoredPatterns WRITE ignoredPatterns NOTIFY
                   ignoredPatternsChanged)
    Q_PROPERTY(int forgetSecrets READ forgetSecrets WRITE forgetSecrets NOTIFY forgetSecretsChanged)
    Q_PROPERTY(bool keyLikeWords READ keyLikeWords WRITE keyLikeWords NOTIFY keyLikeWordsChanged)
    Q_PROPERTY(bool keepSelectedText READ keepSelectedText WRITE keepSelectedText NOTIFY
                   keepSelectedTextChanged)
    Q_PROPERTY(QString shortcut READ shortcut WRITE shortcut NOTIFY shortcutChanged)
    Q_PROPERTY(bool returnPastes READ returnPastes WRITE returnPastes NOTIFY returnPastesChanged)
    Q_PROPERTY(QString joinWith READ joinWith WRITE joinWith NOTIFY joinWithChanged)
    Q_PROPERTY(bool showOrigins READ showOrigins WRITE showOrigins NOTIFY showOriginsChanged)
    Q_PROPERTY(
        bool hideClaudeCode READ hideClaudeCode WRITE hideClaudeCode NOTIFY hideClaudeCodeChanged)
    Q_PROPERTY(
        bool showPeakHours READ showPeakHours WRITE showPeakHours NOTIFY showPeakHoursChanged)
    Q_PROPERTY(bool keepSession READ keepSession WRITE keepSession NOTIFY keepSessionChanged)
    Q_PROPERTY(bool handedOverFirst READ handedOverFirst WRITE handedOverFirst NOTIFY
                   handedOverFirstChanged)
    Q_PROPERTY(
        QString secondAccount READ secondAccount WRITE secondAccount NOTIFY secondAccountChanged)
    Q_PROPERTY(bool notifyTimer READ notifyTimer WRITE notifyTimer NOTIFY notifyTimerChanged)
    Q_PROPERTY(bool notifyFiles READ notifyFiles WRITE notifyFiles NOTIFY notifyFilesChanged)
    Q_PROPERTY(bool notifySaving READ notifySaving WRITE notifySaving NOTIFY notifySavingChanged)
    Q_PROPERTY(bool notifyPlan READ notifyPlan WRITE notifyPlan NOTIFY notifyPlanChanged)
    Q_PROPERTY(QString language READ language WRITE language NOTIFY languageChanged)
    Q_PROPERTY(bool onboarded READ onboarded WRITE onboarded NOTIFY onboardedChanged)
    Q_PROPERTY(
        bool launchAtLogin READ launchAtLogin WRITE setLaunchAtLogin NOTIFY launchAtLoginChanged)

    Preferences& preferences_;
    LoginItem& loginItem_;

public:
    static constexpr int neverKept = 0;
    static constexpr int asAnyText = -1;

    enum class Kept { always, untilTheEnd };

    /// One preference. Code calls `setting()` and `setting.set(value)`; Qt's property system reads
    /// it as `setting()` and writes it as `setting(value)`.
    template <typename T>
    class Setting {
    public:
        using Changed = void (AppSettings::*)();
        using Allowed = T (*)(const T& value, const T& standard);

        /// Without a value it is `standard`. `allowed` returns what a value counts as. `changed` is
        /// emitted once it is written. `Kept::untilTheEnd`: it is never written.
        Setting(AppSettings& settings, QString key, T standard, Changed changed,
                Allowed allowed = nullptr, Kept kept = Kept::always);
        Setting(const Setting&) = delete;
        Setting& operator=(const Setting&) = delete;

        [[nodiscard]] const T& operator()() const { return value_; }

        void operator()(const T& value) { set(value); }

        void set(const T& value);

    private:
        [[nodiscard]] T effective(const T& value) const;

        AppSettings& settings_;
        const QString key_;
        const T standard_;
        const Changed changed_;
        const Allowed allowed_;
        const Kept kept_;
        T value_;
    };

    AppSettings(Preferences& preferences, LoginItem& loginItem);

    Setting<double> bgOpacity;
    Setting<bool> fullBlack;
    Setting<double> panelWidth; ///< Logical pixels.
    Setting<bool> hotkeyEnabled;
    Setting<QString> lastTab;
    Setting<bool> pinnedBar;
    /// "auto", "notch" or "none"; other texts count as "auto".
    Setting<QString> macType;
    /// Newer clips come first, also after a pin.
    Setting<bool> newestFirst;
    /// How many unpinned clips are kept: 60, 200 or 1,000. Other values count as the next larger.
    Setting<int> historyLength;
    static constexpr int longestHistory = 1000;
    /// The shortest of them that keeps so many clips, or the longest.
    [[nodiscard]] static int historyLengthFor(qsizetype clips);
    /// Copied texts keep white space at their ends.
    Setting<bool> keepTextsExactly;
    /// How long unpinned clips are kept: 30, 7 or 1; 0 for ever.
    Setting<int> keepDays;
    /// Of all texts and of all images together, in MB; 0 for none.
    Setting<int> textLimit;
    Setting<int> imageLimit;
    /// Of the encrypted store, while the screen is locked.
    Setting<bool> forgetKeyWhileLocked;
    /// Copies from programs with these names are not captured.
    Setting<QStringList> ignoredPrograms;
    /// Nor are texts that match one of these expressions.
    Setting<QStringList> ignoredPatterns;
    /// When secrets are forgotten: after 1, 10 or 60 minutes, `neverKept` or `asAnyText`.
    Setting<int> forgetSecrets;
    /// Single words that look like keys count as secrets.
    Setting<bool> keyLikeWords;
    /// Selected text, too, is captured.
    Setting<bool> keepSelectedText;
    /// The keys that open the panel from anywhere, see KeyCombination; empty for none.
    Setting<QString> shortcut;
    /// Return pastes at once, and Shift+Return only copies; otherwise it is the other way round.
    Setting<bool> returnPastes;
    /// What several clips are joined by: "line", "space", "comma" or "nothing"; other texts count
    /// as "line".
    Setting<QString> joinWith;
    /// Clips show the program they were copied from, and the size of images and files.
    Setting<bool> showOrigins;
    /// Hides Claude Code's usage if it is not installed.
    Setting<bool> hideClaudeCode;
    /// Peak hours are shown beside the session.
    Setting<bool> showPeakHours;
    /// Stay with the session that wrote last until it has been quiet for a minute.
    Setting<bool> keepSession;
    /// Show what Claude Code hands to its status line instead of what its transcripts say.
    Setting<bool> handedOverFirst;
    /// Claude Code's folder of a second account; empty if there is none.
    Setting<QString> secondAccount;
    /// Desktop notifications when the timer ends, ...
    Setting<bool> notifyTimer;
    /// ... when files were received, ...
    Setting<bool> notifyFiles;
    /// ... when saving fails, ...
    Setting<bool> notifySaving;
    /// ... and when the plan reaches a threshold or is reset.
    Setting<bool> notifyPlan;
    /// Of all texts, from the next start on: "en", "pt_BR" or "de"; empty for the texts as they
    /// are.
    Setting<QString> language;
    Setting<bool> onboarded;

    [[nodiscard]] bool launchAtLogin() const { return launchAtLogin_; }

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
    void secondAccountChanged();
    void notifyTimerChanged();
    void notifyFilesChanged();
    void notifySavingChanged();
    void notifyPlanChanged();
    void languageChanged();
    void onboardedChanged();
    void launchAtLoginChanged();

private:
    void showLaunchAtLogin(bool on);

    bool launchAtLogin_;
};

} // namespace ravelo
