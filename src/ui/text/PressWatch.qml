import QtQuick
import Ravelo.Text

/// Overlays a text field: a press requests keyboard focus, the middle button pastes. All other
/// buttons go on to the field.
MouseArea {
    id: watch

    required property Item field
    required property int lines

    anchors.fill: parent
    acceptedButtons: Qt.LeftButton | Qt.RightButton | Qt.MiddleButton
    cursorShape: Qt.IBeamCursor

    onPressed: mouse => {
        Typing.wantKeyboard(field);
        if (mouse.button === Qt.MiddleButton) {
            field.forceActiveFocus();
            field.cursorPosition = field.positionAt(mouse.x, mouse.y);
            Typing.paste(field, lines);
        } else {
            mouse.accepted = false;
        }
    }
}
