import QtQuick
import Ravelo.Controls
import Ravelo.Theme

/// Text and buttons of a question.
Item {
    id: content

    required property Question popover

    readonly property bool opened: popover.opened

    implicitWidth: Math.max(label.implicitWidth, detail.implicitWidth, buttons.width) + 2
    implicitHeight: content.popover.detail === "" ? 58 : 82
    onOpenedChanged: {
        if (opened) {
            (content.popover.yesFirst ? yes : no).forceActiveFocus();
        }
    }

    Label {
        id: label
        x: 2
        text: content.popover.text
        style: Theme.strong
        color: Theme.text1
    }

    Label {
        id: detail
        objectName: "detail"
        visible: text !== ""
        x: 2
        y: 20
        text: content.popover.detail
        style: Theme.body
        color: Theme.text3
    }

    Row {
        id: buttons
        anchors.right: parent.right
        y: content.popover.detail === "" ? 30 : 54
        spacing: 8

        CapsuleButton {
            id: no
            objectName: "no"
            text: qsTr("No")
            primary: !content.popover.destroys && !content.popover.yesIsWhite
            ring: content.popover.keyed
            Keys.onPressed: content.popover.keyed = true
            KeyNavigation.priority: KeyNavigation.AfterItem
            KeyNavigation.right: yes
            KeyNavigation.tab: yes
            KeyNavigation.backtab: yes
            onClicked: content.popover.close()
        }
        CapsuleButton {
            id: yes
            objectName: "yes"
            text: content.popover.yesText
            primary: !content.popover.destroys && content.popover.yesIsWhite
            textColor: content.popover.destroys ? Theme.red : primary ? Theme.onWhite : Theme.text1
            rest: content.popover.destroys ? Theme.quit : primary ? Theme.primary : Theme.surface3
            hover: content.popover.destroys ? Theme.hoveredPower : primary ? Theme.primaryHovered : Theme.surface4
            press: content.popover.destroys ? Theme.pressedPower : primary ? Theme.primaryPressed : Theme.pressedButton
            ring: content.popover.keyed
            Keys.onPressed: content.popover.keyed = true
            KeyNavigation.priority: KeyNavigation.AfterItem
            KeyNavigation.left: no
            KeyNavigation.tab: no
            KeyNavigation.backtab: no
            onClicked: {
                content.popover.close();
                content.popover.accepted();
            }
        }
    }
}
