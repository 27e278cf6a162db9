import QtQuick
import Ravelo.Controls
import Ravelo.Paint
import Ravelo.Theme

/// A snippet: a press copies it, the pencil edits it.
Pressable {
    id: chip

    property string symbol
    property string title

    signal editRequested
    signal menuRequested(point place, bool byKey)
    signal removeRequested

    name: title
    implicitWidth: label.x + label.implicitWidth + 12
    implicitHeight: 28
    radius: 14
    rest: Theme.surface2
    activeFocusOnTab: false // The strip is a single tab stop.

    Keys.onPressed: event => {
        if (event.key === Qt.Key_F2) {
            editRequested();
        } else if (event.key === Qt.Key_Delete) {
            removeRequested();
        } else if (event.key === Qt.Key_Menu) {
            menuRequested(Qt.point(0, height + 6), true);
        } else {
            return;
        }
        event.accepted = true;
    }

    Glyph {
        x: 10
        y: 6.5
        size: 15
        symbol: chip.symbol
        color: Theme.text3
    }

    Label {
        id: label
        objectName: "chipTitle"
        visible: !chip.hovered
        x: 31
        y: 6
        style: Theme.chip
        text: chip.title
        color: Theme.text2
    }

    Loader {
        active: chip.hovered
        anchors.fill: parent
        // qmllint disable unqualified
        sourceComponent: Item {
            FadingEdge {
                x: label.x
                y: label.y
                width: Math.max(0, label.width - 10)
                height: label.height
                edge: FadingEdge.Right
                length: 20
                clip: true

                Label {
                    text: chip.title
                    style: Theme.chip
                    color: Theme.text1
                }
            }

            Box {
                objectName: "pencil"
                x: parent.width - width - 4
                y: 4
                width: 20
                height: 20
                radius: 10
                color: edit.containsMouse ? Theme.hoveredMini : Theme.white(0.16)

                Glyph {
                    anchors.centerIn: parent
                    size: 12
                    symbol: "pencil"
                    color: Theme.white(1)
                }
            }

            MouseArea {
                id: edit
                x: parent.width - 26
                width: 26
                height: parent.height
                hoverEnabled: true
                onClicked: chip.editRequested()
            }
        }
        // qmllint enable unqualified
    }

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.RightButton
        onClicked: mouse => chip.menuRequested(Qt.point(mouse.x, mouse.y), false)
    }
}
