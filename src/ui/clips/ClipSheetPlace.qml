import QtQuick
import Ravelo.Clips

/// Creates the editor when it is needed.
Loader {
    id: place

    required property ClipEditor editor
    /// Until it has faded out.
    property bool seen: false

    active: editor.editing || seen
    onLoaded: seen = true
    sourceComponent: ClipSheet {
        // qmllint disable unqualified
        editor: place.editor
        onVisibleChanged: {
            if (!visible && !editing) {
                place.seen = false;
            }
        }
        // qmllint enable unqualified
    }
}
