#include "panel/PasteChords.h"

#include <algorithm>
#include <array>

namespace ravelo {

namespace {

struct Terminal {
    const char* name; ///< Class, instance or app id, in lower case.
    PasteChord chord;
};

constexpr PasteChord usual = PasteChord::controlShiftV;
/// Terminals of this kind paste the selection, and have no other keys for it.
constexpr PasteChord selection = PasteChord::shiftInsert;

constexpr auto terminals = std::to_array<Terminal>({
    {"alacritty", usual},
    {"blackbox", usual},
    {"com.mitchellh.ghostty", usual},
    {"com.raggesilver.blackbox", usual},
    {"contour", usual},
    {"cool-retro-term", usual},
    {"cosmic-term", usual},
    {"com.system76.cosmicterm", usual},
    {"deepin-terminal", usual},
    {"dev.warp.warp", usual},
    {"foot", usual},
    {"footclient", usual},
    {"ghostty", usual},
    {"gnome-terminal", usual},
    {"gnome-terminal-server", usual},
    {"guake", usual},
    {"io.elementary.terminal", usual},
    {"kgx", usual},
    {"kitty", usual},
    {"konsole", usual},
    {"lxterminal", usual},
    {"mate-terminal", usual},
    {"org.codeberg.dnkl.foot", usual},
    {"org.gnome.console", usual},
    {"org.gnome.ptyxis", usual},
    {"org.gnome.terminal", usual},
    {"org.kde.konsole", usual},
    {"org.kde.yakuake", usual},
    {"org.wezfurlong.wezterm", usual},
    {"org.xfce.terminal", usual},
    {"ptyxis", usual},
    {"qterminal", usual},
    {"rio", usual},
    {"roxterm", usual},
    {"sakura", usual},
    {"st", usual},
    {"st-256color", usual},
    {"tabby", usual},
    {"termite", usual},
    {"terminator", usual},
    {"terminology", usual},
    {"tilda", usual},
    {"tilix", usual},
    {"com.gexperts.tilix", usual},
    {"wezterm", usual},
    {"xfce4-terminal", usual},
    {"yakuake", usual},
    {"aterm", selection},
    {"eterm", selection},
    {"mlterm", selection},
    {"rxvt", selection},
    {"urxvt", selection},
    {"urxvtc", selection},
    {"uxterm", selection},
    {"xterm", selection},
});

} // namespace

std::optional<PasteChord> terminalChord(const QStringList& names) {
    for (const QString& name : names) {
        const QString lower = name.toLower();
        const auto* found = std::ranges::find_if(
            terminals, [&](const Terminal& one) { return QLatin1StringView(one.name) == lower; });
        if (found != terminals.end()) {
            return found->chord;
        }
    }
    return std::nullopt;
}

} // namespace ravelo
