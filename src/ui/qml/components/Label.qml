import QtQuick
import Ravelo

/// One line of plain text in a type style, in a box as high as the style's line.
Text {
    property TextStyle style: Theme.body

    height: style.line
    topPadding: style.above
    font: style.font
    color: Theme.text1
    textFormat: Text.PlainText
    elide: Text.ElideRight
    maximumLineCount: 1
}
