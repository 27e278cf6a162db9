"""What scripts/bench measures: each measurement is a function that gives rows of the table."""

import collections
import contextlib
import itertools
import json
import pathlib
import statistics
import subprocess
import sys
import time
import uuid

ROOT = pathlib.Path(__file__).resolve().parent.parent
BUILD = ROOT / "build/release"
sys.path.insert(0, str(ROOT / "tests/program"))
from desktop import Desktop, Ravelo, wait_for  # noqa: E402

# `budget` and `reference` (the same figure of what it is compared with) may be unknown.
Row = collections.namedtuple("Row", "name value unit budget reference", defaults=(None, None))

PINNED, UNPINNED, IMAGES = 5, 60, 6


def clip(number, **more):
    kind, text = [
        ("text", f"A sentence that somebody copied for later, number {number}"),
        ("url", f"https://www.example.org/articles/{number}"),
        ("text", f"def number_{number}():\n    return {number}\n"),
    ][number % 3]
    return {"id": str(uuid.uuid4()).upper(), "kind": kind, "text": text, "pinned": False,
            "date": time.time() - 978307200 - 1000 * number, **more}


def fill(desktop, ravelo, clips=None):
    """Makes a store of many clips out of one that the program has seeded itself."""
    ravelo.start()
    desktop.copy_text("the first")
    wait_for(ravelo.store, "store.json")
    assert ravelo.call("--quit")[0] == 0, "ravelo --quit did not work"
    wait_for(ravelo.has_ended, "the end of the program")
    clips = clips or usual_clips(desktop, ravelo)
    file = ravelo.folder / "store.json"
    file.write_text(json.dumps({**ravelo.store(), "clips": clips}))


def usual_clips(desktop, ravelo):
    clips = [clip(n, pinned=n < PINNED) for n in range(PINNED + UNPINNED)]
    for shown in clips[PINNED:PINNED + IMAGES]:
        name = f"{shown['id']}.png"
        desktop.run("convert", "-size", "1280x800", "plasma:", ravelo.folder / "clips" / name)
        shown.update(kind="image", text="Image", imageFileName=name)
    return clips


@contextlib.contextmanager
def running(program):
    """A program with a full store, its panel closed, on a desktop of its own."""
    with Desktop() as desktop:
        fill(desktop, Ravelo(desktop, BUILD / "ravelo"))
        ravelo = Ravelo(desktop, BUILD / program).start()
        desktop.copy_text("one more")  # What is written then is what was read.
        wait_for(lambda: len(ravelo.clips()) == PINNED + UNPINNED, "a history as full as it gets")
        yield desktop, ravelo


# Openings.

def opened(desktop, window, process, count, how="pointer"):
    """Milliseconds of each opening: until the window has its size, until it shows everything."""
    output = subprocess.run([BUILD / "bench/bench_openings", str(window), str(process.pid),
                             str(count), how], env=desktop.env, stdout=subprocess.PIPE, text=True,
                            check=True).stdout
    rows = [[float(word) for word in line.split()] for line in output.splitlines()]
    assert len(rows) == count, f"{len(rows)} openings of {count}"
    return [list(column) for column in zip(*rows)]


def p95(values):
    return statistics.quantiles(values, n=20, method="inclusive")[-1]


def openings(options):
    count = options.openings + 1
    with running("ravelo") as (desktop, ravelo):
        window = ravelo.panel().window
        sized, shown = opened(desktop, window, ravelo.process, count)
        _, called = opened(desktop, window, ravelo.process, count, "call")
    with Desktop() as desktop:
        client = desktop.spawn(BUILD / "bench/bench_reference", stdout=subprocess.PIPE, text=True)
        window = int(client.stdout.readline())
        trivially_sized, trivially = opened(desktop, window, client, count)

    def row(name, figure, values, reference, budget=None):
        return Row(f"opening: {name}", figure(values), "ms", budget, figure(reference))

    later, reference = shown[1:], trivially[1:]
    return [
        row("content shown, median", statistics.median, later, reference, 25),
        row("content shown, p95", p95, later, reference, 40),
        row("content shown, the first", lambda values: values[0], shown, trivially),
        row("window resized, median", statistics.median, sized[1:], trivially_sized[1:]),
        Row("opening by call: content, median", statistics.median(called[1:]), "ms", 6),
        Row("opening by call: content, p95", p95(called[1:]), "ms", 12),
    ]


# Typing.

WORDS = ["invoice", "zqx", "paragraph 417", "e", "the end"]


def long_clips():
    """5,000 pinned ones of 10 KB, a tenth of them not ASCII, and one of 5 MB."""
    lines = [f"Paragraph {n} of a long text that somebody keeps, an invoice perhaps. " for n in
             range(5000)]
    for n, line in enumerate(lines):
        start = "Größe, " if n % 10 == 0 else ""
        yield clip(n, kind="text", pinned=True, text=(start + line * 200)[:10240])
    yield clip(5000, kind="text", pinned=True, text=(lines[1] * 80000)[:5 << 20])


