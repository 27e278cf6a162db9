"""Measurements on sway, each with its value on X11 as the reference."""

import re
import statistics
import subprocess
import time

from common import (BUILD, ROOT, Desktop, Ravelo, Row, add_transcripts, fill, memory, p95, use_a_second,
                    wait_for)

from wayland import BACKGROUND, WIDTH, SwayDesktop, WaylandRavelo

HAND = ROOT / "build/dev/tools/virtual_hand/virtual_hand"
AWAY = (200, 760)
OPENINGS = 10  # Before memory is measured.
# libwayland 1.23 writes wl_pointer#3 instead of wl_pointer@3, after the name of the queue.
ENTERED = re.compile(r"\[ *([\d.]+)\] .*wl_pointer[@#]\d+\.enter\(\d+, wl_surface[@#](\d+),")
SIZED = re.compile(r"\[ *[\d.]+\] .*create_buffer\(new id wl_buffer[@#](\d+), -?\d+, \d+, (\d+),")
ATTACHED = re.compile(r"\[ *[\d.]+\] .*wl_surface[@#](\d+)\.attach\(wl_buffer[@#](\d+),")
COMMITTED = re.compile(r"\[ *([\d.]+)\] .*wl_surface[@#](\d+)\.commit\(\)")


def first_frames(log):
    """Milliseconds from each entering of the strip to the commit of the first frame of the open panel,
    from the output of WAYLAND_DEBUG."""
    heights, entered, attached, times = {}, {}, {}, []
    for line in log:
        if found := ENTERED.search(line):
            entered.setdefault(found[2], float(found[1]))
        elif found := SIZED.search(line):
            heights[found[1]] = int(found[2])
        elif found := ATTACHED.search(line):
            attached[found[1]] = heights.get(found[2], 0)
        elif (found := COMMITTED.search(line)) and attached.pop(found[2], 0) > 300 \
                and found[2] in entered:
            times.append(float(found[1]) - entered[found[2]])
            entered[found[2]] = float("inf")  # Until it leaves.
        elif "wl_pointer" in line and ".leave(" in line:
            entered.clear()
    return [time for time in times if time > 0]


def on_sway(seconds):
    with SwayDesktop(HAND) as desktop:
        desktop.env["RAVELO_CORE_DUMPS"] = "1"  # Or only root can read its memory.
        desktop.layer("wallpaper", "#%02x%02x%02x" % BACKGROUND, 0)
        desktop.move(*AWAY)
        add_transcripts(desktop)
        fill(desktop, WaylandRavelo(desktop, BUILD / "ravelo"))
        ravelo = WaylandRavelo(desktop, BUILD / "ravelo").start()

        def opened_and_closed():
            desktop.point(WIDTH // 2, 5)
            wait_for(ravelo.is_open, "the open panel")
            desktop.point(*AWAY)
            wait_for(ravelo.is_collapsed, "the handle")

        return life(ravelo, opened_and_closed, seconds)


def on_x11(seconds):
    with Desktop() as desktop:
        desktop.env["RAVELO_CORE_DUMPS"] = "1"
        add_transcripts(desktop)
        fill(desktop, Ravelo(desktop, BUILD / "ravelo"))
        ravelo = Ravelo(desktop, BUILD / "ravelo").start()

        def opened_and_closed():
            ravelo.open()
            desktop.click(*AWAY)
            wait_for(ravelo.is_collapsed, "the handle")

        return life(ravelo, opened_and_closed, seconds)


def life(ravelo, opened_and_closed, seconds):
    """Memory after the start and after openings, and wake-ups a second at rest."""
    time.sleep(5)
    started = memory(ravelo.process).pss
    for _ in range(OPENINGS):
        opened_and_closed()
    time.sleep(65)  # Until no date counts seconds any more.
    opened = memory(ravelo.process).pss
    used = use_a_second(ravelo.process, seconds)
    return started, opened, used.wakeups


def openings_on_sway(count):
    with SwayDesktop(HAND) as desktop:
        desktop.layer("wallpaper", "#%02x%02x%02x" % BACKGROUND, 0)
        desktop.move(*AWAY)
        fill(desktop, WaylandRavelo(desktop, BUILD / "ravelo"))
        desktop.env["WAYLAND_DEBUG"] = "1"
        ravelo = WaylandRavelo(desktop, BUILD / "ravelo").start()
        del desktop.env["WAYLAND_DEBUG"]
        for _ in range(count):
            time.sleep(1)  # The next content is ready.
            desktop.point(WIDTH // 2, 5)
            wait_for(ravelo.is_open, "the open panel")
            desktop.point(*AWAY)
            wait_for(ravelo.is_collapsed, "the handle")
        return first_frames(ravelo.log.read_text(errors="replace").splitlines())


def wayland(options):
    subprocess.run([ROOT / "scripts/packages", "wayland", "desktops"], check=True)
    subprocess.run([ROOT / "scripts/build", "dev", "virtual_hand"], check=True)
    times = openings_on_sway(options.openings)
    assert len(times) > options.openings / 2, f"{len(times)} openings of {options.openings} seen"
    yield Row("sway: strip entered to first frame, median", statistics.median(times), "ms", 20)
    yield Row("sway: the same, p95", p95(times), "ms")
    here, there = on_sway(options.rest), on_x11(options.rest)
    names = ("PSS after the start", f"PSS after {OPENINGS} openings", "at rest, wake-ups")
    for name, unit, value, reference in zip(names, ("MB", "MB", "/s"), here, there):
        yield Row(f"sway: {name}", value, unit, reference if unit == "MB" else reference + 0.5, reference)
