#include "platform/freedesktop/AutostartEntry.h"

#include "base/Files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QStandardPaths>

#include <utility>

#include <unistd.h>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr auto mainGroup = "[Desktop Entry]";

/// The keys of the main group with their values as they stand there.
QHash<QByteArray, QByteArray> readEntry(const QByteArray& bytes) {
    QHash<QByteArray, QByteArray> values;
    bool inMainGroup = false;
    for (const QByteArray& line : bytes.split('\n')) {
        if (line.startsWith('[')) {
            inMainGroup = line.trimmed() == mainGroup;
        } else if (const qsizetype equals = line.indexOf('='); inMainGroup && equals > 0) {
            values.insert(line.first(equals).trimmed(), line.sliced(equals + 1).trimmed());
        }
    }
    return values;
}

/// One argument of an Exec line: quoted, since a path may hold anything, and escaped twice, as a
/// quoted argument and as a value of the file.
QString execArgument(QString argument) {
    for (const QChar special : u"\\\"`$"_s) {
        argument.replace(special, u'\\' + QString(special));
    }
    argument.replace(u"%"_s, u"%%"_s);
    argument.replace(u"\\"_s, u"\\\\"_s);
    argument.replace(u"\n"_s, u"\\n"_s).replace(u"\r"_s, u"\\r"_s).replace(u"\t"_s, u"\\t"_s);
    return u'"' + argument + u'"';
}

/// The character that a backslash and `code` stand for in a value of the file.
char unescaped(char code) {
    switch (code) {
    case 's':
        return ' ';
    case 'n':
        return '\n';
    case 't':
        return '\t';
    case 'r':
        return '\r';
    default:
        return code;
    }
}

/// The opposite of `execArgument`, for the first argument of an Exec line: the program.
QByteArray programOf(const QByteArray& exec) {
    QByteArray value;
    for (qsizetype at = 0; at < exec.size(); ++at) {
        const bool isEscape = exec[at] == '\\' && at + 1 < exec.size();
        value += isEscape ? unescaped(exec[++at]) : exec[at];
    }
    QByteArray program;
    bool quoted = false;
    for (qsizetype at = 0; at < value.size() && (quoted || value[at] != ' '); ++at) {
        const bool hasNext = at + 1 < value.size();
        if (value[at] == '"') {
            quoted = !quoted;
        } else if (hasNext &&
                   ((quoted && value[at] == '\\') || value.sliced(at).startsWith("%%"))) {
            program += value[++at];
        } else {
            program += value[at];
        }
    }
    return program;
}

enum class State { off, on, stale };

/// As the desktop sees the entry. `own` is there: it runs.
State stateOf(const QByteArray& entry, const QString& own) {
    const auto values = readEntry(entry);
    const QByteArray program = programOf(values.value("Exec"));
    if (program.isEmpty() || values.value("Hidden") == "true" ||
        values.value("X-GNOME-Autostart-enabled") == "false") {
        return State::off;
    }
    const QString name = QFile::decodeName(program);
    const bool isThere =
        name == own || (program.startsWith('/') ? ::access(program.constData(), X_OK) == 0
                                                : !QStandardPaths::findExecutable(name).isEmpty());
    return isThere ? State::on : State::stale;
}

} // namespace

AutostartEntry::AutostartEntry(const QString& folder, QString program)
    : path_(folder + u"/ravelo.desktop"_s), program_(std::move(program)) {}

bool AutostartEntry::isEnabled() const {
    return stateOf(readFile(path_).value_or(QByteArray()), program_) == State::on;
}

Result<void> AutostartEntry::repair() {
    const bool isStale = stateOf(readFile(path_).value_or(QByteArray()), program_) == State::stale;
    return isStale ? setEnabled(true) : Result<void>();
}

Result<void> AutostartEntry::setEnabled(bool enabled) {
    if (!enabled) {
        QFile file(path_);
        const bool gone = file.remove() || !QFileInfo::exists(path_);
        return gone ? Result<void>() : failure(path_ + u": "_s + file.errorString());
    }
    const QString entry = u"[Desktop Entry]\n"
                          u"Type=Application\n"
                          u"Name=Ravelo\n"
                          u"Exec=%1\n"
                          u"Icon=org.ravelo.Ravelo\n"
                          u"Terminal=false\n"
                          u"X-GNOME-Autostart-enabled=true\n"_s;
    QDir().mkpath(QFileInfo(path_).path());
    return writeFileAtomically(path_, entry.arg(execArgument(program_)).toUtf8())
        .map_error([this](const Error& error) { return Error{path_ + u": "_s + error.message}; });
}

} // namespace ravelo
