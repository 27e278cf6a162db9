import QtQuick
import Ravelo.Controls
import Ravelo.Shelf
import Ravelo.Theme

/// A received file: opens when pressed, can be dragged out and put on the shelf.
Surface {
    id: row

    required property ShelfFiles shelfFiles
    required property int index
    required property url file
    required property string name
    required property string ago

    signal menuRequested(point place)

    objectName: "received" + index
    height: 28
    radius: Theme.radiusSmall
    rest: Theme.none
    hover: Theme.surface1
    press: Theme.hoveredCard
    hovered: hover.hovered
    pressed: source.pressed
    Accessible.role: Accessible.ListItem
    Accessible.name: name
    Accessible.description: row.ago
    Accessible.onPressAction: shelfFiles.open(file)

    FocusRing {
        control: row
        anchors.margins: -2
    }

    HoverHandler {
        id: hover
    }

    Glyph {
        x: 8
        y: 6
        symbol: "checkmark.circle.fill"
        color: Theme.green
    }

    Label {
        objectName: "name"
        x: 34
        y: 6
        width: Math.min(implicitWidth, end.x - 12 - x)
        keepsEnd: true
        text: row.name
        style: Theme.body
        color: Theme.text1
    }

    MultiFileDrag {
        id: source
        anchors.fill: parent
        shelfFiles: row.shelfFiles
        provider: () => [row.file]
        onTapped: row.shelfFiles.open(row.file)
        onMenuRequested: place => row.menuRequested(place)
    }

    Item {
        id: end
        x: parent.width - width - (row.hovered ? 2 : 8)
        width: row.hovered ? park.width : age.width
        height: parent.height

        Label {
            id: age
            objectName: "ago"
            visible: !row.hovered
            y: 7
            text: row.ago
            style: Theme.subtitle
            color: Theme.text3
        }

        Loader {
            id: park
            active: row.hovered
            y: 2
            sourceComponent: MiniButton {
                objectName: "park"
                activeFocusOnTab: false
                name: qsTr("Add to shelf")
                symbol: "tray.full"
                onClicked: row.shelfFiles.parked.park(row.file) // qmllint disable unqualified

                NumberAnimation on opacity {
                    from: 0
                    to: 1
                    duration: Theme.hovering
                }
            }
        }
    }
}
