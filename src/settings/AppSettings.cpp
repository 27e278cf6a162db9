#include "settings/AppSettings.h"

#include "platform/LoginItem.h"
#include "platform/Preferences.h"

#include <QJsonArray>
#include <QLoggingCategory>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr int maxMegabytes = 1 << 20;

template <int lowest, int highest, typename T>
T within(const T& number, const T& standard) {
    return number >= lowest && number <= highest ? number : standard;
}

template <int... numbers>
int oneOf(const int& number, const int& standard) {
    return ((number == numbers) || ...) ? number : standard;
}

/// A value written by hand must not shorten the history.
int nextHistoryLength(const int& number, const int& /*standard*/) {
    return AppSettings::historyLengthFor(number);
}

QString knownLanguage(const QString& name, const QString& standard) {
    return QStringList{u"en"_s, u"pt_BR"_s, u"de"_s}.contains(name) ? name : standard;
}

// QJsonValue's getters return the standard for missing values and other types.
double read(const QJsonValue& value, double standard) {
    return value.toDouble(standard);
}

bool read(const QJsonValue& value, bool standard) {
    return value.toBool(standard);
}

int read(const QJsonValue& value, int standard) {
    return value.toInt(standard);
}

QString read(const QJsonValue& value, const QString& standard) {
    return value.toString(standard);
}

QStringList read(const QJsonValue& value, const QStringList& /*standard*/) {
    QStringList texts;
    const QJsonArray array = value.toArray();
    for (const auto item : array) {
        if (const QString text = item.toString(); !text.trimmed().isEmpty()) {
            texts.append(text);
        }
    }
    return texts;
}

QJsonValue written(const auto& value) {
    return value;
}

QJsonValue written(const QStringList& texts) {
    return QJsonArray::fromStringList(texts);
}

} // namespace

template <typename T>
AppSettings::Setting<T>::Setting(AppSettings& settings, QString key, T standard, Changed changed,
                                 Allowed allowed, Kept kept)
    : settings_(settings),
      key_(std::move(key)),
      standard_(std::move(standard)),
      changed_(changed),
      allowed_(allowed),
      kept_(kept),
      value_(effective(read(settings.preferences_.value(key_), standard_))) {}

template <typename T>
T AppSettings::Setting<T>::effective(const T& value) const {
    return allowed_ == nullptr ? value : allowed_(value, standard_);
}

template <typename T>
void AppSettings::Setting<T>::set(const T& value) {
    if (kept_ == Kept::always) {
        settings_.preferences_.set(key_, written(value));
    }
    if (const T wanted = effective(value); value_ != wanted) {
        value_ = wanted;
        Q_EMIT(settings_.*changed_)();
    }
}

template class AppSettings::Setting<bool>;
template class AppSettings::Setting<int>;
template class AppSettings::Setting<double>;
template class AppSettings::Setting<QString>;
template class AppSettings::Setting<QStringList>;

