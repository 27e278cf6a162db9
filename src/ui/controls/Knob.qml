import QtQuick
import Ravelo.Paint
import Ravelo.Theme

/// What is moved in a switch or on a slider.
Box {
    id: knob

    width: 18
    height: 18
    radius: 9
    color: Theme.knob

    Shadow {
        anchors.fill: parent
        radius: knob.radius
        blur: 3
        drop: 1
        color: Qt.rgba(0, 0, 0, 0.40)
    }
}
