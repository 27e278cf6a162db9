#pragma once

#include <QByteArrayView>
#include <QString>

#include <optional>

// Claude Code's transcripts, one JSON object (RFC 8259) per line, and settings. Pure functions.

namespace ravelo {

/// Bytes to read from the end of a transcript.
inline constexpr qint64 transcriptWindow = 1'000'000;

/// Bytes to read if there is no turn in these, for example because of a very long line.
inline constexpr qint64 maxTranscriptWindow = 16'000'000;

/// The size of the context in a turn of the assistant.
struct TurnUsage {
    QString model; ///< As in the transcript.
    qint64 tokens = 0;
    QString folder = {}; ///< That the session was in then; empty if it is not said.

    friend bool operator==(const TurnUsage&, const TurnUsage&) = default;
};

/// The last turn of a real model in the session itself, with tokens. The first line may be cut.
/// Nothing if there is no such turn or the bytes are not UTF-8, for example because they start
/// within a character. Malformed lines are ignored, also if the sum of the counts overflows.
[[nodiscard]] std::optional<TurnUsage> lastUsage(QByteArrayView window);

/// Without the first line, which may be cut.
[[nodiscard]] QByteArrayView afterFirstLine(QByteArrayView window);

/// The context limit in Claude Code's settings file, not validated.
[[nodiscard]] std::optional<qint64> compactWindow(QByteArrayView settings);

/// "Opus 4.6" for "claude-opus-4-6[1m]" and for the names of Bedrock, which add region, vendor and
/// version.
[[nodiscard]] QString prettyModel(const QString& raw);

/// The name of a project for display. `folder` is where the session works, which may be below the
/// project; `stored` is the name of the transcript's folder, which is the project's path with "-"
/// for all but letters and digits, and `home` the user's home folder.
[[nodiscard]] QString projectName(const QString& folder, const QString& stored = {},
                                  const QString& home = {});

/// Text of another program, short and in one line.
[[nodiscard]] QString oneLine(const QString& text);

} // namespace ravelo
