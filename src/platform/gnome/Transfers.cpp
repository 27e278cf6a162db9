#include "platform/gnome/Transfers.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <future>
#include <utility>

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

namespace ravelo::gnome {

namespace {

constexpr int patience = 1500; ///< Milliseconds.

Descriptor makeEvent() {
    return Descriptor(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK));
}

void raise(const Descriptor& event) {
    const std::uint64_t one = 1;
    (void)!::write(event.number(), &one, sizeof one);
}

/// Waits until `descriptor` can be read; false if it was cancelled or took too long.
bool isReadable(int descriptor, const Cancellation& cancellation) {
    pollfd both[] = {{descriptor, POLLIN, 0}, {cancellation.descriptor(), POLLIN, 0}};
    int ready = 0;
    do {
        ready = ::poll(both, 2, patience);
    } while (ready < 0 && errno == EINTR);
    return ready > 0 && both[1].revents == 0;
}

Transferred readAll(const Descriptor& from, qsizetype cap, const Cancellation& cancellation) {
    QByteArray bytes;
    QByteArray part(64 << 10, Qt::Uninitialized);
    while (isReadable(from.number(), cancellation)) {
        const auto size = ::read(from.number(), part.data(), std::size_t(part.size()));
        if (size == 0) {
            return {bytes};
        }
        if (size < 0 && errno != EINTR && errno != EAGAIN) {
            break;
        }
        bytes.append(part.constData(), std::max<qsizetype>(size, 0));
        if (bytes.size() > cap) {
            return {{}, bytes.size()};
        }
    }
    return {};
}

} // namespace

/// Where the main thread puts the descriptor for the thread that waits.
struct Transfers::Slot {
    std::promise<Descriptor> promise;
    Descriptor filled = makeEvent();

    void fill(Descriptor descriptor) {
        promise.set_value(std::move(descriptor));
        raise(filled);
    }
};

Cancellation::Cancellation() : event_(makeEvent()) {}

void Cancellation::cancel() {
    raise(event_);
}

Transfers::Transfers(Channel& channel)
    : channel_(channel), deliveries_(channel.onDelivery([this](Delivery& delivery) {
          if (const auto* report = std::get_if<Given>(&delivery.report)) {
              given(*report, delivery.descriptor);
          }
      })) {}

Transferred Transfers::fetch(const Wanted& wanted, const Cancellation& cancellation) {
    const auto slot = std::make_shared<Slot>();
    QMetaObject::invokeMethod(
        this, [this, wanted, slot] { ask(wanted, slot); }, Qt::QueuedConnection);
    if (!isReadable(slot->filled.number(), cancellation)) {
        return {};
    }
    const Descriptor source = slot->promise.get_future().get();
    return source ? readAll(source, wanted.cap, cancellation) : Transferred();
}

void Transfers::ask(const Wanted& wanted, const std::shared_ptr<Slot>& slot) {
    waiting_.remove_if([](const auto& one) { return one.second.expired(); });
    waiting_.emplace_back(wanted, slot);
    channel_.send(want(wanted.of, wanted.serial, wanted.type, wanted.cap));
}

void Transfers::given(const Given& given, Descriptor& descriptor) {
    const auto one = std::ranges::find_if(waiting_, [&](const auto& waits) {
        return waits.first.of == given.of && waits.first.serial == given.serial &&
               waits.first.type == given.type;
    });
    if (one == waiting_.end()) {
        return;
    }
    if (const auto slot = one->second.lock()) {
        slot->fill(std::exchange(descriptor, Descriptor()));
    }
    waiting_.erase(one);
}

} // namespace ravelo::gnome
