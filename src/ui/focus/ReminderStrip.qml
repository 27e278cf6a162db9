pragma ComponentBehavior: Bound

import QtQuick
import Ravelo.Controls
import Ravelo.Focus
import Ravelo.Paint
import Ravelo.Text
import Ravelo.Theme

/// The reminders and a field to add one.
Item {
    id: strip

    required property Focus focusing
    /// Left-aligned, else right-aligned.
    required property bool fromLeft

    readonly property real gap: lines.count > 0 ? 14 : 0

    implicitHeight: 24

    function remove(index: int, byKey: bool) {
        focusing.removeReminder(index);
        if (byKey) {
            const next = lines.itemAt(Math.min(index, lines.count - 1)) as ReminderItem;
            (next ? next.cross : draft).forceActiveFocus();
        }
    }

    FadingEdge {
        x: field.x - strip.gap - width
        width: Math.min(row.width, strip.width - field.width - strip.gap)
        height: parent.height
        edge: FadingEdge.Right
        length: Math.min(26, Math.max(0, row.width - list.contentX - width))

        Flickable {
            id: list

            function show(begin: real, end: real) {
                contentX = Math.max(end - width, Math.min(contentX, begin));
            }

            /// The newest one's end, or its beginning if there is no room for both.
            function showNewest() {
                const newest = lines.itemAt(lines.count - 1);
                contentX = Math.max(0, Math.min(contentWidth - width, newest?.x ?? 0));
            }

            anchors.fill: parent
            Accessible.role: Accessible.List
            Accessible.name: qsTr("Reminders")
            onWidthChanged: showNewest()
            onContentWidthChanged: showNewest()
            contentWidth: row.width
            clip: contentWidth > width
            interactive: contentWidth > width
            boundsBehavior: Flickable.StopAtBounds

            Row {
                id: row
                spacing: 14

                Repeater {
                    id: lines
                    model: strip.focusing.reminders

                    delegate: ReminderItem {
                        objectName: "reminderLine" + index
                        onReached: list.show(x, x + width)
                        onRemoved: byKey => strip.remove(index, byKey)
                        onMenuRequested: place => {
                            menu.chosen = index;
                            menu.openAt(mapToItem(menu.parent, place.x, place.y), false, false);
                        }
                    }
                }
            }

            // A wheel scrolls sideways.
            WheelHandler {
                onWheel: event => {
                    const step = event.angleDelta.y + event.angleDelta.x;
                    const end = Math.max(0, list.contentWidth - list.width);
                    list.contentX = Math.max(0, Math.min(list.contentX - step, end));
                }
            }
        }
    }

    Box {
        id: field
        x: strip.fromLeft ? Math.min(row.width, strip.width - width - strip.gap) + strip.gap
                          : strip.width - width
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
            style: Theme.small
            placeholder: qsTr("Add…")
            Accessible.name: qsTr("Add a reminder")
            Keys.onReturnPressed: add()
            Keys.onEnterPressed: add()
            Keys.onEscapePressed: event => {
                event.accepted = text !== "";
                clear();
            }

            function add() {
                if (strip.focusing.addReminder(text)) {
                    clear();
                }
            }
        }
    }

    Menu {
        id: menu

        property int chosen: -1
        name: qsTr("Reminder")
        plain: true
        entries: [
            { text: qsTr("Remove"), chosen: () => strip.focusing.removeReminder(menu.chosen) }
        ]
    }
}
