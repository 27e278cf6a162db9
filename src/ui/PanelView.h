#pragma once

#include "ui/CopyOnly.h"
#include "ui/PanelHost.h"

#include <QQmlComponent>
#include <QQuickView>

#include <memory>

namespace ravelo {

/// The panel on the screen: a transparent window and, once there is something to show, its content.
/// The window knows neither its place nor its size. Main thread.
class PanelView {
public:
    /// Makes the window, empty and not shown. Its content is compiled in a thread from now on.
    PanelView();
    ~PanelView();

    [[nodiscard]] QQuickView& window() { return view_; }

    /// Fills the window. Called once; all subjects outlive this view.
    void load(PanelHost::Subjects subjects, const QLocale& locale);

    /// Only after `load`.
    [[nodiscard]] PanelHost& host() { return *host_; }

private:
    std::unique_ptr<PanelHost> host_; // Outlives the content, which is in the view.
    QQuickView view_;
    QQmlComponent content_;
    CopyOnly copyOnly_;
};

} // namespace ravelo
