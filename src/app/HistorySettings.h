#pragma once

#include <QObject>

namespace ravelo {

class AppSettings;
class ClipboardManager;
class ClipListModel;
class SelectedTexts;
class Store;

/// Applies the settings of what is captured, and how much of it is kept, whenever they change. Main
/// thread.
class HistorySettings : public QObject {
    Q_OBJECT

public:
    struct Services {
        const AppSettings& settings;
        Store& store;
        ClipboardManager& clipboard;
        SelectedTexts* selected; ///< Null if selections cannot be seen.
        ClipListModel& list;
    };

    explicit HistorySettings(Services services);

private:
    void apply();
    void applyRules();

    Services services_;
};

} // namespace ravelo
