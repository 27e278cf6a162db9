"""What the settings of the capture do, tried with real programs: for scripts/secrets.

Each check is a generator: it yields what is done, the text to search for, and whether it may be found.
"""

import json
import subprocess
import time

from desktop import wait_for

DAY = 86400
LETTERS = "zuckerhut"


def pause(session):
    session.ravelo.call("pause", "15")
    session.desktop.copy_text("paused zuckerhut")
    yield "a copy while paused", "paused zuckerhut", False
    session.restart()
    session.desktop.copy_text("still paused zuckerhut")
    yield "a copy after a restart, still paused", "still paused zuckerhut", False
    session.ravelo.call("resume")
    session.desktop.copy_text("resumed zuckerhut")
    yield "a copy after `ravelo resume`", "resumed zuckerhut", True


def ignore_next(session):
    session.ravelo.call("ignore-next")
    session.desktop.copy_text("next zuckerhut")
    yield "the next copy", "next zuckerhut", False
    session.desktop.copy_text("second zuckerhut")
    yield "the one after that", "second zuckerhut", True


def typed_copy(session):
    """In a window of GTK: its text, by Ctrl+A and Ctrl+C."""
    desktop = session.desktop
    window = desktop.show_background() if session.on_wayland else desktop.gtk("window")
    time.sleep(1)
    desktop.type(LETTERS)
    desktop.key("ctrl+a")
    desktop.key("ctrl+c")
    wait_for(lambda: desktop.paste_text() == LETTERS, "the typed text on the clipboard")
    return window


def name_of_window(session):
    """Its class or app id."""
    if not session.on_wayland:
        output = session.desktop.run("xprop", "-id", session.desktop.focused_window(), "WM_CLASS")
        if "not found" in output:  # The focus is in a child.
            output = session.desktop.run("sh", "-c", "xprop -id $(xdotool getactivewindow) WM_CLASS")
        return output.split('"')[-2]
    return "gtk_peer.py"


def ignored_program(session):
    window = typed_copy(session)
    name = name_of_window(session)
    wait_for(lambda: session.files_with(LETTERS), "the copy without the rule")
    session.ravelo.call("erase", "--yes")
    window.kill()
    session.restart(ignoredPrograms=[name])
    window = typed_copy(session)
    # Where programs cannot be told apart, the settings say so.
    yield f"a copy in a window of `{name}`", LETTERS, not session.names_programs
    window.kill()
    window.wait()
    time.sleep(2)  # On Wayland the active window counts, whoever copies.
    session.desktop.copy_text("other zuckerhut")
    yield "a copy of another program", "other zuckerhut", True


def ignored_pattern(session):
    session.restart(ignoredPatterns=["^inv-[0-9]+-zuckerhut$"])
    session.desktop.copy_text("inv-2026-zuckerhut")
    yield "a text that the pattern matches", "inv-2026-zuckerhut", False
    session.desktop.copy_text("no inv-2026-zuckerhut here")
    yield "one that it does not match", "no inv-2026-zuckerhut here", True


def keep_for(session):
    for text in ("old zuckerhut", "old pinned zuckerhut", "young zuckerhut"):
        session.copy_plain(text)
    session.ravelo.process.terminate()
    wait_for(session.ravelo.has_ended, "the end of the program")
    path = session.ravelo.folder / "store.json"
    store = json.loads(path.read_text())
    for clip in store["clips"]:
        clip["pinned"] = "pinned" in clip["text"]
        clip["date"] -= 2 * DAY if "old" in clip["text"] else 0
    store["clips"].sort(key=lambda clip: not clip["pinned"])
    path.write_text(json.dumps(store))
    session.ravelo.start()
    session.restart(keepDays=1)
    time.sleep(65)  # It looks a minute after the start, then when the next clip becomes too old.
    yield "two days old", "old zuckerhut", False
    yield "two days old and pinned", "old pinned zuckerhut", True
    yield "young", "young zuckerhut", True


def caps(session):
    session.restart(textLimit=16)
    command = ["wl-copy", "--type", "text/plain"] if session.on_wayland else ["xclip", "-selection", "clipboard", "-i"]
    for number in range(3):
        text = f"large zuckerhut {number} " + "x" * 6_000_000
        subprocess.run(command, input=text.encode(), env=session.desktop.env, check=True,
                       stdout=subprocess.DEVNULL)
        wait_for(lambda t=text: session.files_with(t[:18]), f"text {number} on the disk", 60)
    yield "the oldest of three texts of 6 MB", "large zuckerhut 0", False
    yield "the newest of them", "large zuckerhut 2", True


def switch_encryption(session, on):
    session.ravelo.call("--settings")
    time.sleep(3)
    session.desktop.key("ctrl+3")
    session.act("Encrypt what is stored")
    store = session.ravelo.folder / "store.json"
    wait_for(lambda: store.read_bytes().startswith(b"Ravelo\x1a") == on,
             "an encrypted store" if on else "a plain store")
    session.desktop.key("Escape")


def encryption(session):
    keyring = session.desktop.spawn(
        "gnome-keyring-daemon", "--foreground", "--components=secrets", "--unlock",
        stdin=subprocess.PIPE, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    keyring.stdin.write(b"password")
    keyring.stdin.close()
    time.sleep(2)
    session.restart()
    session.copy_plain("before zuckerhut")
    switch_encryption(session, True)
    yield "a text from before it was encrypted", "before zuckerhut", False
    session.desktop.copy_text("encrypted zuckerhut")
    time.sleep(1)
    session.restart(**session.ravelo.preferences())
    yield "a text copied since, after a restart", "encrypted zuckerhut", False
    switch_encryption(session, False)
    yield "the same once it is turned off", "encrypted zuckerhut", True


def erase(session):
    session.ravelo.call("erase", "--yes")
    wait_for(session.ravelo.has_ended, "its end")
    yield "after `ravelo erase --yes`, anything", "zuckerhut", False


CHECKS = {"Pause": pause, "Ignore the next copy": ignore_next, "Ignored program": ignored_program,
          "Ignored pattern": ignored_pattern, "Keep for 1 day": keep_for, "Texts up to 16 MB": caps,
          "Encrypt what is stored": encryption, "Erase everything": erase}


def in_panel(session, marker):
    if session.ravelo.has_ended():
        return "it has ended"
    try:
        rows = [name for name in session.shown() if marker in name]
    except subprocess.TimeoutExpired:
        return "not read within a minute"
    return "shown" if rows else "nothing"


def report(session, wanted=()):
    """Prints a table; returns the number of failures."""
    print("\n| setting | what was copied | found in | in the panel |\n|---|---|---|---|")
    failures = 0
    for name, check in CHECKS.items():
        if wanted and name not in wanted:
            continue
        try:
            if session.ravelo.has_ended():
                session.ravelo.start()
            for what, marker, kept in check(session):
                time.sleep(2)  # Longer than a save takes.
                files = session.files_with(marker)
                failures += bool(files) != kept
                print(f"| {name} | {what} | {', '.join(files) or 'no file'} | "
                      f"{in_panel(session, marker)} |", flush=True)
        except AssertionError as error:
            print(f"| {name} | **{error}** | | |", flush=True)
            failures += 1
    return failures
