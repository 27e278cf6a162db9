#include "monitor/HandedOver.h"

#include "monitor/MonitorFiles.h"
#include "monitor/TranscriptParser.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView contextWindow("context_window");
constexpr QLatin1StringView windowSize("context_window_size");
constexpr QLatin1StringView currentUsage("current_usage");
constexpr QLatin1StringView inputTokens("input_tokens");
constexpr QLatin1StringView projectFolder("project_dir");
constexpr QLatin1StringView displayName("display_name");
constexpr QLatin1StringView totalCost("total_cost_usd");
constexpr QLatin1StringView sessionId("session_id");

/// Nothing if it is no count of tokens.
std::optional<qint64> tokens(const QJsonValue& value) {
    constexpr double most = 1e15;
    const double number = value.toDouble(-1);
    return number >= 0 && number <= most ? std::optional(std::llround(number)) : std::nullopt;
}

/// Counted like a transcript's turn; else as the percentage says.
std::optional<qint64> usedTokens(const QJsonValue& window) {
    const QJsonValue usage = window[currentUsage];
    std::optional<qint64> sum;
    for (const auto& key :
         {inputTokens, "cache_read_input_tokens"_L1, "cache_creation_input_tokens"_L1}) {
        if (const auto count = tokens(usage[key])) {
            sum = sum.value_or(0) + *count;
        }
    }
    const QJsonValue percent = window["used_percentage"_L1];
    const auto size = tokens(window[windowSize]);
    return sum || !size || !percent.isDouble()
               ? sum
               : tokens(static_cast<double>(*size) * percent.toDouble() / 100);
}

QJsonValue orNull(const auto& value) {
    return value ? QJsonValue(*value) : QJsonValue();
}

} // namespace

std::optional<HandedOver> readHandedOver(QByteArrayView json, Date now) {
    const QJsonDocument document =
        QJsonDocument::fromJson(QByteArray::fromRawData(json.data(), json.size()));
    const QJsonValue window = document[contextWindow];
    const QJsonValue cost = document["cost"_L1][totalCost];
    const QJsonValue time = document["time"_L1];
    HandedOver handed{
        oneLine(document["model"_L1][displayName].toString()),
        oneLine(document[sessionId].toString()),
        projectName(document["workspace"_L1][projectFolder].toString()),
        tokens(window[windowSize]),
        usedTokens(window),
        cost.isDouble() ? std::optional(cost.toDouble()) : std::nullopt,
        time.isDouble() ? Date{time.toDouble() - referenceInstant} : now,
    };
    return handed.model.isEmpty() && !handed.window ? std::nullopt : std::optional(handed);
}

QByteArray handedOverFile(const QByteArray& home) {
    return monitorCache(home, "session.json");
}

std::optional<HandedOver> loadHandedOver(const QByteArray& home) {
    const auto bytes = readMonitorFile(handedOverFile(home));
    return bytes ? readHandedOver(*bytes, Date{}) : std::nullopt;
}

Result<void> storeHandedOver(const QByteArray& home, const HandedOver& handed) {
    const QJsonObject kept{
        {u"model"_s, QJsonObject{{displayName, handed.model}}},
        {sessionId, handed.session},
        {u"workspace"_s, QJsonObject{{projectFolder, handed.project}}},
        {contextWindow,
         QJsonObject{{windowSize, orNull(handed.window)},
                     {currentUsage, QJsonObject{{inputTokens, orNull(handed.used)}}}}},
        {u"cost"_s, QJsonObject{{totalCost, orNull(handed.cost)}}},
        {u"time"_s, handed.at.sinceReference + referenceInstant}};
    return writeMonitorFile(handedOverFile(home), QJsonDocument(kept).toJson());
}

} // namespace ravelo
