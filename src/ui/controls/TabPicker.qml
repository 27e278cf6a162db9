pragma ComponentBehavior: Bound

import QtQuick
import Ravelo.Controls
import Ravelo.Paint
import Ravelo.Theme

/// One button per tab, equally wide; the highlight slides to the current one.
Box {
    id: picker

    /// Objects with `title` and optionally `symbol`.
    required property var tabs
    property int current: 0
    property TextStyle style: Theme.tab
    /// Tab reaches only the current one; the arrow keys reach the others.
    property bool oneStop: false

    readonly property real part: (width - 4) / tabs.length

    signal chosen(int index)

    function moveTo(index: int) {
        if (index >= 0 && index < tabs.length) {
            chosen(index);
            buttons.itemAt(index).forceActiveFocus();
        }
    }

    Accessible.role: Accessible.PageTabList
    implicitHeight: 32
    radius: Theme.radiusRow
    color: Theme.surface1

    Box {
        x: 2 + picker.current * picker.part
        y: 2
        width: picker.part
        height: picker.height - 4
        radius: Theme.radiusSmall
        color: Theme.selectedTab

        Behavior on x {
            enabled: picker.visible
            NumberAnimation {
                duration: Theme.move(Theme.springing)
                easing.type: Easing.BezierSpline
                easing.bezierCurve: Theme.spring
            }
        }
    }

    Repeater {
        id: buttons
        model: picker.tabs

        Pressable {
            id: tab

            required property var modelData
            required property int index
            readonly property bool selected: index === picker.current

            objectName: "tab" + index
            name: modelData.title
            activeFocusOnTab: selected || activeFocus || !picker.oneStop
            Accessible.role: Accessible.PageTab
            Accessible.selectable: true
            Accessible.selected: selected
            x: 2 + index * picker.part
            y: 2
            width: picker.part
            height: picker.height - 4
            radius: Theme.radiusSmall
            rest: Theme.none
            hover: selected ? Theme.none : Theme.hoveredTab
            press: Theme.none
            onPressedChanged: {
                if (pressed) {
                    picker.chosen(index);
                }
            }
            onClicked: picker.chosen(index)
            Keys.onLeftPressed: picker.moveTo(index - 1)
            Keys.onRightPressed: picker.moveTo(index + 1)

            Row {
                anchors.centerIn: parent
                spacing: 8

                Glyph {
                    anchors.verticalCenter: parent.verticalCenter
                    visible: tab.modelData.symbol !== undefined
                    symbol: tab.modelData.symbol ?? ""
                    color: label.color
                }

                Label {
                    id: label
                    text: tab.modelData.title
                    style: picker.style
                    color: tab.selected ? Theme.text1
                                        : tab.hovered ? Theme.hoveredTabText : Theme.text3
                }
            }
        }
    }
}
