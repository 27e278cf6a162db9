import QtQuick
import Ravelo

/// Beside what scrolls: how far it has been scrolled. Not there at its beginning.
Box {
    id: mark

    required property Flickable flick

    readonly property real begin: flick ? flick.originY - flick.topMargin : 0
    readonly property real total: flick ? flick.topMargin + flick.contentHeight : 0
    readonly property real scrolled: flick ? flick.contentY - begin : 0
    /// What scrolls may be as high as its place, and less of it be seen.
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
