import QtQuick
import Ravelo.Controls

/// Where the page of a tab is.
Loader {
    id: slot

    required property Tab tab
    /// The page can be seen if its tab is the current one.
    required property bool shown
    /// Files are being dragged over it.
    required property bool dropTargeted
    required property bool current
    /// Height of what is above the tabs and scrolls away with the page; 0 if it stays.
    required property real head

    readonly property bool wanted: current || tab.kept

    function follow() {
        if (wanted) {
            setSource(tab.page, { place: slot, feature: tab });
        } else {
            source = "";
        }
    }

    property bool complete: false

    visible: current && status === Loader.Ready
    focus: visible // Not before the page is complete: it acts on the keyboard.
    onWantedChanged: {
        if (complete) {
            follow();
        }
    }
    Component.onCompleted: {
        complete = true;
        follow();
    }
}
