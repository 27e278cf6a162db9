import QtQuick
import Ravelo.Controls

/// Holds the page of a tab.
Loader {
    id: slot

    required property Tab tab
    /// The page is visible if its tab is the current one.
    required property bool shown
    /// Files are being dragged over it.
    required property bool dropTargeted
    required property bool current
    /// Height of what scrolls away above the tabs; 0 if it stays.
    required property real head
    /// Above the whole panel.
    required property Item stage

    readonly property bool wanted: current || tab.eager || tab.kept && item !== null

    function follow() {
        if (wanted) {
            setSource(tab.page, { place: slot, feature: tab });
        } else {
            source = "";
        }
    }

    property bool complete: false

    visible: current && status === Loader.Ready
    focus: visible // Only once the page is complete, because it reacts to the focus.
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
