#pragma once

#include "ui/PanelFeatures.h"
#include "ui/panel/CopyOnly.h"

#include <QQmlComponent>
#include <QQuickView>

#include <memory>
#include <vector>

namespace ravelo {

/// The panel's window: transparent, without position or size of its own, and empty until loaded.
/// Main thread.
class PanelView {
public:
    /// Creates the hidden window and starts compiling its content in a thread.
    PanelView();
    ~PanelView();

    [[nodiscard]] QQuickView& window() { return view_; }

    /// Fills the window. Call once; all services outlive this.
    void load(const PanelFeatures::Services& services, const QLocale& locale);

    /// Deletes the content, the last user of the services.
    void unload();

    /// Only after `load`.
    [[nodiscard]] PanelFeatures& features() { return *features_; }

private:
    std::unique_ptr<PanelFeatures> features_; // Must outlive the content in the view.
    QQuickView view_;
    QQmlComponent closed_;
    QQmlComponent content_;                             ///< Kept compiled, like the pages.
    std::vector<std::unique_ptr<QQmlComponent>> pages_; ///< Of the tabs.
    CopyOnly copyOnly_;
};

} // namespace ravelo
