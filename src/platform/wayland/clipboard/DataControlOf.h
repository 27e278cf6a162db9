#pragma once

#include "platform/wayland/clipboard/DataControl.h"
#include "platform/wayland/connection/Globals.h"

#include <map>
#include <utility>

namespace ravelo::wayland {

template <auto destroy>
struct DestroyBy {
    template <typename Object>
    void operator()(Object* object) const {
        destroy(object);
    }
};

/// DataControl by a protocol that has the same requests and events under its own names.
template <typename Protocol>
class DataControlOf final : public DataControl {
public:
    using Device = typename Protocol::Device;
    using Offer = typename Protocol::Offer;
    using Source = typename Protocol::Source;

    DataControlOf(typename Protocol::Manager* manager, wl_seat* seat)
        : seat_(seat), manager_(manager), device_(Protocol::getDevice(manager, seat)) {}

    ~DataControlOf() override {
        for (const auto& [offer, types] : offers_) {
            Protocol::destroyOffer(offer);
        }
        for (const auto& [source, key] : sources_) {
            Protocol::destroySource(source);
        }
    }

    DataControlOf(const DataControlOf&) = delete;

    void listen(Events events) override {
        events_ = std::move(events);
        Protocol::listenToDevice(device_.get(), &deviceEvents, this);
    }

    void receive(const QByteArray& type, const Descriptor& into) override {
        if (current_ != nullptr) {
            Protocol::receive(current_, type.constData(), into.number());
        }
    }

    void offer(qint64 key, const Types& types) override {
        Source* const source = Protocol::createSource(manager_.get());
        sources_[source] = key;
        Protocol::listenToSource(source, &sourceEvents, this);
        for (const QByteArray& type : types) {
            Protocol::addType(source, type.constData());
        }
        Protocol::setSelection(device_.get(), source);
    }

private:
    static constexpr qsizetype maxTypes = 512;

    [[nodiscard]] static DataControlOf& of(void* self) {
        return *static_cast<DataControlOf*>(self);
    }

    void select(Offer* offer) {
        drop(std::exchange(current_, offer));
        if (offer == nullptr) {
            events_.changed(std::nullopt);
            return;
        }
        // A mark of secrecy could be among those that were left out.
        const Types& types = offers_[offer];
        events_.changed(types.size() > maxTypes ? Types() : types);
    }

    /// If the next device says nothing either, the seat is gone.
    void renew() {
        select(nullptr);
        if (std::exchange(hasSpoken_, false)) {
            device_.reset(Protocol::getDevice(manager_.get(), seat_.get()));
            Protocol::listenToDevice(device_.get(), &deviceEvents, this);
        }
    }

    void drop(Offer* offer) {
        if (offer != nullptr) {
            offers_.erase(offer);
            Protocol::destroyOffer(offer);
        }
    }

    void addType(Offer* offer, const char* type) {
        if (Types& types = offers_[offer]; types.size() <= maxTypes && !types.contains(type)) {
            types.append(type);
        }
    }

    void cancel(Source* source) {
        const auto found = sources_.extract(source);
        Protocol::destroySource(source);
        if (found) {
            events_.replaced(found.mapped());
        }
    }

    static constexpr typename Protocol::OfferEvents offerEvents = {
        .offer = [](void* self, Offer* offer, const char* type) { of(self).addType(offer, type); },
    };
    static constexpr typename Protocol::DeviceEvents deviceEvents = {
        .data_offer =
            [](void* self, Device*, Offer* offer) {
                of(self).offers_[offer] = {};
                Protocol::listenToOffer(offer, &offerEvents, self);
            },
        .selection =
            [](void* self, Device*, Offer* offer) {
                of(self).hasSpoken_ = true;
                of(self).select(offer);
            },
        .finished = [](void* self, Device*) { of(self).renew(); },
        .primary_selection = [](void* self, Device*, Offer* offer) { of(self).drop(offer); },
    };
    static constexpr typename Protocol::SourceEvents sourceEvents = {
        .send =
            [](void* self, Source* source, const char* type, int into) {
                of(self).events_.asked(of(self).sources_[source], type, Descriptor(into));
            },
        .cancelled = [](void* self, Source* source) { of(self).cancel(source); },
    };

    Events events_;
    Owned<wl_seat> seat_;
    std::unique_ptr<typename Protocol::Manager, DestroyBy<Protocol::destroyManager>> manager_;
    std::unique_ptr<Device, DestroyBy<Protocol::destroyDevice>> device_;
    bool hasSpoken_ = false; ///< The device, since it was made.
    std::map<Offer*, Types> offers_;
    Offer* current_ = nullptr;
    std::map<Source*, qint64> sources_;
};

} // namespace ravelo::wayland
