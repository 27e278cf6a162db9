#pragma once

#include <QObject>

namespace ravelo {

/// Counts the emissions of a signal.
class SignalCount {
public:
    template <typename Object, typename Signal>
    SignalCount(Object* object, Signal signal)
        : connection_(QObject::connect(object, signal, [this] { ++count_; })) {}

    ~SignalCount() { QObject::disconnect(connection_); }

    SignalCount(const SignalCount&) = delete;
    SignalCount& operator=(const SignalCount&) = delete;

    [[nodiscard]] int count() const { return count_; }

private:
    int count_ = 0;
    QMetaObject::Connection connection_;
};

} // namespace ravelo