AppSettings::AppSettings(Preferences& preferences, LoginItem& loginItem)
    : preferences_(preferences),
      loginItem_(loginItem),
      bgOpacity(*this, u"bgOpacity"_s, 0.55, &AppSettings::bgOpacityChanged, within<0, 1>),
      fullBlack(*this, u"fullBlack"_s, false, &AppSettings::fullBlackChanged),
      panelWidth(*this, u"panelWidth"_s, 927.0, &AppSettings::panelWidthChanged,
                 within<200, 10000>),
      hotkeyEnabled(*this, u"hotkeyEnabled"_s, true, &AppSettings::hotkeyEnabledChanged, nullptr,
                    Kept::untilTheEnd),
      lastTab(*this, u"lastTab"_s, u"Clipboard"_s, &AppSettings::lastTabChanged),
      pinnedBar(*this, u"pinnedBar"_s, false, &AppSettings::pinnedBarChanged, nullptr,
                Kept::untilTheEnd),
      macType(*this, u"macType"_s, u"auto"_s, &AppSettings::macTypeChanged),
      newestFirst(*this, u"newestFirst"_s, false, &AppSettings::newestFirstChanged),
      historyLength(*this, u"historyLength"_s, 60, &AppSettings::historyLengthChanged,
                    nextHistoryLength),
      keepTextsExactly(*this, u"keepTextsExactly"_s, false, &AppSettings::keepTextsExactlyChanged),
      keepDays(*this, u"keepDays"_s, 0, &AppSettings::keepDaysChanged, oneOf<0, 1, 7, 30>),
      textLimit(*this, u"textLimit"_s, 0, &AppSettings::textLimitChanged, within<0, maxMegabytes>),
      imageLimit(*this, u"imageLimit"_s, 0, &AppSettings::imageLimitChanged,
                 within<0, maxMegabytes>),
      forgetKeyWhileLocked(*this, u"forgetKeyWhileLocked"_s, false,
                           &AppSettings::forgetKeyWhileLockedChanged),
      ignoredPrograms(*this, u"ignoredPrograms"_s, {}, &AppSettings::ignoredProgramsChanged),
      ignoredPatterns(*this, u"ignoredPatterns"_s, {}, &AppSettings::ignoredPatternsChanged),
      forgetSecrets(*this, u"forgetSecrets"_s, 10, &AppSettings::forgetSecretsChanged,
                    oneOf<10, 1, 60, neverKept, asAnyText>),
      keyLikeWords(*this, u"keyLikeWords"_s, false, &AppSettings::keyLikeWordsChanged),
      keepSelectedText(*this, u"keepSelectedText"_s, false, &AppSettings::keepSelectedTextChanged),
      shortcut(*this, u"shortcut"_s, {}, &AppSettings::shortcutChanged),
      returnPastes(*this, u"returnPastes"_s, false, &AppSettings::returnPastesChanged),
      joinWith(*this, u"joinWith"_s, u"line"_s, &AppSettings::joinWithChanged),
      showOrigins(*this, u"showOrigins"_s, false, &AppSettings::showOriginsChanged),
      hideClaudeCode(*this, u"hideClaudeCode"_s, false, &AppSettings::hideClaudeCodeChanged),
      showPeakHours(*this, u"showPeakHours"_s, true, &AppSettings::showPeakHoursChanged),
      keepSession(*this, u"keepSession"_s, false, &AppSettings::keepSessionChanged),
      handedOverFirst(*this, u"handedOverFirst"_s, false, &AppSettings::handedOverFirstChanged),
      secondAccount(*this, u"secondAccount"_s, {}, &AppSettings::secondAccountChanged),
      notifyTimer(*this, u"notifyTimer"_s, false, &AppSettings::notifyTimerChanged),
      notifyFiles(*this, u"notifyFiles"_s, false, &AppSettings::notifyFilesChanged),
      notifySaving(*this, u"notifySaving"_s, false, &AppSettings::notifySavingChanged),
      notifyPlan(*this, u"notifyPlan"_s, false, &AppSettings::notifyPlanChanged),
      language(*this, u"language"_s, {}, &AppSettings::languageChanged, knownLanguage),
      onboarded(*this, u"onboarded"_s, false, &AppSettings::onboardedChanged),
      launchAtLogin_(loginItem.isEnabled()) {
    connect(this, &AppSettings::macTypeChanged, this, [this] {
        if (onLayoutChange) {
            onLayoutChange();
        }
    });
}

int AppSettings::historyLengthFor(qsizetype clips) {
    for (const int length : {60, 200}) {
        if (clips <= length) {
            return length;
        }
    }
    return longestHistory;
}

void AppSettings::setLaunchAtLogin(bool on) {
    showLaunchAtLogin(on);
    if (const Result<void> result = loginItem_.setEnabled(on); !result) {
        qWarning("Ravelo login-item error: %s", qUtf8Printable(result.error().message));
    }
}

void AppSettings::refreshLaunchAtLogin() {
    showLaunchAtLogin(loginItem_.isEnabled());
}

void AppSettings::showLaunchAtLogin(bool on) {
    if (launchAtLogin_ != on) {
        launchAtLogin_ = on;
        Q_EMIT launchAtLoginChanged();
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
