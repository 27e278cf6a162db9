import QtQuick
import Ravelo.Preview
import Ravelo.Controls
import Ravelo.Text
import Ravelo.Theme

/// A whole text to scroll and select.
Item {
    id: view

    required property ClipPreview preview
    required property real largest

    readonly property bool focused: area.activeFocus

    function scroll(by: int) {
        const end = Math.max(0, flick.contentHeight - flick.height);
        flick.contentY = Math.max(0, Math.min(flick.contentY + by * (flick.height - Theme.bodyLoose.line), end));
    }

    function focusText() {
        Typing.wantKeyboard(area);
        area.forceActiveFocus();
    }

    implicitHeight: Math.min(largest, flick.contentHeight)

    Connections {
        target: view.preview
        function onChanged() {
            flick.contentY = 0;
            area.exactText = view.preview.text;
        }
        function onAppended(text: string) {
            area.insert(area.length, text);
        }
    }

    FadingEnds {
        x: 16
        width: parent.width - 22
        height: parent.height
        length: Math.min(26, Math.max(0, flick.contentHeight - flick.contentY - flick.height))
        topLength: Math.min(26, flick.contentY)

        Flickable {
            id: flick
            anchors.fill: parent
            clip: true
            boundsBehavior: Flickable.StopAtBounds
            contentHeight: area.implicitHeight + 28
            // Fetch more before its end is seen.
            onContentYChanged: {
                if (contentHeight - contentY < 3 * height) {
                    view.preview.showMore();
                }
            }

            ReadOnlyText {
                id: area
                y: 14
                width: parent.width - 16
                Component.onCompleted: exactText = view.preview.text
            }
        }
    }

    ScrollMark {
        x: parent.width - 10
        flick: flick
    }
}
