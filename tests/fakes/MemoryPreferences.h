#pragma once

#include "platform/Preferences.h"

#include <QHash>

namespace ravelo {

class MemoryPreferences final : public Preferences {
public:
    [[nodiscard]] QJsonValue value(const QString& key) const override {
        return values_.value(key, QJsonValue(QJsonValue::Undefined));
    }

    void set(const QString& key, const QJsonValue& value) override { values_.insert(key, value); }

private:
    QHash<QString, QJsonValue> values_;
};

} // namespace ravelo
