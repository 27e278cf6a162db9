import QtQuick
import Ravelo.Controls
import Ravelo.Theme

/// A question with "No" and "Yes".
Popover {
    id: question

    property alias text: label.text
    /// Return means yes. If false, it means no until "Yes" has the focus.
    property bool yesFirst: false

    signal accepted

    pad: 14
    contentWidth: Math.max(label.implicitWidth, buttons.width) + 2
    contentHeight: 58
    Accessible.role: Accessible.Dialog
    Accessible.name: text
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

    Row {
        id: buttons
        anchors.right: parent.right
        y: 30
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
            primary: true
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
