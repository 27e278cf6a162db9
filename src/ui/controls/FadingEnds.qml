import QtQuick
import Ravelo.Paint

/// Fades out at the bottom and the top.
FadingEdge {
    default property alias content: upper.data
    property alias topLength: upper.length
    /// Parent of the content.
    readonly property Item inside: upper

    FadingEdge {
        id: upper
        anchors.fill: parent
        edge: FadingEdge.Top
        length: 0
    }
}
