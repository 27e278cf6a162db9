#include "vault/Encryption.h"

#include "platform/DetachedJobs.h"
#include "platform/Worker.h"
#include "vault/Conversion.h"

#include <QPointer>

#include <utility>

namespace ravelo {

namespace {

QString label() {
    return Encryption::tr("Ravelo: key of the clipboard history");
}

} // namespace

Encryption::Encryption(Services services)
    : services_(std::move(services)), state_(stateOfVault()) {}

Encryption::~Encryption() = default;

Encryption::State Encryption::stateOfVault() const {
    switch (services_.vault->trouble()) {
    case Vault::Trouble::newer:
        return Newer;
    case Vault::Trouble::damaged:
    case Vault::Trouble::keyless:
        return Damaged;
    case Vault::Trouble::none:
        break;
    }
    switch (services_.vault->state()) {
    case Vault::State::plain:
        return Off;
    case Vault::State::open:
        return Open;
    case Vault::State::locked:
        break;
    }
    return isByPassphrase() ? WaitingForPassphrase : Starting;
}

bool Encryption::isByPassphrase() const {
    const auto file = services_.vault->keyFile();
    return file && file->guard == Guard::passphrase;
}

void Encryption::set(State state, const QString& problem) {
    state_ = state;
    problem_ = problem;
    Q_EMIT changed();
}

void Encryption::fail(const QString& problem) {
    busy_ = false;
    set(state_, problem);
}

void Encryption::start() {
    changes_ = services_.keyring.onChange([this] { keyringChanged(); });
    getKey();
}

void Encryption::keyringChanged() {
    if (!busy_ && !asking_ &&
        (state_ == WaitingForKeyring || state_ == NoKeyring || state_ == KeyMissing)) {
        getKey();
    }
}

void Encryption::getKey() {
    const auto file = services_.vault->keyFile();
    if (isLocked() && file && file->guard == Guard::keyring && state_ != Newer) {
        asking_ = services_.keyring.find(file->service(), [this](const auto& one) { found(one); });
    }
}

void Encryption::found(const Keyring::Found& found) {
    using Kind = Keyring::Found::Kind;
    asking_.reset();
    busy_ = false;
    switch (found.kind) {
    case Kind::found:
        unwrap(LockedBytes::fromHex(found.secret.bytes(), KeyFile::wrapperLength));
        return;
    case Kind::locked:
        set(WaitingForKeyring);
        return;
    case Kind::missing:
        set(KeyMissing);
        return;
    case Kind::unavailable:
        set(NoKeyring);
        return;
    }
}

void Encryption::unwrap(const LockedBytes& wrapper) {
    const auto file = services_.vault->keyFile();
    auto key = file ? file->unwrap(wrapper) : std::nullopt;
    if (!file || !key) {
        if (isByPassphrase()) {
            fail(tr("That is not the passphrase"));
        } else {
            set(KeyMissing);
        }
        return;
    }
    busy_ = false;
    services_.vault->open(*file, std::make_shared<const StoreKey>(std::move(*key)));
    set(Open);
    Q_EMIT opened();
    // What an earlier run did not get to. Later the files are as they should be.
    work(
        [mayWrite = services_.mayWrite](Vault& vault) { return finishConversion(vault, mayWrite); },
        [this, file](const Result<void>& done) {
            const bool left = services_.vault->state() == Vault::State::plain;
            if (left && file->guard == Guard::keyring) {
                removing_ = services_.keyring.remove(file->service(), [](const Result<void>&) {});
            }
            set(left ? Off : state_, done ? QString() : done.error().message);
        });
}

void Encryption::look() {
    looking_ = services_.keyring.look([this](bool there) {
        looking_.reset();
        if (there != hasKeyring_) {
            hasKeyring_ = there;
            Q_EMIT changed();
        }
    });
}

void Encryption::unlock() {
    busy_ = true;
    Q_EMIT changed();
    asking_ = services_.keyring.unlock([this] {
        asking_.reset();
        busy_ = false;
        getKey();
        Q_EMIT changed();
    });
}

void Encryption::tryPassphrase(LockedBytes passphrase) {
    const auto file = services_.vault->keyFile();
    if (busy_ || state_ != WaitingForPassphrase || !file) {
        return;
    }
    stretch(*file, std::move(passphrase),
            [this](const std::shared_ptr<LockedBytes>& wrapper) { unwrap(*wrapper); });
}

/// Calls `done` with the key that the passphrase gives.
void Encryption::stretch(const KeyFile& file, LockedBytes passphrase,
                         std::function<void(const std::shared_ptr<LockedBytes>&)> done) {
    busy_ = true;
    problem_.clear();
    Q_EMIT changed();
    const auto words = std::make_shared<LockedBytes>(std::move(passphrase));
    const auto wrapper = std::make_shared<LockedBytes>();
    stretching_ = services_.jobs.run([file, words, wrapper] { *wrapper = file.stretched(*words); },
                                     [this, wrapper, done = std::move(done)] {
                                         if (wrapper->size() == 0) {
                                             fail(tr("Not enough memory to try the passphrase"));
                                         } else {
                                             done(wrapper);
                                         }
                                     });
}

/// The key of the store, or a new one if there is none yet.
std::shared_ptr<const StoreKey> Encryption::keyToGuard() const {
    return state_ == Open ? services_.vault->key()
                          : std::make_shared<const StoreKey>(StoreKey::random());
}

void Encryption::useKeyring() {
    if (busy_ || isLocked() || (isOn() && !isByPassphrase())) {
        return;
    }
    busy_ = true;
    problem_.clear();
    Q_EMIT changed();
    const auto key = keyToGuard();
    const KeyFile file = KeyFile::of(*key, Guard::keyring, services_.cost);
    const auto wrapper = std::make_shared<LockedBytes>(LockedBytes::random(KeyFile::wrapperLength));
    const auto compare = [this, key, file, wrapper](const Keyring::Found& found) {
        // A keyring that does not give it back would cost everything.
        const LockedBytes there =
            LockedBytes::fromHex(found.secret.bytes(), KeyFile::wrapperLength);
        if (there.view() == wrapper->view()) {
            guardBy(Guard::keyring, key, file, *wrapper);
        } else {
            fail(tr("The keyring did not keep the key"));
        }
    };
    storing_ = services_.keyring.keep(
        file.service(), label(), wrapper->hex(), [this, file, compare](const Result<void>& kept) {
            if (!kept) {
                fail(tr("The keyring did not keep the key: %1").arg(kept.error().message));
                return;
            }
            asking_ = services_.keyring.find(file.service(), [this, compare](const auto& found) {
                asking_.reset();
                compare(found);
            });
        });
}

void Encryption::usePassphrase(LockedBytes passphrase) {
    if (busy_ || isLocked() || passphrase.size() == 0) {
        return;
    }
    const auto key = keyToGuard();
    const KeyFile file = KeyFile::of(*key, Guard::passphrase, services_.cost);
    stretch(file, std::move(passphrase),
            [this, key, file](const std::shared_ptr<LockedBytes>& wrapper) {
                guardBy(Guard::passphrase, key, file, *wrapper);
            });
}

void Encryption::guardBy(Guard guard, const std::shared_ptr<const StoreKey>& key, KeyFile file,
                         const LockedBytes& wrapper) {
    file.wrap(*key, wrapper);
    const bool wasOn = isOn();
    const bool wasInKeyring = wasOn && !isByPassphrase();
    work(
        [key, file, wasOn, mayWrite = services_.mayWrite](Vault& vault) {
            return wasOn ? replaceKeyFile(vault, file, mayWrite)
                         : beginEncryption(vault, file, key, mayWrite);
        },
        [this, guard, wasInKeyring, service = file.service()](const Result<void>& done) {
            if (done && wasInKeyring && guard == Guard::passphrase) {
                removing_ = services_.keyring.remove(service, [](const Result<void>&) {});
            }
            const bool on = services_.vault->state() != Vault::State::plain;
            set(on ? Open : Off, done ? QString() : done.error().message);
            if (on) {
                Q_EMIT opened();
            }
        });
}

void Encryption::turnOff() {
    if (busy_ || state_ != Open) {
        return;
    }
    const auto file = services_.vault->keyFile();
    work([mayWrite = services_.mayWrite](Vault& vault) { return endEncryption(vault, mayWrite); },
         [this, file](const Result<void>& done) {
             if (done && file->guard == Guard::keyring) {
                 removing_ = services_.keyring.remove(file->service(), [](const Result<void>&) {});
             }
             const bool on = services_.vault->state() != Vault::State::plain;
             set(on ? Open : Off, done ? QString() : done.error().message);
         });
}

/// Runs a job that changes the folder on the worker.
void Encryption::work(std::function<Result<void>(Vault&)> job,
                      std::function<void(const Result<void>&)> done) {
    busy_ = true;
    Q_EMIT changed();
    const auto outcome = std::make_shared<Result<void>>();
    services_.worker.run(
        [vault = services_.vault, job = std::move(job), outcome,
         keyFileChanged = services_.keyFileChanged] {
            *outcome = job(*vault);
            if (keyFileChanged) {
                keyFileChanged();
            }
        },
        [self = QPointer(this), outcome, done = std::move(done)] {
            if (self) {
                self->busy_ = false;
                done(*outcome);
            }
        });
}

void Encryption::forgetKey() {
    if (state_ == Open && !busy_) {
        services_.vault->lock();
        set(isByPassphrase() ? WaitingForPassphrase : Starting);
    }
}

void Encryption::resume() {
    if (isOn() && !services_.vault->keyFile()) {
        set(stateOfVault());
        work([](Vault& /*vault*/) { return Result<void>(); },
             [this](const Result<void>& /*done*/) { Q_EMIT changed(); }); // The lock follows.
    }
}

void Encryption::eraseKey(std::function<void()> done) {
    const auto file = services_.vault->keyFile();
    if (!file || file->guard != Guard::keyring) {
        done();
        return;
    }
    removing_ = services_.keyring.remove(file->service(),
                                         [done = std::move(done)](const Result<void>&) { done(); });
}

} // namespace ravelo
