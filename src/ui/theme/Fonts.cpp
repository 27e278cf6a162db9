#include "ui/theme/Fonts.h"

#include <fontconfig/fontconfig.h>
#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_MODULE_H

/// Qt's own FreeType instance, exported but not declared. Weak, so that a Qt without it still
/// works, with bolder text.
// NOLINTNEXTLINE(readability-identifier-naming)
__attribute__((weak)) FT_Library qt_getFreetype();

namespace ravelo {

void keepStemsThin() {
    if (qt_getFreetype != nullptr) {
        const FT_Bool on = 1;
        FT_Property_Set(qt_getFreetype(), "cff", "no-stem-darkening", &on);
    }
}

std::jthread readFontConfiguration() {
    return std::jthread([] { FcInit(); });
}

} // namespace ravelo
