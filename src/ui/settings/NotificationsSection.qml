import QtQuick
import Ravelo.Settings
import Ravelo.Windows

/// Which desktop notifications are shown.
SettingsSection {
    id: section

    required property SettingsWindow host

    readonly property AppSettings settings: host.settings

    title: qsTr("Notifications")

    SwitchRow {
        preference: "notifyTimer"
        text: qsTr("The timer has ended")
        note: section.host.hasNotifications ? "" : qsTr("This desktop shows no notifications.")
        on: section.settings.notifyTimer
        onToggled: on => section.settings.notifyTimer = on
    }

    SwitchRow {
        preference: "notifyFiles"
        text: qsTr("Files have arrived")
        on: section.settings.notifyFiles
        onToggled: on => section.settings.notifyFiles = on
    }

    SwitchRow {
        preference: "notifySaving"
        text: qsTr("Saving fails")
        on: section.settings.notifySaving
        onToggled: on => section.settings.notifySaving = on
    }

    SwitchRow {
        preference: "notifyPlan"
        text: qsTr("Plan at 80% and 95%, and its reset")
        note: qsTr("None while the screen is locked.")
        on: section.settings.notifyPlan
        onToggled: on => section.settings.notifyPlan = on
    }
}
