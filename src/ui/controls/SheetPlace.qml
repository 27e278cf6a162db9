import QtQuick

/// Holds a sheet, and frees it when it has faded out.
Lazy {
    id: place

    required property QtObject editor

    properties: ({ editor: editor })

    Connections {
        target: place.item
        function onVisibleChanged() {
            if (!place.needed && !(place.item as Item).visible) {
                place.source = "";
            }
        }
    }
}
