import QtQuick
import Ravelo.Paint
import Ravelo.Theme

/// The moving part of a switch or slider.
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
