#pragma once

#include <QByteArray>
#include <QList>

#include <optional>

namespace ravelo::x11 {

/// Whether this target stands for text without markup, in whatever encoding (ICCCM 2.6.2, and the
/// MIME types that today's programs offer beside it).
[[nodiscard]] bool isPlainText(const QByteArray& target);

/// Those of `targets` that can be turned into UTF-8, the surest first.
[[nodiscard]] QList<QByteArray> textTargets(const QList<QByteArray>& targets);

/// Text that an owner gave when asked for `target`, as UTF-8. `type` is what it said to have given,
/// and counts for more. Nothing where the encoding is none of ours.
[[nodiscard]] std::optional<QByteArray> toUtf8(const QByteArray& target, const QByteArray& type,
                                               const QByteArray& bytes);

} // namespace ravelo::x11
