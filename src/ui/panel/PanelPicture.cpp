#include "ui/panel/PanelPicture.h"

#include "base/Scheduler.h"
#include "panel/NotchController.h"
#include "platform/PanelWindow.h"
#include "ui/lists/RowAges.h"
#include "ui/panel/PanelState.h"
#include "ui/usage/Usage.h"

#include <QQuickItem>
#include <QQuickWindow>

#include <algorithm>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr Seconds settling(0.3);   ///< Pictures in rows have arrived by then.
constexpr Seconds minLifetime(60); ///< Unless something other than a relative date changes.

} // namespace

PanelPicture::PanelPicture(Services services) : services_(services) {
    const PanelState& state = services_.state;
    connect(&state, &PanelState::hasContentChanged, this, &PanelPicture::refreshSoon);
    connect(&state, &PanelState::contentSizeChanged, this, &PanelPicture::refreshSoon);
    connect(&state, &PanelState::backdropChanged, this, &PanelPicture::refreshSoon);
    connect(&state, &PanelState::darknessChanged, this, &PanelPicture::refreshSoon);
    connect(&services_.window, &QWindow::visibleChanged, this, &PanelPicture::refreshSoon);
    refreshSoon();
}

void PanelPicture::refreshSoon() {
    waiting_ = services_.controller.isOpen() || isUseless_
                   ? Handle()
                   : services_.scheduler.after(settling, [this] { make(); });
}

void PanelPicture::make() {
    auto* const content = services_.window.contentItem()->findChild<QQuickItem*>(u"content"_s);
    if (services_.controller.isOpen() || !services_.state.hasContent() || content == nullptr) {
        return;
    }
    if (!services_.window.isVisible()) { // Qt cannot draw then, and the old one is outdated.
        making_.reset();
        keep({});
        return;
    }
    services_.rows.refreshDates();
    services_.usage.refresh();
    const Seconds lifetime = services_.rows.untilDatesChange();
    if (lifetime != Seconds::max()) {
        waiting_ = services_.scheduler.after(std::max(lifetime, minLifetime), [this] { make(); });
    }
    const QSize pixels =
        (services_.state.contentSize() * services_.window.effectiveDevicePixelRatio()).toSize();
    making_ = content->grabToImage(pixels);
    if (making_) {
        connect(making_.get(), &QQuickItemGrabResult::ready, this, [this] {
            keep(making_->image());
            making_.reset();
        });
    }
}

void PanelPicture::keep(const QImage& picture) {
    isUseless_ = !services_.panel.setFirstPicture(picture);
    services_.state.setPictured(!isUseless_ && !picture.isNull());
    if (isUseless_) {
        waiting_.reset();
    }
}

} // namespace ravelo
