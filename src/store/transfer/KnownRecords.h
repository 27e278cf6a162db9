#pragma once

#include "base/OwnFile.h"
#include "store/Records.h"

namespace ravelo {

class ImageDecoder;
class Vault;

/// Drops what is imported, but already known: snippets with an image whose title, text and image
/// are those of a known one; clips of a known clip's image; pinned texts that are pinned already.
/// Removes the files that nothing else in `imported` uses. Blocks; any thread.
void dropKnownRecords(StoreData& imported, const StoreData& known, const Vault& vault,
                      ImageDecoder& decoder, const OwnFile::Permission& mayWrite);

} // namespace ravelo
