pragma ComponentBehavior: Bound

import QtQuick
import Ravelo

/// The reminders, and a field for one more.
Item {
    id: strip

    required property PanelHost host
    /// They begin at the left; else they end at the right.
    required property bool fromLeft

    readonly property real gap: list.count > 0 ? 14 : 0

    implicitHeight: 24

    ListView {
        id: list
        x: field.x - strip.gap - width
        width: Math.min(contentWidth, strip.width - field.width - strip.gap)
        height: parent.height
        Accessible.role: Accessible.List
        Accessible.name: "Reminders"
        orientation: ListView.Horizontal
        spacing: 14
        clip: contentWidth > width
        interactive: contentWidth > width
        boundsBehavior: Flickable.StopAtBounds
        model: strip.host.store.reminders
        onCountChanged: positionViewAtEnd()

        delegate: Item {
            id: reminder

            required property int index
            required property string modelData

            function remove() {
                strip.host.focusControls.removeReminder(index);
            }

            objectName: "reminderLine" + index
            width: text.width + 16
            height: 24
            Accessible.role: Accessible.ListItem
            Accessible.name: modelData

            Label {
                id: text
                y: 4
                text: reminder.modelData
                style: Theme.body
                color: Theme.roundGlyph
            }

            Pressable {
                id: cross
                objectName: "removeReminder"
                name: "Remove " + reminder.modelData
                x: parent.width - 13
                y: 4
                width: 16
                height: 16
                radius: 8
                rest: Theme.none
                hover: Theme.none
                press: Theme.none
                onClicked: reminder.remove()

                Glyph {
                    anchors.centerIn: parent
                    size: 10
                    symbol: "xmark"
                    color: cross.hovered ? Theme.text1 : Theme.removeGlyph
                }
            }

            TapHandler {
                acceptedButtons: Qt.RightButton
                onTapped: point => {
                    menu.chosen = reminder.index;
                    menu.openAt(reminder.mapToItem(menu.parent, point.position), false, false);
                }
            }
        }
    }

    Box {
        id: field
        x: strip.fromLeft ? list.width + strip.gap : strip.width - width
        width: 70
        height: 24
        radius: 12
        color: Theme.surface1
        lineColor: draft.activeFocus ? Theme.withAlpha(Theme.accent, 0.55) : Theme.line
        lineWidth: 1

        EditLine {
            id: draft
            objectName: "reminderDraft"
            x: 10
            width: parent.width - 20
            height: parent.height
            host: strip.host
            style: Theme.small
            placeholder: "Add…"
            Accessible.name: "Add a reminder"
            Keys.onReturnPressed: add()
            Keys.onEnterPressed: add()

            function add() {
                if (strip.host.focusControls.addReminder(text)) {
                    clear();
                }
            }
        }
    }

    Menu {
        id: menu

        property int chosen: -1

        host: strip.host
        name: "Reminder"
        entries: [
            { text: "Remove", chosen: () => strip.host.focusControls.removeReminder(menu.chosen) }
        ]
    }
}
