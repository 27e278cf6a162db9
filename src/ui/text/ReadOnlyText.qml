import QtQuick
import Ravelo.Text
import Ravelo.Theme

/// Text to select and copy.
TextEdit {
    id: area

    property TextStyle style: Theme.bodyLoose
    /// Use instead of `text`, which changes some characters.
    property alias exactText: exact.text

    Accessible.role: Accessible.EditableText
    Accessible.name: qsTr("Text")
    Accessible.readOnly: true
    font: style.font
    color: Theme.text1
    readOnly: true
    textFormat: TextEdit.PlainText
    wrapMode: TextEdit.Wrap
    selectionColor: Theme.withAlpha(Theme.accent, 0.30)
    selectedTextColor: Theme.text1
    selectByMouse: true
    persistentSelection: true
    topPadding: style.baseLine(1) - style.line * 0.8

    LineSpacing {
        document: area.textDocument
        line: area.style.line
    }

    ExactText {
        id: exact
        document: area.textDocument
    }

    Keys.onPressed: event => {
        if (event.matches(StandardKey.Copy) && selectedText !== "") {
            Typing.copy(exact.part(selectionStart, selectionEnd));
            event.accepted = true;
        }
    }
}
