#pragma once

#include "store/Records.h"

#include <QByteArray>

#include <optional>

namespace ravelo {

/// The store file: one JSON object (RFC 8259) without white space, UUIDs in upper case, dates as
/// seconds since 2001-01-01 00:00:00 UTC. All values round-trip bit for bit, except NaN and
/// infinity, which JSON lacks. Secrets are left out. Any thread.
[[nodiscard]] QByteArray encodeStore(const StoreData& data);

/// All or nothing: a missing key, a value of the wrong type or anything after the object makes the
/// file undecodable. Only the file name of an image may be missing or null; unknown keys are
/// ignored. Any thread.
[[nodiscard]] std::optional<StoreData> decodeStore(const QByteArray& bytes);

/// Whether these are the bytes of a store by a later version: an object with a "version" above 1.
/// Whoever cannot read it must not replace it. Any thread.
[[nodiscard]] bool isOfNewerStore(const QByteArray& bytes);

} // namespace ravelo
