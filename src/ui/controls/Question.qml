import QtQuick

/// A question with "No" and "Yes".
Popover {
    id: question

    property string text
    /// A second line.
    property string detail
    property string yesText: qsTr("Yes")
    /// "Yes" is red.
    property bool destroys: false
    /// Return means yes. If false, it means no until "Yes" has the focus.
    property bool yesFirst: false
    /// The white button: the one that Return presses.
    property bool yesIsWhite: yesFirst

    signal accepted

    pad: 14
    Accessible.role: Accessible.Dialog
    Accessible.name: text
    Accessible.description: detail
    content: Qt.resolvedUrl("QuestionContent.qml")
}
