pragma ComponentBehavior: Bound

import QtQuick
import Ravelo.Controls
import Ravelo.Focus
import Ravelo.Theme

/// The presets in the editor.
Item {
    id: page

    required property PresetEditor popover

    readonly property bool opened: popover.opened

    /// Focuses a row, or the button below if there is none.
    function goTo(index: int, removes: bool) {
        list.forceLayout();
        list.positionViewAtIndex(index, ListView.Contain);
        const row = list.itemAtIndex(index) as PresetRow;
        if (row === null) {
            add.forceActiveFocus();
        } else if (removes) {
            row.cross.forceActiveFocus();
        } else {
            row.line.forceActiveFocus();
            row.line.selectAll();
        }
    }

    function remove(index: int, byKey: bool) {
        page.popover.focusing.removePreset(index);
        if (byKey) {
            goTo(Math.min(index, list.count - 1), true);
        }
    }

    implicitWidth: 232
    implicitHeight: 28 + list.height + 12 + 28
    onOpenedChanged: {
        if (opened) {
            goTo(0, false);
        }
    }

    Label {
        text: page.popover.Accessible.name
        style: Theme.strong
        color: Theme.text1
    }

    ListView {
        id: list
        // Room for the glow of a field.
        x: -4
        y: 24
        width: parent.width + 8
        height: Math.min(contentHeight, page.popover.maxContentHeight - 68)
        clip: contentHeight > height
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        topMargin: 4
        spacing: 6
        // By index: typing into a row must not recreate it.
        model: page.popover.focusing.presets.length

        delegate: PresetRow {
            width: list.width
            focusing: page.popover.focusing
            onRemoved: byKey => page.remove(index, byKey)
        }
    }

    CapsuleButton {
        id: add
        objectName: "addPreset"
        y: parent.height - height
        text: qsTr("Add preset")
        lead: 19
        onClicked: {
            page.popover.focusing.addPreset();
            page.goTo(list.count - 1, false);
        }

        Glyph {
            x: 10
            y: 6.5
            size: 15
            symbol: "plus"
        }
    }
}
