import QtQuick
import Ravelo.Theme

/// Words in as many lines as they need, each as high as the style's line.
Text {
    id: paragraph

    property TextStyle style: Theme.small

    textFormat: Text.PlainText
    wrapMode: Text.WordWrap
    color: Theme.text3
    font: style.font
    lineHeight: style.line
    lineHeightMode: Text.FixedHeight
    // A fixed line is as high as said, but its base line is where the font has it.
    topPadding: style.baseLine(1) - metrics.ascent
    bottomPadding: -topPadding

    FontMetrics {
        id: metrics
        font: paragraph.style.font
    }
}
