import QtQuick
import Ravelo.Controls
import Ravelo.Paint
import Ravelo.Shelf
import Ravelo.Theme

/// A parked file.
Surface {
    id: tile

    required property ShelfFiles shelfFiles
    required property bool shown
    required property int place
    required property string name
    required property string picture
    required property point corner
    required property bool selected
    required property bool missing

    property point at: corner

    signal tapped
    signal menuRequested(point place)

    objectName: "tile" + place
    x: at.x
    y: at.y
    width: 101
    height: 108
    radius: Theme.radiusPopover
    hovered: hover.hovered
    pressed: source.pressed
    rest: selected ? Theme.selectedTile : Theme.none
    hover: selected ? Theme.selectedTile : Theme.surface1
    press: selected ? Theme.selectedTile : Theme.hoveredCard
    lineWidth: selected ? 1.5 : 0
    lineColor: Theme.selectedTileLine

    Accessible.role: Accessible.ListItem
    Accessible.name: name
    Accessible.description: missing ? qsTr("No longer available") : ""
    Accessible.focusable: true
    Accessible.selectable: true
    Accessible.selected: selected
    Accessible.onPressAction: tile.tapped()

    Component.onCompleted: {
        if (shown && shelfFiles.parked.parking) {
            entering.createObject(tile);
        }
    }

    Behavior on at {
        enabled: tile.shown
        PropertyAnimation {
            duration: Theme.move(Theme.springing)
            easing.type: Easing.BezierSpline
            easing.bezierCurve: Theme.spring
        }
    }

    // qmllint disable unqualified
    Component {
        id: entering
        ParallelAnimation {
            running: true
            NumberAnimation {
                target: tile
                property: "opacity"
                from: 0
                to: 1
                duration: Theme.springing
            }
            NumberAnimation {
                target: tile
                property: "scale"
                from: 1 - Theme.move(10) / 100
                to: 1
                duration: Theme.springing
                easing.type: Easing.BezierSpline
                easing.bezierCurve: Theme.spring
            }
        }
    }
    // qmllint enable unqualified

    HoverHandler {
        id: hover
    }

    Item {
        id: box
        y: 10
        width: parent.width
        height: 64
        opacity: tile.missing ? 0.4 : 1

        Shadow {
            anchors.fill: image
            visible: image.shows && image.height < 64
            radius: Theme.radiusSmall
            color: Qt.rgba(0, 0, 0, 0.35)
            blur: 4
            drop: 1
        }

        Glyph {
            anchors.centerIn: parent
            visible: !image.shows
            size: 32
            symbol: "doc.text"
            color: Theme.text4
        }

        // A hidden panel reads nothing.
        Image {
            id: image

            readonly property bool shows: status === Image.Ready && implicitWidth > 0

            objectName: "picture"
            x: Math.round((parent.width - width) / 2)
            y: Math.round((parent.height - height) / 2)
            asynchronous: true
            sourceSize.width: 72
            sourceSize.height: 64
            source: tile.shown ? tile.picture : ""
        }
    }

    Label {
        objectName: "name"
        x: (parent.width - width) / 2
        y: 82
        width: Math.min(implicitWidth, 93)
        keepsEnd: true
        text: tile.name
        style: Theme.chip
        color: Theme.text1
        opacity: box.opacity
    }

    Loader {
        active: tile.selected
        x: 7
        y: 7
        sourceComponent: Box {
            objectName: "tick"
            width: 18
            height: 18
            radius: 9
            color: Theme.accent

            Glyph {
                anchors.centerIn: parent
                size: 13
                symbol: "checkmark"
                color: Theme.accentGlyph
            }
        }
    }

    MultiFileDrag {
        id: source
        anchors.fill: parent
        shelfFiles: tile.shelfFiles
        provider: () => tile.shelfFiles.parked.filesToDrag()
        onTapped: tile.tapped()
        onMenuRequested: place => tile.menuRequested(place)
    }
}
