import QtQuick

/// A type style of Inter, the only family: a font in a line of a fixed height.
QtObject {
    id: style

    required property int size
    required property int line
    property int weight: Font.Normal
    property real tracking: 0

    readonly property font font: Qt.font({
        family: "Inter",
        pixelSize: size,
        weight: weight,
        letterSpacing: tracking,
        hintingPreference: Font.PreferNoHinting
    })

    /// Where the base line lies below the top: the font's ascent and descent in whole pixels,
    /// centred in the line.
    readonly property real ascent: {
        const up = Math.round(metrics.ascent);
        const down = Math.round(metrics.descent);
        return Math.floor((line - up - down) / 2) + up;
    }
    /// What a Text of this font needs above itself to have its base line there.
    readonly property real above: ascent - metrics.ascent

    readonly property FontMetrics metrics: FontMetrics { font: style.font }
}
