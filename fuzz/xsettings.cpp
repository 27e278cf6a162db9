// Any property of a settings manager.

#include "platform/x11/settings/XSettings.h"
#include "Input.h"

using namespace ravelo;

int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size) {
    const QByteArrayView property = fuzz::view(bytes, size);
    (void)x11::xsettingsInteger(property, "Gtk/EnableAnimations");
    const auto theme = x11::xsettingsString(property, "Net/IconThemeName");
    fuzz::require(!theme || theme->size() < property.size());
    return 0;
}
