pragma ComponentBehavior: Bound

import QtQuick
import Ravelo.Controls
import Ravelo.Settings
import Ravelo.Theme
import Ravelo.Windows

/// Keys that open the panel, and what keys do in it.
Column {
    id: page

    required property SettingsWindow host

    readonly property AppSettings settings: host.settings
    readonly property ShortcutChoice choice: host.shortcut
    readonly property PastePermission permission: host.pastePermission
    readonly property bool swapped: settings.returnPastes && host.canPaste
    readonly property var keys: [
        { text: swapped ? qsTr("Paste at once") : qsTr("Copy"), caps: [qsTr("Return")] },
        { text: swapped ? qsTr("Copy") : qsTr("Paste at once"), caps: [qsTr("Shift"), qsTr("Return")], pasting: true },
        { text: swapped ? qsTr("Paste one of the first nine") : qsTr("Copy one of the first nine"), caps: [qsTr("Ctrl"), "1 … 9"] },
        { text: swapped ? qsTr("Copy one of them") : qsTr("Paste one of them"), caps: [qsTr("Ctrl"), qsTr("Shift"), "1 … 9"], pasting: true },
        { text: qsTr("Copy as plain text"), caps: ["Alt", qsTr("Return")] },
        { text: qsTr("Edit and copy"), caps: ["F2"] },
        { text: qsTr("Preview, reveal a secret"), caps: [qsTr("Space")] },
        { text: qsTr("Open a link"), caps: [qsTr("Ctrl"), qsTr("Return")] },
        { text: qsTr("Pin"), caps: [qsTr("Ctrl"), "P"] },
        { text: qsTr("Delete"), caps: [qsTr("Delete", "key")] },
        { text: qsTr("Undo"), caps: [qsTr("Ctrl"), "Z"] },
        { text: qsTr("Choose several"), caps: [qsTr("Ctrl"), qsTr("Space")] },
        { text: qsTr("Extend the choice"), caps: [qsTr("Shift"), qsTr("Down")] },
        { text: qsTr("Menu of the clip"), caps: [qsTr("Shift"), "F10"] },
        { text: qsTr("Search"), caps: [qsTr("Ctrl"), "F"] },
        { text: qsTr("Filter"), caps: [qsTr("Ctrl"), qsTr("Shift"), "F"] },
        { text: qsTr("Next tab"), caps: [qsTr("Ctrl"), "Tab"] },
        { text: qsTr("Close"), caps: ["Esc"] }
    ]

    spacing: 12
    Component.onCompleted: choice.look()

    SettingsSection {
        title: qsTr("Open from anywhere")

        Item {
            width: parent.width
            height: notes.y + notes.height + 12

            Label {
                objectName: "label"
                x: 14
                y: 18
                text: qsTr("Shortcut")
                style: Theme.body
                color: Theme.text1
            }

            ShortcutField {
                objectName: "shortcut"
                x: parent.width - 12 - width
                y: 10
                choice: page.choice
            }

            Column {
                id: notes
                x: 14
                y: 52
                width: parent.width - 28
                spacing: 6

                Paragraph {
                    objectName: "shortcutNote"
                    width: parent.width
                    text: page.choice.note
                    color: page.choice.mistaken ? Theme.mistake : Theme.text3
                }

                Item {
                    width: parent.width
                    height: 28
                    visible: page.choice.line !== ""

                    Paragraph {
                        objectName: "shortcutLine"
                        y: 6
                        width: parent.width - copyLine.width - 8
                        maximumLineCount: 1
                        elide: Text.ElideRight
                        text: page.choice.line
                        color: Theme.text2
                    }

                    CapsuleButton {
                        id: copyLine
                        objectName: "copyLine"
                        x: parent.width - width
                        text: qsTr("Copy")
                        onClicked: page.host.copyText(page.choice.line)
                    }
                }
            }
        }
    }

    SettingsSection {
        title: qsTr("Copying")

        SwitchRow {
            preference: "returnPastes"
            text: qsTr("Return pastes at once")
            note: !page.host.canPaste ? qsTr("Not possible on this desktop: it lets no program type.")
                : page.permission.note !== "" ? page.permission.note
                : page.settings.returnPastes ? qsTr("Into the window you came from. Shift+Return only copies.")
                : qsTr("Into the window you came from. Shift+Return always does.")
            enabled: page.host.canPaste
            opacity: enabled ? 1 : 0.4
            on: page.settings.returnPastes && page.host.canPaste
            onToggled: on => page.settings.returnPastes = on
        }

        SettingRow {
            visible: page.permission.refused
            height: visible ? implicitHeight : 0
            text: qsTr("Permission to type")

            CapsuleButton {
                objectName: "askAgain"
                text: qsTr("Ask Again")
                onClicked: page.permission.forgetRefusal()
            }
        }

        SettingRow {
            text: qsTr("Join several clips with")

            ValueButton {
                objectName: "joinWith"
                label: qsTr("Join several clips with")
                value: choices.some(one => one.value === page.settings.joinWith) ? page.settings.joinWith : "line"
                choices: [
                    { text: qsTr("Line break"), value: "line" },
                    { text: qsTr("Space"), value: "space" },
                    { text: qsTr("Comma"), value: "comma" },
                    { text: qsTr("Nothing"), value: "nothing" }
                ]
                onChosen: value => page.settings.joinWith = value
            }
        }
    }

    SettingsSection {
        title: qsTr("In the panel")

        Column {
            width: parent.width
            topPadding: 6
            bottomPadding: 6

            Repeater {
                model: page.keys.filter(one => !one.pasting || page.host.canPaste)

                Item {
                    id: row

                    required property var modelData

                    width: parent.width
                    height: 30

                    Label {
                        x: 14
                        y: 7
                        text: row.modelData.text
                        style: Theme.body
                        color: Theme.text1
                    }

                    KeyCaps {
                        x: parent.width - 12 - width
                        y: 5
                        caps: row.modelData.caps
                    }
                }
            }
        }
    }
}
