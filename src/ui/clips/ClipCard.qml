pragma ComponentBehavior: Bound

import QtQuick
import Ravelo.Controls
import Ravelo.Paint
import Ravelo.Theme

/// How a row looks: tile, title, subtitle, and a digit that small buttons replace on hover.
Item {
    id: card

    property string icon
    property bool highlighted: false
    property url thumbnail
    property string title
    /// Parts of the title to stand out.
    property var marks: []
    property string subtitle
    /// The title in parts, if they have to be drawn separately.
    property var runs: []
    /// Name and description for assistive programs.
    property string spoken: title
    property string spokenMore: subtitle
    /// Shows the buttons also without the pointer.
    property bool showsButtons: false
    property string digit
    /// The current one.
    property bool selected: false
    /// Place among several chosen ones, from 1; 0 if it is none of them.
    property int order: 0
    property color titleColor: Theme.text1
    /// The buttons: an item with a property `card`, created when they first show.
    required property url actions

    readonly property bool hovered: hover.hovered
    property alias tileHovered: tileHover.hovered
    readonly property bool lit: hovered || showsButtons
    readonly property real textEnd: width - 12 - (lit ? buttons.width + 6 : 26)

    signal tapped(int modifiers)
    /// A drag with the mouse is to begin.
    signal dragged
    /// By the right button; the place is in the card.
    signal menuRequested(point place)

    Accessible.role: Accessible.ListItem
    Accessible.name: spoken
    Accessible.description: spokenMore
    Accessible.selectable: true
    Accessible.selected: selected || order > 0
    Accessible.onPressAction: card.tapped(Qt.NoModifier)
    implicitHeight: Theme.rowHeight

    Surface {
        anchors.fill: parent
        radius: Theme.radiusRow
        rest: card.order > 0 ? Theme.selectedTile : card.selected ? Theme.selectedCard : Theme.none
        hover: card.order > 0 ? Theme.selectedTile : Theme.hoveredCard
        press: Theme.pressedCard
        hovered: card.hovered
        pressed: area.pressed
        lineWidth: card.selected ? 1.5 : 0
        lineColor: card.order > 0 ? Theme.selectedTileLine : Theme.withAlpha(Theme.accent, 0.50)
    }

    HoverHandler {
        id: hover
    }

    MouseArea {
        id: area
        anchors.fill: parent
        acceptedButtons: Qt.LeftButton | Qt.RightButton

        property point pressPlace
        property bool drags: false

        // A finger scrolls the list.
        onPressed: mouse => {
            preventStealing = mouse.source === Qt.MouseEventNotSynthesized;
            drags = preventStealing && mouse.button === Qt.LeftButton;
            pressPlace = Qt.point(mouse.x, mouse.y);
        }
        onPositionChanged: mouse => {
            const moved = Math.abs(mouse.x - pressPlace.x) + Math.abs(mouse.y - pressPlace.y);
            if (pressed && drags && moved >= Application.styleHints.startDragDistance) {
                drags = false;
                card.dragged();
            }
        }
        onClicked: mouse => {
            if (mouse.button === Qt.RightButton) {
                card.menuRequested(Qt.point(mouse.x, mouse.y));
            } else {
                card.tapped(mouse.modifiers);
            }
        }
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

    Binding {
        target: titleLabel
        property: "marks"
        value: card.marks
    }

    Label {
        id: titleLabel
        objectName: "title"
        x: 46
        y: 4.5
        width: Math.min(implicitWidth, card.textEnd - x)
        style: Theme.rowTitle
        visible: card.runs.length === 0
        text: card.title
        color: card.titleColor
    }

    Row {
        x: 46
        y: 4.5

        Repeater {
            model: card.runs

            Label {
                required property string modelData
                required property int index
                objectName: "run" + index
                style: Theme.rowTitle
                text: modelData
                color: card.titleColor
            }
        }
    }

    Label {
        objectName: "subtitle"
        x: 46
        y: 21.5
        width: Math.min(implicitWidth, card.textEnd - x)
        style: Theme.subtitle
        color: card.order > 0 ? Theme.white(0.72) : Theme.text3
        text: card.subtitle
    }

    Label {
        objectName: "digit"
        visible: opacity > 0
        opacity: card.order > 0 ? 0 : 1 - buttons.opacity
        x: card.width - 26
        y: 13
        width: 16
        centred: true
        style: Theme.digit
        color: Theme.hint
        text: card.digit
    }

    Box {
        objectName: "order"
        visible: card.order > 0
        opacity: 1 - buttons.opacity
        x: card.width - 27
        y: 11
        width: 18
        height: 18
        radius: 9
        color: Theme.accent

        Label {
            y: 2
            width: parent.width
            centred: true
            style: Theme.badge
            color: Theme.accentGlyph
            text: card.order
        }
    }

    Lazy {
        id: buttons
        needed: card.lit
        page: card.actions
        properties: ({ card: card })
        visible: card.lit || opacity > 0 // Also while fading in: it can be pressed at once.
        opacity: card.lit ? 1 : 0
        x: card.width - width - 6
        y: 8

        Behavior on opacity {
            NumberAnimation { duration: Theme.hovering }
        }
    }
}
