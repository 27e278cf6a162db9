import QtQuick
import Ravelo

/// Text of many lines without any frame, in the style of a note.
TextEdit {
    id: area

    required property PanelHost host

    font: Theme.note.font
    color: Theme.noteText
    textFormat: TextEdit.PlainText
    wrapMode: TextEdit.Wrap
    selectionColor: Theme.withAlpha(Theme.accent, 0.45)
    selectedTextColor: Theme.text1
    selectByMouse: true
    topPadding: spacing.above
    cursorDelegate: Caret {}

    LineSpacing {
        id: spacing
        document: area.textDocument
        line: Theme.note.line
        ascent: Theme.note.ascent
    }

    Keys.onPressed: event => {
        if (event.matches(StandardKey.Paste)) {
            area.host.pasting.into(area, Pasting.ManyLines);
            event.accepted = true;
        }
    }

    PressWatch {
        host: area.host
        field: area
        lines: Pasting.ManyLines
    }
}
