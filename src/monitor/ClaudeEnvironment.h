#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QByteArrayView>
#include <QProcessEnvironment>

// Claude Code's folders according to the environment, and the environment that we run Claude Code
// in. `home` is the user's home folder.

namespace ravelo {

/// Where Claude Code may keep its files if not in `home`/.claude, the likelier first.
[[nodiscard]] QByteArrayList otherClaudeFolders(const QByteArray& home,
                                                const QProcessEnvironment& environment);

/// Only what Claude Code needs to renew its credentials. Without ANTHROPIC_* and CLAUDE_CODE_*,
/// which choose another account, server or model: with an API key it would bill the key and renew
/// nothing. Without variables that load code into programs, like NODE_OPTIONS.
[[nodiscard]] QProcessEnvironment renewalEnvironment(const QProcessEnvironment& environment);

/// The folder that the renewal runs in. Always below the home folder: Claude Code also obeys files
/// in the parent folders, and XDG_RUNTIME_DIR may be in /tmp, where anybody can create files.
[[nodiscard]] QByteArray renewalFolder(const QByteArray& home);

/// Whether the transcripts in a folder of this name are those of renewals: Claude Code names it by
/// where it ran.
[[nodiscard]] bool isOfRenewal(QByteArrayView transcriptFolder);

} // namespace ravelo
