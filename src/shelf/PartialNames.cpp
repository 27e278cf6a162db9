#include "shelf/PartialNames.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace ravelo {

namespace {

using namespace std::string_view_literals;

/// Lower-case suffix without the dot.
constexpr std::array downloads = {"part"sv,       "partial"sv,    "filepart"sv,   "download"sv,
                                  "crdownload"sv, "opdownload"sv, "wkdownload"sv, "aria2"sv,
                                  "!qb"sv,        "!ut"sv};
constexpr std::array temporaries = {"tmp"sv, "temp"sv};

template <typename List>
bool contains(const List& list, const QByteArray& ending) {
    return std::ranges::find(list, std::string_view(ending.constData(), ending.size())) !=
           list.end();
}

} // namespace

NameKind kindOfName(const QByteArray& name) {
    const qsizetype dot = name.lastIndexOf('.');
    const QByteArray ending = dot < 0 ? QByteArray() : name.sliced(dot + 1).toLower();
    if (contains(downloads, ending)) {
        return NameKind::download;
    }
    return name.startsWith('.') || name.endsWith('~') || contains(temporaries, ending)
               ? NameKind::temporary
               : NameKind::whole;
}

} // namespace ravelo
