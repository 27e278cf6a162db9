#pragma once

#include <QByteArrayView>
#include <QString>

#include <optional>

// What Claude Code leaves on the disk: its transcripts, a JSON object (RFC 8259) a line, and its
// settings. Pure functions on bytes.

namespace ravelo {

/// How much of a transcript is looked at, from its end; bytes.
inline constexpr qint64 transcriptWindow = 1'000'000;

/// How much if no turn was found in that, as behind a very long line.
inline constexpr qint64 widestTranscriptWindow = 16'000'000;

/// What the last turn of an assistant took from its context.
struct TurnUsage {
    QString model; ///< As the transcript has it.
    qint64 tokens = 0;

    friend bool operator==(const TurnUsage&, const TurnUsage&) = default;
};

/// The last turn that counts in the end of a transcript: of the session itself and of a real model,
/// with tokens. Its first line may be cut. Nothing where no turn counts or the bytes are not UTF-8,
/// as when they begin within a character. A line whose counts add up to more than 64 bits hold is
/// ignored like any malformed one: a foreign file must not end the program.
[[nodiscard]] std::optional<TurnUsage> lastUsage(QByteArrayView window);

/// What follows the first line break: whole lines, of a window that may begin anywhere.
[[nodiscard]] QByteArrayView afterFirstLine(QByteArrayView window);

/// The limit of the context that the user set in Claude Code's settings file, as it stands there.
[[nodiscard]] std::optional<qint64> compactWindow(QByteArrayView settings);

/// "Opus 4.6" for "claude-opus-4-6[1m]", also as Bedrock calls it, with the region and the vendor
/// before and the version behind.
[[nodiscard]] QString prettyModel(const QString& raw);

} // namespace ravelo
