#pragma once

#include "ui/PanelFeatures.h"
#include "ui/panel/CopyOnly.h"

#include <QQmlComponent>
#include <QQuickView>

#include <memory>
#include <vector>

namespace ravelo {

/// The panel on the screen: a transparent window and, once there is something to show, its content.
/// The window knows neither its place nor its size. Main thread.
class PanelView {
public:
    /// Makes the window, empty and not shown. Its content is compiled in a thread from now on.
    PanelView();
    ~PanelView();

    [[nodiscard]] QQuickView& window() { return view_; }

    /// Fills the window. Called once; all services outlive this view.
    void load(const PanelFeatures::Services& services, const QLocale& locale);

    /// Ends the content, which reads services until then.
    void unload();

    /// Only after `load`.
    [[nodiscard]] PanelFeatures& features() { return *features_; }

private:
    std::unique_ptr<PanelFeatures> features_; // Outlive the content, which is in the view.
    QQuickView view_;
    QQmlComponent content_;
    std::vector<std::unique_ptr<QQmlComponent>> pages_; ///< Of the tabs, kept compiled.
    CopyOnly copyOnly_;
};

} // namespace ravelo
