#include "app/StoreNotices.h"

#include "clipboard/ClipboardManager.h"
#include "platform/system/PreferenceFile.h"
#include "settings/AppSettings.h"
#include "store/Store.h"
#include "ui/PanelFeatures.h"
#include "vault/Encryption.h"

#include <QUrl>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

TooLargeCopy::Measure measure(TooLarge::Kind kind) {
    switch (kind) {
    case TooLarge::Kind::text:
        return TooLargeCopy::Measure::bytesOfText;
    case TooLarge::Kind::image:
        return TooLargeCopy::Measure::bytesOfImage;
    case TooLarge::Kind::deepPixels:
        return TooLargeCopy::Measure::deepPixelsOfImage;
    case TooLarge::Kind::pixels:
        break;
    }
    return TooLargeCopy::Measure::pixelsOfImage;
}

} // namespace

StoreNotices::StoreNotices(Services services) : services_(services) {
    followSaving();
    followSecrets();
    followLock();
    connect(&services_.notices, &Notices::openFolder, this, [this](const QString& path) {
        services_.features.shelf->showInFolder(QUrl::fromLocalFile(path));
    });
    connect(&services_.clipboard, &ClipboardManager::tooLarge, this, [this](const TooLarge& copy) {
        services_.features.clips->showTooLarge({measure(copy.kind), copy.amount});
    });
}

StoreNotices::~StoreNotices() {
    services_.preferences.onSaved = nullptr;
}

void StoreNotices::keyStayed(const QString& reason) {
    services_.notices.warn(tr("The key stayed in memory while the screen was locked:"), reason);
}

void StoreNotices::followSaving() {
    connect(&services_.store, &Store::saveEnded, this,
            [this](const SaveOutcome& outcome) { report(Notices::Source::store, outcome); });
    services_.preferences.onSaved = [this](const SaveOutcome& outcome) {
        report(Notices::Source::preferences, outcome);
    };
    connect(&services_.store, &Store::removalEnded, &services_.notices, &Notices::deletionEnded);
    connect(&services_.store, &Store::imageNotKept, this, [this](const QString& reason) {
        services_.notices.warn(tr("A copied image was not kept:"), reason);
    });
    connect(&services_.notices, &Notices::tryAgain, this, [this] {
        services_.store.save();
        services_.preferences.retry();
    });
}

void StoreNotices::report(Notices::Source source, const SaveOutcome& outcome) {
    using Kind = SaveOutcome::Kind;
    if (!outcome.putAside.isEmpty()) {
        services_.notices.putAside(source, outcome.putAside);
    }
    if (outcome.kind == Kind::saved) {
        services_.notices.saved(source);
    } else {
        services_.notices.saveFailed(source, outcome.reason,
                                     outcome.kind == Kind::failed ? Notices::Retry::yes
                                                                  : Notices::Retry::no);
    }
}

/// The first time, the panel explains it.
void StoreNotices::followSecrets() {
    connect(&services_.clipboard, &ClipboardManager::secretKept, this, [this](const QString& id) {
        const auto key = u"secretsExplained"_s;
        const SecretForm* form = SecretForms::withId(id);
        if (form && !services_.preferences.value(key).toBool()) {
            services_.preferences.set(key, true);
            services_.notices.secretKept(form->name);
        }
    });
    connect(&services_.notices, &Notices::keepSecrets, this,
            [this] { services_.settings.forgetSecrets.set(AppSettings::asAnyText); });
}

void StoreNotices::followLock() {
    connect(&services_.encryption, &Encryption::changed, this, &StoreNotices::reportLock);
    connect(&services_.store, &Store::lockedChanged, this, &StoreNotices::reportLock);
    connect(&services_.store, &Store::clipsChanged, this, &StoreNotices::reportLock);
    connect(&services_.notices, &Notices::unlock, &services_.features.vault, &VaultView::unlock);
}

void StoreNotices::reportLock() {
    const VaultView& vault = services_.features.vault;
    const bool hasCopies = services_.store.isLocked() && !services_.store.clips().isEmpty();
    const bool possible = vault.canUnlock() || vault.asksPassphrase();
    services_.notices.setLocked(hasCopies ? vault.title() : QString(),
                                vault.asksPassphrase()
                                    ? tr("New copies are sealed until the passphrase is typed.")
                                    : tr("New copies are sealed until then."),
                                possible ? tr("Unlock\u2026") : QString());
}

} // namespace ravelo
