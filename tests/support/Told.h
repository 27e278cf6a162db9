#pragma once

#include <QObject>

namespace ravelo {

/// Counts the emissions of a signal.
class Told {
public:
    template <typename Object, typename Signal>
    Told(Object* object, Signal signal)
        : connection_(QObject::connect(object, signal, [this] { ++count_; })) {}

    ~Told() { QObject::disconnect(connection_); }

    Told(const Told&) = delete;
    Told& operator=(const Told&) = delete;

    [[nodiscard]] int count() const { return count_; }

private:
    int count_ = 0;
    QMetaObject::Connection connection_;
};

} // namespace ravelo
