#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QProcessEnvironment>

// What the environment says about where Claude Code keeps its files, and what of it Claude Code
// gets when we run it ourselves. `home` is the user's home folder.

namespace ravelo {

/// Where Claude Code may keep its files if not in `home`/.claude, likelier ones first.
[[nodiscard]] QByteArrayList otherClaudeFolders(const QByteArray& home,
                                                const QProcessEnvironment& environment);

/// What Claude Code needs to renew its credentials, and nothing else. Without the ANTHROPIC_* and
/// CLAUDE_CODE_* settings that choose another account, server or model: with an API key it would
/// bill the key and renew nothing. Without what loads code into programs, as NODE_OPTIONS does.
[[nodiscard]] QProcessEnvironment renewalEnvironment(const QProcessEnvironment& environment);

/// A folder for the renewal to run in. Below the runtime folder or the home, never below /tmp:
/// Claude Code also obeys files in the folders above, which anybody may put there.
[[nodiscard]] QByteArray renewalFolder(const QByteArray& home,
                                       const QProcessEnvironment& environment);

} // namespace ravelo
