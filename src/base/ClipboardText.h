#pragma once

#include <QByteArray>
#include <QList>

#include <optional>

namespace ravelo {

/// Whether this target is plain text in any encoding (ICCCM 2.6.2, and the
/// MIME types that today's programs offer beside it).
[[nodiscard]] bool isPlainText(const QByteArray& target);

/// Those of `targets` that can be turned into UTF-8, the surest first.
[[nodiscard]] QList<QByteArray> textTargets(const QList<QByteArray>& targets);

/// Text that an owner gave when asked for `target`, as UTF-8. `type` is what it said to have given,
/// and takes precedence. Nothing if the encoding is not supported.
[[nodiscard]] std::optional<QByteArray> toUtf8(const QByteArray& target, const QByteArray& type,
                                               const QByteArray& bytes);

} // namespace ravelo
