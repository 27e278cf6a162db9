import QtQuick
import Ravelo.Preview

/// A whole picture, at most in its own size.
Item {
    id: view

    required property ClipPreview preview
    required property size largest

    readonly property size pixels: Qt.size(preview.pixels.width, preview.pixels.height)
    readonly property real shrunk: pixels.width > 0
        ? Math.min(1, largest.width / pixels.width, largest.height / pixels.height) : 0

    implicitWidth: Math.max(240, picture.width + 28)
    implicitHeight: Math.max(64, picture.height + 28)

    Image {
        id: picture
        objectName: "previewPicture"
        anchors.centerIn: parent
        width: Math.max(1, Math.round(view.pixels.width * view.shrunk))
        height: Math.max(1, Math.round(view.pixels.height * view.shrunk))
        sourceSize.width: width
        sourceSize.height: height
        asynchronous: true
        source: view.shrunk > 0
            ? "image://thumb/" + 8 * Screen.devicePixelRatio + "/" + view.preview.imageFileName : ""
    }
}
