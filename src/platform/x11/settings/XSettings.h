#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <optional>

namespace ravelo::x11 {

// The value of this name and kind in the property `_XSETTINGS_SETTINGS` (XSETTINGS 0.5); nothing
// if there is none or the property ends before it.
[[nodiscard]] std::optional<int32_t> xsettingsInteger(QByteArrayView property, QByteArrayView name);
[[nodiscard]] std::optional<QByteArray> xsettingsString(QByteArrayView property,
                                                        QByteArrayView name);

} // namespace ravelo::x11
