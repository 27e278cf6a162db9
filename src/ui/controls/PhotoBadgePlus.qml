import QtQuick
import Ravelo.Paint
import Ravelo.Theme

/// The symbol "photo.badge.plus": a picture with a plus in a notch at its corner.
Item {
    id: symbol

    /// Opaque background colour; it shows through the notch.
    required property color ground

    width: 20
    height: 18

    Glyph {
        size: 18
        symbol: "photo"
    }

    Box {
        x: 9
        y: 8
        width: 12
        height: 12
        radius: 6
        color: symbol.ground
    }

    Glyph {
        x: 10
        y: 9
        size: 10.5
        symbol: "plus.circle.fill"
    }
}
