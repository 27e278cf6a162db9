import QtQuick
import Ravelo.Text
import Ravelo.Theme

/// Single-line text input without a frame.
TextInput {
    id: input

    property string placeholder
    property TextStyle style: Theme.body
    /// Number of undo offers when something was last typed.
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
    maximumLength: 2147483647 // Qt's default would truncate a long text at the first edit.
    activeFocusOnPress: true
    activeFocusOnTab: true
    cursorDelegate: Caret {}
    onTextEdited: typedAt = Typing.offers(input)

    Keys.onPressed: event => {
        if (event.matches(StandardKey.Paste)) {
            Typing.paste(input, Typing.OneLine);
            event.accepted = true;
        } else if (event.matches(StandardKey.Undo)) {
            // Undo the most recent change first.
            const typedSince = input.canUndo && input.typedAt === Typing.offers(input);
            event.accepted = !typedSince && Typing.undo(input);
        }
    }

    Label {
        objectName: "hint"
        visible: input.text === "" && input.preeditText === ""
        x: input.activeFocus ? 2.5 : 0 // After the caret.
        y: (input.height - height) / 2
        width: parent.width - x
        text: input.placeholder
        color: Theme.placeholder
        style: input.style
    }

    PressWatch {
        field: input
        lines: Typing.OneLine
    }
}
