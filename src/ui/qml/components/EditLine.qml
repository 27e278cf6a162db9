import QtQuick
import Ravelo

/// One line of editable text without any frame.
TextInput {
    id: input

    required property PanelHost host
    property string placeholder
    property TextStyle style: Theme.body
    /// The offer of the toast that was the last when something was typed.
    property int typedAt: -1

    Accessible.role: Accessible.EditableText
    Accessible.name: placeholder
    clip: true
    verticalAlignment: TextInput.AlignVCenter
    font: style.font
    color: Theme.text1
    selectionColor: Theme.withAlpha(Theme.accent, 0.45)
    selectedTextColor: Theme.text1
    selectByMouse: true
    maximumLength: 2147483647 // Qt's own limit would cut a text off as soon as it is edited.
    activeFocusOnPress: true
    activeFocusOnTab: true
    cursorDelegate: Caret {}
    onTextEdited: typedAt = host.toast.offers()

    Keys.onPressed: event => {
        if (event.matches(StandardKey.Paste)) {
            input.host.pasting.into(input, Pasting.OneLine);
            event.accepted = true;
        } else if (event.matches(StandardKey.Undo)) {
            // What came last is undone first.
            const typedSince = input.canUndo && input.typedAt === input.host.toast.offers();
            event.accepted = !typedSince && input.host.toast.act();
        }
    }

    Label {
        objectName: "hint"
        visible: input.text === "" && input.preeditText === ""
        x: input.activeFocus ? 2.5 : 0 // Behind the caret.
        y: (input.height - height) / 2
        width: parent.width - x
        text: input.placeholder
        color: Theme.placeholder
        style: input.style
    }

    PressWatch {
        host: input.host
        field: input
        lines: Pasting.OneLine
    }
}
