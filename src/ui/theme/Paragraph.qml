import QtQuick
import Ravelo.Theme

/// Wrapped text with the style's line height.
Text {
    id: paragraph

    property TextStyle style: Theme.small

    textFormat: Text.PlainText
    wrapMode: Text.WordWrap
    color: Theme.text3
    font: style.font
    lineHeight: style.line
    lineHeightMode: Text.FixedHeight
    // A fixed line height does not move the font's baseline.
    topPadding: style.baseLine(1) - metrics.ascent
    bottomPadding: -topPadding

    FontMetrics {
        id: metrics
        font: paragraph.style.font
    }
}
