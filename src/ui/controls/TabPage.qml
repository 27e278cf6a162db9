import QtQuick
import Ravelo.Controls

/// The page of a tab. The base of each tab's own.
FocusScope {
    required property TabPlace place
    /// Its Tab. Not bound to the place, which may lose it before this page is gone. Not typed:
    /// the compiler of Qt 6.4 turns a cast between object types into code that is none.
    required property var feature

    readonly property bool shown: place.shown
    readonly property bool dropTargeted: place.dropTargeted
    readonly property real head: place.head
    /// What scrolls the page.
    property Flickable flick: null

    /// Ends an animation that scrolls.
    function stopScrolling() {
    }

    /// Takes the keyboard to the page's search.
    function search() {
    }

    /// Ends a search; false if there is none.
    function clearSearch(): bool {
        return false;
    }

    focus: true
}
