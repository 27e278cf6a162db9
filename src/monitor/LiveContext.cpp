#include "monitor/LiveContext.h"

#include "base/Scheduler.h"
#include "platform/DetachedJobs.h"
#include "platform/FolderChanges.h"

#include <array>
#include <charconv>
#include <cmath>
#include <utility>

namespace ravelo {

namespace {

constexpr Seconds margin(0.001); ///< Rounding must not put the update before the change.
constexpr qint64 million = 1'000'000;

} // namespace

LiveContext::LiveContext(Services services, const QByteArray& home,
                         std::unique_ptr<FolderChanges> changes, const QByteArrayList& otherFolders)
    : services_(services),
      peak_(PeakInfo::at(services.scheduler.now())),
      reader_(std::make_shared<ContextReader>(home, std::move(changes), otherFolders)),
      looks_(services.scheduler, reader_->changes(), [this] { refresh(); }) {
    refresh();
}

LiveContext::~LiveContext() = default;

LiveContext& LiveContext::shared(const std::function<std::unique_ptr<LiveContext>()>& make) {
    static LiveContext* const instance = make().release();
    return *instance;
}

void LiveContext::refresh() {
    peak_ = PeakInfo::at(services_.scheduler.now());
    if (reading_) {
        notify();
        return;
    }
    auto reading = std::make_shared<std::optional<ContextReading>>();
    reading_ = services_.jobs.run(
        [reader = reader_, reading,
         choice = ContextReader::Choice{session_, services_.scheduler.now()}] {
            *reading = reader->read(choice);
        },
        [this, reading] {
            reading_.reset();
            const bool watched = *reading && (*reading)->watched;
            looks_.looked(watched ? Looks::Watched::yes : Looks::Watched::no);
            if (*reading) {
                apply(**reading);
            } else { // Not read: everything stays as it is.
                notify();
            }
        });
}

void LiveContext::apply(const ContextReading& reading) {
    installed_ = reading.installed;
    limit_ = reading.limit.value_or(usualLimit);
    if (reading.turn) {
        model_ = prettyModel(reading.turn->usage.model);
        used_ = reading.turn->usage.tokens;
        lastActivity_ = reading.turn->modified;
        project_ = reading.turn->project;
    }
    handed_ = reading.handed;
    otherSession_ = reading.untilOther ? services_.scheduler.after(*reading.untilOther + margin,
                                                                   [this] { refresh(); })
                                       : Handle();
    notify();
}

void LiveContext::notify() {
    Q_EMIT changed();
    if (onChange) {
        onChange();
    }
    awaitNextLabel();
}

void LiveContext::awaitNextLabel() {
    const Seconds left = peak_.untilLabelChanges(services_.scheduler.now());
    if (looks_.isPolling() || left == Seconds::max()) {
        nextLabel_.reset();
        return;
    }
    nextLabel_ = services_.scheduler.after(left + margin, [this] {
        peak_ = PeakInfo::at(services_.scheduler.now());
        notify();
    });
}

QString LiveContext::shortCount(qint64 tokens) {
    if (tokens < million) {
        return QString::number(std::llround(static_cast<double>(tokens) / 1000)) + u'k';
    }
    // Rounds ties like printf, unlike Qt, but without its locale.
    std::array<char, 32> text = {};
    const auto end = std::to_chars(text.begin(), text.end(), static_cast<double>(tokens) / million,
                                   std::chars_format::fixed, 1);
    return QString::fromLatin1(text.data(), end.ptr - text.data()) + u'M';
}

} // namespace ravelo
