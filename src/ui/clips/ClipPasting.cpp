#include "ui/clips/ClipPasting.h"

#include "panel/NotchController.h"
#include "panel/PasteChords.h"
#include "settings/AppSettings.h"

#include <QLocale>

#include <utility>

namespace ravelo {

namespace {

qsizetype lineBreaks(const QString& text) {
    return text.count(u'\n') + text.count(u'\r') - text.count(QStringLiteral("\r\n"));
}

} // namespace

ClipPasting::ClipPasting(Pasting* pasting, const AppSettings& settings, NotchController& controller)
    : pasting_(pasting), settings_(settings), controller_(controller) {
    connect(&settings_, &AppSettings::returnPastesChanged, this, &ClipPasting::keysChanged);
}

bool ClipPasting::isPossible() const {
    return pasting_ != nullptr && pasting_->isPossible();
}

QString ClipPasting::copyKeys() const {
    return pastes(Qt::NoModifier) ? tr("Shift+Return") : tr("Return");
}

QString ClipPasting::keys() const {
    return pastes(Qt::NoModifier) ? tr("Return") : tr("Shift+Return");
}

bool ClipPasting::pastes(int modifiers) const {
    const bool shift = (modifiers & Qt::ShiftModifier) != 0;
    return isPossible() && shift != settings_.returnPastes();
}

void ClipPasting::run(const QString& text, Kind kind, const Pasting::Copy& copy) {
    reset();
    const auto target = pasting_ != nullptr ? pasting_->target() : std::nullopt;
    const auto terminal = target ? terminalChord(target->names) : std::nullopt;
    if (!target || (kind == Kind::secret && terminal == PasteChord::shiftInsert)) {
        copy([this] { controller_.dismiss(); });
        return;
    }
    const qsizetype breaks = terminal ? lineBreaks(text) : 0;
    if (breaks == 0) {
        pasting_->run(*target, copy);
        return;
    }
    asked_ = [this, target, copy] {
        pasting_->run(*target, copy);
    };
    Q_EMIT asked(
        breaks == 1
            ? tr("Paste a line break into the terminal?")
            : tr("Paste %1 line breaks into the terminal?").arg(QLocale().toString(breaks)));
}

void ClipPasting::runAsked() {
    if (const auto run = std::exchange(asked_, nullptr)) {
        run();
    }
}

} // namespace ravelo
