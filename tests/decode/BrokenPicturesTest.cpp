#include "Samples.h"
#include "platform/system/DecoderProcess.h"
#include "support/TestFiles.h"

#include <QTemporaryDir>

#include <atomic>
#include <thread>

#include <malloc.h>
#include <unistd.h>

namespace ravelo {

namespace {

constexpr quint32 count = 1000;

#ifdef __SANITIZE_ADDRESS__
constexpr qint64 maxGrowth = 256 << 20; ///< The sanitizer keeps what is freed for a while.
#else
constexpr qint64 maxGrowth = 8 << 20;
#endif

qint64 residentBytes() {
    QFile file(QStringLiteral("/proc/self/statm"));
    EXPECT_TRUE(file.open(QFile::ReadOnly));
    return file.readAll().split(' ').value(1).toLongLong() * sysconf(_SC_PAGESIZE);
}

/// Files, because each copied picture would need a process of its own.
class Files {
public:
    PictureFile next(const QByteArray& picture) {
        const QString path = folder_.filePath(QString::number(count_++));
        return {QFile::encodeName(makeFile(path, picture))};
    }

private:
    QTemporaryDir folder_;
    int count_ = 0;
};

void readAll(ImageDecoder& decoder, const PictureFile& picture) {
    (void)sizeOf(decoder, picture);
    (void)decoder.filling(picture, {28, 28, 40});
    (void)decoder.png(picture);
}

/// Does `work` on another thread and returns the max. time for which this thread is not scheduled.
template <typename Work>
std::chrono::milliseconds longestPause(Work work) {
    std::atomic<bool> done = false;
    std::thread worker([&] {
        work();
        done = true;
    });
    auto longest = std::chrono::steady_clock::duration::zero();
    for (auto last = std::chrono::steady_clock::now(); !done;) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
        const auto now = std::chrono::steady_clock::now();
        longest = std::max(longest, now - std::exchange(last, now));
    }
    worker.join();
    return std::chrono::duration_cast<std::chrono::milliseconds>(longest);
}

void expectNothingMoved(DecoderProcess& decoder, const std::function<void()>& work) {
    Files files;
    readAll(decoder, files.next(samples::picture("png")));
    malloc_trim(0);
    const qint64 before = residentBytes();
    const auto pause = longestPause(work);
    malloc_trim(0);
    const qint64 grown = residentBytes() - before;
    testing::Test::RecordProperty("pause", static_cast<int>(pause.count()));
    testing::Test::RecordProperty("grown", static_cast<int>(grown / 1024));
    EXPECT_LT(grown, maxGrowth) << "the pictures were read here";
    EXPECT_LT(pause, std::chrono::seconds(1)) << "this thread had to wait";
    EXPECT_EQ(sizeOf(decoder, samples::picture("bmp")), QSize(64, 32))
        << "nothing is read any more";
}

class BrokenPictures : public testing::TestWithParam<const char*> {};

TEST_P(BrokenPictures, HarmNothingElse) {
    DecoderProcess decoder(RAVELO_DECODE, "/nowhere");
    const QByteArray whole = samples::picture(GetParam());
    Files files;
    expectNothingMoved(decoder, [&] {
        for (quint32 seed = 0; seed < count; ++seed) {
            readAll(decoder, files.next(samples::broken(whole, seed)));
        }
    });
}

INSTANTIATE_TEST_SUITE_P(Thousand, BrokenPictures, testing::ValuesIn(samples::formats));

TEST(Bombs, AreRefusedOrScaledDown) {
    DecoderProcess decoder(RAVELO_DECODE, "/nowhere");
    const QList<samples::Bomb> bombs = samples::bombs();
    Files files;
    expectNothingMoved(decoder, [&] {
        for (const samples::Bomb& bomb : bombs) {
            readAll(decoder, files.next(bomb.bytes));
        }
    });
    for (const samples::Bomb& bomb : bombs.first(3)) {
        EXPECT_EQ(sizeOf(decoder, bomb.bytes), QSize()) << bomb.name;
    }
}

} // namespace

} // namespace ravelo
