import QtQuick
import Ravelo.Clips
import Ravelo.Preview

/// Decides when the preview is shown, and of which row.
QtObject {
    id: control

    required property Clips clips
    required property ListView list
    required property PreviewBubble bubble
    /// Row whose tile is under the pointer; -1 if none.
    property int pointed: -1
    property int row: -1
    property bool byPointer: false

    readonly property bool opened: bubble.opened
    readonly property bool left: pointed !== row && !bubble.hovered && !bubble.focused

    function open(wanted: int) {
        const item = list.itemAtIndex(wanted) as ClipRow;
        if (!item || item.secret || item.tooLarge) {
            close();
            return;
        }
        row = wanted;
        clips.showPreview(wanted);
        bubble.centre = bubble.parent.mapFromItem(item, 0, item.height / 2).y;
        bubble.origin = item.ago;
        bubble.open();
    }

    function openCurrent() {
        byPointer = false;
        open(list.currentIndex);
    }

    function close() {
        bubble.close();
        row = -1;
    }

    /// The pointer came to a tile, or left it.
    function point(at: int, hovers: bool) {
        if (hovers) {
            pointed = at;
        } else if (pointed === at) {
            pointed = -1;
        }
    }

    /// Another row is current.
    function follow() {
        if (opened && !byPointer) {
            openCurrent();
        }
    }

    onPointedChanged: resting.running = pointed >= 0 && pointed !== row
    onLeftChanged: leaving.running = opened && byPointer && left

    property Connections showing: Connections {
        target: control.clips.preview
        function onChanged() {
            if (control.clips.preview.kind === ClipPreview.None) {
                control.close(); // The clip is gone.
            }
        }
    }

    property Timer resting: Timer {
        interval: 400
        onTriggered: {
            control.byPointer = true;
            control.open(control.pointed);
        }
    }

    property Timer leaving: Timer {
        interval: 150
        onTriggered: {
            if (control.left) {
                control.close();
            }
        }
    }
}
