#include "app/Commands.h"

#include "app/FileArguments.h"
#include "app/StatusCommands.h"
#include "base/FileUrl.h"
#include "base/Scheduler.h"
#include "clipboard/CapturePause.h"
#include "monitor/StatusText.h"
#include "panel/NotchController.h"
#include "store/Store.h"
#include "timer/FocusTimer.h"
#include "timer/TimerString.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <span>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

using Services = Commands::Services;

constexpr qsizetype maxFiles = 1000; ///< More on the shelf at once is a mistake.

// Options of the commands.

Result<void> nothing(const QStringList& arguments) {
    return arguments.isEmpty() ? Result<void>()
                               : failure(u"unknown argument: "_s + arguments.first());
}

Result<void> jsonAtMost(const QStringList& arguments) {
    return nothing(arguments.mid(arguments.value(0) == "--json"_L1 ? 1 : 0));
}

Result<void> statusFormatAtMost(const QStringList& arguments) {
    static const QStringList formats{u"--json"_s, u"--waybar"_s, u"--tmux"_s};
    return nothing(arguments.mid(formats.contains(arguments.value(0)) ? 1 : 0));
}

bool asksForNul(const QString& argument) {
    return argument == "--null"_L1 || argument == "-0"_L1;
}

Result<void> listFormatAtMost(const QStringList& arguments) {
    return asksForNul(arguments.value(0)) ? nothing(arguments.mid(1)) : jsonAtMost(arguments);
}

Result<void> files(const QStringList& arguments) {
    if (arguments.isEmpty()) {
        return failure(u"no files"_s);
    }
    return arguments.size() <= maxFiles
               ? Result<void>()
               : failure(u"%1 files are too many at once, %2 is the limit"_s.arg(arguments.size())
                             .arg(maxFiles));
}

Result<void> oneFile(const QStringList& arguments) {
    return arguments.isEmpty() ? failure(u"which file?"_s) : nothing(arguments.mid(1));
}

Result<void> confirmed(const QStringList& arguments) {
    return arguments.value(0) == "--yes"_L1
               ? nothing(arguments.mid(1))
               : failure(u"this erases history, notes, snippets, shelf and settings for good: "
                         "ravelo erase --yes"_s);
}

Result<void> lengthAndLabel(const QStringList& arguments) {
    if (arguments.isEmpty()) {
        return failure(u"a timer needs a number of minutes, like 25 or 0.5"_s);
    }
    return writtenMinutes(arguments.front())
               ? Result<void>()
               : failure(u"a timer runs for a number of minutes, like 25 or 0.5, not for \""_s +
                         arguments.front() + u'"');
}

Result<void> pauseArguments(const QStringList& arguments) {
    if (arguments.value(0) == "--status"_L1) {
        return jsonAtMost(arguments.mid(1));
    }
    if (!arguments.isEmpty() && !writtenMinutes(arguments.front())) {
        return failure(u"a pause lasts for a number of minutes, like 15 or 0.5, not for \""_s +
                       arguments.front() + u'"');
    }
    return nothing(arguments.mid(1));
}

// The commands.

/// `arguments` are the words after those of the command.
struct Call {
    const Services& services;
    QStringList arguments;
    QByteArray activationToken;
};

