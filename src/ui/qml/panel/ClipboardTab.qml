pragma ComponentBehavior: Bound

import QtQuick
import Ravelo

/// Search, snippets and the clipboard history.
FocusScope {
    id: tab

    required property PanelHost host
    required property bool shown
    required property Question question

    /// Takes the search away; false where there is none.
    function clearSearch(): bool {
        const had = search.input.text !== "";
        search.input.clear();
        return had;
    }

    function copy(row: int) {
        if (row >= 0 && row < list.count) {
            list.currentIndex = row;
            host.copyClip(host.clips.idAt(row));
        }
    }

    function select(row: int) {
        list.currentIndex = Math.max(0, Math.min(row, list.count - 1));
        list.positionViewAtIndex(list.currentIndex, ListView.Contain);
    }

    // What was copied while this was hidden has pushed the rows on.
    onShownChanged: {
        if (shown) {
            list.currentIndex = 0;
            list.positionViewAtBeginning();
        }
    }

    Keys.onUpPressed: select(list.currentIndex - 1)
    Keys.onDownPressed: select(list.currentIndex + 1)
    Keys.onReturnPressed: copy(list.currentIndex)
    Keys.onEnterPressed: copy(list.currentIndex)

    SearchField {
        id: search
        objectName: "search"
        width: parent.width
        host: tab.host
        trashLit: tab.question.opened
        onClearRequested: {
            // The question is answered by Return too.
            tab.host.controller.typeFocus();
            tab.question.corner = mapToItem(tab.question, width, height + 6);
            tab.question.opened = true;
        }
    }

    SnippetStrip {
        objectName: "strip"
        y: 40
        width: parent.width - 36
        height: 28
        host: tab.host
    }

    EmptyState {
        y: 76
        width: parent.width
        height: parent.height - y
        visible: list.count === 0
        symbol: "doc.on.clipboard"
        title: "No clipboard history yet"
        subtitle: "Copy anything with ⌘C and it shows up here."
    }

    FadingEdge {
        y: 76
        width: parent.width
        height: parent.height - y
        length: Math.min(26, Math.max(0, list.contentHeight - list.contentY - list.height))

        ListView {
            id: list
            objectName: "list"
            anchors.fill: parent
            clip: true
            cacheBuffer: 80
            boundsBehavior: Flickable.StopAtBounds
            // What is copied meanwhile must not scroll the list away from its beginning.
            highlightFollowsCurrentItem: false
            model: tab.host.clips

            delegate: ClipRow {
                host: tab.host
                shown: tab.shown
                width: list.width
                selected: index === list.currentIndex
                onTapped: tab.copy(index)
            }

            add: Transition {
                id: entering
                enabled: tab.shown
                ParallelAnimation {
                    NumberAnimation {
                        property: "opacity"
                        from: 0
                        to: 1
                        duration: Theme.entering
                        easing.type: Easing.OutCubic
                    }
                    NumberAnimation {
                        property: "y"
                        from: entering.ViewTransition.destination.y - 40
                        duration: Theme.entering
                        easing.type: Easing.OutCubic
                    }
                }
            }
            remove: Transition {
                enabled: tab.shown
                NumberAnimation {
                    property: "scale"
                    to: 0.9
                    duration: Theme.leaving
                    easing.type: Easing.InCubic
                }
                NumberAnimation {
                    property: "opacity"
                    to: 0
                    duration: Theme.leaving
                    easing.type: Easing.InCubic
                }
            }
            displaced: Transition {
                id: making
                enabled: tab.shown
                NumberAnimation {
                    property: "y"
                    duration: Theme.entering
                    easing.type: Easing.OutCubic
                }
                // A row that was still coming in is pushed on as it is; it must not stay faint.
                NumberAnimation {
                    property: "opacity"
                    to: 1
                    duration: Theme.entering
                }
            }
            move: making
        }
    }
}
