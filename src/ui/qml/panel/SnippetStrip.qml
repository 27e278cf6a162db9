pragma ComponentBehavior: Bound

import QtQuick
import Ravelo

/// The snippets side by side, and at the end a button for a new one.
Item {
    id: strip

    required property PanelHost host
    /// The snippet that the menu and the question are about.
    property var chosen

    /// By the keyboard.
    signal reached

    implicitHeight: 28

    Connections {
        target: strip.host.snippetEditor
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

        ListView {
            id: list
            // Room for the ring around a chip.
            anchors.fill: parent
            anchors.margins: -4
            anchors.rightMargin: 0
            leftMargin: 4
            Accessible.role: Accessible.List
            Accessible.name: "Snippets"
            activeFocusOnTab: count > 0
            onActiveFocusChanged: {
                if (activeFocus) {
                    strip.reached();
                }
            }
            orientation: ListView.Horizontal
            spacing: 6
            cacheBuffer: 0 // What is made ahead is in the way of a search that takes it away.
            clip: true
            boundsBehavior: Flickable.StopAtBounds
            highlightMoveDuration: Theme.move(200)
            model: strip.host.snippets

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
                y: 4
                symbol: icon
                onClicked: strip.host.copySnippet(snippetId)
                onEditRequested: strip.host.snippetEditor.edit(snippetId)
                onRemoveRequested: askToRemove()
                onMenuRequested: (place, byKey) => {
                    menu.chip = one;
                    menu.openAt(mapToItem(menu.parent, place.x, place.y), false, byKey);
                }
            }

            // A wheel turns what lies sideways.
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

    Pressable {
        id: add
        objectName: "addSnippet"
        name: "New snippet"
        x: parent.width - width
        width: 28
        height: 28
        radius: 14
        rest: Theme.surface2
        onClicked: strip.host.snippetEditor.editNew()
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
    }

    Menu {
        id: menu

        property SnippetChip chip

        objectName: "snippetMenu"
        name: "Snippet"
        host: strip.host
        entries: [
            { text: "Edit", chosen: () => chip.editRequested() },
            { text: "Remove", chosen: () => chip.removeRequested() }
        ]
    }

    Question {
        id: question
        objectName: "deleteQuestion"
        host: strip.host
        text: "Delete snippet?"
        onAccepted: strip.host.deleting.removeSnippet(strip.chosen)
    }
}
