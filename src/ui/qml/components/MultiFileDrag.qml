import Ravelo

/// Lies over what stands for files: pressed and moved it drags them out.
DragSourceView {
    id: source
    objectName: "dragSource"

    required property PanelHost host
    required provider

    onPressedChanged: {
        if (pressed) {
            host.shelf.lookForMissing();
            host.fileDrag.prepare(files(), source);
        }
    }
    onDragged: host.fileDrag.start(files(), source)
}
