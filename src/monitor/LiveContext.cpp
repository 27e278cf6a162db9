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

constexpr Seconds interval(5);
constexpr qint64 million = 1'000'000;

} // namespace

LiveContext::LiveContext(Services services, const QByteArray& home,
                         std::unique_ptr<FolderChanges> changes, const QByteArrayList& otherFolders)
    : services_(services),
      peak_(PeakInfo::at(services.scheduler.now())),
      reader_(std::make_shared<ContextReader>(home, std::move(changes), otherFolders)) {
    refresh();
    timer_ = services_.scheduler.every(interval, [this] { refresh(); });
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
    reading_ = services_.jobs.run([reader = reader_, reading] { *reading = reader->read(); },
                                  [this, reading] {
                                      reading_.reset();
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
    }
    notify();
}

void LiveContext::notify() {
    Q_EMIT changed();
    if (onChange) {
        onChange();
    }
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
