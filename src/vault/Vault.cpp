#include "vault/Vault.h"

#include "base/Files.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype maxKept = qsizetype(64) << 20; ///< Bytes.

FileForm formOfFile(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? formOf(file.read(formLength)) : FileForm::plain;
}

} // namespace

Vault::Vault(QString folder) : folder_(std::move(folder)), kept_(maxKept) {
    look();
}

void Vault::look() {
    const std::lock_guard lock(mutex_);
    state_ = State::plain;
    trouble_ = Trouble::none;
    file_.reset();
    key_.reset();
    const FileForm store = formOfFile(folder_ + u"/store.json"_s);
    if (const auto bytes = readFile(keyPath())) {
        if (const auto file = KeyFile::decoded(*bytes)) {
            file_ = *file;
        } else {
            trouble_ = file.error() == KeyFile::Problem::newer ? Trouble::newer : Trouble::damaged;
        }
        state_ = State::locked;
    } else if (store != FileForm::plain) {
        trouble_ = Trouble::keyless;
        state_ = State::locked;
    }
    if (store == FileForm::newer) {
        trouble_ = Trouble::newer;
    }
}

Vault::State Vault::state() const {
    const std::lock_guard lock(mutex_);
    return state_;
}

Vault::Trouble Vault::trouble() const {
    const std::lock_guard lock(mutex_);
    return trouble_;
}

std::optional<KeyFile> Vault::keyFile() const {
    const std::lock_guard lock(mutex_);
    return file_;
}

std::shared_ptr<const StoreKey> Vault::key() const {
    const std::lock_guard lock(mutex_);
    return key_;
}

void Vault::open(const KeyFile& file, std::shared_ptr<const StoreKey> key) {
    const std::lock_guard lock(mutex_);
    file_ = file;
    key_ = std::move(key);
    state_ = State::open;
    kept_.clear();
}

void Vault::lock() {
    const std::lock_guard lock(mutex_);
    if (state_ == State::open) {
        key_.reset();
        state_ = State::locked;
    }
}

void Vault::leave() {
    const std::lock_guard lock(mutex_);
    file_.reset();
    key_.reset();
    state_ = State::plain;
    kept_.clear();
}

/// A copy that was put aside keeps the name of its original. Also called at exit, when static
/// objects are gone.
QString Vault::nameOf(const QString& path) const {
    QString name = QDir(folder_).relativeFilePath(path);
    constexpr QLatin1StringView aside(".unreadable");
    const qsizetype place = name.lastIndexOf(aside);
    if (place > 0 && std::all_of(name.cbegin() + place + aside.size(), name.cend(),
                                 [](QChar letter) { return letter.isDigit(); })) {
        name.truncate(place);
    }
    return name;
}

Vault::Contents Vault::read(const QString& path) const {
    auto bytes = readFile(path);
    if (!bytes) {
        return {Contents::Kind::missing};
    }
    const FileForm form = formOf(*bytes);
    if (form == FileForm::plain) {
        return {Contents::Kind::readable, std::move(*bytes)};
    }
    if (form == FileForm::newer) {
        return {Contents::Kind::newer};
    }
    const QString name = nameOf(path);
    std::shared_ptr<const StoreKey> key;
    {
        const std::lock_guard lock(mutex_);
        if (const QByteArray* const kept = kept_.object(name)) {
            return {Contents::Kind::readable, *kept};
        }
        if (state_ == State::locked) {
            return {Contents::Kind::locked};
        }
        key = key_;
    }
    auto opened = key ? key->unseal(name, *bytes) : std::nullopt;
    return opened ? Contents{Contents::Kind::readable, std::move(*opened)}
                  : Contents{Contents::Kind::damaged};
}

std::optional<QByteArray> Vault::bytes(const QString& path) const {
    Contents contents = read(path);
    return contents.kind == Contents::Kind::readable ? std::optional(std::move(contents.bytes))
                                                     : std::nullopt;
}

std::optional<QByteArray> Vault::encryptedBytes(const QString& path) const {
    return formOfFile(path) == FileForm::plain ? std::nullopt : bytes(path);
}

Result<QByteArray> Vault::sealed(const QString& path, QByteArray bytes) const {
    const QString name = nameOf(path);
    std::shared_ptr<const StoreKey> key;
    std::optional<KeyFile> file;
    {
        const std::lock_guard lock(mutex_);
        if (state_ == State::plain) {
            return bytes;
        }
        key = key_;
        file = file_;
        if (!key && file && (name.endsWith(".png"_L1) || name.endsWith(".forms"_L1))) {
            kept_.insert(name, new QByteArray(bytes), bytes.size());
        }
    }
    if (!file || trouble() == Trouble::newer) {
        return trouble() == Trouble::newer
                   ? tl::unexpected(Error{QCoreApplication::translate(
                         "ravelo::Store", "what is stored was written by a newer Ravelo")})
                   : tl::unexpected(Error{QCoreApplication::translate(
                         "ravelo::Store", "what is stored is encrypted, and its key is gone")});
    }
    if (!key) {
        return sealForLater(file->id, file->publicKey, name, bytes);
    }
    return file->goal == KeyFile::Goal::plain ? bytes : key->seal(name, bytes);
}

Result<void> Vault::write(const QString& path, const QByteArray& bytes,
                          const OwnFile::Permission& mayWrite) const {
    if (Result<void> allowed = mayWrite ? mayWrite() : Result<void>(); !allowed) {
        return allowed;
    }
    const std::lock_guard lock(writing_);
    if (refusing_) {
        return failure(
            QCoreApplication::translate("ravelo::Store", "what is stored was erased meanwhile"));
    }
    const Result<QByteArray> ready = sealed(path, bytes);
    if (!ready) {
        return tl::unexpected(ready.error());
    }
    makePrivateFolder(QFileInfo(path).path());
    return writeFileAtomically(path, *ready);
}

void Vault::refuseWrites() {
    const std::lock_guard lock(writing_);
    refusing_ = true;
}

void Vault::admitWrites() {
    const std::lock_guard lock(writing_);
    refusing_ = false;
}

void Vault::forget(const QString& path) {
    const QString name = nameOf(path);
    const std::lock_guard lock(mutex_);
    kept_.remove(name);
}

void Vault::whileNobodyWrites(const std::function<void()>& job) const {
    const std::lock_guard lock(writing_);
    job();
}

bool Vault::isAsWanted(FileForm form) const {
    const std::lock_guard lock(mutex_);
    const bool encrypted = file_ && file_->goal == KeyFile::Goal::encrypted;
    return encrypted ? form == FileForm::sealed : form == FileForm::plain;
}

} // namespace ravelo
