#pragma once

#include "platform/wayland/connection/Globals.h"

#include <QString>
#include <QTimer>

#include <map>
#include <optional>

#include <wlr-foreign-toplevel-management-unstable-v1-client.h>

namespace ravelo::wayland {

RAVELO_OWNED(zwlr_foreign_toplevel_handle_v1, zwlr_foreign_toplevel_handle_v1_destroy)

/// Which window of another program is active, as far as the compositor reports it
/// (wlr-foreign-toplevel-management). Unless asked to do so always, windows are followed only while
/// the panel has the keyboard and for a moment after: each new title wakes us. On Qt's connection;
/// main thread.
class ActiveWindow {
public:
    struct Window {
        quint64 id; ///< Never used twice.
        QString appId = {};
        bool active = false;
    };

    /// `globals` must outlive this.
    explicit ActiveWindow(const Globals& globals);

    ActiveWindow(const ActiveWindow&) = delete;
    ~ActiveWindow();

    [[nodiscard]] bool isReported() const {
        return globals_.has(zwlr_foreign_toplevel_manager_v1_interface.name);
    }

    void follow();

    /// After two seconds, unless it follows always.
    void stopSoon();

    enum class Following { whileAsked, always };

    void setFollowing(Following following);

    /// The app id of the window that is active now; empty if it is not known.
    [[nodiscard]] QString activeAppId() const;

    /// The one that was active last, while windows are followed.
    [[nodiscard]] std::optional<Window> last() const { return last_; }

    /// Whether this window is active now.
    [[nodiscard]] bool isActive(quint64 id) const;

private:
    using Manager = zwlr_foreign_toplevel_manager_v1;
    using Toplevel = zwlr_foreign_toplevel_handle_v1;

    void stop();
    void finished(const Manager* manager);
    void done(Toplevel* handle);

    static const zwlr_foreign_toplevel_manager_v1_listener managerEvents;
    static const zwlr_foreign_toplevel_handle_v1_listener windowEvents;

    const Globals& globals_;
    Manager* manager_ = nullptr; ///< While windows are followed.
    std::map<Toplevel*, std::pair<Owned<Toplevel>, Window>> windows_;
    std::optional<Window> last_;
    quint64 nextId_ = 1;
    Following following_ = Following::whileAsked;
    QTimer end_;
};

} // namespace ravelo::wayland
