import QtQuick
import Ravelo.Controls
import Ravelo.Notes
import Ravelo.Paint
import Ravelo.Text
import Ravelo.Theme

/// The sketch, with its tools above.
FocusScope {
    id: pad

    required property Sketch sketch
    /// What is free at the right of the tools.
    required property real toolsEnd

    Row {
        id: tools
        x: parent.width - width - pad.toolsEnd
        y: 2
        spacing: 2

        GlyphButton {
            objectName: "pen"
            name: qsTr("Pen")
            symbol: "pencil"
            lit: pad.sketch.tool === Sketch.Pen
            Accessible.checkable: true
            Accessible.checked: lit
            onClicked: pad.sketch.tool = Sketch.Pen
        }

        GlyphButton {
            objectName: "eraser"
            name: qsTr("Eraser")
            symbol: "eraser"
            lit: pad.sketch.tool === Sketch.Eraser
            Accessible.checkable: true
            Accessible.checked: lit
            onClicked: pad.sketch.tool = Sketch.Eraser
        }

        GlyphButton {
            objectName: "undoStroke"
            name: qsTr("Undo")
            symbol: "undo"
            enabled: pad.sketch.canUndo
            onClicked: pad.sketch.undo()
        }

        GlyphButton {
            objectName: "clearSketch"
            name: qsTr("Clear")
            symbol: "trash"
            enabled: !pad.sketch.empty
            onClicked: pad.sketch.clear()
        }

        GlyphButton {
            id: copy
            objectName: "copySketch"
            name: qsTr("Copy, or drag it out")
            symbol: "doc.on.doc"
            enabled: !pad.sketch.empty
            onClicked: pad.sketch.copy()

            MouseArea {
                id: grip

                property point start
                property bool dragged

                anchors.fill: parent
                onPressed: mouse => {
                    start = Qt.point(mouse.x, mouse.y);
                    dragged = false;
                }
                onPositionChanged: mouse => {
                    const far = Math.abs(mouse.x - start.x) + Math.abs(mouse.y - start.y) > 8;
                    if (far && !dragged) {
                        dragged = true;
                        pad.sketch.drag(grip);
                    }
                }
                onClicked: {
                    if (!dragged) {
                        copy.clicked();
                    }
                }
            }
        }
    }

    Box {
        y: 32
        width: parent.width
        height: parent.height - y
        radius: Theme.radiusEditor
        color: Theme.surface1
        lineColor: canvas.activeFocus ? Theme.withAlpha(Theme.accent, 0.45) : Theme.line
        lineWidth: 1

        SketchCanvas {
            id: canvas
            objectName: "canvas"
            anchors.fill: parent
            anchors.margins: 1
            focus: true
            activeFocusOnTab: true
            sketch: pad.sketch
            color: Theme.noteText
            Accessible.role: Accessible.Canvas
            Accessible.name: qsTr("Sketch")
            Accessible.focusable: true
            onPressed: {
                Typing.wantKeyboard(canvas);
                forceActiveFocus();
            }

            Keys.onPressed: event => {
                if (event.matches(StandardKey.Copy)) {
                    pad.sketch.copy();
                } else if (event.matches(StandardKey.Undo) && pad.sketch.canUndo) {
                    pad.sketch.undo();
                } else {
                    return;
                }
                event.accepted = true;
            }
        }
    }
}
