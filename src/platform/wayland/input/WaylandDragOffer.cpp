#include "platform/wayland/input/WaylandDragOffer.h"

#include "platform/wayland/connection/QtConnection.h"

#include <algorithm>
#include <utility>

namespace ravelo::wayland {

namespace {

constexpr qsizetype maxBytes = 8 << 20;

} // namespace

const wl_data_offer_listener WaylandDragOffer::events = {
    .offer =
        [](void* self, wl_data_offer*, const char* type) {
            static_cast<WaylandDragOffer*>(self)->types_.append(QString::fromUtf8(type));
        },
    .source_actions = [](void*, wl_data_offer*, uint32_t) {},
    .action = [](void*, wl_data_offer*, uint32_t) {},
};

WaylandDragOffer::WaylandDragOffer(ClipboardThread& thread, wl_data_offer* offer)
    : thread_(thread), offer_(offer) {
    wl_data_offer_add_listener(offer, &events, this);
}

std::optional<QByteArray> WaylandDragOffer::data(const QStringList& types) {
    const auto [answer, isNew] = answers_.try_emplace(types);
    if (isNew) {
        const auto first = std::ranges::find_if(
            types, [this](const QString& type) { return types_.contains(type); });
        if (first == types.end()) {
            answer->second = QByteArray();
        } else {
            ask(types, first->toUtf8());
        }
    }
    return answer->second;
}

void WaylandDragOffer::ask(const QStringList& types, const QByteArray& type) {
    Pipe pipe;
    if (pipe.readEnd) {
        wl_data_offer_receive(offer_.get(), type.constData(), pipe.writeEnd.number());
        wl_display_flush(qt::display());
    }
    auto done = [&thread = thread_, self = shared_from_this(),
                 types](const PipeResult& result) mutable {
        // Moved: the offer must not be destroyed on the thread.
        thread.callOnMain([self = std::move(self), types, bytes = result.value_or(QByteArray())] {
            self->answers_[types] = bytes;
            self->listeners_.notify();
        });
    };
    const auto from = std::make_shared<Descriptor>(std::move(pipe.readEnd));
    thread_.post([&thread = thread_, from, done = std::move(done)] {
        thread.pipes().read(std::move(*from), maxBytes, done);
    });
}

} // namespace ravelo::wayland
