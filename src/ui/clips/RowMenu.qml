import QtQuick
import Ravelo.Clips
import Ravelo.Controls

/// What can be done with a clip, or with all chosen ones.
Menu {
    id: menu

    required property Clips clips
    required property ListView list
    required property PreviewControl preview

    property ClipRow row

    signal copied(int row)

    readonly property bool isText: row?.icon !== "photo"
    /// Known a moment after it opens.
    property bool hasForms: false

    onOpenedChanged: hasForms = opened && clips.hasOtherForms(list.currentIndex)

    Connections {
        target: menu.clips
        enabled: menu.opened
        function onDetailsKnown() {
            menu.hasForms = menu.clips.hasOtherForms(menu.list.currentIndex);
        }
    }

    /// By a key: below the row's text.
    function openFor(wanted: int) {
        const item = list.itemAtIndex(wanted) as ClipRow;
        if (item) {
            openAtRow(item, item.mapToItem(parent, 46, item.height));
        }
    }

    function openAtRow(item: ClipRow, place: point) {
        list.currentIndex = item.index;
        if (!item.tooLarge) {
            preview.close();
            row = item;
            clips.look(item.index);
            openAt(place, false, false);
        }
    }

    /// Not for several clips.
    readonly property var paste: clips.pasting.possible ? [
        { text: qsTr("Paste at once"), hint: clips.pasting.keys, chosen: () => clips.pasteAndClose(list.currentIndex) }
    ] : []

    name: qsTr("Clip")
    minWidth: 248
    plain: true
    entries: clips.selected > 1 ? [
        { text: qsTr("Copy %1").arg(clips.selected), hint: clips.pasting.copyKeys, chosen: () => clips.copySelected() },
        { divider: true },
        { text: qsTr("Delete %1").arg(clips.selected), hint: qsTr("Delete", "key"), chosen: () => clips.removeSelected() }
    ] : row?.secret ? [
        { text: qsTr("Copy"), hint: clips.pasting.copyKeys, chosen: () => menu.copied(list.currentIndex) },
        { divider: true },
        { text: qsTr("Keep as any text"), chosen: () => clips.keepSecret(list.currentIndex) },
        { text: qsTr("Forget now"), hint: qsTr("Delete", "key"), chosen: () => clips.forgetSecret(list.currentIndex) }
    ] : [
        { text: qsTr("Copy"), hint: clips.pasting.copyKeys, chosen: () => menu.copied(list.currentIndex) }
    ].concat(paste).concat(isText && hasForms ? [
        { text: qsTr("Copy as plain text"), hint: qsTr("Alt+Return"), chosen: () => clips.copyPlainAndClose(list.currentIndex) }
    ] : []).concat(isText ? [
        { text: qsTr("Edit…"), hint: qsTr("F2"), chosen: () => clips.edit(list.currentIndex) }
    ] : []).concat([
        { divider: true },
        { text: qsTr("Preview"), hint: qsTr("Space"), chosen: () => preview.openCurrent() }
    ]).concat(row?.icon === "link" || clips.links.file ? [
        { text: qsTr("Open"), hint: qsTr("Ctrl+Return"), chosen: () => clips.openLink(list.currentIndex) }
    ] : []).concat([
        { divider: true },
        { text: row?.pinned ? qsTr("Unpin") : qsTr("Pin"), hint: qsTr("Ctrl+P"), chosen: () => clips.togglePin(list.currentIndex) },
        { text: qsTr("Delete"), hint: qsTr("Delete", "key"), chosen: () => clips.remove(list.currentIndex) }
    ])
}
