#pragma once

#include "base/OwnFile.h"

#include "vault/KeyFile.h"

#include <QString>

#include <memory>

namespace ravelo {

class Vault;

/// Makes every file of the folder as the vault wants it, one after the other; a file that is so
/// already stays untouched, and a damaged one stays as it is. Removes what killed saves left, which
/// may be plain. Stops at the first failure, whose error is for the user: whatever was converted is
/// readable, and so is the rest, and calling it again continues. The vault is open. Asks `mayWrite`
/// before each change. Blocks: for the worker.
[[nodiscard]] Result<void> convertFiles(const Vault& vault, const OwnFile::Permission& mayWrite);

/// Encrypts: writes the key file, opens the vault with it, converts. What fails before the key file
/// is written changes nothing.
[[nodiscard]] Result<void> beginEncryption(Vault& vault, const KeyFile& file,
                                           std::shared_ptr<const StoreKey> key,
                                           const OwnFile::Permission& mayWrite);

/// After the vault was opened: does what a conversion that was interrupted did not get to.
[[nodiscard]] Result<void> finishConversion(Vault& vault, const OwnFile::Permission& mayWrite);

/// Decrypts, then removes the key file and leaves the vault.
[[nodiscard]] Result<void> endEncryption(Vault& vault, const OwnFile::Permission& mayWrite);

/// Replaces the key file, for example by one for another passphrase.
[[nodiscard]] Result<void> replaceKeyFile(Vault& vault, const KeyFile& file,
                                          const OwnFile::Permission& mayWrite);

/// Removes everything Ravelo keeps in the folder, also what it put aside or left behind, except for
/// `lock`, and syncs. The error names the first file that is still there.
[[nodiscard]] Result<void> eraseFiles(const QString& folder, const OwnFile::Permission& mayWrite);

} // namespace ravelo
