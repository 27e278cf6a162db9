"""Shared by the measurements: table rows, programs with a full store, resource usage."""

import collections
import contextlib
import json
import os
import pathlib
import statistics
import subprocess
import sys
import time
import uuid

ROOT = pathlib.Path(__file__).resolve().parent.parent
BUILD = ROOT / "build/release"
sys.path.insert(0, str(ROOT / "tools/desktop"))
from desktop import Desktop, Ravelo, wait_for  # noqa: E402

# `reference` is the same value of what it is compared with.
Row = collections.namedtuple("Row", "name value unit budget reference", defaults=(None, None))

PINNED, UNPINNED, IMAGES = 5, 60, 6


def clip(number, **more):
    # So old that the age that is shown does not change during a measurement: such a change would
    # be taken for a detail that the panel had shown late.
    kind, text = [
        ("text", f"A sentence that somebody copied for later, number {number}"),
        ("url", f"https://www.example.org/articles/{number}"),
        ("text", f"def number_{number}():\n    return {number}\n"),
    ][number % 3]
    return {"id": str(uuid.uuid4()).upper(), "kind": kind, "text": text, "pinned": False,
            "date": time.time() - 978307200 - 4500 - 30 * number, **more}


def fill(desktop, ravelo, clips=None):
    """Adds many clips to a store that the program has created."""
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


def add_transcripts(desktop):
    """A year of sessions: 6,000 files that the program watches."""
    subprocess.run([BUILD / "bench/bench_transcripts", desktop.home], check=True)


@contextlib.contextmanager
def running(program):
    """A program with a full store and 6,000 transcripts, closed, on a private desktop."""
    with Desktop() as desktop:
        add_transcripts(desktop)
        fill(desktop, Ravelo(desktop, BUILD / "ravelo"))
        ravelo = Ravelo(desktop, BUILD / program).start()
        desktop.copy_text("one more")  # Proves that the store was read.
        wait_for(lambda: len(ravelo.clips()) == PINNED + UNPINNED, "a history as full as it gets")
        yield desktop, ravelo


def drive(desktop, name, *arguments):
    """Runs a driver of this folder and returns its numbers by column."""
    output = subprocess.run([BUILD / f"bench/bench_{name}", *map(str, arguments)], env=desktop.env,
                            stdout=subprocess.PIPE, text=True, check=True).stdout
    rows = [[float(word) for word in line.split()] for line in output.splitlines()]
    return [list(column) for column in zip(*rows)]


def p95(values):
    return statistics.quantiles(values, n=20, method="inclusive")[-1]


# Resource usage.

# Whoever sleeps and wakes again has switched voluntarily; who is preempted was awake.
Use = collections.namedtuple("Use", "wakeups preemptions seconds")
Memory = collections.namedtuple("Memory", "rss pss")  # Megabytes (10^6 bytes).


def family(process):
    """The IDs of a process and its descendants."""
    known = [process.pid]
    for parent in known:
        for task in pathlib.Path(f"/proc/{parent}/task").iterdir():
            known += [int(child) for child in (task / "children").read_text().split()]
    return known


def uses(process):
    """The usage so far of each thread of a process and its descendants."""
    found = {}
    for member in family(process):
        for thread in pathlib.Path(f"/proc/{member}/task").iterdir():
            with contextlib.suppress(FileNotFoundError, ProcessLookupError):  # It has just ended.
                status = dict(line.split(":\t", 1)
                              for line in (thread / "status").read_text().splitlines()
                              if "ctxt_switches" in line)
                found[thread.name] = Use(int(status["voluntary_ctxt_switches"]),
                                         int(status["nonvoluntary_ctxt_switches"]),
                                         int((thread / "schedstat").read_text().split()[0]) / 1e9)
    return found


def use(process):
    """The total of `uses`."""
    return Use(*map(sum, zip(*uses(process).values())))


def use_a_second(process, seconds):
    """Usage per second, without threads that ended meanwhile."""
    before, begin = uses(process), time.monotonic()
    time.sleep(seconds)
    after, passed = uses(process), time.monotonic() - begin
    pairs = [(before.get(thread, Use(0, 0, 0)), now) for thread, now in after.items()]
    return Use(*(sum(now[part] - then[part] for then, now in pairs) / passed for part in range(3)))


def memory(process):
    """RSS and PSS of a process and its descendants."""
    sums = collections.Counter()
    for member in family(process):
        for line in pathlib.Path(f"/proc/{member}/smaps_rollup").read_text().splitlines()[1:]:
            name, kilobytes, _ = line.split()
            sums[name] += int(kilobytes) * 1024 / 1e6
    return Memory(sums["Rss:"], sums["Pss:"])


# Programs that copy.

TEXTS, PICTURES = 200, 20
TEXT, PICTURE = "text/plain;charset=utf-8", "image/png"


def text_files(desktop, count, start=0):
    """Files with different texts to copy."""
    files = [desktop.home / f"copied-{number}.txt" for number in range(start, start + count)]
    for file in files:
        file.write_text("\n".join([f"What somebody copies, {file.name}, for elsewhere."] * 5))
    return files


def picture_files(desktop, count):
    """Pictures of 1 MB each, of incompressible noise."""
    files = [desktop.home / f"copied-{number}.png" for number in range(count)]
    for file in files:
        desktop.run("convert", "-size", "700x500", "xc:", "+noise", "Random", file)
    return files


class Copying:
    """Copies files one by one and keeps the clipboard.

    `copied` and `asked` are times of the monotonic clock, in seconds.
    """

    def __init__(self, desktop, kind, files, every=20000):
        self._count = len(files)
        self._process = desktop.spawn(BUILD / "bench/bench_copying", every, kind, *files,
                                      stdout=subprocess.PIPE, text=True)
        self.copied, self.asked = [], []

    def wait(self):
        for _ in range(self._count):
            line = self._process.stdout.readline()
            assert line, "nobody requested the copy"
            copied, asked = (float(word) / 1000 for word in line.split())
            self.copied.append(copied)
            self.asked.append(asked)
        return self


def machine():
    """A one-line description of the machine."""
    processor = next((line.split(": ", 1)[1] for line in
                      pathlib.Path("/proc/cpuinfo").read_text().splitlines()
                      if line.startswith("model name")), "unknown processor")
    memory_size = os.sysconf("SC_PAGE_SIZE") * os.sysconf("SC_PHYS_PAGES") / 1e9
    system = os.uname()
    return (f"{os.cpu_count()} x {processor}, {memory_size:.0f} GB, {system.sysname} "
            f"{system.release}")
