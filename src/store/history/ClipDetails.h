#pragma once

#include "store/history/ClipForms.h"

#include <QSize>

namespace ravelo {

class Vault;

/// What can be shown of a clip beside its text, without its contents.
struct ClipDetails {
    QString program{};   ///< That it was copied from; empty if unknown.
    QStringList forms{}; ///< Types of its other forms.
    qsizetype files = 0; ///< Number of files, if it is a clip of files.
    QSize pixels{};      ///< Of an image; invalid until looked up, empty if it cannot be read.

    friend bool operator==(const ClipDetails&, const ClipDetails&) = default;
};

[[nodiscard]] ClipDetails detailsOf(const ClipForms& kept);

/// The kept forms; nothing if there are none, or they cannot be read. Blocks; any thread.
[[nodiscard]] std::optional<ClipForms> readForms(const Vault& vault, const QString& path);

/// The size of a stored image by its header; empty if it cannot be read. Blocks; any thread.
[[nodiscard]] QSize imageSize(const Vault& vault, const QString& path);

} // namespace ravelo
