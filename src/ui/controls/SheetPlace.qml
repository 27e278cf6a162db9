import QtQuick

/// Creates a sheet when it is needed, and frees it when it has faded out.
Loader {
    id: place

    /// By its address: most panels never show it.
    required property url sheet
    /// For the sheet.
    required property QtObject editor
    required property bool editing
    property bool complete: false

    function follow() {
        if (complete && editing && status === Loader.Null) {
            setSource(sheet, { editor: editor });
        }
    }

    onEditingChanged: follow()
    Component.onCompleted: {
        complete = true;
        follow();
    }

    Connections {
        target: place.item
        function onVisibleChanged() {
            if (!place.editing && !(place.item as Item).visible) {
                place.source = "";
            }
        }
    }
}
