#include "platform/system/DecoderProcess.h"
#include "Samples.h"
#include "base/Files.h"
#include "support/Eventually.h"
#include "support/TestFiles.h"

#include <QTemporaryDir>

#include <csignal>

#include <unistd.h>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

/// The running processes that this one has started.
QStringList children() {
    QStringList found;
    for (const QString& process : QDir(u"/proc"_s).entryList({u"[0-9]*"_s}, QDir::Dirs)) {
        const QByteArray stat = readFile(u"/proc/"_s + process + u"/stat"_s).value_or(QByteArray());
        const QByteArrayList fields = stat.mid(stat.lastIndexOf(')') + 2).split(' ');
        if (fields.value(1).toInt() == getpid() && fields.value(0) != "Z") {
            found.append(process);
        }
    }
    return found;
}

/// A decoder whose starts are counted.
class CountedDecoder : public testing::Test {
public:
    CountedDecoder() {
        const QString script = makeProgram(folder.filePath(u"start"_s),
                                           "echo >>\"${0}ed\"\nexec " RAVELO_DECODE " \"$@\"\n");
        decoder = std::make_unique<DecoderProcess>(QFile::encodeName(script),
                                                   QFile::encodeName(folder.filePath(u"own"_s)));
    }

    [[nodiscard]] qsizetype starts() const {
        return readFile(folder.filePath(u"started"_s)).value_or(QByteArray()).size();
    }

    [[nodiscard]] PictureFile write(const char* name, const QByteArray& bytes) const {
        return {QFile::encodeName(makeFile(folder.filePath(QString::fromLatin1(name)), bytes))};
    }

    QTemporaryDir folder;
    std::unique_ptr<DecoderProcess> decoder;
};

/// Without an application there is no font: it ends by abort(3).
constexpr auto deadly = R"(<svg xmlns="http://www.w3.org/2000/svg" width="9" height="9">)"
                        R"(<text x="1" y="8">A</text></svg>)";

TEST_F(CountedDecoder, ServesManyAndCachesSmallPictures) {
    const PictureFile file = write("a.png", samples::picture("png"));
    EXPECT_EQ(starts(), 0) << "started too early";
    EXPECT_EQ(sizeOf(*decoder, file), QSize(64, 32));
    EXPECT_EQ(decoder->filling(file, {8, 8, 8}).size(), QSize(8, 8));
    EXPECT_EQ(decoder->filling(file, {8, 8, 9}).size(), QSize(9, 8));
    EXPECT_EQ(starts(), 1) << "a process for each picture";
    QFile::remove(folder.filePath(u"start"_s));
    decoder = std::make_unique<DecoderProcess>(RAVELO_DECODE, "/nowhere");
    EXPECT_EQ(decoder->filling(file, {8, 8, 8}).size(), QSize(8, 8));
    ASSERT_EQ(children().size(), 1);
    kill(children().constFirst().toInt(), SIGKILL);
    EXPECT_EQ(decoder->filling(file, {8, 8, 8}).size(), QSize(8, 8)) << "it is not kept";
    EXPECT_TRUE(eventually([] { return children().isEmpty(); }));
    EXPECT_EQ(decoder->filling(file, {9, 9, 9}).size(), QSize(9, 9)) << "no new process came";
}

TEST_F(CountedDecoder, KeepsPicturesOfDifferentOriginApart) {
    const PictureFile own = write("own/a.png", samples::picture("png"));
    const PictureFile other = write("a.png", samples::picture("png"));
    const PictureBytes copied = samples::picture("png");

    const struct {
        UntrustedPicture picture;
        int starts;
        const char* what;
    } steps[] = {{own, 1, "the first one of ours"}, {other, 2, "a file of others sees ours"},
                 {own, 2, "ours have a process"},   {copied, 3, "what was copied sees a file"},
                 {copied, 4, "the next copy"},      {other, 4, "other files have a process"},
                 {own, 4, "ours have it still"}};

    for (const auto& step : steps) {
        EXPECT_EQ(sizeOf(*decoder, step.picture), QSize(64, 32)) << step.what;
        EXPECT_EQ(starts(), step.starts) << step.what;
    }
    const PictureFile renamed = write("own/b.png", samples::picture("jpg"));
    EXPECT_EQ(sizeOf(*decoder, renamed), QSize()) << "ours are all PNG";
    EXPECT_EQ(decoder->filling(own, {9, 9, 9}).size(), QSize(9, 9));
    EXPECT_EQ(starts(), 4) << "another format ends the process";
}

