#include "Files.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QFile>
#include <QStringList>
#include <QVariantMap>

#include <cstdio>
#include <cstdlib>

#include <unistd.h>

namespace {

using namespace Qt::StringLiterals;

constexpr int timeout = 5000; ///< In ms; enough for thousands of files.
constexpr qint64 maxKey = 4096;

/// Empty if missing or too long.
QByteArray keyFromInput() {
    QFile input;
    if (!input.open(STDIN_FILENO, QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        return {};
    }
    QByteArray key;
    for (QByteArray part = input.read(maxKey); !part.isEmpty() && key.size() <= maxKey;
         part = input.read(maxKey)) {
        key += part;
    }
    return key.size() <= maxKey ? key : QByteArray();
}

QDBusMessage retrieveFiles(const QByteArray& key) {
    auto call = QDBusMessage::createMethodCall(
        u"org.freedesktop.portal.Documents"_s, u"/org/freedesktop/portal/documents"_s,
        u"org.freedesktop.portal.FileTransfer"_s, u"RetrieveFiles"_s);
    call << QString::fromUtf8(key) << QVariantMap();
    call.setAutoStartService(false); // If it does not run, it has no files.
    return QDBusConnection::sessionBus().call(call, QDBus::Block, timeout);
}

} // namespace

int transferFiles() {
    const QByteArray key = keyFromInput();
    if (key.isEmpty()) {
        return EXIT_FAILURE;
    }
    const QDBusMessage reply = retrieveFiles(key);
    if (reply.type() != QDBusMessage::ReplyMessage || reply.signature() != "as"_L1) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(reply.errorMessage()));
        return EXIT_FAILURE;
    }
    for (const QString& path : reply.arguments().constFirst().toStringList()) {
        const QByteArray bytes = path.toUtf8();
        std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()) + 1, stdout);
    }
    return std::fflush(stdout) == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
