// bench_transcripts COUNT: finds the newest of 6,000 transcripts, one of 300 MB, COUNT times.
// A line each: milliseconds of the first look, of find(1) that only names them, and milliseconds
// of processor time of a look when nothing is new.
// bench_transcripts HOME: makes the 6,000 below a home that has none.

#include "monitor/ContextReader.h"
#include "platform/system/InotifyChanges.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <cstdio>
#include <ctime>

namespace {

using namespace ravelo;
using namespace Qt::StringLiterals;

constexpr int projects = 150;
constexpr int sessions = 40;
constexpr int idleLooks = 1000;

constexpr auto turn = R"({"message":{"model":"claude-opus-4-6","usage":{"input_tokens":41500}}})"
                      "\n";
// The newest is a session of weeks: 300 MB, of which only the end should be read.
constexpr auto lastTurn =
    R"({"message":{"model":"claude-opus-4-6","usage":{"input_tokens":77000}}})"
    "\n";
constexpr int lastTokens = 77000;
constexpr qint64 longest = 300'000'000;

void write(QFile& file, const QByteArray& bytes) {
    if (file.write(bytes) != bytes.size()) {
        qFatal("cannot write %s", qPrintable(file.fileName()));
    }
}

void open(QFile& file) {
    if (!file.open(QFile::WriteOnly)) {
        qFatal("cannot write %s", qPrintable(file.fileName()));
    }
}

void fill(const QString& root) {
    for (int project = 0; project < projects; ++project) {
        const QString folder = u"%1/-home-somebody-project-%2"_s.arg(root).arg(project);
        QDir().mkpath(folder);
        for (int session = 0; session < sessions; ++session) {
            QFile file(u"%1/0b5f6f0e-86d5-4a30-b7c1-%2.jsonl"_s.arg(folder).arg(session, 12, 10,
                                                                                QChar(u'0')));
            open(file);
            write(file, turn);
        }
    }
    QFile file(u"%1/-home-somebody-project-0/the-longest.jsonl"_s.arg(root));
    open(file);
    const QByteArray turns = QByteArray(turn).repeated(10'000);
    while (file.pos() < longest) {
        write(file, turns);
    }
    write(file, lastTurn);
}

double milliseconds(const QElapsedTimer& timer) {
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

double processorTime() {
    timespec time = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

double find(const QString& root) {
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    QElapsedTimer timer;
    timer.start();
    process.start(u"find"_s, {root, u"-name"_s, u"*.jsonl"_s});
    if (!process.waitForFinished() || process.exitCode() != 0) {
        qFatal("find does not work");
    }
    return milliseconds(timer);
}

void look(const QByteArray& home) {
    ContextReader reader(home, std::make_unique<InotifyChanges>());
    QElapsedTimer timer;
    timer.start();
    const ContextReading reading = reader.read({});
    const double cold = milliseconds(timer);
    if (!reading.turn || reading.turn->usage.tokens != lastTokens) {
        qFatal("the last turn of the newest was not found");
    }
    const double before = processorTime();
    for (int i = 0; i < idleLooks; ++i) {
        if (!reader.read({}).turn) {
            qFatal("what was found is gone");
        }
    }
    const double idle = (processorTime() - before) / idleLooks;
    std::printf("%g %g %g\n", cold, find(QFile::decodeName(home) + u"/.claude/projects"_s), idle);
}

} // namespace

int main(int argc, char** argv) {
    const QString argument = QFile::decodeName(argc > 1 ? argv[1] : "1");
    if (argument.startsWith(u'/')) {
        fill(argument + u"/.claude/projects"_s);
        return 0;
    }
    const QTemporaryDir home;
    fill(home.filePath(u".claude/projects"_s));
    for (int i = 0; i < argument.toInt(); ++i) {
        look(QFile::encodeName(home.path()));
    }
    return 0;
}
