pragma ComponentBehavior: Bound

import QtQuick
import Ravelo.Controls
import Ravelo.Paint
import Ravelo.Snippets
import Ravelo.Theme

/// The snippets side by side, followed by a button for a new one.
Item {
    id: strip

    required property Snippets snippets
    /// The snippet of the menu or question.
    property var chosen

    /// Opened by key.
    signal reached

    implicitHeight: 28

    Connections {
        target: strip.snippets.editor
        function onAdded() {
            list.forceLayout();
            list.positionViewAtEnd();
        }
    }

    FadingEdge {
        objectName: "strip"
        width: parent.width - 36
        height: parent.height
        edge: FadingEdge.Right
        length: Math.min(40, Math.max(0, list.contentWidth - list.contentX - width))

        FadingEdge {
            // Room for the focus ring.
            anchors.fill: parent
            anchors.margins: -4
            anchors.rightMargin: 0
            edge: FadingEdge.Left
            length: Math.min(40, Math.max(0, list.contentX - list.originX + list.leftMargin))

            ListView {
                id: list
                anchors.fill: parent
                leftMargin: 4
                Accessible.role: Accessible.List
                Accessible.name: qsTr("Snippets")
                activeFocusOnTab: count > 0
                onActiveFocusChanged: {
                    if (activeFocus) {
                        strip.reached();
                    }
                }
                orientation: ListView.Horizontal
                spacing: 6
                cacheBuffer: 0 // Chips created ahead would delay a search that removes them.
                clip: true
                boundsBehavior: Flickable.StopAtBounds
                highlightMoveDuration: Theme.move(200)
                model: strip.snippets.list

                delegate: SnippetChip {
                    id: one

                    required property int index
                    required property var snippetId
                    required property string icon
                    required title

                    function askToRemove() {
                        strip.chosen = snippetId;
                        question.openUnder(one, 0);
                    }

                    objectName: "chip" + index
                    transform: Translate { y: 4 } // In Qt 6.8 a horizontal list sets y to 0.
                    symbol: icon
                    onClicked: strip.snippets.copy(snippetId)
                    onEditRequested: strip.snippets.editor.edit(snippetId)
                    onRemoveRequested: askToRemove()
                    onMenuRequested: (place, byKey) => {
                        menu.chip = one;
                        menu.openAt(mapToItem(menu.parent, place.x, place.y), false, byKey);
                    }
                }

                // A wheel scrolls sideways.
                WheelHandler {
                    onWheel: event => {
                        const step = event.angleDelta.y + event.angleDelta.x;
                        const begin = list.originX - list.leftMargin;
                        const end = Math.max(begin, list.originX + list.contentWidth - list.width);
                        list.contentX = Math.max(begin, Math.min(list.contentX - step, end));
                    }
                }
            }
        }
    }

    Pressable {
        id: add
        objectName: "addSnippet"
        name: qsTr("New snippet")
        x: parent.width - width
        width: 28
        height: 28
        radius: 14
        rest: Theme.surface2
        onClicked: strip.snippets.editor.editNew()
        onActiveFocusChanged: {
            if (activeFocus) {
                strip.reached();
            }
        }

        Glyph {
            anchors.centerIn: parent
            size: 17
            symbol: "plus"
            color: add.hovered ? Theme.text1 : Theme.text2
        }

        Tooltip {
            target: add
            hovered: add.hovered && !add.pressed
            text: add.name
        }
    }

    Menu {
        id: menu

        property SnippetChip chip

        objectName: "snippetMenu"
        plain: true
        name: qsTr("Snippet")
        entries: [
            { text: qsTr("Edit"), chosen: () => chip.editRequested() },
            { text: qsTr("Remove"), chosen: () => chip.removeRequested() }
        ]
    }

    Question {
        id: question
        objectName: "deleteQuestion"
        text: qsTr("Delete snippet?")
        onAccepted: strip.snippets.remove(strip.chosen)
    }
}
