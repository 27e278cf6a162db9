pragma ComponentBehavior: Bound

import QtQuick
import Ravelo.Controls
import Ravelo.Paint
import Ravelo.Shelf
import Ravelo.Theme

/// Files that arrived in the downloads folder, oldest first.
Item {
    id: section

    required property ShelfFiles shelfFiles
    required property bool shown

    readonly property ReceivedModel received: shelfFiles.received
    /// Height for the last few rows.
    readonly property real minHeight: rows.begin + Math.min(received.count, 3) * 28

    /// Height for all rows of interest; more of them scroll.
    readonly property real full: rows.begin + Math.max(1, Math.min(received.count, 8)) * 28

    signal menuRequested(Item row, point place, bool byKey)

    Label {
        id: title
        objectName: "receivedTitle"
        y: 6
        text: qsTr("Received files")
        style: Theme.strong
        color: Theme.text1
    }

    Label {
        objectName: "receivedNote"
        x: title.width + 8
        y: 6
        width: Math.min(implicitWidth, open.x - x - 8)
        text: qsTr("AirDrops land in your Downloads folder")
        style: Theme.small
        color: Theme.text3
    }

    CapsuleButton {
        id: open
        objectName: "openFolder"
        anchors.right: parent.right
        text: qsTr("Open folder")
        symbol: "tray.and.arrow.down"
        onClicked: section.shelfFiles.open(section.received.folder)
    }

    Box {
        id: banner
        objectName: "banner"
        y: 36
        width: parent.width
        height: 36
        radius: Theme.radiusRow
        color: Theme.banner
        lineColor: Theme.bannerLine
        lineWidth: 1
        opacity: section.received.receiving ? 1 : 0
        visible: opacity > 0
        Accessible.role: Accessible.AlertMessage
        Accessible.name: bannerText.text

        Behavior on opacity {
            enabled: section.shown
            NumberAnimation {
                duration: Theme.bannerIn
                easing.type: Easing.OutCubic
            }
        }

        transform: Translate {
            id: rise
            y: (banner.opacity - 1) * Theme.move(6)
        }

        Glyph {
            x: 12
            y: 9
            size: 18
            symbol: "antenna.radiowaves.left.and.right"
            color: Theme.green
        }

        Label {
            id: bannerText
            x: 40
            y: 10
            text: qsTr("Received by AirDrop")
            style: Theme.strong
            color: Theme.bannerText
        }
    }

    FadingEdge {
        id: rows

        readonly property real begin: 32 + (section.received.receiving ? 44 : 0)

        y: begin
        width: parent.width
        height: Math.max(0, parent.height - y)
        length: Math.min(26, Math.max(0, list.contentHeight + list.originY - list.contentY
                                         - list.height))

        Behavior on y {
            enabled: section.shown
            NumberAnimation {
                duration: Theme.move(Theme.bannerIn)
                easing.type: Easing.OutCubic
            }
        }

        ListView {
            id: list
            objectName: "receivedList"
            anchors.fill: parent
            Accessible.role: Accessible.List
            Accessible.name: qsTr("Received files")
            activeFocusOnTab: count > 0
            clip: contentHeight > height
            boundsBehavior: Flickable.StopAtBounds
            cacheBuffer: 0
            highlightMoveDuration: Theme.move(200)
            model: section.received
            onCountChanged: showNewest()
            onContentHeightChanged: showNewest()
            onHeightChanged: showNewest()

            /// Not while the user looks at older ones.
            function showNewest() {
                if (!activeFocus && !moved) {
                    currentIndex = count - 1;
                    positionViewAtEnd();
                }
            }

            property bool moved: false
            onMovementEnded: moved = !atYEnd

            Keys.onPressed: event => {
                if ((event.key === Qt.Key_Return || event.key === Qt.Key_Enter)
                        && !event.isAutoRepeat) {
                    section.shelfFiles.open(section.received.fileAt(currentIndex));
                } else if (event.key === Qt.Key_Menu) {
                    if (currentItem) {
                        section.menuRequested(currentItem, Qt.point(34, 24), true);
                    }
                } else {
                    return;
                }
                event.accepted = true;
            }

            delegate: ReceivedRow {
                id: row
                shelfFiles: section.shelfFiles
                width: list.width
                onMenuRequested: place => section.menuRequested(row, place, false)
            }
        }
    }
}
