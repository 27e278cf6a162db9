#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QStringList>
#include <QVariant>

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <utility>

namespace ravelo {

/// A service, as far as a test needs it: `answer` answers every call, with several values by a list
/// of them, or leaves it hanging.
class StandIn : public QDBusVirtualObject {
public:
    using Answer = std::function<std::optional<QVariant>(const QDBusMessage& call)>;

    explicit StandIn(Answer answer) : answer_(std::move(answer)) {}

    void serve(QDBusConnection& bus, const QString& name) {
        ASSERT_TRUE(bus.registerVirtualObject(QStringLiteral("/"), this, QDBusConnection::SubPath));
        ASSERT_TRUE(bus.registerService(name));
    }

    [[nodiscard]] QString introspect(const QString& /*path*/) const override { return {}; }

    bool handleMessage(const QDBusMessage& call, const QDBusConnection& connection) override {
        const auto answer = answer_(call);
        if (answer && answer->typeId() == QMetaType::QVariantList) {
            return connection.send(call.createReply(answer->toList()));
        }
        return !answer ||
               connection.send(answer->isValid() ? call.createReply(*answer) : call.createReply());
    }

private:
    Answer answer_;
};

} // namespace ravelo