Answer printed(const QJsonObject& object) {
    return {0, QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n', {}};
}

Answer show(const Call& call) {
    call.services.notch.open();
    return {};
}

/// By a session manager, while this program is running already.
Answer restore(const Call& /*call*/) {
    return {};
}

Answer toggle(const Call& call) {
    call.services.notch.toggle(call.activationToken);
    return {};
}

Answer settings(const Call& call) {
    call.services.notch.openSettings();
    return {};
}

Answer setup(const Call& call) {
    call.services.showSetup();
    return {};
}

Answer updates(const Call& call) {
    call.services.checkUpdates();
    return {};
}

Answer quit(const Call& call) {
    call.services.quit();
    return {};
}

Answer open(const Call& call) {
    QStringList paths;
    QStringList errors;
    for (const QString& file : call.arguments) {
        const auto path = absolutePath(file.toUtf8());
        path ? paths.append(*path) : errors.append(path.error().message);
    }
    paths.removeDuplicates(); // A pattern and a name may match the same file.
    if (!paths.isEmpty()) {
        QList<QUrl> urls;
        std::ranges::transform(paths, std::back_inserter(urls), QUrl::fromLocalFile);
        call.services.notch.onFiles(urls);
    }
    return {errors.isEmpty() ? 0 : 1, {}, errors.join(u'\n')};
}

double roundedToMilliseconds(double seconds) {
    return std::round(seconds * 1000) / 1000;
}

/// Of a pause, in the local time zone: "10:57".
QString timeOfDay(Date date) {
    return toDateTime(date).toLocalTime().toString(u"HH:mm"_s);
}

Answer pauseStatus(const CapturePause& pause, bool json) {
    const auto until = pause.until();
    if (json) {
        const QJsonValue ends =
            until ? toDateTime(*until).toUTC().toString(Qt::ISODate) : QJsonValue();
        return printed({{u"paused"_s, pause.isPaused()},
                        {u"remaining"_s, roundedToMilliseconds(pause.remaining().count())},
                        {u"until"_s, ends}});
    }
    const QString text = !pause.isPaused() ? u"capturing"_s
                         : until           ? u"paused until "_s + timeOfDay(*until)
                                           : u"paused"_s;
    return {0, text.toUtf8() + '\n', {}};
}

Answer pause(const Call& call) {
    const QString first = call.arguments.value(0);
    if (first == "--status"_L1) {
        return pauseStatus(call.services.pause, call.arguments.size() > 1);
    }
    const auto minutes = writtenMinutes(first);
    call.services.pause.pause(minutes ? std::optional(Seconds(*minutes * 60)) : std::nullopt);
    return {};
}

Answer resume(const Call& call) {
    call.services.pause.resume();
    return {};
}

Answer ignoreNext(const Call& call) {
    call.services.pause.ignoreNext();
    return {};
}

Answer startTimer(const Call& call) {
    call.services.store.startTimer(call.arguments.mid(1).join(u' '),
                                   writtenMinutes(call.arguments.first()).value_or(0));
    return {};
}

Answer stopTimer(const Call& call) {
    call.services.store.stopTimer();
    return {};
}

/// A label in one line, without control characters.
QString harmless(QString label) {
    const auto isControl = [](QChar c) {
        return c.category() == QChar::Other_Control;
    };
    std::ranges::replace_if(label, isControl, u' ');
    return label.simplified();
}

QJsonObject described(const Store& store, Date now) {
    if (!store.timerRunning()) {
        return {{u"running"_s, false}, {u"label"_s, QString()}, {u"remaining"_s, 0},
                {u"duration"_s, 0},    {u"ends"_s, {}},         {u"text"_s, QString()}};
    }
    const double remaining = store.timerRemaining();
    const QString text = timerString(Seconds(remaining)) + u' ' + harmless(store.timerLabel());
    const QDateTime ends = toDateTime({now.sinceReference + remaining});
    return {{u"running"_s, true},
            {u"label"_s, store.timerLabel()},
            {u"remaining"_s, roundedToMilliseconds(remaining)},
            {u"duration"_s, roundedToMilliseconds(store.timerDuration())},
            {u"ends"_s, ends.toUTC().toString(Qt::ISODate)},
            {u"text"_s, text.trimmed()}};
}

Answer timerStatus(const Call& call) {
    const QJsonObject timer = described(call.services.store, call.services.scheduler.now());
    if (!call.arguments.isEmpty()) {
        return printed(timer);
    }
    const QString text = timer[u"running"].toBool() ? timer[u"text"].toString() : u"no timer"_s;
    return {0, text.toUtf8() + '\n', {}};
}

/// A path that is not UTF-8 is replaced in part; "uri" is exact.
QJsonObject described(const QUrl& url) {
    const QByteArray path = filePath(url);
    QJsonObject file{{u"path"_s, QString::fromUtf8(path)}};
    if (!path.isValidUtf8()) {
        file[u"uri"] = QString::fromLatin1(fileAddress(url));
    }
    return file;
}

QJsonArray described(const Shelf& shelf) {
    QJsonArray files;
    for (qsizetype stack = 0; stack < shelf.stacks.size(); ++stack) {
        for (const QUrl& url : shelf.stacks.at(stack)) {
            QJsonObject file = described(url);
            file[u"stack"] = stack;
            file[u"selected"] = shelf.selected.contains(url);
            files.append(file);
        }
    }
    return files;
}

Answer shelfList(const Call& call) {
    const Shelf& shelf = call.services.store.shelf();
    const QString format = call.arguments.value(0);
    if (!format.isEmpty() && !asksForNul(format)) {
        return printed({{u"files"_s, described(shelf)}});
    }
    Answer answer;
    for (const QUrl& url : shelf.files()) {
        answer.output += filePath(url) + (asksForNul(format) ? '\0' : '\n');
    }
    return answer;
}

Answer status(const Call& call) {
    const Date now = call.services.scheduler.now();
    MonitorStatus status = MonitorStatus::of(call.services.context, call.services.usage, now);
    status.second = call.services.secondPlan();
    return statusAnswer(status, now, call.services.statusChoice(), call.arguments);
}

void exportTo(const Call& call, const Commands::Reply& reply) {
    call.services.exportTo(call.arguments.first(), reply);
}

void importFrom(const Call& call, const Commands::Reply& reply) {
    call.services.importFrom(call.arguments.first(), reply);
}

void erase(const Call& call, const Commands::Reply& reply) {
    call.services.erase(reply);
}

struct Row {
    QStringList words;
    Result<void> (*check)(const QStringList& arguments);
    Answer (*answer)(const Call& call);
    void (*answerLater)(const Call& call, const Commands::Reply& reply) = nullptr;
};

std::span<const Row> allRows() {
    static const Row rows[] = {
        {{u"show"_s}, nothing, show},
        {{u"restore"_s}, nothing, restore},
        {{u"toggle"_s}, nothing, toggle},
        {{u"settings"_s}, nothing, settings},
        {{u"setup"_s}, nothing, setup},
        {{u"updates"_s}, nothing, updates},
        {{u"quit"_s}, nothing, quit},
        {{u"status"_s}, statusFormatAtMost, status},
        {{u"open"_s}, files, open},
        {{u"timer"_s, u"start"_s}, lengthAndLabel, startTimer},
        {{u"timer"_s, u"stop"_s}, nothing, stopTimer},
        {{u"timer"_s, u"status"_s}, jsonAtMost, timerStatus},
        {{u"shelf"_s, u"list"_s}, listFormatAtMost, shelfList},
        {{u"pause"_s}, pauseArguments, pause},
        {{u"resume"_s}, nothing, resume},
        {{u"ignore-next"_s}, nothing, ignoreNext},
        {{u"export"_s}, oneFile, nullptr, exportTo},
        {{u"import"_s}, oneFile, nullptr, importFrom},
        {{u"erase"_s}, confirmed, nullptr, erase},
    };
    return rows;
}

const Row* rowFor(const QStringList& request) {
    const auto rows = allRows();
    const auto found = std::ranges::find_if(
        rows, [&](const Row& row) { return request.mid(0, row.words.size()) == row.words; });
    return found == rows.end() ? nullptr : &*found;
}

/// Names the commands that begin like it.
QString unknown(const QStringList& request) {
    QStringList similar;
    for (const Row& row : allRows()) {
        if (row.words.front() == request.value(0)) {
            similar += row.words.join(u' ');
        }
    }
    const QString hint = similar.isEmpty() ? QString() : u"; there is "_s + similar.join(u", "_s);
    return u"unknown command: "_s + request.join(u' ') + hint;
}

} // namespace

Commands::Commands(Services services) : services_(std::move(services)) {}

Result<void> Commands::check(const QStringList& request) {
    const Row* const row = rowFor(request);
    return row ? row->check(request.mid(row->words.size())) : failure(unknown(request));
}

Answer Commands::answer(const QStringList& request, const QByteArray& activationToken) const {
    if (const auto checked = check(request); !checked) {
        return {2, {}, checked.error().message};
    }
    const Row* const row = rowFor(request);
    if (row->answer == nullptr) {
        return {2, {}, u"it takes time: "_s + request.first()};
    }
    return row->answer({services_, request.mid(row->words.size()), activationToken});
}

bool Commands::answerLater(const QStringList& request, const Reply& reply) const {
    const Row* const row = check(request) ? rowFor(request) : nullptr;
    if (row == nullptr || row->answerLater == nullptr) {
        return false;
    }
    row->answerLater({services_, request.mid(row->words.size()), {}}, reply);
    return true;
}

} // namespace ravelo