TEST_F(CountedDecoder, ForgetsOneFileOnly) {
    const PictureFile deleted = write("a.png", samples::picture("png"));
    const PictureFile other = write("b.png", samples::picture("png"));
    (void)decoder->filling(deleted, {8, 8, 8});
    (void)decoder->filling(other, {8, 8, 8});
    ASSERT_EQ(children().size(), 1);
    kill(children().constFirst().toInt(), SIGKILL);
    ASSERT_TRUE(eventually([] { return children().isEmpty(); }));
    decoder->forget(deleted);
    EXPECT_EQ(decoder->filling(other, {8, 8, 8}).size(), QSize(8, 8));
    EXPECT_EQ(starts(), 1) << "the other one is forgotten, too";
    EXPECT_EQ(decoder->filling(deleted, {8, 8, 8}).size(), QSize(8, 8));
    EXPECT_EQ(starts(), 2) << "it is still kept";
}

TEST_F(CountedDecoder, TriesADeadlyPictureOnce) {
    const PictureFile file = write("deadly.svg", deadly);
    EXPECT_TRUE(decoder->icon(file, 9).isNull());
    EXPECT_EQ(starts(), 1);
    EXPECT_TRUE(decoder->icon(file, 9).isNull());
    EXPECT_EQ(sizeOf(*decoder, file), QSize());
    EXPECT_EQ(starts(), 1) << "it was tried again";
    EXPECT_EQ(sizeOf(*decoder, samples::picture("png")), QSize(64, 32)) << "others suffer from it";
    EXPECT_EQ(starts(), 2);
    const PictureFile mended = write("deadly.svg", QByteArray(deadly).replace("text", "path"));
    EXPECT_EQ(decoder->icon(mended, 9).size(), QSize(9, 9)) << "a file that has changed";
}

TEST_F(CountedDecoder, ThatCannotBeStartedIsNotThePicturesFault) {
    QFile::remove(folder.filePath(u"start"_s));
    const PictureFile file = write("a.png", samples::picture("png"));
    EXPECT_EQ(sizeOf(*decoder, file), QSize());
    ASSERT_TRUE(QFile::link(QString::fromLatin1(RAVELO_DECODE), folder.filePath(u"start"_s)));
    EXPECT_EQ(sizeOf(*decoder, file), QSize(64, 32)) << "the picture is blamed";
}

class DecoderProcessLife : public CountedDecoder {
public:
    DecoderProcessLife() { decoder = std::make_unique<DecoderProcess>(RAVELO_DECODE, "/nowhere"); }

    PictureFile file = write("a.png", samples::picture("png"));
};

TEST_F(DecoderProcessLife, IsLockedDownAndEndsWithItsReader) {
    ASSERT_EQ(sizeOf(*decoder, file), QSize(64, 32));
    ASSERT_EQ(children().size(), 1);
    const QString process = u"/proc/"_s + children().constFirst();
    const QByteArray status = readFile(process + u"/status"_s).value_or(QByteArray());
    EXPECT_TRUE(status.contains("Seccomp:\t2")) << "no filter of system calls";
    EXPECT_TRUE(status.contains("NoNewPrivs:\t1"));
    if (geteuid() == 0) { // Only root can inspect a process that is not dumpable.
        EXPECT_EQ(QDir(process + u"/fd"_s)
                      .entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System),
                  (QStringList{u"0"_s, u"1"_s, u"2"_s, u"3"_s}));
        const auto environment = readFile(process + u"/environ"_s).value_or(QByteArray());
        EXPECT_EQ(environment.split('\0'),
                  (QByteArrayList{"GLIBC_TUNABLES=glibc.malloc.hugetlb=1", ""}))
            << "it knows the environment";
    }
    decoder.reset();
    EXPECT_TRUE(eventually([] { return children().isEmpty(); })) << "it stays";
}

TEST_F(CountedDecoder, IsKilledIfItDoesNotEnd) {
    const QByteArray script =
        QFile::encodeName(makeProgram(folder.filePath(u"start"_s), "exec sleep 1000\n"));
    for (const bool rests : {false, true}) {
        auto connection = DecoderConnection::start(script);
        ASSERT_EQ(children().size(), 1);
        rests ? connection->rest(std::chrono::milliseconds(1)) : connection.reset();
        EXPECT_TRUE(eventually([] { return children().isEmpty(); })) << "it sleeps on " << rests;
    }
}

TEST_F(DecoderProcessLife, ExitsWhenIdle) {
    ASSERT_EQ(sizeOf(*decoder, file), QSize(64, 32));
    EXPECT_EQ(children().size(), 1);
    const auto gone = [] {
        return children().isEmpty();
    };
    EXPECT_TRUE(eventually(gone) || eventually(gone)) << "it stays"; // After 20 s.
    EXPECT_EQ(sizeOf(*decoder, file), QSize(64, 32)) << "none came in its place";
}

} // namespace

} // namespace ravelo
