import QtQuick
import Ravelo.Clips
import Ravelo.Theme

/// A row of the clipboard history.
ClipCard {
    id: row

    required property Clips clips
    required property bool shown
    required property int index
    required property bool pinned
    required property string imageFileName
    /// About a copy that was not kept: cannot be copied or pinned and has no digit.
    readonly property bool tooLarge: index === clips.list.tooLargeRow
    readonly property int place: clips.list.tooLargeRow >= 0 && index > clips.list.tooLargeRow
        ? index - 1 : index
    required property var mask
    readonly property bool secret: mask.length > 0
    /// A secret is shown while a button or key is held.
    property bool held: false
    readonly property bool hasKeyboard: Window.active
    required spoken
    required icon
    required title
    required subtitle
    required marks
    required order
    required property string ago

    signal deleted

    /// Not bound: the text must not outlive the moment.
    function reveal() {
        if (secret && !held) {
            held = true;
            runs = [clips.revealed(index)];
        }
    }

    function hide() {
        held = false;
        runs = Qt.binding(() => mask);
    }

    objectName: "card" + index
    actions: Qt.resolvedUrl("ClipActions.qml")
    runs: mask
    spokenMore: secret ? "" : subtitle
    showsButtons: held
    onSecretChanged: hide()
    onShownChanged: hide()
    onHasKeyboardChanged: {
        if (!hasKeyboard) {
            hide();
        }
    }
    highlighted: pinned
    digit: place < 9 && !tooLarge ? place + 1 : ""
    titleColor: tooLarge ? Theme.text2 : Theme.text1
    // A hidden panel decodes nothing.
    thumbnail: shown && imageFileName !== ""
        ? "image://thumb/" + Theme.radiusTile * Screen.devicePixelRatio + "/" + imageFileName : ""
}
