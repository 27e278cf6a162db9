import QtQuick
import Ravelo.Clips
import Ravelo.Controls
import Ravelo.Paint
import Ravelo.Theme

/// Shows one clip beside its row. Takes no keyboard focus, unless the user selects text in it.
Item {
    id: bubble

    required property ClipPreview preview
    /// Width of the list beside which it floats.
    required property real room
    /// Between these it stays, as near to `centre` as it can.
    required property real highest
    required property real lowest
    property real centre: 0
    property bool opened: false
    /// Where and when it was copied.
    property string origin

    readonly property bool hovered: hover.hovered
    /// The text in it has the keyboard.
    readonly property bool focused: (text.item as PreviewText)?.focused ?? false
    readonly property Item body: text.item ?? image.item ?? color.item ?? link.item
    readonly property real most: lowest - highest - footer.height
    readonly property real wide: room < 764 ? Math.max(240, room - 160) : 452

    function scroll(by: int) {
        (text.item as PreviewText)?.scroll(by);
    }

    function focusText() {
        (text.item as PreviewText)?.focusText();
    }

    x: room - width
    y: Math.round(Math.max(highest, Math.min(centre - height / 2, lowest - height)))
    width: body?.implicitWidth ?? 0
    height: (body?.implicitHeight ?? 0) + footer.height
    visible: opacity > 0
    enabled: opened
    opacity: opened ? 1 : 0
    scale: opened ? 1 : 1 - Theme.move(3) / 100
    transformOrigin: Item.Right
    Accessible.role: Accessible.Dialog
    Accessible.name: preview.kind === ClipPreview.Image ? qsTr("Image, %1").arg(preview.measure)
        : preview.kind === ClipPreview.Color ? qsTr("Color, hex %1").arg(preview.values[0].slice(1).split("").join(" "))
        : qsTr("Preview")

    Behavior on opacity {
        NumberAnimation {
            duration: bubble.opened ? Theme.floatingIn : Theme.floatingOut
            easing.type: Easing.OutCubic
        }
    }
    Behavior on scale {
        enabled: bubble.opened
        NumberAnimation {
            duration: Theme.floatingIn
            easing.type: Easing.OutCubic
        }
    }
    Behavior on height {
        enabled: bubble.opened && bubble.opacity === 1 && Theme.move(1) > 0
        NumberAnimation {
            duration: Theme.floatingIn
            easing.type: Easing.OutCubic
        }
    }

    HoverHandler {
        id: hover
    }

    Shadow {
        anchors.fill: parent
        radius: Theme.radiusPopover
        color: Qt.rgba(0, 0, 0, 0.48)
        blur: 32
        drop: 12
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
        onWheel: wheel => wheel.accepted = true
    }

    Loader {
        id: text
        active: bubble.visible && bubble.preview.kind === ClipPreview.Text
        width: parent.width
        height: footer.y
        sourceComponent: PreviewText {
            preview: bubble.preview
            implicitWidth: bubble.wide
            largest: bubble.most
        }
    }

    Loader {
        id: image
        active: bubble.visible && bubble.preview.kind === ClipPreview.Image
        width: parent.width
        height: footer.y
        sourceComponent: PreviewImage {
            preview: bubble.preview
            largest: Qt.size(424, bubble.most - 28)
        }
    }

    Loader {
        id: color
        active: bubble.visible && bubble.preview.kind === ClipPreview.Color
        sourceComponent: PreviewColor {
            preview: bubble.preview
        }
    }

    Loader {
        id: link
        active: bubble.visible && bubble.preview.kind === ClipPreview.Link
        height: footer.y
        sourceComponent: PreviewLink {
            preview: bubble.preview
            implicitWidth: bubble.wide
            largest: bubble.most
        }
    }

    PreviewFooter {
        id: footer
        x: 16
        y: parent.height - height
        width: parent.width - 32
        origin: bubble.origin
        details: [bubble.preview.measure, bubble.preview.forms]
    }
}
