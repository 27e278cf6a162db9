import QtQuick
import Ravelo.Controls

/// Base of each tab's page.
FocusScope {
    required property TabPlace place
    /// The page's Tab. Not bound to the place, which can go before the page. Untyped: the compiler
    /// of Qt 6.4 generates broken code for a cast between object types.
    required property var feature

    readonly property bool shown: place.shown
    readonly property bool dropTargeted: place.dropTargeted
    readonly property real head: place.head
    /// Scrolls the page.
    property Flickable flick: null
    /// Covers the whole panel, for sheets.
    readonly property Item stage: place.stage

    /// Ends a scroll animation.
    function stopScrolling() {
    }

    /// Focuses the page's search.
    function search() {
    }

    /// Adds to the page's search, as if typed there.
    function type(text: string) {
    }

    /// Ends a search; false if there is none.
    function clearSearch(): bool {
        return false;
    }

    focus: true
}
