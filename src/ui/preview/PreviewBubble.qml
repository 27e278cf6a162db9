import QtQuick
import Ravelo.Controls
import Ravelo.Preview

/// Shows one clip beside its row. Takes no keyboard focus, unless the user selects text in it.
Lazy {
    id: bubble

    required property ClipPreview preview
    /// Width of the list beside which it floats.
    required property real room
    /// It stays between these, as near to `centre` as possible.
    required property real highest
    required property real lowest
    property real centre: 0
    property bool opened: false
    /// When it was copied.
    property string origin

    // Untyped: naming the type would compile it.
    readonly property var surface: item
    readonly property bool hovered: surface?.hovered ?? false
    /// Its text has the keyboard focus.
    readonly property bool focused: surface?.focused ?? false

    function open() {
        needed = true; // Before it opens: it fades in.
        opened = true;
    }

    function close() {
        opened = false;
    }

    function scroll(by: int) {
        surface.scroll(by);
    }

    function focusText() {
        surface.focusText();
    }

    page: Qt.resolvedUrl("PreviewSurface.qml")
    properties: ({ bubble: bubble })
}
