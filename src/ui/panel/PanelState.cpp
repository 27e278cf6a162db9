#include "ui/panel/PanelState.h"

#include "base/Scheduler.h"
#include "panel/NotchController.h"
#include "settings/AppSettings.h"

#include <utility>

namespace ravelo {

namespace {

/// Long enough for the closed panel to leave the screen, short enough to precede the next opening.
constexpr Seconds buildDelay(0.04);

/// At the start, content must not delay the first frame of the closed panel. A busy login takes
/// seconds for it, and some desktops never show it.
constexpr Seconds frameTimeout(5);

} // namespace

PanelState::PanelState(NotchController& controller, AppSettings& settings, Scheduler& scheduler)
    : controller_(controller),
      settings_(settings),
      scheduler_(scheduler),
      contentSize_(controller.sizeToOpenWith()) {
    connect(&settings, &AppSettings::bgOpacityChanged, this, &PanelState::darknessChanged);
    connect(&settings, &AppSettings::fullBlackChanged, this, &PanelState::darknessChanged);
    connect(&settings, &AppSettings::panelWidthChanged, this, [this] {
        if (!controller_.isOpen()) {
            setContentSize(controller_.sizeToOpenWith());
        }
    });
}

void PanelState::start() {
    connect(&controller_, &NotchController::isOpenChanged, this, &PanelState::follow);
    follow();
}

double PanelState::darkness() const {
    return settings_.bgOpacity();
}

bool PanelState::fullBlack() const {
    return settings_.fullBlack();
}

void PanelState::setBackdrop(Backdrop::Kind backdrop) {
    if (backdrop != backdrop_) {
        backdrop_ = backdrop;
        Q_EMIT backdropChanged();
    }
}

void PanelState::setPictured(bool pictured) {
    if (pictured != pictured_) {
        pictured_ = pictured;
        Q_EMIT picturedChanged();
    }
}

void PanelState::setReducedMotion(bool reduced) {
    if (reduced != reducedMotion_) {
        reducedMotion_ = reduced;
        Q_EMIT reducedMotionChanged();
    }
}

void PanelState::windowResized(QSizeF size) {
    if (controller_.isOpen()) {
        setContentSize(size.boundedTo(controller_.frame().size())); // Windows may be wider.
    }
}

void PanelState::follow() {
    if (controller_.isOpen()) {
        building_.reset();
        setContentSize(controller_.frame().size());
        Q_EMIT opened();
        setHasContent(true);
    } else {
        setHasContent(false);
        Q_EMIT closed();
        setContentSize(controller_.sizeToOpenWith());
        buildSoon();
    }
}

void PanelState::windowDrawn() {
    if (!std::exchange(drawn_, true) && !controller_.isOpen()) {
        buildSoon();
    }
}

void PanelState::buildSoon() {
    building_ =
        scheduler_.after(drawn_ ? buildDelay : frameTimeout, [this] { setHasContent(true); });
}

void PanelState::setHasContent(bool has) {
    if (has != hasContent_) {
        hasContent_ = has;
        Q_EMIT hasContentChanged();
    }
}

void PanelState::setContentSize(QSizeF size) {
    if (!size.isEmpty() && size != contentSize_) {
        contentSize_ = size;
        Q_EMIT contentSizeChanged();
    }
}

} // namespace ravelo
