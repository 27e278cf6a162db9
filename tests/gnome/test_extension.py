"""The extension on a real GNOME Shell, with a stand-in for Ravelo. Run by scripts/gnome."""

import json
import pathlib
import subprocess
import sys
import threading
import unittest

from gi.repository import GLib

import shell
from shell import until

HERE = pathlib.Path(__file__).parent

# Counts connections to what the extension watches, from now on.
COUNT_CONNECTIONS = """
    kept.connections = kept.onStage = 0;
    for (const object of [Main.layoutManager, global.display, global.display.get_selection(), global.stage,
        global.window_manager]) {
        const {connect, disconnect} = object;
        object.connect = function (...all) { kept.connections++; return connect.apply(this, all); };
        object.disconnect = function (...all) { kept.connections--; return disconnect.apply(this, all); };
        if (object === global.stage) {
            const {connect: count} = object;
            object.connect = function (...all) { kept.onStage++; return count.apply(this, all); };
        }
    }
"""

# What the extension may leave behind.
TRACES = """
    return {connections: kept.connections, actors: Main.layoutManager.uiGroup.get_n_children(),
        tracked: Main.layoutManager._trackedActors.length, monitors: DND.dragMonitors?.length ?? 0,
        strips: Main.layoutManager.uiGroup.get_children().filter(one => one.name === 'ravelo-edge').length};
"""


class Peer:
    """A process in the shell's session whose lines are collected."""

    def __init__(self, session, *command):
        self.process = subprocess.Popen([sys.executable, *map(str, command)], stdin=subprocess.PIPE,
                                        stdout=subprocess.PIPE, text=True, env=session.environment,
                                        preexec_fn=shell.end_with_us)
        session.processes.append(self.process)
        self.lines = []
        threading.Thread(target=self.collect, daemon=True).start()

    def collect(self):
        for line in self.process.stdout:
            self.lines.append(line)

    def messages(self, kind):
        return [one for one in map(json.loads, list(self.lines)) if one["is"] == kind]

    def send(self, **message):
        self.process.stdin.write(json.dumps(message) + "\n")
        self.process.stdin.flush()

    def end(self):
        self.process.kill()
        self.process.wait()


class ExtensionCase(unittest.TestCase):
    monitors = ("1280x800",)

    @classmethod
    def setUpClass(cls):
        cls.session = cls.enterClassContext(shell.Shell(monitors=cls.monitors))
        cls.session.run(COUNT_CONNECTIONS)

    def tearDown(self):
        self.session.run("button(false); move(600, 500);")

    def ravelo(self, *arguments):
        peer = Peer(self.session, HERE / "ravelo_peer.py", *arguments)
        self.addCleanup(peer.end)
        return peer

    def attached(self):
        peer = self.ravelo()
        until(lambda: peer.messages("screens"), "the extension connects and reports")
        return peer

    def client(self, *arguments):
        peer = Peer(self.session, HERE / "client.py", *arguments)
        self.addCleanup(peer.end)
        until(lambda: (self.window(arguments[0]) or {}).get("focus"), f"{arguments[0]} has the focus", 30)
        if {"--copy", "--image", "--secret", "--types"} & set(arguments):
            self.session.run("await key(Clutter.KEY_F5)")
            until(lambda: "copied\n" in peer.lines, f"{arguments[0]} copies")
        return peer

    def window(self, title):
        return next((one for one in self.session.run("return windows()") if one["title"] == title and one["visible"]), None)


