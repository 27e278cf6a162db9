#include "monitor/ClaudeEnvironment.h"

#include <QFile>

#include <algorithm>
#include <array>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array needed = {
    "HOME"_L1, "PATH"_L1, "USER"_L1, "LOGNAME"_L1, "SHELL"_L1, "TMPDIR"_L1, "LANG"_L1,
    "LANGUAGE"_L1,
    // To find its files and the keyring.
    "CLAUDE_CONFIG_DIR"_L1, "XDG_CONFIG_HOME"_L1, "XDG_DATA_HOME"_L1, "XDG_STATE_HOME"_L1,
    "XDG_CACHE_HOME"_L1, "XDG_RUNTIME_DIR"_L1, "DBUS_SESSION_BUS_ADDRESS"_L1,
    // Proxies and certificates.
    "http_proxy"_L1, "https_proxy"_L1, "all_proxy"_L1, "no_proxy"_L1, "HTTP_PROXY"_L1,
    "HTTPS_PROXY"_L1, "ALL_PROXY"_L1, "NO_PROXY"_L1, "SSL_CERT_FILE"_L1, "SSL_CERT_DIR"_L1,
    "NODE_EXTRA_CA_CERTS"_L1, "CLAUDE_CODE_CLIENT_CERT"_L1, "CLAUDE_CODE_CLIENT_KEY"_L1,
    "CLAUDE_CODE_CLIENT_KEY_PASSPHRASE"_L1};

/// An absolute path without a trailing slash, or empty.
QByteArray folder(const QProcessEnvironment& environment, const QString& name) {
    QByteArray path = QFile::encodeName(environment.value(name));
    while (path.size() > 1 && path.endsWith('/')) {
        path.chop(1);
    }
    return path.startsWith('/') ? path : QByteArray();
}

} // namespace

QByteArrayList otherClaudeFolders(const QByteArray& home, const QProcessEnvironment& environment) {
    QByteArrayList folders{home + "/.config/claude"};
    const QByteArray chosen = folder(environment, u"CLAUDE_CONFIG_DIR"_s);
    if (!chosen.isEmpty() && chosen != home + "/.claude" && chosen != folders.first()) {
        folders.prepend(chosen);
    }
    return folders;
}

QProcessEnvironment renewalEnvironment(const QProcessEnvironment& environment) {
    QProcessEnvironment kept;
    for (const QString& name : environment.keys()) {
        if (name.startsWith("LC_"_L1) || std::ranges::find(needed, name) != needed.end()) {
            kept.insert(name, environment.value(name));
        }
    }
    return kept;
}

QByteArray renewalFolder(const QByteArray& home) {
    return home + "/.cache/ravelo-renewal";
}

bool isOfRenewal(QByteArrayView transcriptFolder) {
    return transcriptFolder.endsWith("-ravelo-renewal") ||
           transcriptFolder.endsWith("-ravelo-renewal-second");
}

} // namespace ravelo
