pragma ComponentBehavior: Bound

import QtQuick
import Ravelo.Controls
import Ravelo.Setup
import Ravelo.Theme
import Ravelo.Windows

/// The second step: the layout of the bar. Choices apply at once.
FocusScope {
    id: step

    required property OnboardingController host

    signal done

    readonly property AppSettings settings: host.settings
    readonly property var kinds: [
        {
            value: "auto", symbol: "wand.and.stars", title: qsTr("Detect automatically"),
            detail: host.hasNotch ? qsTr("We found a notch on this display")
                                  : qsTr("We found no notch on this display")
        },
        { value: "notch", symbol: "macbook", title: qsTr("MacBook with a notch"), detail: "" },
        {
            value: "none", symbol: "display", title: qsTr("No notch"),
            detail: qsTr("iMac, Mac mini, older MacBooks, external display")
        }
    ]
    /// Any unknown value counts as the first option.
    readonly property int current: Math.max(0, kinds.findIndex(one => one.value === settings.macType))

    function moveTo(index: int) {
        if (index >= 0 && index < kinds.length) {
            settings.macType = kinds[index].value;
            options.itemAt(index).forceActiveFocus();
        }
    }

    Keys.onReturnPressed: done()
    Keys.onEnterPressed: done()

    ScrolledPage {
        id: scrolled
        y: 40
        width: parent.width
        height: next.y - y - 8
        contentHeight: 110 + 78 * step.kinds.length - 10

        Label {
            objectName: "heading"
            x: (scrolled.width - width) / 2
            y: 32
            text: qsTr("What kind of Mac do you have?")
            style: Theme.question
            color: Theme.text1
        }

        Label {
            objectName: "line"
            x: (scrolled.width - width) / 2
            y: 68
            text: qsTr("This decides how the top timer bar is laid out.")
            style: Theme.lead
            color: Theme.setupText
        }

        Repeater {
            id: options
            model: step.kinds

            MacTypeOption {
                required property var modelData
                required property int index

                objectName: modelData.value
                x: 32
                y: 110 + 78 * index
                width: step.width - 64
                symbol: modelData.symbol
                title: modelData.title
                detail: modelData.detail
                selected: index === step.current
                onClicked: step.settings.macType = modelData.value
                Keys.onUpPressed: step.moveTo(index - 1)
                Keys.onDownPressed: step.moveTo(index + 1)
            }
        }
    }

    CapsuleButton {
        id: next
        objectName: "done"
        anchors.horizontalCenter: parent.horizontalCenter
        y: Math.min(398, parent.height - 86)
        implicitHeight: 40
        sidePad: 24
        style: Theme.tab
        primary: true
        text: qsTr("Continue")
        onClicked: step.done()
    }
}
