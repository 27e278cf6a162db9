import QtQuick
import Ravelo.Controls
import Ravelo.Settings
import Ravelo.Theme
import Ravelo.Windows

/// Content of the settings window. Changes apply at once.
TitledPage {
    id: view

    required property SettingsWindow host

    readonly property var pages: [
        { title: qsTr("General"), file: "GeneralPage.qml" },
        { title: qsTr("Capture"), file: "CapturePage.qml" },
        { title: qsTr("Storage"), file: "StoragePage.qml" },
        { title: qsTr("Keys"), file: "KeysPage.qml" },
        { title: qsTr("More"), file: "MorePage.qml" }
    ]
    property int page: 0

    function choose(index: int) {
        if (index !== page && index >= 0 && index < pages.length) {
            page = index;
            scrolled.scrollToTop();
            pageChange.restart();
        }
    }

    Keys.forwardTo: [scrolled] // If the focus is outside of it.
    Keys.onPressed: event => {
        const backwards = event.key === Qt.Key_Backtab;
        if (!(event.modifiers & Qt.ControlModifier)) {
            return;
        } else if (event.key === Qt.Key_Tab || backwards) {
            choose((page + (backwards ? pages.length - 1 : 1)) % pages.length);
        } else if (event.key >= Qt.Key_1 && event.key < Qt.Key_1 + pages.length) {
            choose(event.key - Qt.Key_1);
        } else {
            return;
        }
        event.accepted = true;
    }

    TabPicker {
        objectName: "pages"
        Accessible.name: qsTr("Settings pages")
        x: 20
        y: 40
        width: parent.width - 40
        height: 28
        style: Theme.strong
        oneStop: true
        tabs: view.pages
        current: view.page
        onChosen: index => view.choose(index)
    }

    ScrolledPage {
        id: scrolled
        objectName: "page"
        y: 68
        width: parent.width
        height: parent.height - y - 58
        contentHeight: 12 + shown.height + 6

        Loader {
            id: shown
            x: 20
            y: 12
            width: scrolled.width - 40

            function load() {
                setSource(view.pages[view.page].file, { host: view.host });
            }

            Component.onCompleted: load()

            Connections {
                target: view
                function onPageChanged() {
                    shown.load();
                }
            }

            NumberAnimation on opacity {
                id: pageChange
                running: false
                from: 0
                to: 1
                duration: Theme.floatingIn
            }
        }
    }

    Label {
        objectName: "version"
        x: 34
        y: parent.height - 40
        text: qsTr("Ravelo v0.2")
        style: Theme.small
        color: Theme.text4
    }

    Paragraph {
        objectName: "display"
        x: 34
        y: parent.height - 23
        width: quit.x - x - 10
        maximumLineCount: 1
        elide: Text.ElideRight
        text: view.host.display
        style: Theme.small
        color: Theme.text4
    }

    CapsuleButton {
        id: quit
        objectName: "quit"
        x: parent.width - 20 - width
        y: parent.height - 46
        text: qsTr("Quit Ravelo")
        textColor: Theme.red
        rest: Theme.quit
        hover: Theme.hoveredPower
        press: Theme.pressedPower
        onClicked: view.host.quit()
    }
}
