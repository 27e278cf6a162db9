#pragma once

#include "base/OwnFile.h"
#include "store/Records.h"

namespace ravelo {

class ImageDecoder;
class Vault;

/// Drops the imported snippets with an image whose title, text and image are those of one of
/// `known`, and removes the images that nothing else in `imported` uses. Blocks; any thread.
void dropKnownSnippets(StoreData& imported, const QList<Snippet>& known, const Vault& vault,
                       ImageDecoder& decoder, const OwnFile::Permission& mayWrite);

} // namespace ravelo
