pragma ComponentBehavior: Bound

import QtQuick
import Ravelo.Controls
import Ravelo.Paint
import Ravelo.Theme

/// A list of entries to choose from.
Popover {
    id: menu

    /// Objects with `text`, `chosen()` and optionally `checked` and `hint`, or with `divider`.
    property var entries: []
    /// Name for assistive programs.
    property string name
    property real minWidth: 0
    property int current: -1

    readonly property real room: largestHeight - 2 * pad
    /// No entry is ever checked.
    property bool plain: false

    function choose(index: int) {
        const entry = entries[index]; // Closing may change the entries.
        close();
        entry?.chosen();
    }

    /// Moves to the next entry that can be chosen; without a selection, to the first or last.
    function step(by: int) {
        let next = current < 0 && by < 0 ? entries.length - 1 : current + by;
        while (entries[next]?.divider) {
            next += by;
        }
        if (next >= 0 && next < entries.length) {
            current = next;
            list.positionViewAtIndex(next, ListView.Contain);
            list.itemAtIndex(next)?.forceActiveFocus(); // Screen readers follow it.
        }
    }

    pad: 5
    contentWidth: Math.max(minWidth - 2 * pad, list.maxItemWidth)
    contentHeight: Math.min(list.contentHeight, room)
    Accessible.role: Accessible.PopupMenu
    Accessible.name: name
    onOpenedChanged: current = -1
    Keys.onUpPressed: step(-1)
    Keys.onDownPressed: step(1)
    Keys.onReturnPressed: choose(current)
    Keys.onEnterPressed: choose(current)
    Keys.onSpacePressed: choose(current)

    ListView {
        id: list

        property real maxItemWidth: 0

        // Room for the focus ring.
        anchors.fill: parent
        anchors.margins: -2
        topMargin: 2
        bottomMargin: 2
        clip: interactive
        interactive: contentHeight > height - 4
        boundsBehavior: Flickable.StopAtBounds
        cacheBuffer: 10000 // All items exist: the widest sets the width.
        model: menu.entries

        delegate: Surface {
            id: item

            required property int index
            required property var modelData
            readonly property bool divides: modelData.divider ?? false

            objectName: "item" + index
            transform: Translate { x: 2 } // In Qt 6.8 a vertical list sets x to 0.
            z: ring.visible ? 1 : 0
            width: list.width - 4
            height: divides ? 11 : 28
            radius: Theme.radiusTile
            rest: Theme.none
            hover: Theme.hoveredItem
            press: Theme.pressedItem
            hovered: !divides && index === menu.current
            pressed: area.pressed
            Accessible.role: divides ? Accessible.Separator : Accessible.MenuItem
            Accessible.name: label.text
            Accessible.checkable: modelData.checked !== undefined
            Accessible.checked: modelData.checked ?? false
            Accessible.onPressAction: menu.choose(index)
            Component.onCompleted: list.maxItemWidth = Math.max(list.maxItemWidth, label.x + label.implicitWidth + 10
                + (hint.text ? hint.implicitWidth + 26 : 0))

            Box {
                visible: item.divides
                x: 8
                y: 5
                width: parent.width - 16
                height: 1
                color: Theme.divider
            }

            Glyph {
                visible: item.modelData.checked ?? false
                x: 8
                anchors.verticalCenter: parent.verticalCenter
                size: 15
                symbol: "checkmark"
            }

            Label {
                id: label
                x: menu.plain ? 12 : 30
                y: 6
                width: Math.min(implicitWidth, (hint.text ? hint.x - 24 : item.width - 10) - x)
                text: item.modelData.text ?? ""
                style: Theme.body
                color: Theme.text1
            }

            Label {
                id: hint
                x: item.width - implicitWidth - 12
                y: 6
                text: item.modelData.hint ?? ""
                style: Theme.small
                color: Theme.text4
            }

            FocusRing {
                id: ring
                enabled: item.index === menu.current
                control: item
                anchors.margins: -2
                radius: item.radius + 2
            }

            MouseArea {
                id: area
                anchors.fill: parent
                enabled: !item.divides
                hoverEnabled: true
                onEntered: menu.current = item.index
                onExited: {
                    if (menu.current === item.index) {
                        menu.current = -1;
                    }
                }
                onClicked: menu.choose(item.index)
            }
        }
    }
}
