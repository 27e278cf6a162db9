pragma Singleton

import QtQuick

/// Code points of the symbols in the icon font.
QtObject {
    function code(symbol: string): string {
        return table[symbol] ?? table["doc.text"];
    }

    readonly property var table: ({
        "airdrop": "\uF43B",
        "antenna.radiowaves.left.and.right": "\uF002",
        "bubble.left.and.text.bubble.right": "\uF189",
        "car": "\uF10B",
        "checklist": "\uF5C7",
        "checkmark": "\uF12C",
        "checkmark.circle.fill": "\uF5E0",
        "checkmark.seal": "\uF565",
        "circle": "\uF130",
        "clock": "\uF150",
        "chevron.down": "\uF140",
        "creditcard": "\uF19B",
        "display": "\uF379",
        "doc.on.clipboard": "\uF14E",
        "doc.on.doc": "\uF18F",
        "doc.text": "\uF219",
        "dollarsign.circle": "\uF178",
        "folder": "\uF24B",
        "exclamationmark.circle": "\uF5D6",
        "exclamationmark.circle.fill": "\uF028",
        "filter": "\uF232",
        "gearshape": "\uF493",
        "hourglass": "\uF51F",
        "info.circle": "\uF2FD",
        "key": "\uF306",
        "keyboard": "\uF30C",
        "link": "\uF339",
        "lock": "\uF33E",
        "macbook": "\uF324",
        "magnifyingglass": "\uF349",
        "moon.stars.fill": "\uF594",
        "note.text": "\uF39E",
        "photo": "\uF2E9",
        "pin": "\uF403",
        "puzzlepiece": "\uF431",
        "pin.slash": "\uF404",
        "eraser": "\uF1FE",
        "note": "\uF39B",
        "scribble": "\uF0E3",
        "undo": "\uF54C",
        "eye": "\uF208",
        "eye.slash": "\uF209",
        "pause": "\uF3E4",
        "pencil": "\uF3EB",
        "play.fill": "\uF40A",
        "plus": "\uF415",
        "plus.circle.fill": "\uF417",
        "power": "\uF425",
        "shield": "\uF498",
        "signature": "\uF64F",
        "stop.fill": "\uF4DB",
        "star": "\uF4D2",
        "trash": "\uF1C0",
        "tray.and.arrow.down": "\uF24D",
        "tray.full": "\uF2FB",
        "wand.and.stars": "\uF068",
        "xmark.circle.fill": "\uF159",
        "xmark": "\uF156"
    })
}
