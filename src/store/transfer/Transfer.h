#pragma once

#include "base/OwnFile.h"
#include "store/disk/StoreContents.h"

#include <QString>

namespace ravelo {

class ImageDecoder;
class Vault;

/// Writes everything into one archive, not encrypted and readable by its user alone: "store.json"
/// and "clips" with the images and the forms kept beside clips. Does not replace a file. Returns
/// how many images could not be read and are left out with their clips. Takes seconds, any thread.
[[nodiscard]] Result<int> exportStore(StoreContents contents, const Vault& vault,
                                      const QString& path);

/// What was read from an archive.
struct Import {
    StoreContents contents = {};
    int missing = 0; ///< Images that cannot be decoded; they are left out with their clips.
};

/// Reads an archive as untrusted: every image and all forms are decoded and encoded again and
/// written to the clips folder under a new name, every record gets a new id. On an error, which is
/// for the user, nothing stays. Takes seconds, any thread.
[[nodiscard]] Result<Import> importStore(const QString& path, const Vault& vault,
                                         ImageDecoder& decoder,
                                         const OwnFile::Permission& mayWrite);

} // namespace ravelo
