pragma ComponentBehavior: Bound

import QtQuick
import Ravelo.Controls
import Ravelo.Focus
import Ravelo.Theme

/// Edits the focus presets; changes apply at once.
Popover {
    id: editor

    required property Focus focusing

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
        focusing.removePreset(index);
        if (byKey) {
            goTo(Math.min(index, list.count - 1), true);
        }
    }

    objectName: "presetEditor"
    onOpenedChanged: {
        if (opened) {
            goTo(0, false);
        }
    }
    contentWidth: 232
    contentHeight: 28 + list.height + 12 + 28
    Accessible.role: Accessible.Dialog
    Accessible.name: title.text

    Label {
        id: title
        text: qsTr("Focus presets")
        style: Theme.strong
        color: Theme.text1
    }

    ListView {
        id: list
        // Room for the glow of a field.
        x: -4
        y: 24
        width: parent.width + 8
        height: Math.min(contentHeight, editor.largestHeight - 2 * editor.pad - 68)
        clip: contentHeight > height
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        topMargin: 4
        spacing: 6
        // By index: typing into a row must not recreate it.
        model: editor.focusing.presets.length

        delegate: PresetRow {
            width: list.width
            focusing: editor.focusing
            onRemoved: byKey => editor.remove(index, byKey)
        }
    }

    CapsuleButton {
        id: add
        objectName: "addPreset"
        y: parent.height - height
        text: qsTr("Add preset")
        lead: 19
        onClicked: {
            editor.focusing.addPreset();
            editor.goTo(list.count - 1, false);
        }

        Glyph {
            x: 10
            y: 6.5
            size: 15
            symbol: "plus"
        }
    }
}
