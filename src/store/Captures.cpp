#include "store/Captures.h"

#include "platform/Worker.h"

#include <utility>

namespace ravelo {

void Captures::add(const QByteArray& path, std::function<void(const CopiedContents&)> job,
                   std::function<void()> end) {
    const int number = next_++;
    Capture& capture = waiting_[number];
    capture.job = std::move(job);
    capture.end = std::move(end);
    if (path.isEmpty()) {
        capture.file = CopiedContents();
    } else {
        capture.reading = readCopiedFile(services_.jobs, services_.scheduler, path,
                                         [this, number](const CopiedContents& contents) {
                                             waiting_.at(number).file = contents;
                                             passOn();
                                         });
    }
    passOn();
}

void Captures::stopReading() {
    for (auto& [number, capture] : waiting_) {
        capture.reading.reset();
        capture.file = capture.file.value_or(CopiedContents());
    }
    passOn();
}

void Captures::passOn() {
    while (!waiting_.empty() && waiting_.begin()->second.file) {
        Capture capture = std::move(waiting_.extract(waiting_.begin()).mapped());
        ++*working_;
        services_.worker.run(
            [job = std::move(capture.job), file = std::move(*capture.file)] { job(file); },
            [working = working_, end = std::move(capture.end)] {
                --*working;
                end();
            });
    }
}

} // namespace ravelo
