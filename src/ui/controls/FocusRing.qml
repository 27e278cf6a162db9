import QtQuick
import Ravelo.Paint
import Ravelo.Theme

/// Surrounds the control with keyboard focus.
Box {
    required property Item control

    visible: enabled && control.activeFocus
    anchors.fill: parent
    anchors.margins: -4
    radius: (control as Box)?.radius + 4
    lineColor: Theme.withAlpha(Theme.accent, 0.60)
    lineWidth: 2
}
