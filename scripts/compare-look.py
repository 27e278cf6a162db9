#!/usr/bin/env python3
"""Compares the panel, the settings and the setup with design drawings.

    scripts/compare-look.py DRAWINGS [PROBE]

DRAWINGS is the folder with the drawings' HTML, PROBE the built panel_probe. Prints, for every
element, its rectangle in the drawing (measured by a headless chromium) and in the panel, in logical
pixels from the panel's top left. Exits with 1 if any value differs by more than one pixel.
"""

import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
TOLERANCE = 1.0

# Scene of the probe, drawing, origin in the drawing, then per element: its name, its CSS selector, and
# which of x, y, width, height count. With "|text" the width is that of the text.
ALL = "xywh"
BAR_BOTH = "body > div:nth-of-type(6) > div.abs:nth-of-type(2)"
BAR_REMINDERS_NOTCH = "body > div:nth-of-type(7) > div.abs:nth-of-type(2)"
SCENES = [
    ("clipboard", "03a-clipboard.html", ".panel", [
        ("panel", ".panel", ALL),
        ("usage", ".usage", ALL),
        ("usage/usageSession", ".urow:nth-child(1)", ALL),
        ("usage/usageSession/track", ".urow:nth-child(1) .track", ALL),
        ("usage/usageWeek", ".urow:nth-child(2)", ALL),
        ("usage/usageWeek/track", ".urow:nth-child(2) .track", ALL),
        ("tabs", ".tabs", ALL),
        ("search", ".search", ALL),
        ("search/searchIcon", ".search > i", ALL),
        ("search/searchInput", ".search|text", "x"),
        ("search/trash", ".search .tr", ALL),
        ("strip", ".strip .sc", ALL),
        ("strip/chip0", ".chip:nth-child(1)", ALL),
        ("strip/chip0/chipTitle", ".chip:nth-child(1) .tt|text", ALL),
        ("strip/chip4", ".chip:nth-child(5)", ALL),
        ("list", ".list", ALL),
    ] + [
        (f"list/card{i}{ours}", f".card:nth-child({i + 1}){theirs}", which)
        for i in range(6)
        for ours, theirs, which in (
            ("", "", ALL),
            ("/tile", " .g", ALL),
            ("/title", " .ti|text", ALL),
            ("/subtitle", " .su|text", ALL),
            ("/digit", " .k", "xw"),
        )
        if not (i == 3 and ours == "/digit")  # Hovered in the drawing.
    ]),
    ("hover", "03a-clipboard.html", ".panel", [
        ("list/card3", ".card.hov", ALL),
        ("list/card3/pin", ".card.hov .mini:nth-child(1)", ALL),
        ("list/card3/delete", ".card.hov .mini:nth-child(2)", ALL),
    ]),
    ("toast", "10-toast.html", ".panel", [
        ("toast", ".toast", ALL),
    ]),
    ("undo", "24a-undo-toast.html", ".panel", [
        ("toast", ".toast", ALL),
        ("toast/toastAction", ".toast .ab", ALL),
    ]),
    ("search-nothing", "20e-search-nothing-found.html", ".panel", [
        ("emptyDisc", ".empty .o", ALL),
        ("emptyTitle", ".empty b", "yh"),
        ("emptySubtitle", ".empty span:last-child", "yh"),
    ]),
    ("too-large", "22b-too-large.html", ".panel", [
        ("list/card2", ".card:nth-child(3)", ALL),
        ("list/card2/tile", ".card:nth-child(3) .g", ALL),
        ("list/card2/title", ".card:nth-child(3) .ti|text", ALL),
        ("toast", ".toast", ALL),
    ]),
    ("notice-aside", "24b-notice-put-aside.html", ".panel", [
        ("notice", ".notice", ALL),
        ("notice/noticeGlyph", ".notice > i", ALL),
        ("notice/noticeLead", ".notice .el span:nth-child(1)|text", "xyw"),
        ("notice/noticeRest", ".notice .lt|text", "xyw"),
        ("notice/noticeAction", ".notice .btn", ALL),
        ("notice/noticeDismiss", ".notice .mini", ALL),
        ("search", ".search", ALL),
        ("list", ".list", ALL),
    ]),
    ("notice-fails", "24c-notice-save-fails.html", ".panel", [
        ("notice", ".notice", ALL),
        ("notice/noticeGlyph", ".notice > i", ALL),
        ("notice/noticeRest", ".notice .el span|text", "xyw"),
        ("notice/noticeAction", ".notice .btn", ALL),
    ]),
    ("question", "04-timer-search-confirm.html", ".panel", [
        ("clearQuestion/bubble", ".pop", ALL),
        ("clearQuestion/bubble/no", ".pop .btn:nth-child(1)", ALL),
        ("clearQuestion/bubble/yes", ".pop .btn:nth-child(2)", ALL),
    ]),
    ("running", "04-timer-search-confirm.html", ".panel", [
        ("topBar/runningTimer/runningTime", ".run .t|text", ALL),
        ("topBar/runningTimer/runningLabel", ".run .l|text", "xw"),
        ("topBar/runningTimer/stopTimer", ".run .btn", ALL),
    ]),
    ("presets", "11a-presets-menu.html", ".panel", [
        ("presetChoices/bubble", ".menu", ALL),
        ("presetChoices/bubble/item1", ".menu .it:nth-child(2)", ALL),
        ("presetChoices/bubble/item6", ".menu .it:nth-child(7)", ALL),
    ]),
    ("minutes", "11b-minutes-menu.html", ".panel", [
        ("minuteChoices/bubble", ".menu", ALL),
        ("minuteChoices/bubble/item8", ".menu .it:nth-child(9)", ALL),
    ]),
    ("custom-minutes", "11c-custom-minutes.html", ".panel", [
        ("customMinutes/bubble", ".pop", ALL),
    ]),
    ("preset-editor", "11d-preset-editor.html", ".panel", [
        ("presetEditor/bubble", ".pop", ALL),
        ("presetEditor/bubble/addPreset", ".pop .btn", ALL),
    ]),
    ("reminders", "11e-reminders.html", ".panel", [
        ("reminderQuestion/bubble", ".pop", ALL),
        ("topBar/reminderStrip/reminderLine0", ".rem .r", "xw"),
        ("topBar/actions/reminderToggle", ".acts .ic:nth-child(1)", ALL),
    ]),
    ("power", "11f-shutdown.html", ".panel", [
        ("topBar/actions/nightShift", ".acts .indigo", ALL),
        ("topBar/actions/nightShift/symbol", ".acts .indigo i", ALL),
        ("topBar/actions/power", ".acts .red", ALL),
        ("topBar/actions/power/symbol", ".acts .red i", ALL),
        ("topBar/actions/gear", ".acts .ic:last-child", ALL),
        ("topBar/actions/gear/symbol", ".acts .ic:last-child i", ALL),
        ("powerQuestion/bubble", ".pop", ALL),
        ("powerQuestion/bubble/no", ".pop .btn:nth-child(1)", ALL),
        ("powerQuestion/bubble/yes", ".pop .btn:nth-child(2)", ALL),
    ]),
    ("empty", "05-clipboard-empty.html", ".panel", [
        ("emptyDisc", ".empty .o", ALL),
        ("emptyTitle", ".empty b", ALL),
        ("emptySubtitle", ".empty span:last-child", ALL),
    ]),
    ("notes", "06-notes.html", ".panel", [
        ("caption", ".cap|text", ALL),
        ("editor", ".editor", ALL),
        ("editor/noteInput/caret", ".caret", ALL),
    ]),
    ("shelf-selected", "07a-shelf-files.html", ".panel", [
        ("panel", ".panel", ALL),
        ("tabs/tab2", ".tabs .on", ALL),
        ("shelfHeader/shelfCount", ".shd b|text", ALL),
        ("shelfHeader/shelfHint", ".shd .hn|text", ALL),
        ("shelfHeader/selectAll", ".shd .btn.ghost", ALL),
        ("shelfHeader/removeSelected", ".shd .btn:nth-last-child(2)", ALL),
        ("shelfHeader/airdrop", ".shd .btn.pri", ALL),
        ("grid/stacks/tray0", ".stack:nth-child(1)", ALL),
        ("grid/stacks/tray1", ".stack:nth-child(2)", ALL),
        ("grid/stacks/tray3", ".stack:nth-child(4)", ALL),
        ("grid/stacks/tile0", ".stack:nth-child(1) .tile:nth-child(1)", ALL),
        ("grid/stacks/tile0/picture", ".stack:nth-child(1) .tile:nth-child(1) svg", ALL),
        ("grid/stacks/tile0/name", ".stack:nth-child(1) .tile:nth-child(1) .nm", "yh"),
        ("grid/stacks/tile1/picture", ".stack:nth-child(1) .tile:nth-child(2) svg", ALL),
        ("grid/stacks/tile1/tick", ".stack:nth-child(1) .ck", ALL),
        ("grid/stacks/tile2/name", ".stack:nth-child(1) .tile:nth-child(3) .nm|text", ALL),
        ("grid/stacks/tile9", ".stack:nth-child(4) .tile:nth-child(2)", ALL),
        ("grid/stacks/tile9/name", ".stack:nth-child(4) .tile:nth-child(2) .nm|text", ALL),
        ("received/receivedTitle", ".sech b|text", "xwh"),
        ("received/receivedNote", ".sech .n|text", "xwh"),
        ("received/openFolder", ".sech .btn", ALL),
        ("received/banner", ".banner", ALL),
        ("received/receivedList/received0", ".rcv:nth-child(1)", ALL),
        ("received/receivedList/received2", ".rcv:nth-child(3)", ALL),
        ("received/receivedList/received2/name", ".rcv:nth-child(1) .el|text", "xwh"),
        ("received/receivedList/received2/ago", ".rcv:nth-child(1) .tm|text", "xw"),
    ]),
    ("shelf-empty", "08b-shelf-empty.html", ".panel", [
        ("dropCard", ".drop", ALL),
        ("dropCard/dropDisc", ".drop .o", ALL),
        ("dropCard/dropTitle", ".drop b", "yh"),
        ("dropCard/dropSubtitle", ".drop span:last-child", ALL),
        ("received/receivedTitle", ".sech b|text", "xwh"),
        ("received/openFolder", ".sech .btn", ALL),
        ("received/receivedList/received0", ".rcv:nth-child(1)", ALL),
    ]),
    ("shelf-drop", "08a-shelf-drop.html", ".panel", [
        ("dropCard", ".drop", ALL),
    ]),
    ("small", "30a-small-screen.html", ".panel", [
        ("panel", ".panel", ALL),
        ("topBar/focusControl", ".focus", "xyh"),
        ("topBar/reminderStrip/reminderLine0", ".rem .r", "xw"),
        ("usage", ".usage", ALL),
        ("usage/usageSession/track", ".urow:nth-child(1) .track", ALL),
        ("usage/usageSession/percent", ".urow:nth-child(1) .pc|text", "xw"),
        ("usage/usageWeek/track", ".urow:nth-child(2) .track", ALL),
        ("tabs", ".tabs", ALL),
        ("search", ".search", ALL),
        ("strip", ".strip .sc", ALL),
        ("list/card0", ".card:nth-child(1)", ALL),
        ("list/card2", ".card:nth-child(3)", ALL),
    ]),
    ("small-scrolled", "30b-small-screen-scrolled.html", ".panel", [
        ("tabs", ".tabs", ALL),
        ("search", ".search", ALL),
        ("list", ".list", ALL),
        ("list/card2", ".card:nth-child(3)", ALL),
        ("list/card6", ".card:nth-child(7)", ALL),
    ]),
    ("settings", "25a-settings-general-capture.html", ".win", [
        ("window", ".win", ALL),
        ("pages", ".tabs.pg", ALL),
        ("strip/title", ".tb|text", "xw"),
        ("strip/close", ".x", ALL),
        ("page/general/heading", "h4:nth-of-type(1)|text", ALL),
        ("page/general/block", ".cd:nth-of-type(1)", ALL),
        ("page/general/block/label", ".cd:nth-of-type(1) .ln|text", "xw"),
        ("page/general/block/launchAtLogin", ".cd:nth-of-type(1) .sw", ALL),
        ("page/general/block/hint", ".cd:nth-of-type(1) .nt|text", "x"),
        ("page/appearance/heading", "h4:nth-of-type(2)|text", ALL),
        ("page/appearance/block", ".cd:nth-of-type(2)", ALL),
        ("page/appearance/block/fullBlack", ".cd:nth-of-type(2) .sw", ALL),
        ("page/appearance/block/darkness", ".ln:nth-child(2) .sl", ALL),
        ("page/appearance/block/darkness/track", ".ln:nth-child(2) .tk", ALL),
        ("page/appearance/block/darkness/fill", ".ln:nth-child(2) .fl", ALL),
        ("page/appearance/block/darkness/knob", ".ln:nth-child(2) .kn", ALL),
        ("page/appearance/block/widthRow/label", ".ln:nth-child(3) .tn|text", ALL),
        ("page/appearance/block/widthRow/panelWidth/fill", ".ln:nth-child(3) .fl", ALL),
        ("page/appearance/block/widthRow/panelWidth/knob", ".ln:nth-child(3) .kn", ALL),
        ("page/clipboard/block", ".cd:nth-of-type(3)", ALL),
        ("page/clipboard/block/clips/label", ".cd:nth-of-type(3) .tn|text", ALL),
        ("page/clipboard/block/clips/clearHistory", ".cd:nth-of-type(3) .btn", ALL),
        ("page/sync/heading", "h4:nth-of-type(4)|text", ALL),
        ("page/sync/block", ".cd:nth-of-type(4)", ALL),
        ("version", ".foot > span|text", "xw"),
        ("quit", ".btn.dan", ALL),
    ]),
    ("setup", "13a-onboarding-welcome.html", ".win", [
        ("window", ".win", ALL),
        ("strip/title", ".tb|text", "xw"),
        ("strip/close", ".x", ALL),
        ("picture", ".win svg", ALL),
        ("heading", ".win > div:nth-of-type(2) > div:nth-child(1)|text", ALL),
        ("line", ".win > div:nth-of-type(2) > div:nth-child(2)", ALL),
        ("start", ".btn", ALL),
        ("step0", ".row span:nth-child(1)", ALL),
        ("step1", ".row span:nth-child(2)", ALL),
    ]),
    ("setup-mac", "13b-onboarding-mac.html", ".win", [
        ("heading", ".win > div:nth-of-type(2) div div:nth-child(1)|text", ALL),
        ("line", ".win > div:nth-of-type(2) div div:nth-child(2)|text", ALL),
        ("auto", ".opt:nth-child(1)", ALL),
        ("auto/tile", ".opt:nth-child(1) .g", ALL),
        ("auto/tile/symbol", ".opt:nth-child(1) .g i", ALL),
        ("auto/title", ".opt:nth-child(1) b|text", ALL),
        ("auto/detail", ".opt:nth-child(1) .sp span|text", ALL),
        ("auto/mark", ".opt:nth-child(1) .s", ALL),
        ("notch/title", ".opt:nth-child(2) b|text", ALL),
        ("none", ".opt:nth-child(3)", ALL),
        ("none/detail", ".opt:nth-child(3) .sp span|text", ALL),
        ("done", ".btn", ALL),
        ("step1", ".row span:nth-child(2)", ALL),
    ]),
    ("handle", "01-handle.html", "svg.abs", [
        ("handle", "svg.abs", ALL),
        ("handle/grip", "svg.abs rect", ALL),
    ]),
    ("bar-timer", "02a-timer-bar.html", "div.abs", [
        ("bar", "div.abs", ALL),
        ("bar/left/ring", ".row > svg", ALL),
        ("bar/left/label", ".row > .el", ALL),
        ("bar/right/time", ".row > .tn", ALL),
    ]),
    ("bar-timer-notch", "02b-timer-bar-notch.html", "div.abs", [
        ("bar", "div.abs", ALL),
        ("bar/left/ring", ".row > svg", ALL),
        ("bar/left/label", ".row > .el", ALL),
        ("bar/right/time", ".row > .tn", ALL),
    ]),
    ("bar-reminders", "02c-reminder-bar.html", "div.abs", [
        ("bar/left/icon", ".row > i", ALL),
        ("bar/left/reminders/reminder0", ".row > :nth-child(3)", ALL),
        ("bar/left/reminders/dot0", ".row > :nth-child(4)", ALL),
        ("bar/left/reminders/reminder1", ".row > :nth-child(5)", ALL),
        ("bar/left/reminders/reminder2", ".row > :nth-child(7)", ALL),
    ]),
    ("bar-timer-reminders", "02d-collapsed-detail.html", BAR_BOTH, [
        ("bar/left/ring", f"{BAR_BOTH} svg:not(.abs)", ALL),
        ("bar/left/time", f"{BAR_BOTH} .tn", ALL),
        ("bar/left/label", f"{BAR_BOTH} .tn + .el", ALL),
        ("bar/right/reminders/reminder0", f"{BAR_BOTH} .sp + .el", ALL),
        ("bar/right/reminders/rest", f"{BAR_BOTH} .el:nth-last-child(2)", ALL),
        ("bar/right/icon", f"{BAR_BOTH} i", ALL),
    ]),
    ("bar-reminders-notch", "02d-collapsed-detail.html", BAR_REMINDERS_NOTCH, [
        ("bar", BAR_REMINDERS_NOTCH, ALL),
        ("bar/left/icon", f"{BAR_REMINDERS_NOTCH} i", ALL),
        ("bar/left/reminders/reminder0", f"{BAR_REMINDERS_NOTCH} i + .el", ALL),
        ("bar/right/reminders/reminder0", f"{BAR_REMINDERS_NOTCH} .el:nth-child(1)", ALL),
        ("bar/right/reminders/rest", f"{BAR_REMINDERS_NOTCH} .el:nth-child(3)", ALL),
    ]),
]

