#pragma once

#include "base/OwnFile.h"
#include "vault/KeyFile.h"

#include <QByteArray>
#include <QCache>
#include <QString>

#include <functional>
#include <memory>
#include <mutex>
#include <optional>

namespace ravelo {

/// The one place through which files of the data folder are read and written, whether they are
/// encrypted or not. Each file says itself which it is, so both may stand side by side. Any thread.
class Vault {
public:
    enum class State {
        plain,  ///< Not encrypted.
        locked, ///< Encrypted, and the key is not here: writes are for later, reads mostly fail.
        open
    };

    /// Why no key can open the store.
    enum class Trouble {
        none,
        newer,   ///< Written by a later version.
        damaged, ///< The key file.
        keyless  ///< The store is encrypted, but the key file is gone.
    };

    explicit Vault(QString folder);

    /// Looks at the folder again, before anything else is done. Blocks for two small reads.
    void look();

    [[nodiscard]] const QString& folder() const { return folder_; }

    [[nodiscard]] QString keyPath() const { return folder_ + QStringLiteral("/key"); }

    [[nodiscard]] State state() const;
    [[nodiscard]] Trouble trouble() const;
    [[nodiscard]] std::optional<KeyFile> keyFile() const;
    [[nodiscard]] std::shared_ptr<const StoreKey> key() const; ///< Null unless open.

    void open(const KeyFile& file, std::shared_ptr<const StoreKey> key);
    /// Forgets the key.
    void lock();
    /// Encryption was turned off: there is no key any more.
    void leave();

    struct Contents {
        enum class Kind {
            readable,
            missing, ///< Or cannot be read at all.
            locked,
            damaged, ///< It was changed, renamed, or sealed for another store.
            newer
        };

        Kind kind = Kind::missing;
        QByteArray bytes = {};
    };

    [[nodiscard]] Contents read(const QString& path) const;

    /// The readable bytes of a file, or nothing.
    [[nodiscard]] std::optional<QByteArray> bytes(const QString& path) const;

    /// Likewise, but nothing if the file is not encrypted.
    [[nodiscard]] std::optional<QByteArray> encryptedBytes(const QString& path) const;

    /// The bytes as they are to be written to `path`. An error, for the user, if that would have to
    /// be readable by others or could never be read again.
    [[nodiscard]] Result<QByteArray> sealed(const QString& path, QByteArray bytes) const;

    /// Writes a file atomically and creates its folder. An error is for the user.
    [[nodiscard]] Result<void> write(const QString& path, const QByteArray& bytes,
                                     const OwnFile::Permission& mayWrite) const;

    /// Waits for writes in progress and refuses later ones, for example of an import while
    /// everything is erased.
    void refuseWrites();
    void admitWrites();

    /// The file was removed: drops what is kept of it.
    void forget(const QString& path);

    /// Runs `job` while there are no writes; later writes use the vault's present state.
    void whileNobodyWrites(const std::function<void()>& job) const;

    /// Whether a file of this form is already as `sealed` would make it.
    [[nodiscard]] bool isAsWanted(FileForm form) const;

private:
    [[nodiscard]] QString nameOf(const QString& path) const;

    const QString folder_;
    mutable std::mutex writing_; ///< Held while a file is sealed and written.
    bool refusing_ = false;      ///< Guarded by `writing_`.
    mutable std::mutex mutex_;   ///< Guards the members below; held for moments only.
    State state_ = State::plain;
    Trouble trouble_ = Trouble::none;
    std::optional<KeyFile> file_;
    std::shared_ptr<const StoreKey> key_;
    /// Clips' files sealed while locked, by name: without the key we cannot read them back.
    mutable QCache<QString, QByteArray> kept_;
};

} // namespace ravelo
