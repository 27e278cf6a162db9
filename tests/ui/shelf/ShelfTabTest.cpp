#include "panel_fixture/PanelFixture.h"
#include "support/TestFiles.h"
#include "ui/shelf/DragSourceView.h"

#include <QDragEnterEvent>
#include <QMimeData>

namespace ravelo {

namespace {

QUrl file(const QString& name) {
    return QUrl::fromLocalFile(u"/home/someone/"_s + name);
}

class ShelfTab : public Panel {
protected:
    ShelfTab() { world.settings.lastTab.set(u"Shelf"_s); }

    /// A file that exists, until it is removed.
    QUrl create(const QString& name) {
        return QUrl::fromLocalFile(makeFile(world.folder.filePath(name)));
    }

    void parkFile(const QUrl& url) { world.store.addToShelf({url}); }

    /// The devices in reach.
    void answer(const QList<NearbyDevice>& devices) {
        world.devices.answer(devices);
        world.scheduler.advance(Seconds(0.1));
    }

    void send() {
        clickOn(u"airdrop"_s);
        world.scheduler.advance(Seconds(0.1));
    }

    /// Files "0", "1" and so on.
    void park(int first, int last) {
        QList<QUrl> files;
        for (int i = first; i <= last; ++i) {
            files.append(file(QString::number(i)));
        }
        world.store.addToShelf(files);
        world.store.clearSelection();
    }

    [[nodiscard]] QString selected() const { return names(world.store.shelf().selectedFiles()); }

    [[nodiscard]] QString parked() const { return names(world.store.shelf().files()); }

    static QString names(const QList<QUrl>& files) {
        QStringList names;
        for (const QUrl& url : files) {
            names.append(url.fileName());
        }
        return names.join(u' ');
    }

