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
            primary: !question.destroys
            textColor: question.destroys ? Theme.red : Theme.onWhite
            rest: question.destroys ? Theme.quit : Theme.primary
            hover: question.destroys ? Theme.hoveredPower : Theme.primaryHovered
            press: question.destroys ? Theme.pressedPower : Theme.primaryPressed
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
