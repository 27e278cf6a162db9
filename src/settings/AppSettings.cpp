#include "settings/AppSettings.h"

#include "platform/LoginItem.h"
#include "platform/Preferences.h"

#include <QJsonArray>
#include <QLoggingCategory>

#include <algorithm>
#include <array>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

/// A number that makes the panel invisible or unusable counts as absent.
double usable(const QJsonValue& value, double lowest, double highest, double standard) {
    const double number = value.toDouble(standard);
    return number >= lowest && number <= highest ? number : standard;
}

/// The first one stands for any unknown number.
template <std::size_t count>
int known(const QJsonValue& value, const std::array<int, count>& numbers) {
    const int number = value.toInt(numbers.front());
    return std::ranges::find(numbers, number) != numbers.end() ? number : numbers.front();
}

constexpr std::array lengths{60, 200, 1000};
constexpr std::array forgetting{10, 1, 60, AppSettings::neverKept, AppSettings::asAnyText};

QStringList texts(const QJsonValue& value) {
    QStringList texts;
    for (const QJsonValue& text : value.toArray()) {
        if (const QString trimmed = text.toString().trimmed(); !trimmed.isEmpty()) {
            texts.append(text.toString());
        }
    }
    return texts;
}

QString knownLanguage(const QString& name) {
    static const QStringList names{u"en"_s, u"pt_BR"_s, u"de"_s};
    return names.contains(name) ? name : QString();
}

int knownDays(const QJsonValue& value) {
    constexpr std::array known{0, 1, 7, 30};
    const int days = value.toInt(0);
    return std::ranges::find(known, days) != known.end() ? days : 0;
}

int knownMegabytes(const QJsonValue& value) {
    return std::clamp(value.toInt(0), 0, 1 << 20);
}

} // namespace

// QJsonValue's getters return the default for missing values and other types.
AppSettings::AppSettings(Preferences& preferences, LoginItem& loginItem)
    : preferences_(preferences),
      loginItem_(loginItem),
      bgOpacity_(usable(preferences.value(u"bgOpacity"_s), 0, 1, 0.55)),
      fullBlack_(preferences.value(u"fullBlack"_s).toBool(false)),
      panelWidth_(usable(preferences.value(u"panelWidth"_s), 200, 10000, 927)),
      hotkeyEnabled_(preferences.value(u"hotkeyEnabled"_s).toBool(true)),
      lastTab_(preferences.value(u"lastTab"_s).toString(u"Clipboard"_s)),
      pinnedBar_(preferences.value(u"pinnedBar"_s).toBool(false)),
      macType_(preferences.value(u"macType"_s).toString(u"auto"_s)),
      newestFirst_(preferences.value(u"newestFirst"_s).toBool(false)),
      historyLength_(known(preferences.value(u"historyLength"_s), lengths)),
      keepTextsExactly_(preferences.value(u"keepTextsExactly"_s).toBool(false)),
      keepDays_(knownDays(preferences.value(u"keepDays"_s))),
      textLimit_(knownMegabytes(preferences.value(u"textLimit"_s))),
      imageLimit_(knownMegabytes(preferences.value(u"imageLimit"_s))),
      forgetKeyWhileLocked_(preferences.value(u"forgetKeyWhileLocked"_s).toBool(false)),
      ignoredPrograms_(texts(preferences.value(u"ignoredPrograms"_s))),
      ignoredPatterns_(texts(preferences.value(u"ignoredPatterns"_s))),
      forgetSecrets_(known(preferences.value(u"forgetSecrets"_s), forgetting)),
      keyLikeWords_(preferences.value(u"keyLikeWords"_s).toBool(false)),
      keepSelectedText_(preferences.value(u"keepSelectedText"_s).toBool(false)),
      shortcut_(preferences.value(u"shortcut"_s).toString()),
      returnPastes_(preferences.value(u"returnPastes"_s).toBool(false)),
      joinWith_(preferences.value(u"joinWith"_s).toString(u"line"_s)),
      showOrigins_(preferences.value(u"showOrigins"_s).toBool(false)),
      hideClaudeCode_(preferences.value(u"hideClaudeCode"_s).toBool(false)),
      showPeakHours_(preferences.value(u"showPeakHours"_s).toBool(true)),
      keepSession_(preferences.value(u"keepSession"_s).toBool(false)),
      handedOverFirst_(preferences.value(u"handedOverFirst"_s).toBool(false)),
      notifyTimer_(preferences.value(u"notifyTimer"_s).toBool(false)),
      notifyFiles_(preferences.value(u"notifyFiles"_s).toBool(false)),
      notifySaving_(preferences.value(u"notifySaving"_s).toBool(false)),
      notifyPlan_(preferences.value(u"notifyPlan"_s).toBool(false)),
      language_(knownLanguage(preferences.value(u"language"_s).toString())),
      secondAccount_(preferences.value(u"secondAccount"_s).toString()),
      onboarded_(preferences.value(u"onboarded"_s).toBool(false)),
      launchAtLogin_(loginItem.isEnabled()) {}

