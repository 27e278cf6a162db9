import QtQuick
import Ravelo.Controls
import Ravelo.Paint
import Ravelo.Theme

/// A list row: tile, title, subtitle, and a digit that small buttons replace on hover.
Item {
    id: card

    property string icon
    property bool highlighted: false
    property url thumbnail
    property string title
    /// Parts of the title to stand out.
    property var marks: []
    property string subtitle
    property string digit
    property bool selected: false
    property color titleColor: Theme.text1
    default property alias actions: buttons.data

    readonly property bool hovered: hover.hovered
    property alias tileHovered: tileHover.hovered
    readonly property real textEnd: width - 12 - (hovered ? buttons.width + 6 : 26)

    signal tapped

    Accessible.role: Accessible.ListItem
    Accessible.name: title
    Accessible.description: subtitle
    Accessible.selectable: true
    Accessible.selected: selected
    Accessible.onPressAction: card.tapped()
    implicitHeight: Theme.rowHeight

    Surface {
        anchors.fill: parent
        radius: Theme.radiusRow
        rest: card.selected ? Theme.selectedCard : Theme.none
        hover: Theme.hoveredCard
        press: Theme.pressedCard
        hovered: card.hovered
        pressed: area.pressed
        lineWidth: card.selected ? 1.5 : 0
        lineColor: Theme.withAlpha(Theme.accent, 0.50)
    }

    HoverHandler {
        id: hover
    }

    MouseArea {
        id: area
        anchors.fill: parent
        onClicked: card.tapped()
    }

    Box {
        objectName: "tile"
        x: 6
        y: 6
        width: 28
        height: 28
        radius: Theme.radiusTile
        color: picture.shows ? Theme.none : card.highlighted ? Theme.pinnedTile : Theme.surface2

        HoverHandler {
            id: tileHover
        }

        Glyph {
            objectName: "symbol"
            anchors.centerIn: parent
            visible: !picture.shows
            symbol: card.icon
            color: card.highlighted ? Theme.yellow : Theme.icon
        }

        Image {
            id: picture

            readonly property bool shows: status === Image.Ready && implicitWidth > 0

            anchors.fill: parent
            asynchronous: true
            sourceSize.width: 28
            sourceSize.height: 28
            source: card.thumbnail
        }
    }

    Label {
        objectName: "title"
        x: 46
        y: 4.5
        width: Math.min(implicitWidth, card.textEnd - x)
        style: Theme.rowTitle
        text: card.title
        marks: card.marks
        color: card.titleColor
    }

    Label {
        objectName: "subtitle"
        x: 46
        y: 21.5
        width: Math.min(implicitWidth, card.textEnd - x)
        style: Theme.subtitle
        color: Theme.text3
        text: card.subtitle
    }

    Label {
        objectName: "digit"
        visible: opacity > 0
        opacity: 1 - buttons.opacity
        x: card.width - 26
        y: 13
        width: 16
        centred: true
        style: Theme.digit
        color: Theme.hint
        text: card.digit
    }

    Row {
        id: buttons
        visible: card.hovered || opacity > 0 // Also while fading in: it can be pressed at once.
        opacity: card.hovered ? 1 : 0
        x: card.width - width - 6
        y: 8
        spacing: 4

        Behavior on opacity {
            NumberAnimation { duration: Theme.hovering }
        }
    }
}
