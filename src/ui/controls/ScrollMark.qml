import QtQuick
import Ravelo.Paint
import Ravelo.Theme

/// A scroll indicator, hidden at the beginning.
Box {
    id: mark

    required property Flickable flick

    readonly property real begin: flick ? flick.originY - flick.topMargin : 0
    readonly property real total: flick ? flick.topMargin + flick.contentHeight : 0
    readonly property real scrolled: flick ? flick.contentY - begin : 0
    /// The flickable may be as tall as its content while only a part is visible.
    readonly property real seen: flick ? flick.height : 0
    readonly property real track: parent.height - 24

    width: 4
    height: Math.max(24, track * Math.min(1, seen / Math.max(1, total)))
    y: 12 + (track - height) * Math.max(0, Math.min(1, scrolled / Math.max(1, total - seen)))
    radius: 2
    color: Theme.scrollMark
    opacity: scrolled > 1 && total > seen ? 1 : 0

    Behavior on opacity {
        NumberAnimation { duration: Theme.hovering }
    }
}
