#pragma once

#include "base/Listeners.h"
#include "platform/HotZone.h"
#include "platform/PanelWindow.h"
#include "platform/wayland/window/Surfaces.h"
#include "platform/window/PointerOver.h"

#include <QObject>
#include <QPainterPath>
#include <QRegion>

#include <map>
#include <memory>

class QScreen;
class QWindow;

namespace ravelo::wayland {

/// A layer surface. Qt draws it, but knows nothing of its role, size and place. It is wider than
/// the panel and the strip that opens it, which are in the middle of its top edge: its width does
/// not change, as some compositors would report that the pointer left. Main thread.
class WaylandPanelWindow final : public PanelWindow, private QObject {
public:
    /// Both must outlive it; `window` must not have been shown.
    WaylandPanelWindow(QWindow& window, Surfaces& surfaces);
    ~WaylandPanelWindow() override;

    void place(const Screen& screen, QSizeF size) override;
    void orderFront() override;
    void orderOut() override;
    void setOutline(const QPainterPath& outline) override;
    [[nodiscard]] ShowThrough showThrough() const override;
    [[nodiscard]] Handle onShowThroughChange(std::function<void()> callback) override;

    /// To be called if the pointer rests at its new place.
    void comesUnderPointer() { pointerOver_.enter(); }

    [[nodiscard]] bool isUnderPointer() const override { return bool(pointerOver_); }

    [[nodiscard]] Handle onUnderPointerChange(std::function<void()> callback) override {
        return pointerOver_.onChange(std::move(callback));
    }

    [[nodiscard]] std::shared_ptr<DragOffer> dragOffer() override { return dragOffer_; }

    /// Needs no token: a layer surface may take the keyboard.
    void requestFocus(const QByteArray& activationToken) override;
    void returnFocus() override;

    /// Where the panel is in the window.
    [[nodiscard]] QRect panelRect() const;

    // For the hot zone.

    /// The id of the screen that it is placed on; empty at first.
    [[nodiscard]] const QString& screen() const { return screen_; }

    /// Places it on that screen in its present size.
    void moveTo(const QString& screen);

    /// Something is dragged out of the panel: catches nothing, and has no keyboard unless the drag
    /// ends here.
    void setDraggingOut(bool dragging);

    /// Whether the keyboard has been requested. Presses elsewhere are reported meanwhile.
    [[nodiscard]] bool wantsKeyboard() const { return keyboard_ == Keyboard::exclusive; }

    [[nodiscard]] Handle onPress(std::function<void(HotZone::Press)> callback) {
        return pressListeners_.add(std::move(callback));
    }

private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void enterDrag(QEvent& event);
    void show();
    void hide();
    void configure(QSize size);
    [[nodiscard]] bool mayCoverLocker() const;
    void showAgainSoon();
    void endDragOut();
    void giveBackSoon();
    void goForAMoment();
    void comeBack();
    void setKeyboard(Keyboard keyboard);
    void pressedOutside();
    void catchPresses();
    void keepPressesOnPanel();
    void applyOutline();
    void commit();
    [[nodiscard]] QRegion outlineRegion() const;
    [[nodiscard]] QRegion inputRegion() const;

    QWindow& window_;
    Surfaces& surfaces_;
    QString screen_;
    QSize size_;        ///< Of the panel.
    QSize surfaceSize_; ///< Of the window around it.
    QPainterPath outline_;
    bool wanted_ = false;  ///< To be shown.
    bool isGoing_ = false; ///< To be shown again in a moment.
    Keyboard keyboard_ = Keyboard::none;
    bool draggingOut_ = false;
    bool isDraggedOver_ = false;
    bool takesKeyboardAgain_ = false; ///< If the drag ends here.
    std::shared_ptr<DragOffer> dragOffer_;
    std::unique_ptr<LayerRole> role_;                               ///< While it is shown.
    std::map<QString, std::unique_ptr<InvisibleSurface>> catchers_; ///< By the ids of screens.
    PointerOver pointerOver_;
    Listeners<HotZone::Press> pressListeners_;
    Handle catcherSubscription_;
    Handle blurSubscription_;
};

} // namespace ravelo::wayland
