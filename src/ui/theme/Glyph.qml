import QtQuick
import Ravelo.Theme

/// A symbol of the icon font in a square of `size`.
Text {
    property string symbol
    property real size: 16

    width: size
    height: size
    horizontalAlignment: Text.AlignHCenter
    verticalAlignment: Text.AlignVCenter
    text: Symbols.code(symbol)
    textFormat: Text.PlainText
    font.family: Theme.iconFamily
    font.pixelSize: size
    font.hintingPreference: Font.PreferNoHinting
    color: Theme.text1
}
