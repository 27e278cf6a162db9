import QtQuick
import Ravelo.Clips
import Ravelo.Lists
import Ravelo.Preview
import Ravelo.Theme

/// What the keys do in the list of clips, also while the search has the focus.
QtObject {
    required property Clips clips
    required property ListView list
    required property SearchField search
    required property PreviewControl preview
    required property PreviewBubble bubble
    required property RowMenu rowMenu
    /// Nothing else has the focus, as while the search is disabled.
    required property bool unfocused

    signal moved(row: int)
    signal extended(row: int)
    signal copied(row: int)
    signal finished(row: int, modifiers: int)
    signal digitPressed(digit: int, modifiers: int)
    signal removed(row: int)

    function handle(event: KeyEvent) {
        const page = Math.max(1, Math.floor(list.height / Theme.rowHeight) - 1);
        const control = (event.modifiers & ~Qt.KeypadModifier) === Qt.ControlModifier;
        const searching = search.edited.activeFocus || unfocused;
        const shift = event.modifiers === Qt.ShiftModifier;
        if (event.key === Qt.Key_Space && (shift || event.modifiers === Qt.NoModifier && search.isEmpty)) {
            if (clips.list.isSecret(row())) {
                (list.currentItem as ClipRow)?.reveal();
            } else {
                preview.opened ? preview.close() : preview.openCurrent();
            }
        } else if (preview.opened && event.key === Qt.Key_PageUp) {
            bubble.scroll(-1);
        } else if (preview.opened && event.key === Qt.Key_PageDown) {
            bubble.scroll(1);
        } else if (preview.opened && event.key === Qt.Key_Tab) {
            bubble.focusText();
        } else if (shift && (event.key === Qt.Key_Up || event.key === Qt.Key_Down)) {
            extended(row() + (event.key === Qt.Key_Up ? -1 : 1));
        } else if (control && event.key === Qt.Key_Space) {
            clips.toggleSelected(row());
        } else if (control && event.key === Qt.Key_A && search.isEmpty) {
            clips.selectAll();
        } else if (event.key === Qt.Key_Menu || shift && event.key === Qt.Key_F10) {
            rowMenu.openFor(row());
        } else if (event.key === Qt.Key_Up) {
            moved(row() - 1);
        } else if (event.key === Qt.Key_Down) {
            moved(row() + 1);
        } else if (event.key === Qt.Key_PageUp) {
            moved(row() - page);
        } else if (event.key === Qt.Key_PageDown) {
            moved(row() + page);
        } else if (control && (event.key === Qt.Key_Return || event.key === Qt.Key_Enter)) {
            clips.openLink(row());
        } else if (searching && event.modifiers & Qt.AltModifier && (event.key === Qt.Key_Return || event.key === Qt.Key_Enter)) {
            clips.selected > 1 ? copied(-1) : clips.copyPlainAndClose(row());
        } else if (event.key === Qt.Key_F2) {
            if (clips.selected < 2) {
                clips.edit(row());
            }
        } else if (searching && (event.key === Qt.Key_Return || event.key === Qt.Key_Enter)) {
            finished(row(), event.modifiers);
        } else if (digitOf(event) > 0) {
            clips.list.finishSearch();
            digitPressed(digitOf(event), event.modifiers);
        } else if (control && event.key === Qt.Key_C && searching && search.edited.selectedText === ""
                   && row() >= 0 && !event.isAutoRepeat) {
            clips.selected > 1 ? clips.copySelected() : clips.copy(row());
        } else if (control && event.key === Qt.Key_P) {
            clips.togglePin(row());
        } else if (event.key === Qt.Key_F && event.modifiers === (Qt.ControlModifier | Qt.ShiftModifier)) {
            search.openFilters();
        } else if (event.key === Qt.Key_Delete && searching && search.isEmpty
                   && !event.isAutoRepeat) {
            removed(row());
        } else {
            return;
        }
        event.accepted = true;
    }

    /// The row of what is searched for, not of the search before.
    function row(): int {
        clips.list.finishSearch();
        return list.currentIndex;
    }

    /// The digit of a key with Ctrl and perhaps Shift; 0 for other keys. With Shift the digits' keys
    /// have other names, but the same codes.
    function digitOf(event: KeyEvent): int {
        const held = event.modifiers & ~(Qt.KeypadModifier | Qt.ShiftModifier);
        if (held !== Qt.ControlModifier) {
            return 0;
        }
        const shifted = event.modifiers & Qt.ShiftModifier && event.nativeScanCode >= 10 && event.nativeScanCode <= 18;
        const digit = shifted ? event.nativeScanCode - 9 : event.key - Qt.Key_0;
        return digit >= 1 && digit <= 9 ? digit : 0;
    }
}
