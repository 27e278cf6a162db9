#pragma once

#include "store/Records.h"

#include <QByteArray>

#include <optional>

namespace ravelo {

/// The store file: one JSON object (RFC 8259) without white space, UUIDs in upper case, dates as
/// seconds since 2001-01-01 00:00:00 UTC. Every value but a NaN or an infinity, which JSON cannot
/// name, comes back from it bit for bit. Any thread.
[[nodiscard]] QByteArray encodeStore(const StoreData& data);

/// All or nothing: a missing key, a value of the wrong kind or anything after the object makes the
/// file undecodable. Only an image's file name may be missing or null; keys we do not know are
/// passed over. Any thread.
[[nodiscard]] std::optional<StoreData> decodeStore(const QByteArray& bytes);

} // namespace ravelo
