#pragma once

#include "base/Listeners.h"
#include "platform/PanelWindow.h"
#include "platform/gnome/Channel.h"
#include "platform/gnome/GnomeDragMonitor.h"
#include "platform/gnome/GnomePasteboard.h"
#include "platform/window/PointerOver.h"

#include <QLatin1StringView>
#include <QObject>
#include <QSizeF>

class QWindow;

namespace ravelo::gnome {

/// By this title the extension knows the panel among our windows.
inline constexpr QLatin1StringView panelTitle("Ravelo panel");

/// An ordinary window, because Mutter gives others no keyboard; the extension puts it where it
/// belongs. It is shown only while there is more to see than the handle, for which the extension's
/// strip stands: the window lists of some releases would have it all day.
class GnomePanelWindow final : private QObject, public PanelWindow {
public:
    /// All must outlive it.
    struct Services {
        Channel& channel;
        GnomeDragMonitor& drags;
        GnomePasteboard& pasteboard;
    };

    /// `window` must outlive it and not have been shown. Up to the size of `handle` nothing is
    /// shown.
    GnomePanelWindow(QWindow& window, Services services, QSizeF handle);
    ~GnomePanelWindow() override;

    void place(const Screen& screen, QSizeF size) override;
    void orderFront() override;
    void orderOut() override;
    void setOutline(const QPainterPath& outline) override;

    /// Mutter always composites, and blurs nothing.
    [[nodiscard]] ShowThrough showThrough() const override { return ShowThrough::sharp; }

    [[nodiscard]] Handle onShowThroughChange(std::function<void()> /*callback*/) override {
        return {};
    }

    [[nodiscard]] bool isUnderPointer() const override { return bool(pointerOver_); }

    [[nodiscard]] Handle onUnderPointerChange(std::function<void()> callback) override {
        return pointerOver_.onChange(std::move(callback));
    }

    [[nodiscard]] std::shared_ptr<DragOffer> dragOffer() override { return drags_.newest(); }

    /// Needs no token: the extension may set the focus.
    void requestFocus(const QByteArray& activationToken) override;
    void returnFocus() override;

    /// Called for each press of the left or right button on it.
    [[nodiscard]] Handle onPress(std::function<void()> callback) {
        return pressListeners_.add(std::move(callback));
    }

private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void apply();

    QWindow& window_;
    Channel& channel_;
    GnomeDragMonitor& drags_;
    GnomePasteboard& pasteboard_;
    QSizeF handle_;
    QSizeF size_;
    std::size_t screen_ = 0;
    bool front_ = false;
    bool sizeUnsent_ = false; ///< The shell may not know the size.
    PointerOver pointerOver_;
    Listeners<> pressListeners_;
    Handle ups_;
};

} // namespace ravelo::gnome
