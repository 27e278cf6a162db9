#include "store/history/Captures.h"

#include "platform/DetachedJobs.h"
#include "platform/Worker.h"

#include <mutex>
#include <utility>

namespace ravelo {

/// Runs once: on the thread started for it or, if there was none, on the worker, which otherwise
/// waits for it here.
class Captures::Conversion {
public:
    Conversion(std::function<void(const CopiedContents&)> convert, CopiedContents file)
        : convert_(std::move(convert)), file_(std::move(file)) {}

    void ensure() {
        std::call_once(done_,
                       [this] { std::exchange(convert_, nullptr)(std::exchange(file_, {})); });
    }

private:
    std::once_flag done_;
    std::function<void(const CopiedContents&)> convert_;
    CopiedContents file_;
};

void Captures::add(const QByteArray& path, Work work) {
    const int number = next_++;
    Capture& capture = waiting_[number];
    capture.work = std::move(work);
    if (path.isEmpty()) {
        capture.file = CopiedContents();
    } else {
        capture.reading = readCopiedFile(services_.files, services_.scheduler, path,
                                         [this, number](const CopiedContents& contents) {
                                             waiting_.at(number).file = contents;
                                             passOn();
                                         });
    }
    passOn();
}

void Captures::handOver() {
    for (auto& [number, capture] : std::exchange(waiting_, {})) {
        capture.reading.reset();
        capture.converting.reset();
        passToWorker(std::move(capture));
    }
}

/// Passes on what is ready, and starts converting the first that is not.
void Captures::passOn() {
    while (!waiting_.empty()) {
        Capture& first = waiting_.begin()->second;
        if (!first.file || first.conversion) {
            return;
        }
        if (!first.work.convert) {
            passToWorker(std::move(waiting_.extract(waiting_.begin()).mapped()));
            continue;
        }
        first.conversion =
            std::make_shared<Conversion>(std::move(first.work.convert), std::move(*first.file));
        first.converting = services_.conversions.run(
            [conversion = first.conversion] { conversion->ensure(); },
            [this] {
                passToWorker(std::move(waiting_.extract(waiting_.begin()).mapped()));
                passOn();
            });
        return;
    }
}

void Captures::passToWorker(Capture capture) {
    auto conversion = std::move(capture.conversion);
    if (!conversion && capture.work.convert) {
        conversion = std::make_shared<Conversion>(std::move(capture.work.convert),
                                                  capture.file.value_or(CopiedContents()));
    }
    ++*working_;
    services_.worker.run(
        [conversion, write = std::move(capture.work.write)] {
            if (conversion) {
                conversion->ensure();
            }
            if (write) {
                write();
            }
        },
        [working = working_, end = std::move(capture.work.end)] {
            --*working;
            end();
        });
}

} // namespace ravelo
