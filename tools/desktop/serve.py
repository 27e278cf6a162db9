"""Brings up a desktop for a test program, prints its $DISPLAY, and removes it when standard input
ends.

    serve.py plain      an X server
    serve.py monitors   with openbox and two monitors: DUMMY0 of 1920x1080 and, right of it, DUMMY1
                        of 1280x1024
"""

import sys

from desktop import MAIN, OPENBOX, Desktop, Monitor, wait_for, xorg_with_outputs, xvfb


def main(kind):
    monitors = kind == "monitors"
    with Desktop(OPENBOX if monitors else None, xorg_with_outputs if monitors else xvfb) as desktop:
        if monitors:
            desktop.run("xrandr", "--output", MAIN.output, "--mode", "1920x1080")
            wait_for(lambda: desktop.monitor(MAIN.output).width == 1920, "1920x1080")
            desktop.show(Monitor("DUMMY1", 1920, 0, 1280, 1024))
        print(desktop.env["DISPLAY"], flush=True)
        sys.stdin.read()


main(sys.argv[1])
