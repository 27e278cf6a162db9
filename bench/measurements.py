"""Measurements of the panel and of the program at rest."""

import itertools
import statistics
import subprocess
import tempfile
import time

from common import (BUILD, Desktop, Ravelo, Row, clip, drive, fill, p95, running, use, use_a_second)


# Openings.

def opened(desktop, window, process, count, how="pointer"):
    """Milliseconds of each opening: until the window has its size, until it shows the picture of its
    content, and until it shows everything."""
    columns = drive(desktop, "openings", window, process.pid, count, how)
    assert len(columns[0]) == count, f"{len(columns[0])} openings of {count}"
    return columns


def openings(options):
    count = options.openings + 1
    with running("ravelo") as (desktop, ravelo):
        window = ravelo.panel().window
        time.sleep(60)  # The newest row counts seconds until then, and each would be a new detail.
        sized, pictured, shown = opened(desktop, window, ravelo.process, count)
        _, picture_called, called = opened(desktop, window, ravelo.process, count, "call")
    with Desktop() as desktop:
        client = desktop.spawn(BUILD / "bench/bench_reference", stdout=subprocess.PIPE, text=True)
        window = int(client.stdout.readline())
        trivially_sized, _, trivially = opened(desktop, window, client, count)

    def row(name, figure, values, reference, budget=None):
        return Row(f"opening: {name}", figure(values), "ms", budget, figure(reference))

    later, reference = shown[1:], trivially[1:]
    return [
        row("picture shown, median", statistics.median, pictured[1:], reference, 15),
        row("picture shown, the first", lambda values: values[0], pictured, trivially, 40),
        row("content shown, median", statistics.median, later, reference, 25),
        row("content shown, p95", p95, later, reference, 40),
        row("content shown, the first", lambda values: values[0], shown, trivially),
        row("window resized, median", statistics.median, sized[1:], trivially_sized[1:]),
        row("picture shown by call, median", statistics.median, picture_called[1:], reference, 4),
        row("content shown by call, median", statistics.median, called[1:], reference, 12),
        row("content shown by call, p95", p95, called[1:], reference),
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
        time.sleep(5)  # For work after the start.
        frames, results = drive(desktop, "typing", ravelo.panel().window, ravelo.process.pid, *WORDS)
    return [Row("typing: key to frame, median", statistics.median(frames), "ms"),
            Row("typing: key to frame, p95", p95(frames), "ms", 16),
            Row("typing: key to frame, worst", max(frames), "ms", 33),
            Row("typing: key to result, median", statistics.median(results), "ms"),
            Row("typing: key to result, with what fades in, p95", p95(results), "ms", 400)]


# Scrolling.

SCROLLED = 5  # Seconds.


def short_clips():
    return [clip(n, pinned=True) for n in range(1000)]


def frame_times(clips):
    """Milliseconds between frames while scrolling, and CPU usage."""
    with Desktop() as desktop:
        fill(desktop, Ravelo(desktop, BUILD / "ravelo"), clips)
        ravelo = Ravelo(desktop, BUILD / "ravelo").start()
        time.sleep(5)  # For work after the start.
        before = use(ravelo.process)
        (times,) = drive(desktop, "scrolling", ravelo.panel().window, SCROLLED)
        seconds = use(ravelo.process).seconds - before.seconds
    # Several updates can be one frame.
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

# Until no row counts seconds, no caret blinks and no ravelo-decode waits for more pictures.
SETTLED = 62


def resting(program, seconds, state="collapsed"):
    """Usage per second at rest: closed, open, or with a timer."""
    with running(program) as (_, ravelo):
        time.sleep(5)  # For work after the start.
        if state == "timer":
            assert ravelo.call("timer", "start", "60", "Deep work")[0] == 0, "no timer runs"
        elif state == "open":
            assert ravelo.call("--toggle")[0] == 0, "the panel does not open"
        time.sleep(SETTLED)
        used = use_a_second(ravelo.process, seconds)
        as_it_was = {"collapsed": ravelo.is_collapsed, "open": ravelo.is_open}.get(state)
        assert not as_it_was or as_it_was(), f"the panel is not {state} any more"
        return used


def rest(options):
    reference = resting("bench/bench_ticking", options.rest)
    for state in "collapsed", "open", "timer":
        used = resting("ravelo", options.rest, state)
        compared = reference if state == "collapsed" else None

        def row(name, figure, unit, budget):
            return Row(f"at rest, {state}: {name}", figure(used), unit,
                       budget, compared and figure(compared))

        yield row("wake-ups", lambda u: u.wakeups, "/s",
                  {"collapsed": 0.5, "open": 1, "timer": 1.2}[state])
        yield row("preempted", lambda u: u.preemptions, "/s", None)
        yield row("processor", lambda u: 100 * u.seconds, "% core",
                  {"collapsed": 0.1, "open": 0.5, "timer": 0.5}[state])


# Transcripts.

def transcripts(options):
    """6,000 transcripts, compared with find(1)."""
    output = subprocess.run([BUILD / "bench/bench_transcripts", str(options.openings)], check=True,
                            stdout=subprocess.PIPE, text=True).stdout
    rows = [[float(word) for word in line.split()] for line in output.splitlines()]
    first, find, idle = (statistics.median(column) for column in zip(*rows))
    return [Row("transcripts: first look, median", first, "ms", 3 * find, find),
            Row("transcripts: nothing new, processor", idle, "ms", 1)]


# Thumbnails.

THUMBNAILS = 60


def thumbnails(options):
    """By ravelo-decode, compared with decoding in the program."""
    with tempfile.TemporaryDirectory() as folder:
        for number in range(THUMBNAILS):
            subprocess.run(["convert", "-size", "1280x800", "plasma:", "-seed", str(number),
                            f"{folder}/{number}.png"], check=True)
        times = {"here": [], "there": []}
        for where in itertools.chain(*itertools.repeat(times, options.openings)):
            output = subprocess.run([BUILD / "bench/bench_thumbnails", where, folder], check=True,
                                    stdout=subprocess.PIPE, text=True).stdout
            times[where].append([float(word) for word in output.split()])
    for name, column in ("first", 0), ("last", 1):
        there, here = (statistics.median(row[column] for row in times[where])
                       for where in ("there", "here"))
        yield Row(f"thumbnails: the {name} of {THUMBNAILS}, median", there, "ms", here, here)
