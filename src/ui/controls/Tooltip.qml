import QtQuick

/// Appears under `target` some time after the pointer came to rest on it.
Lazy {
    id: tooltip

    required property Item target
    required property string text
    property bool hovered: false

    needed: hovered
    page: Qt.resolvedUrl("TooltipBubble.qml")
    properties: ({ tooltip: tooltip })
}
