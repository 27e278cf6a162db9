#include "platform/freedesktop/session/AutostartEntry.h"

#include "base/Files.h"
#include "platform/DetachedJobs.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QStandardPaths>

#include <memory>
#include <optional>
#include <utility>

#include <unistd.h>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr auto mainGroup = "[Desktop Entry]";

/// The keys of the main group with their raw values.
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

/// An argument of an Exec line: quoted, because a path may contain anything, and escaped twice, as
/// a quoted argument and as a value.
QString execArgument(QString argument) {
    for (const QChar special : QStringView(u"\\\"`$")) {
        argument.replace(special, u'\\' + QString(special));
    }
    argument.replace(u"%"_s, u"%%"_s);
    argument.replace(u"\\"_s, u"\\\\"_s);
    argument.replace(u"\n"_s, u"\\n"_s).replace(u"\r"_s, u"\\r"_s).replace(u"\t"_s, u"\\t"_s);
    return u'"' + argument + u'"';
}

/// The character for a backslash and `code` in a value.
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

/// The inverse of `execArgument`, for the program in an Exec line.
QByteArray firstArgument(const QByteArray& exec) {
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

/// The program that the desktop starts; empty if there is none or it is disabled.
QByteArray programOf(const std::optional<QByteArray>& entry) {
    const auto values = readEntry(entry.value_or(QByteArray()));
    const bool isOff =
        values.value("Hidden") == "true" || values.value("X-GNOME-Autostart-enabled") == "false";
    return isOff ? QByteArray() : firstArgument(values.value("Exec"));
}

/// May block for ever.
bool isThere(const QByteArray& program) {
    return program.startsWith('/')
               ? ::access(program.constData(), X_OK) == 0
               : !QStandardPaths::findExecutable(QFile::decodeName(program)).isEmpty();
}

} // namespace

AutostartEntry::AutostartEntry(const QString& folder, QString program, DetachedJobs& jobs)
    : path_(folder + u"/ravelo.desktop"_s), program_(std::move(program)), jobs_(jobs) {}

bool AutostartEntry::isEnabled() const {
    const QByteArray program = programOf(readFile(path_));
    return !program.isEmpty() && program != gone_;
}

void AutostartEntry::repair(const std::function<void(const Result<void>&)>& done) {
    const QByteArray program = programOf(readFile(path_));
    if (program.isEmpty() || program == QFile::encodeName(program_)) {
        return;
    }
    const auto there = std::make_shared<bool>(true); // Assumed until known.
    looking_ = jobs_.run([program, there] { *there = isThere(program); },
                         [this, program, there, done] {
                             // The entry may have been changed meanwhile.
                             if (!*there && programOf(readFile(path_)) == program) {
                                 gone_ = program;
                                 done(setEnabled(true));
                             }
                         });
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
