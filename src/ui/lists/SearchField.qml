pragma ComponentBehavior: Bound

import QtQuick
import Ravelo.Controls
import Ravelo.Paint
import Ravelo.Text
import Ravelo.Theme

/// Searches a list; has a menu of filters and a button that clears the list.
FieldFrame {
    id: field

    property alias edited: line
    property string placeholder
    required property string clearName
    required property string clearQuestion
    /// How much was found.
    property string tally
    /// Objects with `text` and `filter`, which is what can be typed, or with `divider`.
    property var filters: []
    /// Whether a word is a filter.
    property var isFilter: word => false
    /// The filters in use.
    property var tokens: []
    /// The last token is selected.
    property bool tokenSelected: false
    /// Gets keys before the text input does.
    property Item keyHandler

    readonly property bool isEmpty: line.text === "" && tokens.length === 0
    readonly property bool used: !isEmpty || line.activeFocus || filterButton.activeFocus || menu.opened

    signal searched(string text)
    signal cleared

    function clear() {
        tokens = [];
        line.clear();
    }

    /// As if typed.
    function type(text: string) {
        line.forceActiveFocus();
        line.insert(line.length, text);
    }

    function openFilters() {
        menu.openLeftUnder(field, 0);
    }

    /// Adds a filter, or removes it if it is in use. It replaces another with the same key.
    function toggle(filter: string) {
        const key = filter.split(":")[0] + ":";
        const others = tokens.filter(token => !token.startsWith(key));
        tokens = tokens.includes(filter) ? others : others.concat(filter);
    }

    function report() {
        tokenSelected = false;
        searched(tokens.concat(line.text).join(" "));
    }

    /// Words that are filters leave the text.
    function takeTokens() {
        const word = /^(\S+)\s/.exec(line.text);
        if (word && isFilter(word[1])) {
            tokens = tokens.concat(word[1]);
            line.remove(0, word[0].length);
        }
    }

    input: line
    lit: line.activeFocus || question.opened && question.focusedBefore === line
        || menu.opened && menu.focusedBefore === line
    implicitHeight: 32
    radius: Theme.radiusRow
    onTokensChanged: report()

    Keys.onPressed: event => {
        const atStart = line.cursorPosition === 0 && line.selectedText === "";
        if (event.key !== Qt.Key_Backspace || !atStart || tokens.length === 0) {
            tokenSelected = false;
            return;
        }
        event.accepted = true;
        if (tokenSelected) {
            tokens = tokens.slice(0, -1);
        } else {
            tokenSelected = true;
        }
    }

    Glyph {
        objectName: "searchIcon"
        x: 12
        anchors.verticalCenter: parent.verticalCenter
        symbol: "magnifyingglass"
        color: Theme.caption
    }

    Row {
        id: tokenRow
        x: 36
        anchors.verticalCenter: parent.verticalCenter
        spacing: 7

        Repeater {
            model: field.tokens

            Box {
                id: token

                required property string modelData
                required property int index
                readonly property bool selected: field.tokenSelected && index === field.tokens.length - 1

                objectName: "token" + index
                width: name.width + 14
                height: 20
                radius: 6
                color: selected ? Theme.withAlpha(Theme.accent, 0.45) : Theme.surface4
                Accessible.role: Accessible.Button
                Accessible.name: qsTr("Filter: %1").arg(modelData.replace(":", " "))
                Accessible.description: qsTr("Delete removes it")
                Accessible.onPressAction: field.toggle(modelData)

                Label {
                    id: name
                    x: 7
                    y: 2
                    text: token.modelData
                    style: Theme.chip
                    color: Theme.text1
                }
            }
        }
    }

    EditLine {
        id: line
        objectName: "searchInput"
        focus: true
        x: 36 + (tokenRow.width > 0 ? tokenRow.width + 7 : 0)
        width: (field.used ? count.x - 8 : trash.x - 8) - x
        height: parent.height
        placeholder: field.tokens.length > 0 ? "" : field.placeholder
        Accessible.name: field.placeholder
        Accessible.description: announced.text
        Keys.forwardTo: field.keyHandler ? [field.keyHandler, field] : [field]
        onTextChanged: {
            field.takeTokens();
            field.report();
        }
    }

    // Not at every key: a screen reader would never finish.
    Timer {
        id: announced

        property string text

        interval: 500
        onTriggered: text = field.isEmpty ? "" : field.tally
    }

    Label {
        id: count
        objectName: "tally"
        x: filterButton.x - 6 - width
        anchors.verticalCenter: parent.verticalCenter
        visible: field.used
        text: field.tally
        style: Theme.subtitle
        tabular: true
        color: Theme.text3
        onTextChanged: announced.restart()
    }

    GlyphButton {
        id: filterButton
        objectName: "filter"
        name: qsTr("Filter")
        symbol: "filter"
        visible: field.used
        lit: menu.opened
        x: trash.x - 30
        y: 2
        onClicked: field.openFilters()
    }

    GlyphButton {
        id: trash
        objectName: "trash"
        name: field.clearName
        symbol: "trash"
        lit: question.opened
        x: parent.width - 30
        y: 2
        onClicked: {
            const byKey = activeFocus;
            question.openLeftUnder(field, 0);
            question.keyed = byKey;
        }
    }

    Menu {
        id: menu
        objectName: "filters"
        name: filterButton.name
        minWidth: 252
        entries: field.filters.map(one => one.divider ? one : ({
            text: one.text,
            hint: one.filter,
            checked: field.tokens.includes(one.filter),
            chosen: () => field.toggle(one.filter)
        }))
    }

    Question {
        id: question
        objectName: "clearQuestion"
        text: field.clearQuestion
        yesFirst: true
        onAccepted: field.cleared()
    }
}
