import QtQuick
import Ravelo.Controls
import Ravelo.Panel
import Ravelo.Theme

/// Pauses capture by a menu; while paused it shows what remains, and a click resumes.
Pressable {
    id: button

    required property Pausing pausing
    /// Space is short: a circle, also while paused.
    property bool narrow: false

    readonly property bool wide: pausing.paused && !narrow

    function openMenu() {
        menu.plain = !pausing.paused;
        menu.minWidth = pausing.paused ? 262 : 206;
        menu.entries = entries();
        menu.openLeftUnder(button, 0);
    }

    function entries(): var {
        const pause = (text, minutes) => ({
            text: text,
            checked: pausing.paused ? minutes === pausing.minutes : undefined,
            hint: pausing.paused && minutes === pausing.minutes && pausing.until !== ""
                ? qsTr("until %1").arg(pausing.until) : "",
            chosen: () => pausing.pause(minutes)
        });
        const lengths = [
            pause(qsTr("Pause for 15 minutes"), 15),
            pause(qsTr("Pause for an hour"), 60),
            pause(qsTr("Pause until resumed"), 0)
        ];
        return pausing.paused
            ? [{ text: qsTr("Resume capture"), checked: false, chosen: () => pausing.resume() }, { divider: true }].concat(lengths)
            : lengths.concat([{ divider: true }, { text: qsTr("Ignore the next copy"), chosen: () => pausing.ignoreNext() }]);
    }

    name: pausing.paused ? qsTr("Resume capture") : qsTr("Pause capture")
    Accessible.role: pausing.paused ? Accessible.Button : Accessible.ButtonMenu
    Accessible.description: !pausing.paused ? ""
        : pausing.until === "" ? qsTr("paused") : qsTr("paused until %1").arg(pausing.until)
    implicitWidth: wide ? 9 + 16 + 6 + label.implicitWidth + 13 : 32
    implicitHeight: 32
    radius: 16
    rest: pausing.paused || menu.opened ? Theme.hoveredRound : Theme.round
    hover: pausing.paused ? Theme.pressedRound : Theme.hoveredRound
    press: pausing.paused ? Theme.pressedPause : Theme.pressedRound
    onClicked: pausing.paused ? pausing.resume() : openMenu()
    Keys.onDownPressed: openMenu()
    Keys.onMenuPressed: openMenu()

    Behavior on implicitWidth {
        enabled: button.visible
        NumberAnimation {
            duration: Theme.revealing
            easing.type: Easing.OutCubic
        }
    }

    Glyph {
        readonly property bool resumes: button.pausing.paused && button.hovered

        x: (button.wide ? 17 : button.width / 2) - size / 2
        y: (button.height - size) / 2
        objectName: "symbol"
        symbol: resumes ? "play.fill" : "pause"
        size: button.wide && !resumes ? 16 : 18
        color: Theme.roundGlyph
    }

    Label {
        id: label
        objectName: "label"
        x: 31
        y: 8
        visible: opacity > 0
        opacity: button.wide ? 1 : 0
        style: Theme.button
        tabular: true
        text: button.pausing.text
        color: Theme.text1

        Behavior on opacity {
            NumberAnimation { duration: button.wide ? Theme.hovering : 0 }
        }
    }

    // A TapHandler would also take the left button's release after the press that closed the menu.
    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.RightButton
        onClicked: button.openMenu()
    }

    Tooltip {
        target: button
        hovered: button.hovered && !button.pressed && !menu.opened
        text: !button.pausing.paused ? qsTr("Pause capture")
            : button.pausing.until === "" ? qsTr("Capture paused — click to resume")
            : qsTr("Capture paused until %1 — click to resume").arg(button.pausing.until)
    }

    Menu {
        id: menu
        objectName: "pauseMenu"
        name: button.name
    }
}
