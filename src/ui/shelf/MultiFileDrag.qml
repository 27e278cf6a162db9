import Ravelo.Shelf

/// Overlay that drags the item's files out.
DragSourceView {
    id: source
    objectName: "dragSource"

    required property ShelfFiles shelfFiles
    required provider

    onPressedChanged: {
        if (pressed) {
            shelfFiles.parked.lookForMissing();
            shelfFiles.drag.prepare(files(), source);
        }
    }
    onDragged: shelfFiles.drag.start(files(), source)
}
