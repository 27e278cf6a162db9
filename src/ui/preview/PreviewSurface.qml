import QtQuick
import Ravelo.Paint
import Ravelo.Preview
import Ravelo.Theme

/// What the preview bubble shows.
Item {
    id: surface

    required property PreviewBubble bubble

    readonly property ClipPreview preview: bubble.preview
    readonly property bool hovered: hover.hovered
    readonly property bool focused: text.focused
    readonly property Item body: preview.kind === ClipPreview.Text ? text
        : preview.kind === ClipPreview.Image ? image
        : preview.kind === ClipPreview.Color ? color
        : preview.kind === ClipPreview.Files ? files : link
    readonly property real most: bubble.lowest - bubble.highest - footer.height
    readonly property real wide: bubble.room < 764 ? Math.max(240, bubble.room - 160) : 452

    function scroll(by: int) {
        preview.kind === ClipPreview.Files ? files.scroll(by) : text.scroll(by);
    }

    function focusText() {
        text.focusText();
    }

    objectName: "preview"
    x: bubble.room - width
    y: Math.round(Math.max(bubble.highest,
                           Math.min(bubble.centre - height / 2, bubble.lowest - height)))
    width: Math.max(body.implicitWidth, Math.min(wide, Math.ceil(footer.implicitWidth) + 2 * footer.x))
    height: body.implicitHeight + footer.height
    visible: opacity > 0
    enabled: bubble.opened
    opacity: bubble.opened ? 1 : 0
    scale: bubble.opened ? 1 : 1 - Theme.move(3) / 100
    transformOrigin: Item.Right
    Accessible.role: Accessible.Dialog
    Accessible.name: preview.kind === ClipPreview.Image ? qsTr("Image, %1").arg(preview.measure)
        : preview.kind === ClipPreview.Color ? qsTr("Color, hex %1").arg(String(preview.values[0]).slice(1).split("").join(" "))
        : qsTr("Preview")

    Behavior on opacity {
        NumberAnimation {
            duration: surface.bubble.opened ? Theme.floatingIn : Theme.floatingOut
            easing.type: Easing.OutCubic
        }
    }
    Behavior on scale {
        NumberAnimation {
            duration: surface.bubble.opened ? Theme.floatingIn : Theme.floatingOut
            easing.type: Easing.OutCubic
        }
    }
    Behavior on height {
        enabled: surface.bubble.opened && surface.opacity === 1 && Theme.move(1) > 0
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

    PreviewText {
        id: text
        visible: surface.preview.kind === ClipPreview.Text
        width: parent.width
        height: footer.y
        preview: surface.preview
        implicitWidth: surface.wide
        largest: surface.most
    }

    PreviewImage {
        id: image
        visible: surface.preview.kind === ClipPreview.Image
        width: parent.width
        height: footer.y
        preview: surface.preview
        largest: Qt.size(424, surface.most - 28)
    }

    PreviewColor {
        id: color
        visible: surface.preview.kind === ClipPreview.Color
        width: parent.width
        preview: surface.preview
    }

    PreviewLink {
        id: link
        visible: surface.preview.kind === ClipPreview.Link
        width: parent.width
        height: footer.y
        preview: surface.preview
        implicitWidth: surface.wide
        largest: surface.most
    }

    PreviewFiles {
        id: files
        visible: surface.preview.kind === ClipPreview.Files
        width: parent.width
        height: footer.y
        preview: surface.preview
        largest: surface.most
    }

    PreviewFooter {
        id: footer
        readonly property string program: surface.preview.program
        x: 16
        y: parent.height - height
        width: parent.width - 32
        origin: program + (program !== "" && surface.bubble.origin !== "" ? " · " : "") + surface.bubble.origin
        details: [surface.preview.measure, surface.preview.forms]
    }
}
