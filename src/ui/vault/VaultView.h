#pragma once

#include "ui/vault/PassphraseInput.h"
#include "vault/Encryption.h"

#include <QObject>
#include <QQmlEngine>

namespace ravelo {

/// What all windows of an engine show about encryption, in words. Main thread.
class VaultView : public QObject {
    Q_OBJECT
    QML_NAMED_ELEMENT(Vault)
    QML_SINGLETON
    Q_PROPERTY(bool locked READ isLocked NOTIFY changed)
    Q_PROPERTY(bool on READ isOn NOTIFY changed)
    Q_PROPERTY(bool byPassphrase READ isByPassphrase NOTIFY changed)
    Q_PROPERTY(bool busy READ isBusy NOTIFY changed)
    Q_PROPERTY(bool hasKeyring READ hasKeyring NOTIFY changed)
    Q_PROPERTY(QString problem READ problem NOTIFY changed)
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(QString detail READ detail NOTIFY changed)
    Q_PROPERTY(bool canUnlock READ canUnlock NOTIFY changed)
    Q_PROPERTY(bool asksPassphrase READ asksPassphrase NOTIFY changed)
    Q_PROPERTY(bool asked READ isAsked NOTIFY changed)

public:
    /// Must be created before `engine` loads a page. Without an encryption nothing is locked.
    VaultView(Encryption* encryption, QQmlEngine& engine);

    static VaultView* create(QQmlEngine* engine, QJSEngine* /*scripts*/);

    [[nodiscard]] bool isLocked() const { return encryption_ && encryption_->isLocked(); }

    [[nodiscard]] bool isOn() const { return encryption_ && encryption_->isOn(); }

    [[nodiscard]] bool isByPassphrase() const {
        return encryption_ && encryption_->isByPassphrase();
    }

    [[nodiscard]] bool isBusy() const { return encryption_ && encryption_->isBusy(); }

    [[nodiscard]] bool hasKeyring() const { return encryption_ && encryption_->hasKeyring(); }

    [[nodiscard]] QString problem() const {
        return encryption_ ? encryption_->problem() : QString();
    }

    /// What it waits for while it is locked, and what that means.
    [[nodiscard]] QString title() const;
    [[nodiscard]] QString detail() const;

    [[nodiscard]] bool canUnlock() const;
    [[nodiscard]] bool asksPassphrase() const;

    /// The user has asked to unlock it, even if there are new clips to show.
    [[nodiscard]] bool isAsked() const { return asked_; }

    /// Shows the keyring's prompt, or asks for the passphrase.
    Q_INVOKABLE void unlock();
    /// Asks for the passphrase, if that is what it waits for.
    Q_INVOKABLE void ask();
    /// The panel was closed.
    void reset();

    Q_INVOKABLE void tryPassphrase(ravelo::PassphraseInput* input);
    Q_INVOKABLE void look();
    Q_INVOKABLE void useKeyring();
    Q_INVOKABLE void usePassphrase(ravelo::PassphraseInput* input);
    Q_INVOKABLE void turnOff();

Q_SIGNALS:
    void changed();

private:
    [[nodiscard]] Encryption::State state() const {
        return encryption_ ? encryption_->state() : Encryption::Off;
    }

    Encryption* encryption_;
    bool asked_ = false;
};

} // namespace ravelo
