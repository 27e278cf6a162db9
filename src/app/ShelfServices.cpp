#include "app/ShelfServices.h"

#include "platform/IconPreference.h"
#include "platform/freedesktop/BusInstance.h"

#include <QIcon>
#include <QStandardPaths>

namespace ravelo {

namespace {

/// What the desktop tells, or else what Qt makes out.
QString themeOf(const IconPreference& preference) {
    const QString told = preference.theme();
    return told.isEmpty() ? QIcon::themeName() : told;
}

} // namespace

ShelfServices::ShelfServices(Scheduler& scheduler, DetachedJobs& jobs, IconPreference& preference)
    : programs(jobs),
      devices(sessionBus()),
      opener(sessionBus(), programs, jobs),
      icons(std::make_shared<IconTheme>(IconTheme::usualFolders())),
      received(folders, scheduler,
               QStandardPaths::writableLocation(QStandardPaths::DownloadLocation)),
      nearby({devices, programs, jobs, scheduler}),
      themeChange(
          preference.onChange([this, &preference] { icons->setName(themeOf(preference)); })) {
    icons->setName(themeOf(preference));
}

} // namespace ravelo
