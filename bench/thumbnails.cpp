// thumbnails here|there FOLDER: makes thumbnails of all pictures in the folder, like a list shown
// for the first time, in this process, as programs usually do it, or in ravelo-decode. Prints the
// milliseconds until the first and the last one.

#include "platform/system/DecoderProcess.h"
#include "ui/images/SlowWork.h"

#include <QCoreApplication>
#include <QDir>
#include <QImageReader>

#include <chrono>
#include <condition_variable>
#include <functional>
#include <iostream>
#include <mutex>

namespace {

using namespace ravelo;
using Clock = std::chrono::steady_clock;

constexpr PictureShape tile{28, 28, 28};

/// When each was ready.
class Arrivals {
public:
    void add() {
        const std::lock_guard lock(mutex_);
        times_.push_back(Clock::now());
        changed_.notify_one();
    }

    [[nodiscard]] std::vector<Clock::time_point> await(size_t count) {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [&] { return times_.size() >= count; });
        return times_;
    }

private:
    std::mutex mutex_;
    std::condition_variable changed_;
    std::vector<Clock::time_point> times_;
};

using Make = std::function<QImage(const QString& path)>;

/// Qt finds out the format.
QImage readHere(const QString& path) {
    const QSize size(tile.minWidth, tile.height);
    QImageReader reader(path);
    reader.setAutoTransform(true);
    const QSize natural = reader.size();
    const QSize part = size.scaled(natural, Qt::KeepAspectRatio);
    reader.setClipRect(
        {QPoint((natural.width() - part.width()) / 2, (natural.height() - part.height()) / 2),
         part});
    reader.setScaledSize(size);
    return reader.read();
}

Make reader(const QString& where, const QString& folder) {
    if (where == u"here") {
        return readHere;
    }
    return [decoder = std::make_shared<DecoderProcess>(RAVELO_DECODE, QFile::encodeName(folder))](
               const QString& path) {
        return decoder->filling(PictureFile{QFile::encodeName(path)}, tile);
    };
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QFileInfoList files = QDir(application.arguments().value(2)).entryInfoList(QDir::Files);
    const Make make = reader(application.arguments().value(1), application.arguments().value(2));
    const auto arrivals = std::make_shared<Arrivals>();
    SlowWork work;
    const auto begun = Clock::now();
    for (const QFileInfo& file : files) {
        work.run([=, path = file.filePath()] {
            if (make(path).isNull()) {
                std::cerr << "no picture: " << qPrintable(path) << std::endl;
                std::_Exit(EXIT_FAILURE);
            }
            arrivals->add();
        });
    }
    const auto times = arrivals->await(static_cast<size_t>(files.size()));
    const auto since = [begun](Clock::time_point then) {
        return std::chrono::duration<double, std::milli>(then - begun).count();
    };
    std::cout << since(times.front()) << ' ' << since(times.back()) << std::endl;
}
