#pragma once

#include <QObject>

namespace ravelo {

class AppSettings;
class Store;

/// Chooses a longer history if the chosen one would drop clips that came otherwise than by copying:
/// from an import, or from a store whose preferences were lost. Main thread.
class HistoryLength : public QObject {
    Q_OBJECT

public:
    enum class Preferences { kept, lost };

    /// Both outlive this.
    HistoryLength(AppSettings& settings, const Store& store, Preferences preferences);

private:
    void hold();

    AppSettings& settings_;
    const Store& store_;
};

} // namespace ravelo