MEASURE = """
<script>document.fonts.ready.then(() => {
const origin = document.querySelector(ORIGIN).getBoundingClientRect();
const measured = SELECTORS.map(selector => {
    const [css, how] = selector.split("|");
    const element = document.querySelector(css);
    if (!element) return null;
    const box = element.getBoundingClientRect();
    let across = box;
    if (how === "text") {
        const walker = document.createTreeWalker(element, NodeFilter.SHOW_TEXT,
            node => node.parentElement.tagName === "I" ? NodeFilter.FILTER_SKIP
                                                       : NodeFilter.FILTER_ACCEPT);
        const range = document.createRange();
        range.selectNodeContents(walker.nextNode());
        across = range.getBoundingClientRect();
    }
    return [across.x - origin.x, box.y - origin.y, across.width, box.height];
});
const out = document.createElement("pre");
out.id = "measured";
out.textContent = JSON.stringify(measured);
document.body.append(out);
});</script>
"""


def drawn(folder, drawing, origin, selectors):
    """The rectangles of `selectors` in a drawing."""
    page = (folder / drawing).read_text()
    for style in ("ravelo.css", "ravelo-turn2.css"):
        page = page.replace(f'href="{style}"', f'href="{(folder / style).resolve().as_uri()}"')
    script = MEASURE.replace("ORIGIN", json.dumps(origin)).replace("SELECTORS",
                                                                    json.dumps(selectors))
    with tempfile.TemporaryDirectory() as scratch:
        file = pathlib.Path(scratch) / drawing
        file.write_text(page + script)
        dom = subprocess.run(
            ["chromium", "--headless", "--no-sandbox", "--disable-gpu", f"--user-data-dir={scratch}",
             "--allow-file-access-from-files", "--window-size=1440,900",
             "--virtual-time-budget=2000", "--dump-dom", file.as_uri()],
            check=True, capture_output=True, text=True, timeout=120).stdout
    found = re.search(r'<pre id="measured">(.*?)</pre>', dom, re.S)
    if not found:
        sys.exit(f"{drawing} could not be measured")
    return json.loads(found.group(1))


