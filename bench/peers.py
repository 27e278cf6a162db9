"""The same work with other clipboard managers, observed from outside.

Each row has this program's value, with the other program's as the reference.
"""

import collections
import shutil
import subprocess
import time

from common import (BUILD, PICTURE, PICTURES, TEXT, TEXTS, Copying, Desktop, Row, memory,
                    picture_files, text_files, use_a_second)

# Name and command to start it in the foreground.
PEERS = {"copyq": ["copyq"], "clipman": ["xfce4-clipman"], "diodon": ["diodon"]}

Life = collections.namedtuple("Life", "noticing started texts pictures use")


def live(command, seconds):
    """Resource usage from start on. `pictures` is None if the program requests none."""
    with Desktop() as desktop:
        desktop.env["RAVELO_CORE_DUMPS"] = "1"  # Or only root can read its memory.
        first = text_files(desktop, 1)
        copying = Copying(desktop, TEXT, first, every=20)
        begun = time.monotonic()
        process = desktop.spawn(*command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        copying.wait()
        noticing = 1000 * (copying.asked[0] - begun)
        time.sleep(5)  # For work after the start.
        started = memory(process)
        Copying(desktop, TEXT, text_files(desktop, TEXTS, start=1)).wait()
        time.sleep(3)
        texts = memory(process)
        try:
            Copying(desktop, PICTURE, picture_files(desktop, PICTURES)).wait()
            time.sleep(3)
            pictures = memory(process)
        except AssertionError:
            pictures = None
        used = use_a_second(process, seconds)
        assert process.poll() is None, f"{command[0]} has ended"
        return Life(noticing, started, texts, pictures, used)


def rows(name, own, other):
    def row(what, figure, unit):
        return Row(f"beside {name}: {what}", figure(own), unit, None, figure(other))

    yield row("start till it reads a copy", lambda life: life.noticing, "ms")
    yield row("PSS after the start", lambda life: life.started.pss, "MB")
    yield row(f"PSS after {TEXTS} texts", lambda life: life.texts.pss, "MB")
    if other.pictures:
        yield row(f"PSS after {PICTURES} pictures", lambda life: life.pictures.pss, "MB")
    yield row("RSS in the end", lambda life: (life.pictures or life.texts).rss, "MB")
    yield row("wake-ups", lambda life: life.use.wakeups, "/s")
    yield row("processor", lambda life: 100 * life.use.seconds, "% core")


def peers(options):
    own = live([BUILD / "ravelo"], options.rest)
    for name, command in PEERS.items():
        if shutil.which(command[0]):
            try:
                yield from rows(name, own, live(command, options.rest))
            except AssertionError as error:  # Some do not run everywhere.
                print(f"{name}: {error}", flush=True)
