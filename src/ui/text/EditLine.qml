import QtQuick
import Ravelo.Text
import Ravelo.Theme

/// One line of editable text without any frame.
TextInput {
    id: input

    property string placeholder
    property TextStyle style: Theme.body
    /// How many undo offers there had been when something was last typed.
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
    onTextEdited: typedAt = Typing.offers(input)

    Keys.onPressed: event => {
        if (event.matches(StandardKey.Paste)) {
            Typing.paste(input, Typing.OneLine);
            event.accepted = true;
        } else if (event.matches(StandardKey.Undo)) {
            // What came last is undone first.
            const typedSince = input.canUndo && input.typedAt === Typing.offers(input);
            event.accepted = !typedSince && Typing.undo(input);
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
        field: input
        lines: Typing.OneLine
    }
}
