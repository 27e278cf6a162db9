#pragma once

#include <QJsonValue>
#include <QString>

namespace ravelo {

/// The user's preferences: one typed value per key. A value of an unexpected type counts as absent
/// but is kept until the key is set. Main thread.
class Preferences {
public:
    virtual ~Preferences() = default;

    /// `QJsonValue::Undefined` if the key has no value.
    [[nodiscard]] virtual QJsonValue value(const QString& key) const = 0;

    /// Saved at once, not batched.
    virtual void set(const QString& key, const QJsonValue& value) = 0;
};

} // namespace ravelo
