import QtQuick

/// Creates an item when it is first needed, and keeps it: most panels show little of what they can.
Loader {
    id: lazy

    property bool needed: false
    /// By its address: what is never needed is not even compiled.
    required property url page
    /// Of the item, read once when it is created. What changes later needs a `Qt.binding`.
    required property var properties
    property bool complete: false

    function follow() {
        if (complete && needed && status === Loader.Null) {
            setSource(page, properties);
        }
    }

    onNeededChanged: follow()
    Component.onCompleted: {
        complete = true;
        follow();
    }
}
