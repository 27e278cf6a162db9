#pragma once

#include <QJsonValue>
#include <QString>

namespace ravelo {

/// The user's preferences, one typed value a key. A value of another type than the reader expects
/// counts as absent; it stays until it is set. Main thread.
class Preferences {
public:
    virtual ~Preferences() = default;

    /// `QJsonValue::Undefined` where the key has no value.
    [[nodiscard]] virtual QJsonValue value(const QString& key) const = 0;

    /// Kept at once, not batched.
    virtual void set(const QString& key, const QJsonValue& value) = 0;
};

} // namespace ravelo
