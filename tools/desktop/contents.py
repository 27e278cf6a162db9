"""Checks of what goes into it and out of it, the same on X11 and Wayland."""

import base64
import json
import subprocess
import time

from desktop import HERE
from surroundings import until

ROWS, ROW = 300, 40  # The middle of the first row of the list, and the height of each.
PASSWORD = {"text/plain": b"a password", "x-kde-passwordManagerHint": b"secret"}


def expect_newest(on, text):
    until(lambda: on.ravelo.texts()[:1] == [text],
          lambda: f"{text!r} in store.json; there is {on.ravelo.texts()[:3]}")


def copies(on):
    """What a program copied is stored, and a click copies it back."""
    for text in ("copied first", "copied next"):
        on.desktop.copy_text(text)
        expect_newest(on, text)
    on.desktop.click(on.open_panel() + 300, ROWS + ROW)
    until(lambda: on.desktop.paste_text() == "copied first",
          lambda: f"the clip to paste; there is {on.desktop.paste_text()!r}")


def secret(on):
    """A password with the mark of its manager is not stored."""
    peer = on.desktop.peer("/usr/bin/python3", HERE / "qt_clip_peer.py", "#204060", stdin=subprocess.PIPE)
    try:
        on.focus_middle()
        forms = {kind: base64.b64encode(data).decode() for kind, data in PASSWORD.items()}
        peer.stdin.write(json.dumps({"copy": forms}) + "\n")
        peer.stdin.flush()
        assert peer.stdout.readline() == "true\n", "it does not copy"
        until(lambda: on.desktop.paste_text() == "a password", "the password on the clipboard")
        on.desktop.copy_text("after the password")  # Now: at its end Mutter copies again what was before.
        expect_newest(on, "after the password")
    finally:
        peer.kill()
        peer.wait()
    stored = [file for file in on.desktop.home.rglob("Ravelo/**/*")
              if file.is_file() and b"a password" in file.read_bytes()]
    assert not stored, f"the password is in {stored}"


def drag_out(on):
    """A clip dragged from the panel into a text field of another program."""
    on.desktop.copy_text("dragged out")
    expect_newest(on, "dragged out")
    with on.field() as (expect_text, field):
        left = on.open_panel()
        time.sleep(0.5)  # For the rows.
        on.desktop.drag((left + 300, ROWS), field)
        time.sleep(0.5)  # For the drag to begin, which is noticed at the next motion.
        on.desktop.move(field[0] + 1, field[1])
        time.sleep(0.5)  # For the field to accept it.
        on.desktop.release()
        expect_text("dragged out", "after the drop")


CHECKS = (copies, secret, drag_out)
