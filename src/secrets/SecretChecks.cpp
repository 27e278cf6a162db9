#include "secrets/SecretChecks.h"

#include <QByteArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>
#include <map>

namespace ravelo {

namespace {

enum class Letter { lower, upper, digit, other };

Letter letterOf(QChar c) {
    return c.isLower()   ? Letter::lower
           : c.isUpper() ? Letter::upper
           : c.isDigit() ? Letter::digit
                         : Letter::other;
}

/// Bits per character, from how often each occurs.
double entropy(QStringView word) {
    std::map<char16_t, int> counts;
    for (const QChar c : word) {
        ++counts[c.unicode()];
    }
    double bits = 0;
    for (const auto& [letter, count] : counts) {
        const double share = double(count) / double(word.size());
        bits -= share * std::log2(share);
    }
    return bits;
}

bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

} // namespace

bool hasLuhnDigit(QStringView digits) {
    int sum = 0;
    for (qsizetype i = 0; i < digits.size(); ++i) {
        const int digit = digits[digits.size() - 1 - i].digitValue();
        const int doubled = digit * 2 > 9 ? digit * 2 - 9 : digit * 2;
        sum += i % 2 == 0 ? digit : doubled;
    }
    return sum % 10 == 0;
}

bool isJwtHeader(QStringView base64url) {
    const QByteArray header =
        QByteArray::fromBase64(base64url.toLatin1(), QByteArray::Base64UrlEncoding);
    return QJsonDocument::fromJson(header).object().value(u"alg").isString();
}

bool hasEntropyOfKey(QStringView word) {
    constexpr double bitsOfKey = 3.4;
    constexpr double changesOfKey = 0.3;
    int changes = 0; ///< Between kinds of letters; words and names have few.
    bool has[4] = {};
    for (qsizetype i = 0; i < word.size(); ++i) {
        has[static_cast<int>(letterOf(word[i]))] = true;
        changes += i > 0 && letterOf(word[i]) != letterOf(word[i - 1]) ? 1 : 0;
    }
    return has[0] && has[1] && has[2] && entropy(word) >= bitsOfKey &&
           changes >= changesOfKey * double(word.size() - 1);
}

QString cardDigits(QStringView written) {
    const auto separator = std::ranges::find_if_not(written, isDigit);
    if (separator == written.end()) {
        return written.toString();
    }
    if (*separator != u' ' && *separator != u'-') {
        return {};
    }
    QString digits;
    for (const QStringView group : written.split(*separator)) {
        const bool fits = group.size() >= 2 && group.size() <= 6;
        if (!fits || !std::ranges::all_of(group, isDigit)) {
            return {};
        }
        digits += group;
    }
    return digits;
}

} // namespace ravelo
