#include "SampleData.h"
#include "Stage.h"

#include <QDir>
#include <QDragEnterEvent>
#include <QMimeData>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

/// Real files where a picture is visible; others only need a name.
void park(PanelWorld& world) {
    const QDir folder(world.folder.path());
    const auto file = [&](const char* name, const QImage& image = {}) {
        const QString path = folder.filePath(QString::fromUtf8(name));
        if (image.isNull()) {
            QFile(path).open(QIODevice::WriteOnly);
        } else {
            image.save(path);
        }
        return QUrl::fromLocalFile(path);
    };
    const auto wide = [](const QImage& image) {
        return image.scaled(288, 224, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
    };
    world.store.addToShelf({file("alcove-elevation-east.jpg", wide(room()).copy(0, 32, 288, 224)),
                            file("alcove-section-plan.png", plan()),
                            file("swatches.jpg", wide(swatches()).copy(0, 32, 288, 224))});
    world.store.addToShelf({file("estimate-2026-042.pdf"), file("materials.xlsx")});
    world.store.addToShelf({file("walkthrough-north.mp4"), file("contract.docx"),
                            file("evening.jpg", wide(room()).copy(0, 0, 288, 224))});
    world.store.addToShelf({file("site-photos.zip"), file("invoice.pdf")});
    world.store.clearSelection();
}

/// More than anyone parks or receives.
void parkMany(PanelWorld& world) {
    QList<QUrl> files;
    for (int i = 0; i < 200; ++i) {
        files.append(QUrl::fromLocalFile(u"/nowhere/file %1.pdf"_s.arg(i)));
    }
    world.store.addToShelf(files);
    FolderListing listing{{}, FolderListing::Unknown::arrived};
    for (int i = 0; i < 10000; ++i) {
        listing.entries.append({QByteArray::number(i) + ".pdf", false});
    }
    world.downloads.report({listing, {}});
}

void receive(PanelWorld& world, const QByteArray& name, Seconds then) {
    world.downloads.report({{}, {{FolderChange::Kind::written, name}}});
    world.scheduler.advance(then);
}

void receiveTwo(Stage& stage) {
    receive(stage.world, "lighting-quote.pdf", day - minute * 18);
    receive(stage.world, "floor-samples.pdf", minute * 18);
}

void fill(Stage& stage) {
    receiveTwo(stage);
    park(stage.world);
}

void dragFilesOver(Stage& stage) {
    stage.world.drags.begin(true);
    QMimeData files;
    files.setUrls({QUrl(u"file:///home/someone/estimate.pdf"_s)});
    QDragEnterEvent enter({600, 260}, Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&stage.view.window(), &enter);
}

void chooseAndReceive(Stage& stage) {
    stage.view.features().shelf->parked()->toggle(1);
    stage.view.features().shelf->parked()->toggle(3);
    receive(stage.world, "IMG_4821.HEIC", Seconds(1));
    stage.world.devices.answer({{u"1"_s, u"Pixel"_s}});
}

} // namespace

Scenes shelfScenes() {
    return {
        {u"shelf"_s, fill, nothing},
        {u"shelf-empty"_s, receiveTwo, nothing},
        {u"shelf-drop"_s, receiveTwo, dragFilesOver},
        {u"shelf-selected"_s, fill, chooseAndReceive},
        {u"shelf-menu"_s, fill,
         [](Stage& stage) {
             stage.hand.click(u"tile4"_s, Qt::RightButton);
         }},
        {u"shelf-many"_s,
         [](Stage& stage) {
             receiveTwo(stage);
             parkMany(stage.world);
         },
         nothing},
    };
}

} // namespace ravelo
