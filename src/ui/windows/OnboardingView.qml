pragma ComponentBehavior: Bound

import QtQuick
import Ravelo.Paint
import Ravelo.Theme
import Ravelo.Windows

/// The first-run setup.
TitledPage {
    id: view

    required property OnboardingController host

    property int step: 0
    readonly property int steps: host.extension.isOffered || step === 2 ? 3 : 2

    WelcomeStep {
        anchors.fill: parent
        visible: view.step === 0
        focus: visible
        onDone: view.step = 1
    }

    MacTypeStep {
        anchors.fill: parent
        visible: view.step === 1
        focus: visible
        host: view.host
        onDone: view.steps > 2 ? view.step = 2 : view.host.finish()
    }

    ExtensionStep {
        anchors.fill: parent
        visible: view.step === 2
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
