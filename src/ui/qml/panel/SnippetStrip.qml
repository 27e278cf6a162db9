pragma ComponentBehavior: Bound

import QtQuick
import Ravelo

/// The snippets, one chip each; a click copies.
FadingEdge {
    id: strip

    required property PanelHost host

    edge: FadingEdge.Right
    length: Math.min(40, Math.max(0, list.contentWidth - list.contentX - list.width))

    ListView {
        id: list
        anchors.fill: parent
        orientation: ListView.Horizontal
        spacing: 6
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        model: strip.host.snippets

        delegate: Chip {
            required property int index
            required property var snippetId
            required property string icon
            required title

            objectName: "chip" + index
            symbol: icon
            onClicked: strip.host.copySnippet(snippetId)
        }

        // A wheel turns what lies sideways.
        WheelHandler {
            onWheel: event => {
                const step = event.angleDelta.y + event.angleDelta.x;
                const end = Math.max(0, list.contentWidth - list.width);
                list.contentX = Math.max(0, Math.min(list.contentX - step, end));
            }
        }
    }
}