double AppSettings::bgOpacity() const {
    return bgOpacity_;
}

bool AppSettings::fullBlack() const {
    return fullBlack_;
}

double AppSettings::panelWidth() const {
    return panelWidth_;
}

bool AppSettings::hotkeyEnabled() const {
    return hotkeyEnabled_;
}

QString AppSettings::lastTab() const {
    return lastTab_;
}

bool AppSettings::pinnedBar() const {
    return pinnedBar_;
}

QString AppSettings::macType() const {
    return macType_;
}

bool AppSettings::newestFirst() const {
    return newestFirst_;
}

int AppSettings::historyLength() const {
    return historyLength_;
}

bool AppSettings::keepTextsExactly() const {
    return keepTextsExactly_;
}

int AppSettings::keepDays() const {
    return keepDays_;
}

int AppSettings::textLimit() const {
    return textLimit_;
}

int AppSettings::imageLimit() const {
    return imageLimit_;
}

bool AppSettings::forgetKeyWhileLocked() const {
    return forgetKeyWhileLocked_;
}

bool AppSettings::hideClaudeCode() const {
    return hideClaudeCode_;
}

bool AppSettings::onboarded() const {
    return onboarded_;
}

bool AppSettings::launchAtLogin() const {
    return launchAtLogin_;
}

template <typename T>
bool AppSettings::change(T& field, const T& value, void (AppSettings::*changed)()) {
    if (field == value) {
        return false;
    }
    field = value;
    Q_EMIT(this->*changed)();
    return true;
}

void AppSettings::setBgOpacity(double opacity) {
    preferences_.set(u"bgOpacity"_s, opacity);
    change(bgOpacity_, opacity, &AppSettings::bgOpacityChanged);
}

void AppSettings::setFullBlack(bool on) {
    preferences_.set(u"fullBlack"_s, on);
    change(fullBlack_, on, &AppSettings::fullBlackChanged);
}

void AppSettings::setPanelWidth(double width) {
    preferences_.set(u"panelWidth"_s, width);
    change(panelWidth_, width, &AppSettings::panelWidthChanged);
}

void AppSettings::setHotkeyEnabled(bool on) {
    change(hotkeyEnabled_, on, &AppSettings::hotkeyEnabledChanged);
}

void AppSettings::setLastTab(const QString& tab) {
    preferences_.set(u"lastTab"_s, tab);
    change(lastTab_, tab, &AppSettings::lastTabChanged);
}

void AppSettings::setPinnedBar(bool on) {
    change(pinnedBar_, on, &AppSettings::pinnedBarChanged);
}

void AppSettings::setMacType(const QString& type) {
    preferences_.set(u"macType"_s, type);
    if (change(macType_, type, &AppSettings::macTypeChanged) && onLayoutChange) {
        onLayoutChange();
    }
}

void AppSettings::setNewestFirst(bool on) {
    preferences_.set(u"newestFirst"_s, on);
    change(newestFirst_, on, &AppSettings::newestFirstChanged);
}

void AppSettings::setHistoryLength(int clips) {
    preferences_.set(u"historyLength"_s, clips);
    change(historyLength_, known(clips, lengths), &AppSettings::historyLengthChanged);
}

void AppSettings::setKeepTextsExactly(bool on) {
    preferences_.set(u"keepTextsExactly"_s, on);
    change(keepTextsExactly_, on, &AppSettings::keepTextsExactlyChanged);
}

void AppSettings::setKeepDays(int days) {
    preferences_.set(u"keepDays"_s, days);
    change(keepDays_, knownDays(days), &AppSettings::keepDaysChanged);
}

void AppSettings::setTextLimit(int megabytes) {
    preferences_.set(u"textLimit"_s, megabytes);
    change(textLimit_, knownMegabytes(megabytes), &AppSettings::textLimitChanged);
}

void AppSettings::setImageLimit(int megabytes) {
    preferences_.set(u"imageLimit"_s, megabytes);
    change(imageLimit_, knownMegabytes(megabytes), &AppSettings::imageLimitChanged);
}

void AppSettings::setForgetKeyWhileLocked(bool on) {
    preferences_.set(u"forgetKeyWhileLocked"_s, on);
    change(forgetKeyWhileLocked_, on, &AppSettings::forgetKeyWhileLockedChanged);
}

void AppSettings::setIgnoredPrograms(const QStringList& names) {
    preferences_.set(u"ignoredPrograms"_s, QJsonArray::fromStringList(names));
    change(ignoredPrograms_, names, &AppSettings::ignoredProgramsChanged);
}

