import Ravelo.Shelf

/// Lies over what stands for files: pressed and moved it drags them out.
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
