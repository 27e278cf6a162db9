import QtQuick
import Ravelo.Controls

/// A part of a window that scrolls if it does not fit, also by keys. The focused item is scrolled into view.
FadingEnds {
    id: page

    default property alias body: flick.flickableData
    property alias contentHeight: flick.contentHeight

    readonly property Item focused: Window.activeFocusItem // qmllint disable unqualified

    function scrollToTop() {
        flick.contentY = 0;
    }

    function scrollToEnd() {
        flick.contentY = Math.max(0, contentHeight - height);
    }

    function reveal() {
        const spare = 52; // Twice what may be faded.
        let inside = focused;
        while (inside && inside !== flick.contentItem) {
            inside = inside.parent;
        }
        if (inside && focused.activeFocusOnTab && contentHeight > height) {
            const top = focused.mapToItem(flick.contentItem, 0, 0).y;
            const lowest = Math.min(top - spare, contentHeight - height);
            const highest = top + focused.height + spare - height;
            flick.contentY = Math.max(0, Math.min(lowest, Math.max(flick.contentY, highest)));
        }
    }

    function scrollBy(distance: real) {
        flick.contentY = Math.max(0, Math.min(flick.contentY + distance, contentHeight - height));
    }

    onFocusedChanged: reveal()

    Keys.onPressed: event => {
        const step = 40;
        if (event.modifiers & (Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier)) {
            return;
        }
        switch (event.key) {
        case Qt.Key_Up: scrollBy(-step); break;
        case Qt.Key_Down: scrollBy(step); break;
        case Qt.Key_PageUp: scrollBy(step - height); break;
        case Qt.Key_PageDown: scrollBy(height - step); break;
        case Qt.Key_Home: scrollToTop(); break;
        case Qt.Key_End: scrollToEnd(); break;
        default: return;
        }
        event.accepted = true;
    }

    length: Math.min(26, Math.max(0, contentHeight - flick.contentY - height))
    topLength: Math.min(26, Math.max(0, flick.contentY))

    content: Flickable {
        id: flick
        anchors.fill: parent
        clip: contentHeight > height
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        onContentHeightChanged: {
            returnToBounds();
            page.reveal();
        }
        onHeightChanged: returnToBounds()
    }
}