void AppSettings::setIgnoredPatterns(const QStringList& expressions) {
    preferences_.set(u"ignoredPatterns"_s, QJsonArray::fromStringList(expressions));
    change(ignoredPatterns_, expressions, &AppSettings::ignoredPatternsChanged);
}

void AppSettings::setForgetSecrets(int minutes) {
    preferences_.set(u"forgetSecrets"_s, minutes);
    change(forgetSecrets_, known(minutes, forgetting), &AppSettings::forgetSecretsChanged);
}

void AppSettings::setKeyLikeWords(bool on) {
    preferences_.set(u"keyLikeWords"_s, on);
    change(keyLikeWords_, on, &AppSettings::keyLikeWordsChanged);
}

void AppSettings::setKeepSelectedText(bool on) {
    preferences_.set(u"keepSelectedText"_s, on);
    change(keepSelectedText_, on, &AppSettings::keepSelectedTextChanged);
}

void AppSettings::setShortcut(const QString& keys) {
    preferences_.set(u"shortcut"_s, keys);
    change(shortcut_, keys, &AppSettings::shortcutChanged);
}

void AppSettings::setReturnPastes(bool on) {
    preferences_.set(u"returnPastes"_s, on);
    change(returnPastes_, on, &AppSettings::returnPastesChanged);
}

void AppSettings::setJoinWith(const QString& how) {
    preferences_.set(u"joinWith"_s, how);
    change(joinWith_, how, &AppSettings::joinWithChanged);
}

void AppSettings::setShowOrigins(bool on) {
    preferences_.set(u"showOrigins"_s, on);
    change(showOrigins_, on, &AppSettings::showOriginsChanged);
}

void AppSettings::setHideClaudeCode(bool on) {
    preferences_.set(u"hideClaudeCode"_s, on);
    change(hideClaudeCode_, on, &AppSettings::hideClaudeCodeChanged);
}

void AppSettings::setShowPeakHours(bool on) {
    preferences_.set(u"showPeakHours"_s, on);
    change(showPeakHours_, on, &AppSettings::showPeakHoursChanged);
}

void AppSettings::setKeepSession(bool on) {
    preferences_.set(u"keepSession"_s, on);
    change(keepSession_, on, &AppSettings::keepSessionChanged);
}

void AppSettings::setHandedOverFirst(bool on) {
    preferences_.set(u"handedOverFirst"_s, on);
    change(handedOverFirst_, on, &AppSettings::handedOverFirstChanged);
}

void AppSettings::setNotifyTimer(bool on) {
    preferences_.set(u"notifyTimer"_s, on);
    change(notifyTimer_, on, &AppSettings::notifyTimerChanged);
}

void AppSettings::setNotifyFiles(bool on) {
    preferences_.set(u"notifyFiles"_s, on);
    change(notifyFiles_, on, &AppSettings::notifyFilesChanged);
}

void AppSettings::setNotifySaving(bool on) {
    preferences_.set(u"notifySaving"_s, on);
    change(notifySaving_, on, &AppSettings::notifySavingChanged);
}

void AppSettings::setNotifyPlan(bool on) {
    preferences_.set(u"notifyPlan"_s, on);
    change(notifyPlan_, on, &AppSettings::notifyPlanChanged);
}

void AppSettings::setLanguage(const QString& language) {
    preferences_.set(u"language"_s, language);
    change(language_, knownLanguage(language), &AppSettings::languageChanged);
}

void AppSettings::setSecondAccount(const QString& folder) {
    preferences_.set(u"secondAccount"_s, folder);
    change(secondAccount_, folder, &AppSettings::secondAccountChanged);
}

void AppSettings::setOnboarded(bool done) {
    preferences_.set(u"onboarded"_s, done);
    change(onboarded_, done, &AppSettings::onboardedChanged);
}

void AppSettings::setLaunchAtLogin(bool on) {
    change(launchAtLogin_, on, &AppSettings::launchAtLoginChanged);
    applyLogin();
}

void AppSettings::refreshLaunchAtLogin() {
    change(launchAtLogin_, loginItem_.isEnabled(), &AppSettings::launchAtLoginChanged);
}

void AppSettings::applyLogin() {
    if (const Result<void> result = loginItem_.setEnabled(launchAtLogin_); !result) {
        qWarning("Ravelo login-item error: %s", qUtf8Printable(result.error().message));
    }
}

void AppSettings::setupLoginItemDefaultIfNeeded() {
    const QString key = u"didSetupLogin"_s;
    if (preferences_.value(key).isUndefined()) {
        preferences_.set(key, true);
        setLaunchAtLogin(true);
    }
}

} // namespace ravelo
