#pragma once

#include "base/Listeners.h"
#include "platform/DragOffer.h"
#include "platform/wayland/clipboard/ClipboardThread.h"

#include <map>
#include <memory>

namespace ravelo::wayland {

/// A drag over one of our surfaces. Read on the clipboard's thread. Main thread.
class WaylandDragOffer final : public DragOffer,
                               public std::enable_shared_from_this<WaylandDragOffer> {
public:
    /// `thread` must outlive this. Held by a shared pointer.
    WaylandDragOffer(ClipboardThread& thread, wl_data_offer* offer);

    [[nodiscard]] std::optional<QByteArray> data(const QStringList& types) override;

    [[nodiscard]] Handle onAnswer(std::function<void()> callback) override {
        return listeners_.add(std::move(callback));
    }

private:
    void ask(const QStringList& types, const QByteArray& type);

    static const wl_data_offer_listener events;

    ClipboardThread& thread_;
    Owned<wl_data_offer> offer_;
    QStringList types_;
    std::map<QStringList, std::optional<QByteArray>> answers_; ///< What was asked.
    Listeners<> listeners_;
};

} // namespace ravelo::wayland
