#include "app/HistoryLength.h"

#include "settings/AppSettings.h"
#include "store/Store.h"

#include <algorithm>

namespace ravelo {

HistoryLength::HistoryLength(AppSettings& settings, const Store& store, Preferences preferences)
    : settings_(settings), store_(store) {
    if (preferences == Preferences::lost) {
        hold();
        connect(&store, &Store::lockedChanged, this, &HistoryLength::hold); // Read later.
    }
    connect(&store, &Store::imported, this, &HistoryLength::hold);
}

void HistoryLength::hold() {
    const auto clips = std::ranges::count(store_.clips(), false, &ClipItem::pinned);
    const int needed = AppSettings::historyLengthFor(clips);
    if (needed > settings_.historyLength()) {
        settings_.historyLength.set(needed);
    }
}

} // namespace ravelo
