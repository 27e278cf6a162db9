#include "app/HistorySettings.h"

#include "clipboard/ClipboardManager.h"
#include "clipboard/SelectedTexts.h"
#include "settings/AppSettings.h"
#include "store/Store.h"
#include "ui/clips/ClipListModel.h"

#include <optional>

namespace ravelo {

namespace {

CaptureRules captureRules(const AppSettings& settings) {
    using Secrets = CaptureRules::Secrets;
    const int minutes = settings.forgetSecrets();
    return {settings.ignoredPrograms(), ignorePatterns(settings.ignoredPatterns()),
            minutes == AppSettings::asAnyText   ? Secrets::asAnyText
            : minutes == AppSettings::neverKept ? Secrets::dropped
                                                : Secrets::inMemory,
            settings.keyLikeWords() ? KeyLikeWords::yes : KeyLikeWords::no,
            settings.showOrigins() ? CaptureRules::ProgramNames::kept
                                   : CaptureRules::ProgramNames::dropped};
}

} // namespace

HistorySettings::HistorySettings(Services services) : services_(services) {
    apply();
    for (const auto changed :
         {&AppSettings::newestFirstChanged, &AppSettings::historyLengthChanged,
          &AppSettings::keepDaysChanged, &AppSettings::textLimitChanged,
          &AppSettings::imageLimitChanged, &AppSettings::keepTextsExactlyChanged,
          &AppSettings::ignoredProgramsChanged, &AppSettings::ignoredPatternsChanged,
          &AppSettings::forgetSecretsChanged, &AppSettings::keyLikeWordsChanged,
          &AppSettings::keepSelectedTextChanged, &AppSettings::showOriginsChanged}) {
        connect(&services_.settings, changed, this, &HistorySettings::apply);
    }
}

void HistorySettings::apply() {
    const AppSettings& settings = services_.settings;
    services_.store.setHistoryRules(
        {settings.newestFirst() ? HistoryRules::Order::newerFirst : HistoryRules::Order::olderFirst,
         settings.historyLength(), settings.keepDays() * 86400.0,
         qint64(settings.textLimit()) << 20, qint64(settings.imageLimit()) << 20});
    applyRules();
}

void HistorySettings::applyRules() {
    const auto ends = services_.settings.keepTextsExactly() ? TextEnds::kept : TextEnds::trimmed;
    const CaptureRules rules = captureRules(services_.settings);
    services_.clipboard.setTextEnds(ends);
    services_.clipboard.setRules(rules);
    services_.list.setOrigins(services_.settings.showOrigins() ? ClipListModel::Origins::shown
                                                               : ClipListModel::Origins::hidden);
    if (services_.selected) {
        services_.selected->setTextEnds(ends);
        services_.selected->setRules(rules);
        services_.selected->setOn(services_.settings.keepSelectedText());
    }
    const int minutes = services_.settings.forgetSecrets();
    if (minutes == AppSettings::asAnyText) {
        services_.store.keepSecrets();
    }
    services_.store.setForgetAfter(
        minutes == AppSettings::asAnyText ? std::nullopt : std::optional(Seconds(minutes * 60)));
}

} // namespace ravelo
