#include "platform/x11/settings/X11Preferences.h"

#include "platform/x11/settings/XSettings.h"

namespace ravelo::x11 {

X11IconPreference::X11IconPreference(ManagerProperty& settings)
    : theme_(settings, [](const QByteArray& property) {
          return QString::fromUtf8(
              xsettingsString(property, "Net/IconThemeName").value_or(QByteArray()));
      }) {}

X11MotionPreference::X11MotionPreference(ManagerProperty& settings)
    : reduced_(settings, [](const QByteArray& property) {
          return xsettingsInteger(property, "Gtk/EnableAnimations") == 0;
      }) {}

} // namespace ravelo::x11
