import QtQuick
import Ravelo.Text
import Ravelo.Theme

/// Multi-line text input without a frame.
TextEdit {
    id: area

    /// For assistive programs.
    property string name
    property TextStyle style: Theme.note
    /// Use instead of `text`, which changes some characters.
    property alias exactText: exact.text

    Accessible.role: Accessible.EditableText
    Accessible.name: name
    font: style.font
    color: Theme.noteText
    textFormat: TextEdit.PlainText
    wrapMode: TextEdit.Wrap
    selectionColor: Theme.withAlpha(Theme.accent, 0.45)
    selectedTextColor: Theme.text1
    selectByMouse: true
    activeFocusOnTab: true
    // The fixed line height puts the baseline at four fifths; the style differs.
    topPadding: style.baseLine(1) - style.line * 0.8
    cursorDelegate: Caret {}

    LineSpacing {
        document: area.textDocument
        line: area.style.line
    }

    ExactText {
        id: exact
        document: area.textDocument
    }

    Keys.onPressed: event => {
        if (event.matches(StandardKey.Paste)) {
            Typing.paste(area, Typing.ManyLines);
            event.accepted = true;
            return;
        }
        if (event.matches(StandardKey.Undo) && !area.canUndo) {
            event.accepted = Typing.undo(area);
            return;
        }
        const cuts = event.matches(StandardKey.Cut);
        if (area.selectedText !== "" && (cuts || event.matches(StandardKey.Copy))) {
            Typing.copy(exact.part(area.selectionStart, area.selectionEnd));
            if (cuts) {
                area.remove(area.selectionStart, area.selectionEnd);
            }
            event.accepted = true;
        }
    }

    PressWatch {
        field: area
        lines: Typing.ManyLines
    }
}
