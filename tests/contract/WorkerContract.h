#pragma once

#include "platform/Worker.h"

#include <QThread>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>

namespace ravelo {

using MakeWorker = std::unique_ptr<Worker> (*)();

/// What every worker guarantees.
class WorkerContract : public testing::TestWithParam<MakeWorker> {
protected:
    std::unique_ptr<Worker> worker_ = GetParam()();
    std::string jobs_; ///< Read only when the worker is drained.
    std::string ends_;

    void run(char letter) {
        worker_->run([this, letter] { jobs_ += letter; },
                     [this, letter] {
                         EXPECT_TRUE(jobs_.find(letter) != std::string::npos)
                             << "ended before it ran";
                         EXPECT_TRUE(QThread::currentThread() == thread_)
                             << "not on the thread that submitted it";
                         ends_ += letter;
                     });
    }

private:
    QThread* thread_ = QThread::currentThread();
};

TEST_P(WorkerContract, KeepsTheOrderOfJobsAndCallbacks) {
    std::string expected;
    for (char letter = 'a'; letter <= 'z'; ++letter) {
        run(letter);
        worker_->run([this] { jobs_ += '.'; });
        expected += letter;
    }
    worker_->drain();
    EXPECT_EQ(ends_, expected);
    std::erase(jobs_, '.');
    EXPECT_EQ(jobs_, expected);
}

TEST_P(WorkerContract, DrainsJobsStartedByCallbacks) {
    worker_->run([this] { jobs_ += 'a'; },
                 [this] { worker_->run([this] { jobs_ += 'c'; }, [this] { run('d'); }); });
    run('b');
    worker_->drain();
    std::ranges::sort(jobs_);
    EXPECT_EQ(jobs_, "abcd");
    std::ranges::sort(ends_);
    EXPECT_EQ(ends_, "bd");
    worker_->drain(); // Returns if there is nothing to do.
}

TEST_P(WorkerContract, CallbackMayDrain) {
    worker_->run([] {},
                 [this] {
                     ends_ += '<';
                     run('b');
                     worker_->drain();
                     ends_ += '>';
                 });
    run('a');
    worker_->drain();
    std::string letters = ends_;
    std::erase_if(letters, [](char c) { return c == '<' || c == '>'; });
    EXPECT_EQ(letters.size(), 2U) << ends_;
}

} // namespace ravelo
