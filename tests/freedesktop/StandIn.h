#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>

#include <functional>

namespace ravelo {

/// Answers every call below its path by `answer`.
class StandIn : public QDBusVirtualObject {
public:
    using Answer = std::function<QVariant(const QDBusMessage& call)>;

    explicit StandIn(Answer answer) : answer_(std::move(answer)) {}

    [[nodiscard]] QString introspect(const QString& /*path*/) const override { return {}; }

    bool handleMessage(const QDBusMessage& call, const QDBusConnection& connection) override {
        return connection.send(call.createReply(answer_(call)));
    }

private:
    Answer answer_;
};

} // namespace ravelo
