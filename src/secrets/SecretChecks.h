#pragma once

#include <QStringView>

namespace ravelo {

/// The check digit of card numbers (ISO/IEC 7812-1). Only digits.
[[nodiscard]] bool hasLuhnDigit(QStringView digits);

/// A header of a JSON Web Token (RFC 7519) names an algorithm.
[[nodiscard]] bool isJwtHeader(QStringView base64url);

/// As irregular as a generated key: not a name, a path, a checksum or an identifier.
[[nodiscard]] bool hasEntropyOfKey(QStringView word);

/// A card number as it is written: digits in a row, or in groups of two to six, all separated
/// by a blank or all by a hyphen. Returns the digits; empty if it is written otherwise.
[[nodiscard]] QString cardDigits(QStringView written);

} // namespace ravelo
