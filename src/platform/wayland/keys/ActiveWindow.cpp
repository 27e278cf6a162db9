#include "platform/wayland/keys/ActiveWindow.h"

#include <algorithm>
#include <chrono>
#include <span>
#include <utility>

namespace ravelo::wayland {

namespace {

constexpr std::chrono::seconds whileKeysAreTyped(2);

void ignore(void* /*self*/, zwlr_foreign_toplevel_handle_v1* /*window*/, wl_output* /*output*/) {}

} // namespace

const zwlr_foreign_toplevel_manager_v1_listener ActiveWindow::managerEvents = {
    [](void* self, Manager* manager, Toplevel* handle) {
        auto& active = *static_cast<ActiveWindow*>(self);
        Owned<Toplevel> owned(handle); // NOLINT(misc-const-correctness): It is moved from.
        if (manager == active.manager_) {
            zwlr_foreign_toplevel_handle_v1_add_listener(handle, &windowEvents, &active);
            active.windows_.try_emplace(handle, std::move(owned), Window{active.nextId_++});
        }
    },
    [](void* self, Manager* manager) {
        static_cast<ActiveWindow*>(self)->finished(manager);
        zwlr_foreign_toplevel_manager_v1_destroy(manager);
    }};

const zwlr_foreign_toplevel_handle_v1_listener ActiveWindow::windowEvents = {
    [](void* /*self*/, Toplevel* /*window*/, const char* /*title*/) {},
    [](void* self, Toplevel* handle, const char* appId) {
        static_cast<ActiveWindow*>(self)->windows_.at(handle).second.appId =
            QString::fromUtf8(appId);
    },
    ignore,
    ignore,
    [](void* self, Toplevel* handle, wl_array* states) {
        const std::span all(static_cast<const uint32_t*>(states->data),
                            states->size / sizeof(uint32_t));
        static_cast<ActiveWindow*>(self)->windows_.at(handle).second.active =
            std::ranges::find(all, uint32_t(ZWLR_FOREIGN_TOPLEVEL_HANDLE_V1_STATE_ACTIVATED)) !=
            all.end();
    },
    [](void* self, Toplevel* handle) { static_cast<ActiveWindow*>(self)->done(handle); },
    [](void* self, Toplevel* handle) {
        static_cast<ActiveWindow*>(self)->windows_.erase(handle);
    }};

ActiveWindow::ActiveWindow(const Globals& globals) : globals_(globals) {
    end_.setSingleShot(true);
    end_.callOnTimeout([this] { stop(); });
}

ActiveWindow::~ActiveWindow() {
    if (manager_ != nullptr) {
        zwlr_foreign_toplevel_manager_v1_destroy(manager_);
    }
}

void ActiveWindow::follow() {
    end_.stop();
    if (manager_ == nullptr && isReported()) {
        manager_ = globals_.bind<Manager>(zwlr_foreign_toplevel_manager_v1_interface, 1);
        zwlr_foreign_toplevel_manager_v1_add_listener(manager_, &managerEvents, this);
    }
}

void ActiveWindow::stopSoon() {
    if (manager_ != nullptr && following_ == Following::whileAsked) {
        end_.start(whileKeysAreTyped);
    }
}

void ActiveWindow::setFollowing(Following following) {
    following_ = following;
    following == Following::always ? follow() : stopSoon();
}

QString ActiveWindow::activeAppId() const {
    const auto active =
        std::ranges::find_if(windows_, [](const auto& one) { return one.second.second.active; });
    return active == windows_.end() ? QString() : active->second.second.appId;
}

void ActiveWindow::stop() {
    if (Manager* const manager = std::exchange(manager_, nullptr)) {
        zwlr_foreign_toplevel_manager_v1_stop(manager);
    }
    windows_.clear();
    last_.reset();
}

/// After `stop`, or because the compositor ends it by itself.
void ActiveWindow::finished(const Manager* manager) {
    if (manager == manager_) {
        manager_ = nullptr;
        windows_.clear();
        last_.reset();
    }
}

void ActiveWindow::done(Toplevel* handle) {
    if (const Window& window = windows_.at(handle).second; window.active) {
        last_ = window;
    }
}

bool ActiveWindow::isActive(quint64 id) const {
    return std::ranges::any_of(windows_, [id](const auto& one) {
        const Window& window = one.second.second;
        return window.id == id && window.active;
    });
}

} // namespace ravelo::wayland
