import QtQuick
import Ravelo.Text

/// Floats over the panel until answered, dismissed with Escape or by a press outside. Takes the
/// keyboard focus and gives it back when it closes.
FocusScope {
    id: popover

    property bool opened: false
    /// An item with a property `popover`, created when it first opens. Floats in its implicit size.
    required property url content
    property real pad: 16
    /// Keyboard in use: show focus rings.
    property bool keyed: false

    readonly property real maxContentHeight: height - 2 * (margin + pad)
    readonly property real margin: 26
    property point corner
    property bool growsLeft: false
    /// The corner is its middle.
    property bool centred: false
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

    /// In the middle of an item of the panel.
    function openOver(item: Item) {
        openAt(item.mapToItem(parent, item.width / 2, item.height / 2), false, item.activeFocus);
        centred = true;
    }

    function openAt(place: point, toTheLeft: bool, byKey: bool) {
        corner = place;
        growsLeft = toTheLeft;
        centred = false;
        keyed = byKey;
        focusedBefore = Typing.focused(popover);
        floating.needed = true; // Before it opens: it fades in.
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
    visible: floating.item?.opacity > 0
    // Also during the press that has closed it, which would reach what is below, and open it again.
    enabled: opened || floating.item?.pressed === true
    Keys.onPressed: event => {
        keyed = true;
        if (event.key === Qt.Key_Escape) {
            close();
        }
        event.accepted = true; // Modal: keys do not reach what is below.
    }

    Lazy {
        id: floating
        anchors.fill: parent
        focus: true
        page: Qt.resolvedUrl("FloatingSurface.qml")
        properties: ({ popover: popover })
    }
}
