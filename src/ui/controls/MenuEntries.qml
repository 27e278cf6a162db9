pragma ComponentBehavior: Bound

import QtQuick
import Ravelo.Controls
import Ravelo.Paint
import Ravelo.Theme

/// The entries of a menu, moved through by keys.
FocusScope {
    id: page

    required property Menu popover

    /// Moves to the next entry that can be chosen; without a selection, to the first or last.
    function step(by: int) {
        const entries = page.popover.entries;
        let next = page.popover.current < 0 && by < 0 ? entries.length - 1 : page.popover.current + by;
        while (entries[next]?.divider) {
            next += by;
        }
        if (next >= 0 && next < entries.length) {
            page.popover.current = next;
            list.positionViewAtIndex(next, ListView.Contain);
            list.itemAtIndex(next)?.forceActiveFocus(); // Screen readers follow it.
        }
    }

    implicitWidth: Math.max(page.popover.minWidth - 2 * page.popover.pad, list.maxItemWidth)
    implicitHeight: Math.min(list.contentHeight, page.popover.maxContentHeight)
    focus: true
    Keys.onUpPressed: step(-1)
    Keys.onDownPressed: step(1)
    Keys.onReturnPressed: page.popover.choose(page.popover.current)
    Keys.onEnterPressed: page.popover.choose(page.popover.current)
    Keys.onSpacePressed: page.popover.choose(page.popover.current)

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
        model: page.popover.entries

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
            hovered: !divides && index === page.popover.current
            pressed: area.pressed
            Accessible.role: divides ? Accessible.Separator : Accessible.MenuItem
            Accessible.name: label.text
            Accessible.checkable: modelData.checked !== undefined
            Accessible.checked: modelData.checked ?? false
            Accessible.onPressAction: page.popover.choose(index)
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
                x: page.popover.plain ? 12 : 30
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
                enabled: item.index === page.popover.current
                control: item
                anchors.margins: -2
                radius: item.radius + 2
            }

            MouseArea {
                id: area
                anchors.fill: parent
                enabled: !item.divides
                hoverEnabled: true
                onEntered: page.popover.current = item.index
                onExited: {
                    if (page.popover.current === item.index) {
                        page.popover.current = -1;
                    }
                }
                onClicked: page.popover.choose(item.index)
            }
        }
    }
}