    void dragOver(const QPointF& place, bool hasFiles = true) {
        world.drags.begin(hasFiles);
        QMimeData files;
        files.setUrls({file(u"a"_s)});
        QDragEnterEvent enter(place.toPoint(), Qt::CopyAction, &files, Qt::LeftButton,
                              Qt::NoModifier);
        QCoreApplication::sendEvent(&view.window(), &enter);
    }
};

TEST_F(ShelfTab, countsFilesInItsHeader) {
    struct Case {
        int files;
        QList<int> selected;
        QString count;
        QString button;
    };

    const Case cases[] = {
        {1, {}, u"1 file"_s, u"Select all"_s},
        {2, {}, u"2 files"_s, u"Select all"_s},
        {2, {1}, u"1 selected"_s, u"Select all"_s},
        {2, {0, 1}, u"2 selected"_s, u"Deselect"_s},
        {2, {0, 0, 1}, u"1 selected"_s, u"Select all"_s},
    };
    open();
    for (const Case& c : cases) {
        SCOPED_TRACE(qPrintable(c.count + u' ' + c.button));
        world.store.removeFromShelf(world.store.shelf().files());
        park(1, c.files);
        for (const int place : c.selected) {
            clickOn(u"tile%1"_s.arg(place));
        }
        EXPECT_EQ(text(u"shelfCount"_s), c.count);
        EXPECT_EQ(text(u"selectAll"_s), c.button);
        EXPECT_EQ(item(u"removeSelected"_s)->isEnabled(), !c.selected.isEmpty());
        clickOn(u"selectAll"_s);
        const bool all = c.button == u"Select all";
        EXPECT_EQ(world.store.shelf().selected.size(), all ? c.files : 0);
    }
}

TEST_F(ShelfTab, aTraySelectsItsStackAndRemoveDeletesTheSelection) {
    park(1, 2);
    park(3, 3);
    open();
    const QPointF tray = item(u"tray0"_s)->mapToScene({0, 0});
    click(view.window(), tray + QPointF(2, 50)); // Beside its tiles.
    EXPECT_EQ(selected(), u"1 2"_s);
    clickOn(u"removeSelected"_s);
    EXPECT_EQ(parked(), u"3"_s);
    clickOn(u"tile0"_s);
    clickOn(u"removeSelected"_s);
    EXPECT_NE(shown(u"dropCard"_s), nullptr);
    EXPECT_EQ(shown(u"shelfCount"_s), nullptr);
}

struct RequestCase {
    const char* name;
    void (*happen)(PanelWorld& world);
};

class ShelfRequest : public Panel, public testing::WithParamInterface<RequestCase> {};

TEST_P(ShelfRequest, showsTheShelf) {
    world.store.addToShelf({file(u"a"_s)});
    GetParam().happen(world);
    EXPECT_TRUE(world.controller.isOpen());
    EXPECT_NE(shown(u"grid"_s), nullptr);
    EXPECT_EQ(world.settings.lastTab(), u"Shelf"_s);
}

void dragFiles(PanelWorld& world) {
    world.drags.begin(true);
    world.controller.onDragEnter();
}

void openCloseAndDragFiles(PanelWorld& world) {
    world.controller.positionExpanded();
    world.controller.collapse();
    dragFiles(world);
}

void openAndRequest(PanelWorld& world) {
    world.controller.positionExpanded();
    world.store.requestShelf();
}

INSTANTIATE_TEST_SUITE_P(All, ShelfRequest,
                         testing::Values(RequestCase{"whileClosed", dragFiles},
                                         RequestCase{"beforeTheContentIsBuilt",
                                                     openCloseAndDragFiles},
                                         RequestCase{"whileOpen", openAndRequest}),
                         [](const auto& row) { return row.param.name; });

TEST_F(ShelfTab, clearsTheSelectionWhileFilesAreDraggedOverIt) {
    open();
    clickOn(u"tab0"_s);
    park(1, 1);
    world.store.toggleSelectStack({file(u"1"_s)});
    dragOver({400, 300}, false);
    EXPECT_EQ(selected(), u"1"_s) << "by what carries no files";
    EXPECT_EQ(shown(u"grid"_s), nullptr) << "by what carries no files";
    QDragLeaveEvent leave;
    QCoreApplication::sendEvent(&view.window(), &leave);
    dragOver({400, 300});
    EXPECT_EQ(selected(), QString());
    EXPECT_NE(shown(u"grid"_s), nullptr) << "the tab";
    world.store.removeFromShelf(file(u"1"_s));
    EXPECT_TRUE(item(u"dropCard"_s)->property("targeted").toBool());
    QCoreApplication::sendEvent(&view.window(), &leave);
    EXPECT_FALSE(item(u"dropCard"_s)->property("targeted").toBool());
}

struct ShelfKeysCase {
    const char* name;
    const char* keys;
    QString selected;
    QString opened = {};
    QString parked = u"0 1 2 3 4 5 6 7 8 9 10 11"_s;
};

class ShelfKeys : public ShelfTab, public testing::WithParamInterface<ShelfKeysCase> {};

TEST_P(ShelfKeys, workOnTheFocusedTile) {
    park(0, 9); // Eight in a line.
    park(10, 11);
    openByKey();
    pressKeys(QString::fromLatin1(GetParam().keys));
    EXPECT_EQ(selected(), GetParam().selected);
    EXPECT_EQ(parked(), GetParam().parked);
    EXPECT_EQ(names(world.opener.opened), GetParam().opened);
    EXPECT_EQ(world.controller.isOpen(), GetParam().opened.isEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    All, ShelfKeys,
    testing::Values(
        ShelfKeysCase{"spaceAtOnce", "Space", {}}, ShelfKeysCase{"returnAtOnce", "Return", {}},
        ShelfKeysCase{"deleteAtOnce", "Del", {}}, ShelfKeysCase{"menuAtOnce", "Menu Return", {}},
        ShelfKeysCase{"space", "Right Space", u"0"_s},
        ShelfKeysCase{"sideways", "Left Right Right Space", u"2"_s},
        ShelfKeysCase{"down", "Right Right Down Space", u"9"_s},
        ShelfKeysCase{"downAndUp", "Down Down Down Space Up Up Up Space", u"0 10"_s},
        ShelfKeysCase{"byTab", "Backtab Tab Space", u"0"_s},
        ShelfKeysCase{"delete", "End Del Del Space", u"9"_s, {}, u"0 1 2 3 4 5 6 7 8 9"_s},
        ShelfKeysCase{"undo", "End Del Home Del Ctrl+Z Space", u"1"_s},
        ShelfKeysCase{"selectAll", "Ctrl+A", u"0 1 2 3 4 5 6 7 8 9 10 11"_s},
        ShelfKeysCase{"return", "Right Right Return", {}, u"1"_s}),
    [](const auto& row) { return row.param.name; });

TEST_F(ShelfTab, theMenuOpensAFileOrItsFolder) {
    park(1, 1);
    for (const auto& [entry, opened] : {std::pair(u"item0"_s, &world.opener.opened),
                                        std::pair(u"item1"_s, &world.opener.shown)}) {
        open();
        clickOn(u"tile0"_s, Qt::RightButton);
        const QQuickItem* choice = in(u"fileMenu"_s, entry);
        click(view.window(), choice->mapToScene({20, 10}));
        EXPECT_EQ(*opened, QList{file(u"1"_s)});
        EXPECT_FALSE(world.controller.isOpen());
        close();
        world.scheduler.advance(untilBuilt);
    }
}

TEST_F(ShelfTab, theMenuRemovesOneFileUntilThatIsUndone) {
    park(1, 3);
    open();
    clickOn(u"tile1"_s, Qt::RightButton);
    click(view.window(), in(u"fileMenu"_s, u"item2"_s)->mapToScene({20, 10}));
    EXPECT_EQ(parked(), u"1 3"_s);
    EXPECT_EQ(text(u"message"_s), u"Removed"_s);
    clickOn(u"toastAction"_s);
    EXPECT_EQ(parked(), u"1 2 3"_s);
}

TEST_F(ShelfTab, undoesRemovingAlsoOfWhatWasParkedMeanwhile) {
    park(1, 2);
    openByKey();
    pressKeys(u"Home Del"_s);
    park(3, 3);
    pressKeys(u"End Del Ctrl+Z"_s);
    EXPECT_EQ(parked(), u"2 3 1"_s);
}

TEST_F(ShelfTab, dragsNoMissingFiles) {
    const QUrl kept = create(u"there"_s);
    world.store.addToShelf({kept, file(u"gone"_s)});
    world.store.clearSelection();
    open();
    EXPECT_FALSE(item(u"tile0"_s)->property("missing").toBool());
    EXPECT_TRUE(item(u"tile1"_s)->property("missing").toBool());
    EXPECT_EQ(view.features().shelf->parked()->filesToDrag(), QList{kept});
    clickOn(u"tile1"_s);
    EXPECT_EQ(view.features().shelf->parked()->filesToDrag(), QList<QUrl>());
    QFile::remove(kept.toLocalFile());
    rebuild();
    open();
    EXPECT_TRUE(item(u"tile0"_s)->property("missing").toBool());
}

struct SendCase {
    const char* name;
    QList<NearbyDevice> devices; ///< With two, the second is chosen and one file is missing.
    QString sentTo;
    QString toast;
};

class ShelfSending : public ShelfTab, public testing::WithParamInterface<SendCase> {};

TEST_P(ShelfSending, sendsTheSelectedFiles) {
    parkFile(create(u"there"_s));
    park(1, 2);
    open();
    clickOn(u"tile0"_s);
    const bool chooses = GetParam().devices.size() > 1;
    if (chooses) {
        clickOn(u"tile1"_s);
    }
    answer(GetParam().devices);
    clickOn(u"airdrop"_s);
    if (chooses) {
        EXPECT_TRUE(world.devices.sent.isEmpty());
        click(view.window(), in(u"deviceMenu"_s, u"item1"_s)->mapToScene({20, 10}));
    }
    world.scheduler.advance(Seconds(0.1));
    world.devices.answerSend(true);
    ASSERT_EQ(world.devices.sent.size(), GetParam().sentTo.isEmpty() ? 0 : 1);
    if (!GetParam().sentTo.isEmpty()) {
        EXPECT_EQ(world.devices.sent[0].deviceId, GetParam().sentTo);
        EXPECT_EQ(world.devices.sent[0].addresses.size(), 1);
    }
    EXPECT_EQ(toast(), GetParam().toast);
    EXPECT_EQ(view.features().shelf->sending()->advice().isEmpty(), !GetParam().devices.isEmpty());
}

const NearbyDevice pixel{u"p"_s, u"Pixel\nof Ren"_s};
const NearbyDevice tablet{u"t"_s, u"Tablet"_s};

INSTANTIATE_TEST_SUITE_P(
    All, ShelfSending,
    testing::Values(SendCase{"toNobody", {}, {}, {}},
                    SendCase{"toTheOnlyOne", {pixel}, u"p"_s, u"Sent to Pixel of Ren"_s},
                    SendCase{"toTheChosen", {pixel, tablet}, u"t"_s, u"Sent 1 of 2 to Tablet"_s}),
    [](const auto& row) { return row.param.name; });

TEST_F(ShelfTab, enablesItsButtonForDevicesThatAppearLater) {
    park(1, 1);
    open();
    answer({});
    ASSERT_FALSE(view.features().shelf->sending()->isPossible());
    world.scheduler.advance(Seconds(4));
    world.devices.answer({pixel});
    EXPECT_TRUE(view.features().shelf->sending()->isPossible());
    close();
    const int looks = world.devices.looks;
    world.scheduler.advance(Seconds(60));
    EXPECT_EQ(world.devices.looks, looks) << "it is not visible";
}

TEST_F(ShelfTab, reportsThatAFolderCannotBeSent) {
    parkFile(QUrl::fromLocalFile(world.folder.path()));
    open();
    answer({pixel});
    send();
    EXPECT_EQ(toast(), u"A folder cannot be sent, only files"_s);
    EXPECT_TRUE(world.devices.sent.isEmpty());
}

TEST_F(ShelfTab, closesForTheSendingProgram) {
    parkFile(create(u"there"_s));
    world.programs.installed = {u"blueman-sendto"_s};
    open();
    answer({});
    send();
    EXPECT_EQ(world.programs.started.size(), 1);
    EXPECT_FALSE(world.controller.isOpen()) << "the panel lies over its window";
}

TEST_F(ShelfTab, listsAndParksReceivedFiles) {
    open();
    const auto receive = [this](const QByteArray& name) {
        world.downloads.report({{}, {{FolderChange::Kind::written, name}}});
    };
    receive("first.pdf");
    world.scheduler.advance(Seconds(300));
    EXPECT_EQ(shown(u"banner"_s), nullptr) << "received long ago";
    receive("second.pdf");
    item(u"banner"_s);
    const auto ago = [this](const QString& row) {
        return property(row, u"ago"_s, "text").toString();
    };
    EXPECT_EQ(ago(u"received0"_s), u"5 min. ago"_s);
    EXPECT_EQ(ago(u"received1"_s), u"just now"_s);
    const auto* source = qobject_cast<DragSourceView*>(in(u"received1"_s, u"dragSource"_s));
    EXPECT_EQ(names(source->files()), u"second.pdf"_s) << "what would be dragged out";
    const QQuickItem* row = hover(u"received0"_s);
    const QQuickItem* park = find(row, u"park"_s);
    ASSERT_TRUE(park->isVisible());
    click(view.window(), park->mapToScene({12, 12}));
    EXPECT_EQ(parked(), u"first.pdf"_s);
    EXPECT_TRUE(world.opener.opened.isEmpty()) << "the click went through to the row";
    clickOn(u"received1"_s);
    EXPECT_EQ(names(world.opener.opened), u"second.pdf"_s);
}

TEST_F(ShelfTab, createsVisibleTilesAndRowsOnly) {
    park(1, 200);
    FolderListing listing{{}, FolderListing::Unknown::arrived};
    for (int i = 0; i < 10000; ++i) {
        listing.entries.append({QByteArray::number(i) + ".pdf", false});
    }
    world.downloads.report({listing, {}});
    openByKey();
    EXPECT_EQ(view.features().shelf->received()->rowCount(), 10000);
    EXPECT_LT(view.features().shelf->parked()->tiles()->rowCount(), 48);
    EXPECT_EQ(shown(u"tile199"_s), nullptr);
    press(Qt::Key_End);
    view.window().grabWindow();
    EXPECT_LT(view.features().shelf->parked()->tiles()->rowCount(), 48);
    EXPECT_TRUE(item(u"tile199"_s)->hasActiveFocus());
    EXPECT_NE(shown(u"received9999"_s), nullptr) << "the list ends with the newest";
    EXPECT_EQ(shown(u"received0"_s), nullptr);
}

} // namespace

} // namespace ravelo
