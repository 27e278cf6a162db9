#include "platform/gnome/Layouts.h"

#include <QLatin1StringView>

#include <algorithm>
#include <array>

namespace ravelo::gnome {

namespace {

using namespace Qt::StringLiterals;

/// Those of xkeyboard-config whose letters are of another script.
constexpr std::array others{
    "af"_L1, "am"_L1, "ara"_L1, "bd"_L1, "bg"_L1, "bt"_L1, "by"_L1, "eg"_L1, "et"_L1,
    "ge"_L1, "gr"_L1, "il"_L1,  "in"_L1, "iq"_L1, "ir"_L1, "kg"_L1, "kh"_L1, "kz"_L1,
    "la"_L1, "lk"_L1, "ma"_L1,  "mk"_L1, "mm"_L1, "mn"_L1, "mv"_L1, "np"_L1, "pk"_L1,
    "rs"_L1, "ru"_L1, "sy"_L1,  "th"_L1, "tj"_L1, "ua"_L1, "uz"_L1,
};

} // namespace

bool hasLatinLetters(QStringView layout) {
    const qsizetype variant = layout.indexOf(u'+');
    const QStringView name = variant < 0 ? layout : layout.first(variant);
    const bool isOther =
        std::ranges::any_of(others, [&](QLatin1StringView other) { return name == other; });
    return !isOther || layout.contains("latin"_L1) || layout.contains("+eng"_L1) ||
           layout.contains("+us"_L1);
}

} // namespace ravelo::gnome
