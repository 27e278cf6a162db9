#include "ui/windows/ShortcutChoice.h"

#include "platform/GlobalShortcut.h"
#include "settings/AppSettings.h"

#include <array>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

const QString offered = u"Super+V"_s;
const QString command = u"ravelo --toggle"_s;

bool isModifier(int key) {
    return (key >= Qt::Key_Shift && key <= Qt::Key_ScrollLock) || key == Qt::Key_Super_L ||
           key == Qt::Key_Super_R || key == Qt::Key_AltGr;
}

/// A compositor that takes its keys from a file.
struct Compositor {
    const char* desktop; ///< In XDG_CURRENT_DESKTOP, in lower case.
    const char* name;
    QString (*line)(const KeyCombination& keys);
};

/// In the order of Super, Ctrl, Alt, Shift.
using Names = std::array<const char*, 4>;

QString joined(const KeyCombination& keys, const Names& names, const QString& between) {
    constexpr std::array flags{Qt::MetaModifier, Qt::ControlModifier, Qt::AltModifier,
                               Qt::ShiftModifier};
    QStringList parts;
    for (size_t at = 0; at < flags.size(); ++at) {
        if (keys.modifiers & flags[at]) {
            parts.append(QString::fromLatin1(names[at]));
        }
    }
    return parts.join(between);
}

QString swayLine(const KeyCombination& keys) {
    const QString modifiers = joined(keys, {"Mod4+", "Ctrl+", "Alt+", "Shift+"}, {});
    return u"bindsym %1%2 exec %3"_s.arg(modifiers, keys.keysymName(), command);
}

QString hyprlandLine(const KeyCombination& keys) {
    const QString modifiers = joined(keys, {"SUPER", "CTRL", "ALT", "SHIFT"}, u" "_s);
    return u"bind = %1, %2, exec, %3"_s.arg(modifiers, keys.keysymName(), command);
}

QString labwcLine(const KeyCombination& keys) {
    const QString modifiers = joined(keys, {"W-", "C-", "A-", "S-"}, {});
    return uR"(<keybind key="%1%2"><action name="Execute"><command>%3</command></action></keybind>)"_s
        .arg(modifiers, keys.keysymName(), command);
}

const Compositor compositors[] = {{"sway", "sway", swayLine},
                                  {"i3", "i3", swayLine},
                                  {"hyprland", "Hyprland", hyprlandLine},
                                  {"labwc", "labwc", labwcLine}};

const Compositor* compositorOf(const QString& desktop) {
    for (const QString& name : desktop.toLower().split(u':')) {
        for (const Compositor& one : compositors) {
            if (QLatin1StringView(one.desktop) == name) {
                return &one;
            }
        }
    }
    return nullptr;
}

} // namespace

QString compositorWithFile(const QString& desktop) {
    const Compositor* compositor = compositorOf(desktop);
    return compositor != nullptr ? QString::fromLatin1(compositor->name) : QString();
}

QString shortcutLine(const QString& desktop, const QString& keys) {
    const Compositor* compositor = compositorOf(desktop);
    const auto parsed = KeyCombination::fromText(keys);
    return compositor != nullptr && parsed ? compositor->line(*parsed) : command;
}

ShortcutChoice::ShortcutChoice(GlobalShortcut* shortcut, AppSettings& settings, QString desktop)
    : shortcut_(shortcut), settings_(settings), desktop_(std::move(desktop)) {
    connect(&settings_, &AppSettings::shortcutChanged, this, &ShortcutChoice::changed);
    if (shortcut_ != nullptr) {
        listening_ = shortcut_->onChange([this] { Q_EMIT changed(); });
    }
}

QStringList ShortcutChoice::caps() const {
    const auto keys = KeyCombination::fromText(settings_.shortcut());
    return keys ? keys->caps() : QStringList();
}

bool ShortcutChoice::isMistaken() const {
    using State = GlobalShortcut::State;
    return shortcut_ != nullptr && !recording_ &&
           (shortcut_->state() == State::taken || shortcut_->state() == State::refused ||
            shortcut_->state() == State::unassigned);
}

QString ShortcutChoice::refusal() const {
    switch (refused_) {
    case Refused::tooFew:
        return tr("Letters and digits need Ctrl, Alt or Super.");
    case Refused::copying:
        return tr("Programs copy and paste with these keys. Press others.");
    case Refused::none:
        break;
    }
    return tr("Escape cancels, Backspace clears.");
}

QString ShortcutChoice::note() const {
    using State = GlobalShortcut::State;
    if (recording_) {
        return refusal();
    }
    switch (shortcut_ != nullptr ? shortcut_->state() : State::impossible) {
    case State::none:
        return tr("Click, then press the keys to open Ravelo with.");
    case State::asked:
        return tr("Waiting for the desktop\u2026");
    case State::registered:
        return shortcut_->description().isEmpty()
                   ? tr("Click, then press new keys to change it.")
                   : tr("The desktop has registered \u201c%1\u201d. Click, then press new keys to "
                        "change it.")
                         .arg(shortcut_->description());
    case State::unassigned:
        return tr("The desktop has assigned no keys to it; another program may have them. Click, "
                  "then press other keys, or choose some in the desktop\u2019s settings.");
    case State::taken:
        return tr("Taken by another program. Click, then press other keys.");
    case State::refused:
        return tr("Not accepted. Click, then press other keys.");
    case State::impossible:
        break;
    }
    const QString compositor = compositorWithFile(desktop_);
    return !compositor.isEmpty()
               ? tr("This desktop lets no program take keys. Put this line into %1\u2019s "
                    "configuration:")
                     .arg(compositor)
               : tr("This desktop lets no program take keys. Set a key for this command in its "
                    "keyboard settings:");
}

QString ShortcutChoice::line() const {
    if (shortcut_ != nullptr && shortcut_->state() != GlobalShortcut::State::impossible) {
        return {};
    }
    return shortcutLine(desktop_, caps().isEmpty() ? offered : settings_.shortcut());
}

bool ShortcutChoice::isOffered() const {
    return shortcut_ != nullptr && shortcut_->state() != GlobalShortcut::State::impossible &&
           (caps().isEmpty() || settings_.shortcut() == offered);
}

void ShortcutChoice::look() {
    if (shortcut_ != nullptr) {
        shortcut_->ask();
    }
}

void ShortcutChoice::start() {
    if (recording_) {
        return; // A second suspension would end with the first.
    }
    recording_ = true;
    refused_ = Refused::none;
    if (shortcut_ != nullptr) {
        suspended_ = shortcut_->suspend();
    }
    Q_EMIT changed();
}

void ShortcutChoice::stop() {
    if (std::exchange(recording_, false)) {
        suspended_.reset();
        Q_EMIT changed();
    }
}

void ShortcutChoice::record(int key, int modifiers, quint32 scanCode) {
    if (isModifier(key)) {
        return; // Another key follows.
    }
    const auto held = Qt::KeyboardModifiers::fromInt(modifiers);
    const auto keys = KeyCombination::pressed(key, held, scanCode);
    refused_ = keys                                                              ? Refused::none
               : KeyCombination::copiesOrPastes(key, held & ~Qt::KeypadModifier) ? Refused::copying
                                                                                 : Refused::tooFew;
    if (keys) {
        settings_.shortcut.set(keys->text());
        stop();
    } else {
        Q_EMIT changed();
    }
}

void ShortcutChoice::clear() {
    settings_.shortcut.set({});
    stop();
}

void ShortcutChoice::useOffered(bool on) {
    settings_.shortcut.set(on ? offered : QString());
}

} // namespace ravelo
