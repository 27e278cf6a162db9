import QtQuick
import Ravelo.Controls
import Ravelo.Paint
import Ravelo.Theme

/// The frame of a text field, lit while `input` has the focus.
Surface {
    id: frame

    required property Item input
    /// On a floating surface, not on the panel.
    property bool floats: false
    property bool lit: input.activeFocus
    /// The content is not valid.
    property bool mistaken: false

    radius: Theme.radiusSmall
    rest: floats ? Theme.floatingField : Theme.surface2
    hover: Theme.hoveredField
    press: Theme.hoveredField
    hovered: hover.hovered && !lit
    lineColor: mistaken ? Theme.withAlpha(Theme.red, 0.70)
        : lit ? Theme.withAlpha(Theme.accent, floats ? 0.60 : 0.55)
        : floats ? Theme.floatingFieldLine : Theme.line
    lineWidth: 1

    HoverHandler {
        id: hover
    }

    Box {
        visible: frame.lit || frame.mistaken
        anchors.fill: parent
        anchors.margins: -3
        radius: parent.radius + 3
        lineColor: frame.mistaken ? Theme.withAlpha(Theme.red, 0.14)
            : Theme.withAlpha(Theme.accent, frame.floats ? 0.18 : 0.16)
        lineWidth: 3
    }
}