def typing(_):
    with Desktop() as desktop:
        fill(desktop, Ravelo(desktop, BUILD / "ravelo"), list(long_clips()))
        ravelo = Ravelo(desktop, BUILD / "ravelo").start()
        time.sleep(5)  # Whatever the start left to do.
        output = subprocess.run([BUILD / "bench/bench_typing", str(ravelo.panel().window),
                                 str(ravelo.process.pid), *WORDS], env=desktop.env, text=True,
                                stdout=subprocess.PIPE, check=True).stdout
    times = [float(line) for line in output.splitlines()]
    return [Row("typing: key to frame, median", statistics.median(times), "ms"),
            Row("typing: key to frame, p95", p95(times), "ms", 33),
            Row("typing: key to frame, worst", max(times), "ms")]


# Scrolling.

SCROLLED = 5  # Seconds.


def short_clips():
    return [clip(n, pinned=True) for n in range(1000)]


def frame_times(clips):
    """Milliseconds from frame to frame while the list is scrolled, and the part of a core used."""
    with Desktop() as desktop:
        fill(desktop, Ravelo(desktop, BUILD / "ravelo"), clips)
        ravelo = Ravelo(desktop, BUILD / "ravelo").start()
        time.sleep(5)  # Whatever the start left to do.
        before = use(ravelo.process)
        output = subprocess.run([BUILD / "bench/bench_scrolling", str(ravelo.panel().window),
                                 str(SCROLLED)], env=desktop.env, text=True,
                                stdout=subprocess.PIPE, check=True).stdout
        seconds = use(ravelo.process).seconds - before.seconds
    times = [float(line) for line in output.splitlines()]
    # What is drawn in several pieces is one frame.
    whole = [b for a, b in itertools.pairwise([-1000, *times]) if b - a > 4]
    assert len(whole) > 10 * SCROLLED, f"{len(whole)} frames in {SCROLLED} s: nothing scrolls"
    return [b - a for a, b in itertools.pairwise(whole)], 100 * seconds / SCROLLED


def scrolling(_):
    times, processor = frame_times(list(long_clips()))
    short_times, short_processor = frame_times(short_clips())
    return [
        Row("scrolling: frame to frame, median", statistics.median(times), "ms", 17,
            statistics.median(short_times)),
        Row("scrolling: frame to frame, p95", p95(times), "ms", None, p95(short_times)),
        Row("scrolling: processor", processor, "% core", None, short_processor),
    ]


# Rest.

Use = collections.namedtuple("Use", "voluntary involuntary seconds")


def use(process):
    """What all threads of a process have used up to now."""
    total = [0, 0, 0]
    for thread in pathlib.Path(f"/proc/{process.pid}/task").iterdir():
        status = dict(line.split(":\t", 1) for line in (thread / "status").read_text().splitlines()
                      if "ctxt_switches" in line)
        total[0] += int(status["voluntary_ctxt_switches"])
        total[1] += int(status["nonvoluntary_ctxt_switches"])
        total[2] += int((thread / "schedstat").read_text().split()[0]) / 1e9
    return Use(*total)


def resting(program, seconds, timing=False):
    """What it uses in a second with the panel closed and nothing going on but perhaps a timer."""
    with running(program) as (_, ravelo):
        if timing:
            assert ravelo.call("timer", "start", "60", "Deep work")[0] == 0, "no timer runs"
        time.sleep(5)  # Whatever the start left to do.
        threads = len(list(pathlib.Path(f"/proc/{ravelo.process.pid}/task").iterdir()))
        before, begin = use(ravelo.process), time.monotonic()
        time.sleep(seconds)
        after, passed = use(ravelo.process), time.monotonic() - begin
        assert timing or ravelo.is_collapsed(), "the panel is not closed any more"
        return Use(*((b - a) / passed for a, b in zip(before, after))), threads


def rest(options):
    resting_use, threads = resting("ravelo", options.rest)
    ticking_use, _ = resting("bench/bench_ticking", options.rest)
    timing_use, _ = resting("ravelo", options.rest, timing=True)
    woken, more = (u.voluntary + u.involuntary for u in (resting_use, timing_use))

    def row(name, figure, unit, budget=None):
        return Row(f"at rest: {name}", figure(resting_use), unit, budget, figure(ticking_use))

    return [
        row(f"wake-ups of {threads} threads", lambda u: u.voluntary + u.involuntary, "/s", 5),
        row("  of these involuntary", lambda u: u.involuntary, "/s"),
        row("processor", lambda u: 100 * u.seconds, "% core", 0.1),
        Row("with a timer: more wake-ups", more - woken, "/s", 3),
        Row("with a timer: processor", 100 * timing_use.seconds, "% core"),
    ]


# Transcripts.

def transcripts(options):
    """6,000 transcripts, compared with what find(1) needs to name them."""
    output = subprocess.run([BUILD / "bench/bench_transcripts", str(options.openings)], check=True,
                            stdout=subprocess.PIPE, text=True).stdout
    rows = [[float(word) for word in line.split()] for line in output.splitlines()]
    first, find, idle = (statistics.median(column) for column in zip(*rows))
    return [Row("transcripts: first look, median", first, "ms", 3 * find, find),
            Row("transcripts: nothing new, processor", idle, "ms", 1)]


MEASUREMENTS = [openings, typing, scrolling, rest, transcripts]