class ExtensionTest(ExtensionCase):
    def test_connects_to_the_owner_of_the_name_and_rests_after_it(self):
        before = self.session.run(TRACES)
        peer = self.attached()
        self.assertEqual(peer.messages("hello"), [{"is": "hello", "version": 2}])
        screen = peer.messages("screens")[0]["screens"][0]
        self.assertEqual(screen["frame"], [0, 0, 1280, 800])
        self.assertGreater(screen["free"][1], 10, "the bar is known")
        self.assertEqual(self.session.run(TRACES)["strips"], 1)
        self.assertEqual(self.session.run("return kept.onStage"), 0, "it sees each event while no panel is shown")
        peer.end()
        until(lambda: self.session.run(TRACES) == before, "nothing is left once Ravelo is gone", 2)

    def test_refuses_impostors(self):
        self.ravelo("--no-socket")  # Owns the name, but another process listens.
        impostor = self.ravelo("--no-name")
        self.session.run("await sleep(1500)")
        self.assertEqual(impostor.messages("screens"), [], "it got reports")
        self.assertEqual(impostor.messages("hello"), [], "it was greeted")
        self.assertEqual(self.session.run(TRACES)["strips"], 0)

    def test_refuses_another_version(self):
        peer = self.ravelo("--version", "3")
        until(lambda: peer.messages("end"), "it hangs up")
        self.assertEqual(peer.messages("screens"), [])

    def test_drops_a_ravelo_that_does_not_read_and_tries_again(self):
        peer = self.attached()
        self.session.run(f"Main.extensionManager.lookup('{shell.COMPANION}').stateObj._link._put("
                         "new Uint8Array(8 << 20))")
        until(lambda: len(peer.messages("hello")) == 2 and len(peer.messages("screens")) == 2, "it is back")

    def test_reports_no_types_of_an_owner_with_too_many(self):
        peer = self.attached()
        counts = lambda: [len(one["types"]) for one in peer.messages("clip")]
        self.client("few", "--types", "500")
        until(lambda: counts()[-1] == 500, "the first copy is reported")
        self.client("many", "--types", "600")
        until(lambda: counts()[-1] != 500, "the second copy is reported")
        self.assertEqual(counts()[-1], 0)

    def test_gives_up_if_a_part_fails_and_leaves_none_behind(self):
        before = self.session.run(TRACES)
        self.addCleanup(self.session.run, "Main.layoutManager.getWorkAreaForMonitor = kept.getter;")
        self.session.run("kept.getter = Main.layoutManager.getWorkAreaForMonitor;"
                         "Main.layoutManager.getWorkAreaForMonitor = () => { throw new Error('broken part'); };")
        peer = self.ravelo()
        until(lambda: len(peer.messages("end")) == 3, "it tries three times")
        self.assertEqual(self.session.run("await sleep(5000);" + TRACES), before)
        self.assertEqual(len(peer.messages("hello")), 3, "it should have given up after three failures")

    def test_waits_longer_each_time_the_connection_ends_at_once(self):
        peer = self.ravelo()
        for count in (1, 2, 3):
            until(lambda: len(peer.messages("screens")) == count, f"connection {count}")
            peer.send(**{"is": "nonsense"})
            until(lambda: len(peer.messages("end")) == count, f"it hangs up {count} times")
        self.session.run("await sleep(2500)")
        self.assertEqual(len(peer.messages("screens")), 3, "it comes back too soon")
        until(lambda: len(peer.messages("screens")) == 4, "it comes back")

    def test_leaves_nothing_behind_when_disabled_a_hundred_times(self):
        peer = self.attached()
        one = f"""
            const extension = Main.extensionManager.lookup('{shell.COMPANION}').stateObj;
            for (let i = 0; i < TIMES; i++) {{ extension.disable(); extension.enable(); await sleep(15); }}
            extension.disable();
            await sleep(300);
            imports.system.gc();
            const traces = (() => {{ {TRACES} }})();
            extension.enable();
            return traces;
        """
        first = self.session.run(one.replace("TIMES", "1"))
        self.assertEqual(self.session.run(one.replace("TIMES", "100"), 60), first)
        self.assertEqual(first["strips"], 0)
        until(lambda: len(peer.messages("hello")) > 2, "it still works")

    def test_reports_the_edge_and_drags_but_not_the_rest(self):
        peer = self.attached()
        self.session.run("move(640, 400); await sleep(100); move(640, 0);")
        until(lambda: peer.messages("edge") == [{"is": "edge", "screen": 0}], "the pointer at the edge")
        self.session.run("move(640, 300)")
        until(lambda: peer.messages("edge")[1:] == [{"is": "edge"}], "it leaves")
        self.client("full", "--fullscreen", "--drag", "/etc/hostname")
        until(lambda: self.window("full")["fullscreen"], "it is full-screen")
        self.session.run("move(640, 0)")
        until(lambda: len(peer.messages("edge")) == 3, "the pointer at the edge over a full-screen window")
        self.session.run("move(640, 400); await sleep(100); button(true); await glide(640, 400, 640, 0); await sleep(200);")
        drag = until(lambda: peer.messages("drag"), "a drag begins")[0]
        self.assertIn("text/uri-list", drag["types"])
        until(lambda: peer.messages("edge")[-1] == {"is": "edge", "screen": 0}, "the drag at the edge")
        peer.send(**{"is": "want", "of": "drag", "serial": drag["serial"], "type": "text/uri-list", "cap": 1000})
        data = until(lambda: peer.messages("data"), "the source answers")[0]
        self.assertEqual(data["bytes"], "file:///etc/hostname\r\n")
        self.session.run("button(false)")
        until(lambda: peer.messages("dragEnd"), "the drag ends")

    def test_hands_over_what_is_copied(self):
        peer = self.attached()
        self.client("one", "--copy", "Grüße")
        clip = until(lambda: [one for one in peer.messages("clip") if not one["initial"]], "the copy is reported")[0]
        self.assertIn("text/plain;charset=utf-8", clip["types"])
        self.assertFalse(clip["kept"])
        self.assertNotIn("Grüße", json.dumps(clip))
        ask = {"is": "want", "of": "clip", "type": "text/plain;charset=utf-8", "cap": 1000}
        peer.send(**ask, serial=clip["serial"])
        data = until(lambda: peer.messages("data"), "the contents are handed over")[0]
        self.assertEqual(data["bytes"], "Grüße")
        peer.send(**ask, serial=clip["serial"] + 1)
        until(lambda: peer.messages("none"), "contents that are not there are refused")
        peer.send(**{"is": "offer", "text": "late", "unless": "text/plain;charset=utf-8"})
        peer.send(**{"is": "offer", "text": "ours", "unless": "application/x-ravelo"})
        offered = until(lambda: [one for one in peer.messages("clip") if one["offered"]], "our offer is reported")[0]
        peer.send(**ask, serial=offered["serial"])
        poured = until(lambda: peer.messages("pour"), "the shell's own contents are copied over")[0]
        self.assertEqual(poured["bytes"], "ours")

    def test_says_which_window_has_the_keyboard_when_it_is_asked(self):
        peer = self.attached()
        serial = 0

        def asked():
            nonlocal serial
            serial += 1
            peer.send(**{"is": "keyboard", "serial": serial})
            return until(lambda: [one for one in peer.messages("keyboard") if one["serial"] == serial], "an answer")[0]

        shift = "keyboard.notify_keyval(GLib.get_monotonic_time(), Clutter.KEY_Shift_L, %d); await sleep(50);"
        one = self.client("one")
        first = asked()
        self.assertTrue(first["focused"])
        self.assertFalse(first["modifiers"])
        self.assertEqual(len(first["names"]), 1)
        self.assertEqual(first["layout"], "us")
        self.assertNotIn("one", json.dumps(first), "titles are not reported")
        self.session.run(shift % 1)
        self.assertTrue(asked()["modifiers"], "Shift is held")
        self.session.run(shift % 0)
        self.assertEqual({**asked(), "serial": 1}, first)
        self.client("two")
        self.assertNotEqual(asked()["window"], first["window"])
        self.session.run("Main.overview.show(); await sleep(600);")
        self.assertFalse(asked()["focused"], "the shell takes the keys")
        self.session.run("Main.overview.hide(); await sleep(600);")
        one.end()
        self.assertEqual(len(peer.messages("keyboard")), serial, "it reports without being asked")

    def test_answers_nobody_on_the_bus(self):
        self.attached()
        name = self.session.call("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "ListNames")
        self.assertNotIn("org.ravelo.Shell", name[0])
        with self.assertRaises(GLib.Error):
            self.session.call("org.gnome.Shell", "/org/ravelo/Shell", "org.ravelo.Shell", "Attach")


class TwoMonitorsTest(ExtensionCase):
    monitors = ("1280x800", "1024x768")

    def test_reports_both_and_the_edge_of_either(self):
        peer = self.attached()
        screens = [one["frame"] for one in peer.messages("screens")[-1]["screens"]]
        self.assertEqual(screens, [[0, 0, 1280, 800], [1280, 0, 1024, 768]])
        self.session.run("move(1280 + 512, 0)")
        until(lambda: peer.messages("edge")[-1:] == [{"is": "edge", "screen": 1}], "the second one's edge")


class ScaledTest(ExtensionCase):
    monitors = ("2560x1600",)

    def test_counts_in_the_pixels_of_clients(self):
        peer = self.attached()
        self.session.set_scale(2)
        until(lambda: peer.messages("screens")[-1]["screens"][0]["frame"] == [0, 0, 1280, 800], "the scale counts")
        # The stage counts in the monitor's pixels or, since GNOME 48, in those of clients.
        share = self.session.run("const strip = Main.layoutManager.uiGroup.get_children()"
                                 ".find(one => one.name === 'ravelo-edge');"
                                 "return strip.width / Main.layoutManager.primaryMonitor.width;")
        self.assertAlmostEqual(share, 200 / 1280)


if __name__ == "__main__":
    unittest.main(verbosity=2)
