#include "ui/shelf/ShelfFiles.h"

#include "clipboard/ClipboardManager.h"
#include "panel/NotchController.h"
#include "platform/FileOpener.h"
#include "store/Store.h"
#include "ui/controls/Toast.h"

namespace ravelo {

using namespace Qt::StringLiterals;

ShelfFiles::ShelfFiles(const Services& services, const QLocale& locale)
    : Tab({u"Shelf"_s, tr("Shelf"), u"tray.full"_s, QUrl(u"qrc:/Ravelo/Shelf/ShelfTab.qml"_s),
           Look::Page::dropped}),
      store_(services.store),
      controller_(services.controller),
      clipboard_(services.clipboard),
      opener_(services.opener),
      toast_(services.toast),
      parked_(services.store, services.jobs, services.scheduler, services.toast),
      received_(services.received, services.scheduler, locale),
      sending_(services.nearby, services.scheduler, services.toast),
      drag_(services.jobs, services.icons, services.decoder),
      ages_(services.scheduler, received_) {
    connect(&drag_, &FileDrag::draggingChanged, &controller_,
            [this] { controller_.setDraggingOut(drag_.isDragging()); });
    connect(&sending_, &Sending::programStarted, &controller_, &NotchController::dismiss);
    connect(&store_, &Store::shelfRequestTickChanged, this, &Tab::requested);
    connect(&controller_, &NotchController::filesOverChanged, this, [this] {
        if (controller_.filesOver()) {
            store_.clearSelection();
            Q_EMIT requested();
        }
    });
}

void ShelfFiles::begin() {
    ages_.start();
    parked_.lookForMissing();
}

void ShelfFiles::reset() {
    ages_.stop();
}

void ShelfFiles::open(const QUrl& file) {
    opener_.open(file);
    controller_.dismiss();
}

void ShelfFiles::showInFolder(const QUrl& file) {
    opener_.showInFolder(file);
    controller_.dismiss();
}

void ShelfFiles::copyLast() {
    if (parked_.count() > 0) {
        clipboard_.copyFile(parked_.fileAt(parked_.count() - 1));
        toast_.flashCopied();
    }
}

} // namespace ravelo
