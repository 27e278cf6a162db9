import QtQuick
import Ravelo.Controls
import Ravelo.Theme

/// A question with "No" and "Yes".
Popover {
    id: question

    property alias text: label.text
    /// A second line.
    property alias detail: detail.text
    property alias yesText: yes.text
    /// "Yes" is red.
    property bool destroys: false
    /// Return means yes. If false, it means no until "Yes" has the focus.
    property bool yesFirst: false
    /// The white button: the one that Return presses.
    property bool yesIsWhite: yesFirst

    signal accepted

    pad: 14
    contentWidth: Math.max(label.implicitWidth, detail.implicitWidth, buttons.width) + 2
    contentHeight: detail.text === "" ? 58 : 82
    Accessible.role: Accessible.Dialog
    Accessible.name: text
    Accessible.description: detail.text
    onOpenedChanged: {
        if (opened) {
            (yesFirst ? yes : no).forceActiveFocus();
        }
    }

    Label {
        id: label
        x: 2
        style: Theme.strong
        color: Theme.text1
    }

    Label {
        id: detail
        objectName: "detail"
        visible: text !== ""
        x: 2
        y: 20
        style: Theme.body
        color: Theme.text3
    }

    Row {
        id: buttons
        anchors.right: parent.right
        y: detail.text === "" ? 30 : 54
        spacing: 8

        CapsuleButton {
            id: no
            objectName: "no"
            text: qsTr("No")
            primary: !question.destroys && !question.yesIsWhite
            ring: question.keyed
            Keys.onPressed: question.keyed = true
            KeyNavigation.priority: KeyNavigation.AfterItem
            KeyNavigation.right: yes
            KeyNavigation.tab: yes
            KeyNavigation.backtab: yes
            onClicked: question.close()
        }
        CapsuleButton {
            id: yes
            objectName: "yes"
            text: qsTr("Yes")
            primary: !question.destroys && question.yesIsWhite
            textColor: question.destroys ? Theme.red : primary ? Theme.onWhite : Theme.text1
            rest: question.destroys ? Theme.quit : primary ? Theme.primary : Theme.surface3
            hover: question.destroys ? Theme.hoveredPower : primary ? Theme.primaryHovered : Theme.surface4
            press: question.destroys ? Theme.pressedPower : primary ? Theme.primaryPressed : Theme.pressedButton
            ring: question.keyed
            Keys.onPressed: question.keyed = true
            KeyNavigation.priority: KeyNavigation.AfterItem
            KeyNavigation.left: no
            KeyNavigation.tab: no
            KeyNavigation.backtab: no
            onClicked: {
                question.close();
                question.accepted();
            }
        }
    }
}
