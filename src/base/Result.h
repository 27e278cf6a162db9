#pragma once

#include <QString>

#include <tl/expected.hpp>

namespace ravelo {

/// The reason for a failure, as one line of a log.
struct Error {
    QString message;
};

template <typename T>
using Result = tl::expected<T, Error>;

[[nodiscard]] inline tl::unexpected<Error> failure(QString message) {
    return tl::unexpected<Error>(Error{std::move(message)});
}

} // namespace ravelo
