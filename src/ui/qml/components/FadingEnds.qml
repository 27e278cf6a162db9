import QtQuick
import Ravelo

/// Fades out towards the bottom and the top.
FadingEdge {
    default property alias content: upper.data
    property alias topLength: upper.length
    /// The parent of what is in it.
    readonly property Item inside: upper

    FadingEdge {
        id: upper
        anchors.fill: parent
        edge: FadingEdge.Top
        length: 0
    }
}
