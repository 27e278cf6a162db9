pragma ComponentBehavior: Bound

import QtQuick
import Ravelo.Preview
import Ravelo.Controls
import Ravelo.Theme

/// Copied files with their pictures.
Item {
    id: view

    required property ClipPreview preview
    required property real largest

    function scroll(by: int) {
        const end = Math.max(0, list.contentHeight - list.height);
        list.contentY = Math.max(0, Math.min(list.contentY + by * (list.height - 48), end));
    }

    implicitWidth: 336
    implicitHeight: Math.min(largest, list.count * 48 + 8)

    FadingEnds {
        y: 4
        width: parent.width
        height: parent.height - 8
        length: Math.min(26, Math.max(0, list.contentHeight - list.contentY - list.height))
        topLength: Math.min(26, list.contentY)

        ListView {
            id: list
            objectName: "previewFiles"
            anchors.fill: parent
            clip: true
            boundsBehavior: Flickable.StopAtBounds
            model: view.preview.names

            delegate: Item {
                id: row

                required property int index
                required property string modelData
                readonly property string picture: view.preview.pictures[index] ?? ""
                readonly property string below: view.preview.values[index] ?? ""

                width: list.width
                height: 48

                Image {
                    x: 14 + Math.round((40 - width) / 2)
                    y: 6 + Math.round((36 - height) / 2)
                    width: Math.round(implicitWidth * Math.min(1, 40 / implicitWidth, 36 / implicitHeight))
                    height: Math.round(implicitHeight * Math.min(1, 40 / implicitWidth, 36 / implicitHeight))
                    asynchronous: true
                    sourceSize.width: 72
                    sourceSize.height: 64
                    source: view.visible ? row.picture : ""
                }

                Label {
                    x: 66
                    y: row.below === "" ? 15.5 : 8.5
                    width: Math.min(implicitWidth, row.width - 22 - x)
                    keepsEnd: true
                    text: row.modelData
                    style: Theme.rowTitle
                    color: Theme.text1
                }

                Label {
                    x: 66
                    y: 25.5
                    width: Math.min(implicitWidth, row.width - 22 - x)
                    text: row.below
                    style: Theme.subtitle
                    color: Theme.text3
                }
            }
        }
    }

    ScrollMark {
        x: parent.width - 10
        flick: list
    }
}