def shown(probe, scene):
    """The rectangles of all named elements of the panel."""
    environment = dict(os.environ, QT_QPA_PLATFORM="offscreen")
    return json.loads(subprocess.run([probe, "--scene", scene], check=True, capture_output=True,
                                     text=True, timeout=120, env=environment).stdout)


def compare(folder, probe):
    worst = 0.0
    count = 0
    for scene, drawing, origin, elements in SCENES:
        theirs = drawn(folder, drawing, origin, [selector for _, selector, _ in elements])
        ours = shown(probe, scene)
        print(f"\n{scene} ({drawing})")
        for (name, selector, which), there in zip(elements, theirs):
            here = ours.get(name)
            if there is None or here is None:
                sys.exit(f"{name} or {selector} is missing")
            pairs = [(h, t) for key, h, t in zip(ALL, here, there) if key in which]
            difference = max(abs(h - t) for h, t in pairs)
            worst = max(worst, difference)
            count += 1
            numbers = [" ".join(f"{value:7.1f}" for value in rect) for rect in (there, here)]
            mark = "  <" if difference > TOLERANCE else ""
            print(f"{name:26} {numbers[0]}  {numbers[1]}  {difference:5.2f}{mark}")
    print(f"\n{count} elements, largest difference {worst:.2f} px")
    return worst <= TOLERANCE


def main():
    if not 2 <= len(sys.argv) <= 3:
        sys.exit(__doc__)
    subprocess.run([ROOT / "scripts/packages", "run", "look"], check=True)
    probe = sys.argv[2] if len(sys.argv) == 3 else ROOT / "build/dev/tools/panel_probe/panel_probe"
    sys.exit(0 if compare(pathlib.Path(sys.argv[1]), probe) else 1)


if __name__ == "__main__":
    main()
