"""Measurements of start, capture, saving and memory."""

import statistics
import subprocess
import time

from common import (BUILD, PICTURE, PICTURES, TEXT, TEXTS, Copying, Desktop, Ravelo, Row,
                    add_transcripts, drive, fill, memory, p95, picture_files, running, text_files,
                    wait_for)

STARTS = 11
SAVE_DELAY = 0.4  # Seconds.


def start(_):
    """Time to the handle's first frame. The first start warms the disk cache."""
    with Desktop() as desktop:
        add_transcripts(desktop)
        fill(desktop, Ravelo(desktop, BUILD / "ravelo"))
        (times,) = drive(desktop, "starting", STARTS, BUILD / "ravelo")
    return [Row("start to first frame, median", statistics.median(times[1:]), "ms", 120),
            Row("start to first frame, worst", max(times[1:]), "ms")]


# Capture.

def until(condition, expected):
    """When it became true, within half a millisecond."""
    end = time.monotonic() + 20
    while not condition():
        assert time.monotonic() < end, f"not within 20 s: {expected}"
        time.sleep(0.0005)
    return time.monotonic()


def saved(desktop, ravelo, file):
    """Seconds from copying a text until it is in store.json."""
    path = ravelo.folder / "store.json"
    before = path.stat().st_ino  # Each save is a new file.
    copying = Copying(desktop, TEXT, [file])
    done = until(lambda: path.stat().st_ino != before, "a save")
    copying.wait()
    assert file.read_text() in ravelo.texts(), "something else was saved"
    return done - copying.copied[0]


def kept(desktop, ravelo, file):
    """Seconds from copying a picture until its file exists."""
    folder = ravelo.folder / "clips"
    before = len(list(folder.glob("*.png")))
    copying = Copying(desktop, PICTURE, [file])
    done = until(lambda: len(list(folder.glob("*.png"))) > before, "a picture's file")
    copying.wait()
    return done - copying.copied[0]


def capture(options):
    count = max(options.openings // 5, 2)
    with running("ravelo") as (desktop, ravelo):
        texts = [1000 * saved(desktop, ravelo, file) for file in text_files(desktop, count)]
        pictures = []
        for file in picture_files(desktop, count):
            pictures.append(1000 * kept(desktop, ravelo, file))
            time.sleep(1)  # Expired clips are deleted at the next save.
    own = [value - 1000 * SAVE_DELAY for value in texts]
    return [Row("capture: text in store.json, median", statistics.median(texts), "ms"),
            Row("  but for the 0.4 s a save waits", statistics.median(own), "ms", 20),
            Row("  the same, p95", p95(own), "ms"),
            Row("capture: picture of 1 MB, median", statistics.median(pictures), "ms")]


# Memory.

def settled(process):
    time.sleep(3)  # For work in progress.
    return memory(process)


def growth(options):
    """One run of a program from an empty store to a full one."""
    with Desktop() as desktop:
        add_transcripts(desktop)
        desktop.env["RAVELO_CORE_DUMPS"] = "1"  # Or only root can read its memory.
        ravelo = Ravelo(desktop, BUILD / "ravelo").start()
        seen = {"after the start": settled(ravelo.process)}
        Copying(desktop, TEXT, text_files(desktop, TEXTS)).wait()
        seen[f"after {TEXTS} texts"] = settled(ravelo.process)
        Copying(desktop, PICTURE, picture_files(desktop, PICTURES)).wait()
        wait_for(lambda: [kind for kind, _ in ravelo.clips()].count("image") == PICTURES,
                 f"{PICTURES} pictures")
        seen[f"after {PICTURES} pictures of 1 MB"] = settled(ravelo.process)
        count = 4 * options.openings
        drive(desktop, "openings", ravelo.panel().window, ravelo.process.pid, count, "pointer")
        seen[f"after {count} openings"] = settled(ravelo.process)
        last = list(seen)[-1]
    for when, used in seen.items():
        yield Row(f"RSS {when}", used.rss, "MB", 60 if when == last else None)
        yield Row(f"PSS {when}", used.pss, "MB")


def saving(options):
    output = subprocess.run([BUILD / "bench/bench_saving", str(options.openings)], check=True,
                            stdout=subprocess.PIPE, text=True).stdout
    own, whole = zip(*([float(word) for word in line.split()] for line in output.splitlines()))
    return [Row("save of 65 x 64 KB: main thread", statistics.median(own), "ms", 4),
            Row("  the same, p95", p95(own), "ms"),
            Row("save of 65 x 64 KB: whole, median", statistics.median(whole), "ms")]
