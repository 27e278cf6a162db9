#include "support/ExpectedWarning.h"

#include <gtest/gtest.h>

#include <mutex>
#include <optional>
#include <utility>

namespace ravelo {

namespace {

struct Expectation {
    QString text;
    int seen = 0;
};

std::mutex mutex;
std::optional<Expectation> expectation;

} // namespace

ExpectedWarning::ExpectedWarning(QString text) {
    const std::lock_guard lock(mutex);
    expectation = Expectation{std::move(text)};
}

ExpectedWarning::~ExpectedWarning() {
    const std::lock_guard lock(mutex);
    EXPECT_EQ(expectation->seen, 1)
        << "expected this warning once: " << qPrintable(expectation->text);
    expectation.reset();
}

bool ExpectedWarning::takes(const QString& text) {
    const std::lock_guard lock(mutex);
    if (!expectation || expectation->text != text) {
        return false;
    }
    ++expectation->seen;
    return true;
}

} // namespace ravelo
