import QtQuick
import Ravelo.Paint
import Ravelo.Text
import Ravelo.Theme

/// Floats over the panel until answered, dismissed with Escape or by a press outside. Takes the
/// keyboard focus and gives it back when it closes.
FocusScope {
    id: popover

    property bool opened: false
    /// The floating surface without the margin around it.
    property real contentWidth
    property real contentHeight
    property real pad: 16
    /// Keyboard in use: show focus rings.
    property bool keyed: false
    default property alias content: inside.data

    readonly property real largestHeight: height - 2 * margin
    readonly property real margin: 26
    property point corner
    property bool growsLeft: false
    property Item focusedBefore

    signal closed

    /// Below an item of the panel, starting `within` its left edge.
    function openUnder(item: Item, within: real) {
        openAt(item.mapToItem(parent, within, item.height + 6), false, item.activeFocus);
    }

    /// Below an item of the panel, ending `beyond` its right edge.
    function openLeftUnder(item: Item, beyond: real) {
        openAt(item.mapToItem(parent, item.width + beyond, item.height + 6), true, item.activeFocus);
    }

    function openAt(place: point, toTheLeft: bool, byKey: bool) {
        corner = place;
        growsLeft = toTheLeft;
        keyed = byKey;
        focusedBefore = Window.activeFocusItem; // qmllint disable unqualified
        opened = true;
        Typing.wantKeyboard(popover);
        forceActiveFocus();
    }

    function close() {
        if (opened) {
            opened = false;
            if (focusedBefore) {
                focusedBefore.forceActiveFocus();
            } else {
                Typing.freeKeyboard(popover);
            }
            closed();
        }
    }

    parent: Window.contentItem // qmllint disable unqualified
    anchors.fill: parent
    z: 100
    visible: bubble.opacity > 0
    enabled: opened
    Keys.onPressed: event => {
        keyed = true;
        if (event.key === Qt.Key_Escape) {
            close();
        }
        event.accepted = true; // Modal: keys do not reach what is below.
    }

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
        hoverEnabled: true
        onPressed: popover.close()
        onWheel: wheel => wheel.accepted = true
    }

    Item {
        id: bubble

        function kept(at: real, size: real, room: real): real {
            return Math.round(Math.max(popover.margin, Math.min(at, room - popover.margin - size)));
        }

        objectName: "bubble"
        x: kept(popover.corner.x - (popover.growsLeft ? width : 0), width, popover.width)
        y: kept(popover.corner.y, height, popover.height)
        width: popover.contentWidth + 2 * popover.pad
        height: popover.contentHeight + 2 * popover.pad
        opacity: popover.opened ? 1 : 0
        scale: popover.opened ? 1 : 1 - Theme.move(3) / 100
        transformOrigin: popover.growsLeft ? Item.TopRight : Item.TopLeft

        Behavior on opacity {
            NumberAnimation {
                duration: popover.opened ? Theme.floatingIn : Theme.floatingOut
                easing.type: Easing.OutCubic
            }
        }
        Behavior on scale {
            enabled: popover.opened
            NumberAnimation {
                duration: Theme.floatingIn
                easing.type: Easing.OutCubic
            }
        }

        Shadow {
            anchors.fill: parent
            radius: Theme.radiusPopover
            color: Qt.rgba(0, 0, 0, 0.48)
            blur: 32
            drop: 12
        }

        Shadow {
            anchors.fill: parent
            radius: Theme.radiusPopover
            color: Qt.rgba(0, 0, 0, 0.30)
            blur: 6
            drop: 2
        }

        Box {
            anchors.fill: parent
            radius: Theme.radiusPopover
            color: Theme.floating
            lineColor: Theme.lineFloating
            lineWidth: 1
        }

        MouseArea {
            anchors.fill: parent
            acceptedButtons: Qt.AllButtons
        }

        Item {
            id: inside
            anchors.fill: parent
            anchors.margins: popover.pad
        }
    }
}
