import QtQuick
import Ravelo

/// The search over the clipboard history, with the button that clears it.
Surface {
    id: field

    required property PanelHost host
    property alias input: input

    implicitHeight: 32
    radius: Theme.radiusRow
    rest: Theme.surface2
    hover: Theme.hoveredField
    press: Theme.hoveredField
    hovered: hover.hovered && !input.activeFocus
    lineColor: input.activeFocus ? Theme.withAlpha(Theme.accent, 0.55) : Theme.line
    lineWidth: 1

    HoverHandler {
        id: hover
    }

    Box {
        visible: input.activeFocus
        anchors.fill: parent
        anchors.margins: -3
        radius: parent.radius + 3
        lineColor: Theme.withAlpha(Theme.accent, 0.16)
        lineWidth: 3
    }

    Glyph {
        objectName: "searchIcon"
        x: 12
        anchors.verticalCenter: parent.verticalCenter
        symbol: "magnifyingglass"
        color: Theme.caption
    }

    EditLine {
        id: input
        objectName: "searchInput"
        focus: true
        x: 36
        width: trash.x - x - 8
        height: parent.height
        host: field.host
        placeholder: "Search clipboard…"
        onTextChanged: field.host.clips.search = text
    }

    Pressable {
        id: trash
        objectName: "trash"
        name: "Clear history"
        x: parent.width - 30
        y: 2
        width: 28
        height: 28
        radius: Theme.radiusSmall
        rest: question.opened ? Theme.surface3 : Theme.none
        hover: Theme.surface3
        press: Theme.surface4
        onClicked: question.openLeftUnder(field, 0)

        Glyph {
            anchors.centerIn: parent
            symbol: "trash"
            color: question.opened || trash.hovered ? Theme.text1 : Theme.iconQuiet
        }

        Tooltip {
            target: trash
            hovered: trash.hovered && !question.opened
            text: trash.name
        }
    }

    Question {
        id: question
        host: field.host
        text: "Clear clipboard history?"
        yesFirst: true
        onAccepted: field.host.store.clearClips()
    }
}
