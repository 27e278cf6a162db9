#pragma once

#include "base/OwnFile.h"
#include "store/Records.h"

#include <QList>
#include <QString>

namespace ravelo {

class ImageDecoder;
class Vault;

/// Files with snippets to pass on: one JSON object (RFC 8259) with "format": "ravelo-snippets",
/// "version": 1 and "snippets", each with "title", "body", "icon" and perhaps "image", a PNG in
/// base64 (RFC 4648). All errors are for the user. The functions take seconds; any thread.

/// No file is longer, in bytes.
inline constexpr qint64 maxSnippetFile = qint64(16) << 20;

/// Writes or replaces the file, not encrypted and readable by its user alone. Nothing is written if
/// an image cannot be read or the file would be too long.
[[nodiscard]] Result<void> exportSnippets(const QList<Snippet>& snippets, const Vault& vault,
                                          const QString& path);

/// Reads a file as untrusted, all or nothing: every image is decoded and encoded again and written
/// to the clips folder under a new name; ids are new, and what the file says of ids and file names
/// is ignored. On an error nothing stays.
[[nodiscard]] Result<QList<Snippet>> importSnippets(const QString& path, const Vault& vault,
                                                    ImageDecoder& decoder,
                                                    const OwnFile::Permission& mayWrite);

} // namespace ravelo
