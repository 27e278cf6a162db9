pragma Singleton

import QtQuick
import Ravelo.Theme

/// Every colour, size, type style and duration.
QtObject {
    // White at a few fixed opacities.
    function white(strength: real): color {
        return Qt.rgba(1, 1, 1, strength);
    }

    readonly property color text1: white(0.95)
    readonly property color text2: white(0.80)
    readonly property color text3: white(0.62)
    readonly property color text4: white(0.50)
    readonly property color noteText: white(0.92)
    readonly property color caption: white(0.60)
    readonly property color placeholder: white(0.45)
    readonly property color hint: white(0.34)
    readonly property color iconQuiet: white(0.70)
    readonly property color icon: white(0.86)

    readonly property color none: white(0)
    readonly property color surface1: white(0.05)
    readonly property color surface2: white(0.07)
    readonly property color surface3: white(0.10)
    readonly property color surface4: white(0.15)
    readonly property color line: white(0.07)
    readonly property color lineFloating: white(0.10)

    readonly property color selectedTab: white(0.14)
    readonly property color hoveredTab: white(0.06)
    readonly property color hoveredTabText: white(0.82)

    readonly property color hoveredField: white(0.09)
    readonly property color hoveredCard: white(0.08)
    readonly property color pressedCard: white(0.13)
    readonly property color selectedCard: white(0.06)
    readonly property color hoveredMini: white(0.20)
    readonly property color pressedMini: white(0.26)
    readonly property color pressedButton: white(0.20)
    readonly property color hoveredItem: white(0.11)
    readonly property color pressedItem: white(0.16)
    readonly property color divider: white(0.09)

    readonly property color round: white(0.08)
    readonly property color hoveredRound: white(0.14)
    readonly property color pressedRound: white(0.19)
    readonly property color pressedPause: white(0.24)
    readonly property color roundGlyph: white(0.90)
    readonly property color removeGlyph: white(0.40)
    readonly property color roundGlyphOff: white(0.35)

    readonly property color accent: "#78AEFF"
    readonly property color green: "#4CD68B"
    readonly property color yellow: "#F6C851"
    readonly property color red: "#FF7A70"
    readonly property color indigo: "#A9A5FF"
    readonly property color nightShift: withAlpha(indigoFill, 0.20)
    readonly property color hoveredNightShift: withAlpha(indigoFill, 0.34)
    readonly property color pressedNightShift: withAlpha(indigoFill, 0.45)
    readonly property color power: withAlpha(redFill, 0.18)
    readonly property color hoveredPower: withAlpha(redFill, 0.30)
    readonly property color pressedPower: withAlpha(redFill, 0.40)
    readonly property color indigoFill: "#847EFF"
    readonly property color redFill: "#FF5C52"
    readonly property color timeMarkRim: Qt.rgba(20 / 255, 20 / 255, 28 / 255, 0.65)
    readonly property color pinnedTile: withAlpha(yellow, 0.13)

    readonly property color accentGlyph: "#0C1524"
    readonly property color selectedTile: withAlpha(accent, 0.16)
    readonly property color selectedTileLine: withAlpha(accent, 0.85)
    readonly property color tray: white(0.045)
    readonly property color trayLine: white(0.05)
    readonly property color dropLine: white(0.18)
    readonly property color dropTarget: withAlpha(accent, 0.13)
    readonly property color dropTargetLine: withAlpha(accent, 0.90)
    readonly property color banner: withAlpha(green, 0.14)
    readonly property color bannerLine: withAlpha(green, 0.22)
    readonly property color bannerText: "#D7F7E5"

    readonly property color mistake: "#FF9B93"
    readonly property color redNotice: withAlpha(redFill, 0.14)
    readonly property color redNoticeLine: withAlpha(red, 0.24)

    readonly property color floating: "#2A2A2F"
    readonly property color floatingField: white(0.06)
    readonly property color floatingFieldLine: white(0.09)
    readonly property color sheet: "#26262B"
    readonly property color tooltip: "#111114"
    readonly property color primary: white(0.94)
    readonly property color primaryHovered: white(1)
    readonly property color primaryPressed: white(0.82)
    readonly property color toast: white(0.95)
    readonly property color onWhite: "#131316"
    readonly property color toastButton: withAlpha(onWhite, 0.09)
    readonly property color hoveredToastButton: withAlpha(onWhite, 0.16)
    readonly property color pressedToastButton: withAlpha(onWhite, 0.22)

    readonly property color window: "#1D1D21"
    readonly property color windowLine: white(0.09)
    readonly property color rowLine: white(0.06)
    readonly property color fill: "#4D8DF0"
    readonly property color hoveredFill: "#559BFF"
    readonly property color pressedFill: "#457FD8"
    readonly property color knob: white(1)
    readonly property color pressedKnob: "#E6E6E6"
    readonly property color sliderTrack: white(0.14)
    readonly property color switchOff: white(0.16)
    readonly property color hoveredSwitchOff: white(0.21)
    readonly property color pressedSwitchOff: white(0.26)
    readonly property color quit: withAlpha(redFill, 0.16)
    readonly property color setupText: white(0.68)
    readonly property color step: white(0.85)
    readonly property color otherStep: white(0.24)
    readonly property color selectedOption: withAlpha(accent, 0.12)
    readonly property color selectedOptionLine: withAlpha(accent, 0.70)
    readonly property color selectedOptionTile: withAlpha(accent, 0.18)
    readonly property color selectedOptionGlyph: "#CFE1FF"
    readonly property color optionMark: white(0.28)

    readonly property color handle: Qt.rgba(0, 0, 0, 0.44)
    readonly property color bar: "#000000"
    readonly property color grip: white(0.36)
    readonly property color pausedGrip: white(0.22)
    readonly property color pausedStroke: white(0.72)
    readonly property color ring: white(0.92)
    readonly property color ringTrack: white(0.20)
    readonly property color scrollMark: white(0.26)

    /// Top of something of this height centred in an item, rounded down to a device pixel.
    function middle(outer: Item, height: real, devicePixelRatio: real): real {
        return Math.round((outer.height - height) / 2 * devicePixelRatio) / devicePixelRatio;
    }

    function fade(duration: int): int {
        return reducedMotion ? 100 : duration;
    }

    /// Also for movements.
    function move(duration: int): int {
        return reducedMotion ? 0 : duration;
    }

    function withAlpha(base: color, alpha: real): color {
        return Qt.rgba(base.r, base.g, base.b, alpha);
    }

    readonly property string iconFamily: "Material Design Icons"

    readonly property TextStyle welcome: TextStyle { size: 26; line: 32; weight: Font.DemiBold; tracking: -0.5 }
    readonly property TextStyle question: TextStyle { size: 22; line: 28; weight: Font.DemiBold; tracking: -0.4 }
    readonly property TextStyle lead: TextStyle { size: 14; line: 20 }
    readonly property TextStyle leadLoose: TextStyle { size: 14; line: 22 }
    readonly property TextStyle note: TextStyle { size: 16; line: 25; tracking: -0.1 }
    readonly property TextStyle heading: TextStyle { size: 15; line: 20; weight: Font.DemiBold; tracking: -0.1 }
    readonly property TextStyle tab: TextStyle { size: 14; line: 20; weight: Font.DemiBold; tracking: -0.1 }
    readonly property TextStyle rowTitle: TextStyle { size: 13; line: 17; weight: Font.Medium }
    readonly property TextStyle strong: TextStyle { size: 13; line: 16; weight: Font.DemiBold }
    readonly property TextStyle body: TextStyle { size: 13; line: 16 }
    readonly property TextStyle menuLabel: TextStyle { size: 13; line: 16; weight: Font.Medium }
    readonly property TextStyle timer: TextStyle { size: 22; line: 28; weight: Font.DemiBold; tracking: -0.3 }
    readonly property TextStyle bodyLoose: TextStyle { size: 13; line: 20 }
    readonly property TextStyle strongLoose: TextStyle { size: 13; line: 20; weight: Font.DemiBold }
    readonly property TextStyle button: TextStyle { size: 12; line: 16; weight: Font.DemiBold }
    readonly property TextStyle chip: TextStyle { size: 12; line: 16; weight: Font.Medium }
    readonly property TextStyle small: TextStyle { size: 12; line: 16 }
    readonly property TextStyle subtitle: TextStyle { size: 11; line: 14 }
    readonly property TextStyle badge: TextStyle { size: 11; line: 14; weight: Font.DemiBold }
    readonly property TextStyle digit: TextStyle { size: 11; line: 14; weight: Font.Medium }

    // Radii.
    readonly property real radiusTile: 7
    readonly property real radiusSmall: 8
    readonly property real radiusRow: 10
    readonly property real radiusPopover: 12
    readonly property real radiusTray: 16
    readonly property real radiusEditor: 14

    /// Of a list row.
    readonly property real rowHeight: 40

    // The panel.
    readonly property real insetTop: 28
    readonly property real insetSide: 34
    readonly property real insetBottom: 18

    /// The background shows through transparent windows.
    property bool translucent: true

    // Motion, in milliseconds.
    /// Requested by the desktop: nothing moves, things fade instead.
    property bool reducedMotion: false
    readonly property int opening: 60
    readonly property int hovering: 90
    readonly property int pressing: 40
    readonly property int entering: fade(260)
    readonly property int leaving: fade(180)
    readonly property int springing: fade(450)
    readonly property int sheetMoving: fade(500)
    readonly property int toastLeaving: fade(200)
    readonly property int floatingIn: fade(120)
    readonly property int pausing: fade(200)
    readonly property int floatingOut: fade(80)
    readonly property int revealing: move(160)
    readonly property int filling: move(400)
    readonly property int dropping: 160
    readonly property int bannerIn: fade(300)
    readonly property int noticeIn: 300
    readonly property int noticeOut: 180
    readonly property int tooltipDelay: 500
    /// A spring with response 0.5 s and damping 0.85.
    readonly property var spring: [0.226, 0.097, 0.255, 1.085, 1, 1]
}
