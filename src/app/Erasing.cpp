#include "app/Erasing.h"

#include "app/Platform.h"
#include "monitor/MonitorFiles.h"
#include "platform/freedesktop/instance/BusInstance.h"
#include "platform/freedesktop/secrets/SecretKeyring.h"
#include "platform/system/DataLock.h"
#include "platform/system/PreferenceFile.h"
#include "vault/Conversion.h"
#include "vault/Vault.h"

#include <QDir>
#include <QEventLoop>
#include <QFile>

namespace ravelo {

namespace {

void removeKey(const QString& service) {
    SecretKeyring keyring(sessionBus());
    QEventLoop loop;
    const Handle removing = keyring.remove(service, [&loop](const Result<void>&) { loop.quit(); });
    loop.exec();
}

} // namespace

Answer eraseEverything() {
    const QString folder = Platform::dataFolder();
    DataLock lock(Platform::lockFile(), folder + QStringLiteral("/store.json"),
                  folder + QStringLiteral("/key"));
    if (const auto claimed = lock.claim(DataLock::Claim::ifFree); !claimed) {
        return {1, {}, claimed.error().message};
    }
    const auto file = Vault(folder).keyFile();
    const Result<void> data = eraseFiles(folder, [&lock] { return lock.check(); });
    const Result<void> preferences = erasePreferences(Platform::preferenceFile());
    if (file && file->guard == KeyFile::Guard::keyring) {
        removeKey(file->service());
    }
    const Result<void> cache = eraseMonitorCache(QFile::encodeName(QDir::homePath()));
    const Result<void>& done = !data ? data : !preferences ? preferences : cache;
    return done ? Answer() : Answer{1, {}, done.error().message};
}

} // namespace ravelo
