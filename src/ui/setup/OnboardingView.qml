pragma ComponentBehavior: Bound

import QtQuick
import Ravelo.Paint
import Ravelo.Setup
import Ravelo.Theme
import Ravelo.Windows

/// The first-run setup.
TitledPage {
    id: view

    required property OnboardingController host

    property int step: 0
    readonly property int steps: host.extension.isOffered || step === 3 ? 4 : 3

    WelcomeStep {
        anchors.fill: parent
        visible: view.step === 0
        focus: visible
        choice: view.host.shortcut
        onDone: view.step = 1
    }

    MacTypeStep {
        anchors.fill: parent
        visible: view.step === 1
        focus: visible
        host: view.host
        onDone: view.step = 2
    }

    EncryptionStep {
        anchors.fill: parent
        visible: view.step === 2
        focus: visible
        onDone: view.steps > 3 ? view.step = 3 : view.host.finish()
    }

    ExtensionStep {
        anchors.fill: parent
        visible: view.step === 3
        focus: visible
        host: view.host
    }

    Row {
        anchors.horizontalCenter: parent.horizontalCenter
        y: parent.height - 30
        spacing: 6

        Repeater {
            model: view.steps

            Box {
                required property int index
                readonly property bool current: index === view.step

                objectName: "step" + index
                width: current ? 18 : 6
                height: 6
                radius: 3
                color: current ? Theme.step : Theme.otherStep
            }
        }
    }
}
