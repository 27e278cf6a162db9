import QtQuick
import Ravelo.Controls
import Ravelo.Text
import Ravelo.Theme

/// Searches a list; has a button that clears the list.
FieldFrame {
    id: field

    property alias edited: line
    property alias placeholder: line.placeholder
    required property string clearName
    required property string clearQuestion

    signal searched(string text)
    signal cleared

    input: line
    lit: line.activeFocus || question.opened && question.focusedBefore === line
    implicitHeight: 32
    radius: Theme.radiusRow

    Glyph {
        objectName: "searchIcon"
        x: 12
        anchors.verticalCenter: parent.verticalCenter
        symbol: "magnifyingglass"
        color: Theme.caption
    }

    EditLine {
        id: line
        objectName: "searchInput"
        focus: true
        x: 36
        width: trash.x - x - 8
        height: parent.height
        onTextChanged: field.searched(text)
    }

    Pressable {
        id: trash
        objectName: "trash"
        name: field.clearName
        x: parent.width - 30
        y: 2
        width: 28
        height: 28
        radius: Theme.radiusSmall
        rest: question.opened ? Theme.surface3 : Theme.none
        hover: Theme.surface3
        press: Theme.surface4
        onClicked: {
            const byKey = activeFocus;
            question.openLeftUnder(field, 0);
            question.keyed = byKey;
        }

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
        objectName: "clearQuestion"
        text: field.clearQuestion
        yesFirst: true
        onAccepted: field.cleared()
    }
}
