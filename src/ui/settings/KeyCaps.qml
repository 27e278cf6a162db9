pragma ComponentBehavior: Bound

import QtQuick
import Ravelo.Paint
import Ravelo.Theme

/// Keys to be pressed together.
Row {
    id: keys

    required property var caps

    spacing: 4

    Repeater {
        model: keys.caps

        Box {
            id: key

            required property string modelData

            width: Math.max(20, cap.implicitWidth + 14)
            height: 20
            radius: 6
            color: Theme.surface4

            Label {
                id: cap
                x: (key.width - width) / 2
                y: 2
                text: key.modelData
                style: Theme.chip
                color: Theme.text1
            }
        }
    }
}
