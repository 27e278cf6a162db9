pragma ComponentBehavior: Bound

import QtQuick
import Ravelo.Controls
import Ravelo.Settings
import Ravelo.Text
import Ravelo.Theme
import Ravelo.Windows

/// Which copies are not captured.
SettingsSection {
    id: section

    required property AppSettings settings
    /// The desktop says which program copies.
    required property bool knowsPrograms

    Timer {
        id: added
        interval: 0
        onTriggered: section.goToLast()
    }

    function removePattern(index: int, byKey: bool) {
        settings.ignoredPatterns = Array.from(settings.ignoredPatterns).filter((one, at) => at !== index);
        if (byKey) {
            (patterns.itemAt(index) as PatternRow)?.line.forceActiveFocus();
        }
    }

    function goToLast() {
        (patterns.itemAt(patterns.count - 1) as PatternRow)?.line.forceActiveFocus();
    }

    title: qsTr("Ignore")

    IgnoreTrial {
        id: ignoring
    }

    SettingBlock {
        objectName: "ignoredPrograms"
        text: qsTr("Copies from these programs")

        ProgramTags {
            width: parent.width
            settings: section.settings
            enabled: section.knowsPrograms
            opacity: enabled ? 1 : 0.4
        }

        Paragraph {
            visible: !section.knowsPrograms
            width: parent.width
            text: qsTr("This desktop does not say which program copies.")
        }
    }

    SettingBlock {
        objectName: "ignoredPatterns"
        text: qsTr("Texts that match a pattern")

        Repeater {
            id: patterns
            // By index: saving a row must not recreate it.
            model: section.settings.ignoredPatterns.length + 1

            PatternRow {
                settings: section.settings
                trial: ignoring
                onRemoved: byKey => section.removePattern(index, byKey)
                onAdded: added.start()
            }
        }
    }

    SettingBlock {
        objectName: "tryText"
        text: qsTr("Try a text")

        FieldFrame {
            width: parent.width - 25
            height: 32
            input: tried
            floats: true

            EditLine {
                id: tried
                objectName: "triedText"
                x: 10
                width: parent.width - 20
                height: parent.height
                placeholder: qsTr("Type or paste…")
                Accessible.name: qsTr("Try a text")
            }
        }

        Answer {
            readonly property bool hit: tried.text !== ""
                && ignoring.isIgnored(tried.text, section.settings.ignoredPatterns)

            objectName: "trial"
            text: tried.text === "" ? "" : ignoring.answer(tried.text, section.settings.ignoredPatterns)
            symbol: hit ? "eye.slash" : "checkmark.circle.fill"
            color: hit ? Theme.text1 : Theme.text3
        }
    }
}
