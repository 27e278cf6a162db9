import QtQuick
import Ravelo.Preview
import Ravelo.Paint
import Ravelo.Theme

/// Shows one clip beside its row. Takes no keyboard focus, unless the user selects text in it.
Item {
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

    readonly property bool hovered: hover.hovered
    /// Its text has the keyboard focus.
    readonly property bool focused: text.focused
    readonly property Item body: preview.kind === ClipPreview.Text ? text
        : preview.kind === ClipPreview.Image ? image : preview.kind === ClipPreview.Color ? color
        : preview.kind === ClipPreview.Files ? files : link
    readonly property real most: lowest - highest - footer.height
    readonly property real wide: room < 764 ? Math.max(240, room - 160) : 452

    function scroll(by: int) {
        preview.kind === ClipPreview.Files ? files.scroll(by) : text.scroll(by);
    }

    function focusText() {
        text.focusText();
    }

    x: room - width
    y: Math.round(Math.max(highest, Math.min(centre - height / 2, lowest - height)))
    width: body.implicitWidth
    height: body.implicitHeight + footer.height
    visible: opacity > 0
    enabled: opened
    opacity: opened ? 1 : 0
    scale: opened ? 1 : 1 - Theme.move(3) / 100
    transformOrigin: Item.Right
    Accessible.role: Accessible.Dialog
    Accessible.name: preview.kind === ClipPreview.Image ? qsTr("Image, %1").arg(preview.measure)
        : preview.kind === ClipPreview.Color ? qsTr("Color, hex %1").arg(String(preview.values[0]).slice(1).split("").join(" "))
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

    PreviewText {
        id: text
        visible: bubble.preview.kind === ClipPreview.Text
        width: parent.width
        height: footer.y
        preview: bubble.preview
        implicitWidth: bubble.wide
        largest: bubble.most
    }

    PreviewImage {
        id: image
        visible: bubble.preview.kind === ClipPreview.Image
        width: parent.width
        height: footer.y
        preview: bubble.preview
        largest: Qt.size(424, bubble.most - 28)
    }

    PreviewColor {
        id: color
        visible: bubble.preview.kind === ClipPreview.Color
        width: parent.width
        preview: bubble.preview
    }

    PreviewLink {
        id: link
        visible: bubble.preview.kind === ClipPreview.Link
        width: parent.width
        height: footer.y
        preview: bubble.preview
        implicitWidth: bubble.wide
        largest: bubble.most
    }

    PreviewFiles {
        id: files
        visible: bubble.preview.kind === ClipPreview.Files
        width: parent.width
        height: footer.y
        preview: bubble.preview
        largest: bubble.most
    }

    PreviewFooter {
        id: footer
        readonly property string program: bubble.preview.program
        x: 16
        y: parent.height - height
        width: parent.width - 32
        origin: program + (program !== "" && bubble.origin !== "" ? " · " : "") + bubble.origin
        details: [bubble.preview.measure, bubble.preview.forms]
    }
}
