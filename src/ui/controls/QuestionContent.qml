import QtQuick
import Ravelo.Controls
import Ravelo.Theme

/// Text and buttons of a question.
Item {
    id: page

    required property Question popover

    readonly property bool opened: popover.opened

    implicitWidth: Math.max(label.implicitWidth, detail.implicitWidth, buttons.width) + 2
    implicitHeight: page.popover.detail === "" ? 58 : 82
    onOpenedChanged: {
        if (opened) {
            (page.popover.yesFirst ? yes : no).forceActiveFocus();
        }
    }

    Label {
        id: label
        x: 2
        text: page.popover.text
        style: Theme.strong
        color: Theme.text1
    }

    Label {
        id: detail
        objectName: "detail"
        visible: text !== ""
        x: 2
        y: 20
        text: page.popover.detail
        style: Theme.body
        color: Theme.text3
    }

    Row {
        id: buttons
        anchors.right: parent.right
        y: page.popover.detail === "" ? 30 : 54
        spacing: 8

        CapsuleButton {
            id: no
            objectName: "no"
            text: qsTr("No")
            primary: !page.popover.destroys && !page.popover.yesIsWhite
            ring: page.popover.keyed
            Keys.onPressed: page.popover.keyed = true
            KeyNavigation.priority: KeyNavigation.AfterItem
            KeyNavigation.right: yes
            KeyNavigation.tab: yes
            KeyNavigation.backtab: yes
            onClicked: page.popover.close()
        }
        CapsuleButton {
            id: yes
            objectName: "yes"
            text: page.popover.yesText
            primary: !page.popover.destroys && page.popover.yesIsWhite
            textColor: page.popover.destroys ? Theme.red : primary ? Theme.onWhite : Theme.text1
            rest: page.popover.destroys ? Theme.quit : primary ? Theme.primary : Theme.surface3
            hover: page.popover.destroys ? Theme.hoveredPower : primary ? Theme.primaryHovered : Theme.surface4
            press: page.popover.destroys ? Theme.pressedPower : primary ? Theme.primaryPressed : Theme.pressedButton
            ring: page.popover.keyed
            Keys.onPressed: page.popover.keyed = true
            KeyNavigation.priority: KeyNavigation.AfterItem
            KeyNavigation.left: no
            KeyNavigation.tab: no
            KeyNavigation.backtab: no
            onClicked: {
                page.popover.close();
                page.popover.accepted();
            }
        }
    }
}
