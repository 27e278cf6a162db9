#pragma once

#include "base/Handle.h"
#include "platform/Keyring.h"
#include "vault/Vault.h"

#include <QObject>

#include <functional>
#include <memory>

namespace ravelo {

class DetachedJobs;
class Worker;

/// Whether what is stored is encrypted, and by which key: turns it on and off, gets the key at the
/// start and after a lock, and says what it waits for. The vault does the rest. Main thread; what
/// takes time is done elsewhere.
class Encryption : public QObject {
    Q_OBJECT
    Q_PROPERTY(State state READ state NOTIFY changed)
    Q_PROPERTY(bool on READ isOn NOTIFY changed)
    Q_PROPERTY(bool locked READ isLocked NOTIFY changed)
    Q_PROPERTY(bool byPassphrase READ isByPassphrase NOTIFY changed)
    Q_PROPERTY(bool busy READ isBusy NOTIFY changed)
    Q_PROPERTY(bool hasKeyring READ hasKeyring NOTIFY changed)
    Q_PROPERTY(QString problem READ problem NOTIFY changed)

public:
    // NOLINTBEGIN(readability-identifier-naming): QML demands capitals.
    enum State {
        Off,
        Open,
        Starting,          ///< Locked, and the keyring has not answered yet.
        WaitingForKeyring, ///< It is locked.
        NoKeyring,
        KeyMissing, ///< The keyring does not have it.
        WaitingForPassphrase,
        Newer, ///< Written by a later version.
        Damaged
    };
    // NOLINTEND(readability-identifier-naming)
    Q_ENUM(State)

    /// All outlive this.
    struct Services {
        DetachedJobs& jobs; ///< To derive keys from passphrases.
        Worker& worker;
        Keyring& keyring;
        std::shared_ptr<Vault> vault;
        OwnFile::Permission mayWrite = {};
        /// Called on the worker after the key file was created or removed.
        std::function<void()> keyFileChanged = {};
        KeyFile::Cost cost = {};
    };

    explicit Encryption(Services services);
    ~Encryption() override;

    /// Gets the key, if that is possible without asking the user.
    void start();

    [[nodiscard]] State state() const { return state_; }

    [[nodiscard]] bool isOn() const { return state_ != Off; }

    [[nodiscard]] bool isLocked() const { return state_ != Off && state_ != Open; }

    [[nodiscard]] bool isByPassphrase() const;

    /// A change is in progress.
    [[nodiscard]] bool isBusy() const { return busy_; }

    /// As far as known; see `look`.
    [[nodiscard]] bool hasKeyring() const { return hasKeyring_; }

    /// Why the last change failed, for the user; empty if it succeeded.
    [[nodiscard]] const QString& problem() const { return problem_; }

    /// Asks whether there is a keyring.
    Q_INVOKABLE void look();

    /// Lets a locked keyring ask the user to unlock it, then gets the key from it.
    Q_INVOKABLE void unlock();
    void tryPassphrase(LockedBytes passphrase);

    /// Turns encryption on, or changes what guards the key.
    Q_INVOKABLE void useKeyring();
    void usePassphrase(LockedBytes passphrase);
    Q_INVOKABLE void turnOff();

    /// The store has been locked: forgets the key.
    void forgetKey();
    /// Asks again for a forgotten key.
    void getKey();

    /// Removes the key from the keyring, if it is there, then calls `done`.
    void eraseKey(std::function<void()> done);

    /// Not everything was erased: takes the state that the vault has now.
    void resume();

Q_SIGNALS:
    void changed();
    void opened(); ///< The key is available, also after turning encryption on.

private:
    using Guard = KeyFile::Guard;

    [[nodiscard]] State stateOfVault() const;
    void set(State state, const QString& problem = {});
    void fail(const QString& problem);
    void found(const Keyring::Found& found);
    void unwrap(const LockedBytes& wrapper);
    void keyringChanged();
    void stretch(const KeyFile& file, LockedBytes passphrase,
                 std::function<void(const std::shared_ptr<LockedBytes>&)> done);
    void guardBy(Guard guard, const std::shared_ptr<const StoreKey>& key, KeyFile file,
                 const LockedBytes& wrapper);
    void work(std::function<Result<void>(Vault&)> job,
              std::function<void(const Result<void>&)> done);
    [[nodiscard]] std::shared_ptr<const StoreKey> keyToGuard() const;

    Services services_;
    State state_ = Off;
    bool busy_ = false;
    bool hasKeyring_ = false;
    QString problem_;
    Handle asking_;
    Handle looking_;
    Handle storing_;
    Handle removing_;
    Handle stretching_;
    Handle changes_;
};

} // namespace ravelo
