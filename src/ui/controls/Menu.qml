import QtQuick

/// A list of entries to choose from.
Popover {
    id: menu

    /// Objects with `text`, `chosen()` and optionally `checked` and `hint`, or with `divider`.
    property var entries: []
    /// Name for assistive programs.
    property string name
    property real minWidth: 0
    property int current: -1
    /// No entry is ever checked.
    property bool plain: false

    function choose(index: int) {
        const entry = entries[index]; // Closing may change the entries.
        close();
        entry?.chosen();
    }

    pad: 5
    Accessible.role: Accessible.PopupMenu
    Accessible.name: name
    onOpenedChanged: current = -1
    content: Qt.resolvedUrl("MenuEntries.qml")
}
