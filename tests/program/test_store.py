"""What is on the disk, whatever happens: docs/privacy.md."""

import json
import os
import pathlib
import resource
import signal
import subprocess
import time
import unittest

from program_case import SLOWER, AssistiveCase, ProgramCase
from desktop import wait_for

SAVE_DELAY = 0.4


class Survival(ProgramCase):
    def test_a_crash_one_second_after_a_copy_loses_nothing(self):
        self.ravelo.start()
        self.copy_and_wait("first")
        self.desktop.copy_text("second")
        time.sleep(1)  # Within this second it must be saved.
        self.ravelo.process.kill()
        self.wait_for_end()
        self.assertEqual(self.ravelo.texts(), ["second", "first"])
        self.ravelo.start()
        self.copy_and_wait("third")
        self.assertEqual(self.ravelo.texts(), ["third", "second", "first"])

    def test_a_crash_leaves_no_memory_behind_unless_asked_to(self):
        limits = resource.getrlimit(resource.RLIMIT_CORE)
        self.addCleanup(resource.setrlimit, resource.RLIMIT_CORE, limits)
        resource.setrlimit(resource.RLIMIT_CORE, (limits[1], limits[1]))
        pattern = pathlib.Path("/proc/sys/kernel/core_pattern").read_text()
        can = SLOWER == 1 and limits[1] != 0 and not pattern.startswith("|")  # Not piped to a program.
        asked = {"RAVELO_CORE_DUMPS": "1"} if can else {}
        for environment, expected in ({}, os.CLD_KILLED), (asked, os.CLD_DUMPED):
            if environment or expected == os.CLD_KILLED:
                self.desktop.env |= environment
                self.ravelo.start()
                self.ravelo.process.send_signal(signal.SIGQUIT)
                end = os.waitid(os.P_PID, self.ravelo.process.pid, os.WEXITED | os.WNOWAIT)
                self.assertEqual(end.si_code, expected, f"the kind of end with {environment}")
                self.wait_for_end()

    def test_corrupt_preferences_are_moved_aside_and_are_no_first_start(self):
        torn = '{"onboarded": true, "did'
        self.desktop.preferences.write_text(torn)
        self.ravelo.start()
        aside = self.desktop.preferences.with_name("preferences.json.unreadable")
        wait_for(lambda: aside.exists() and aside.read_text() == torn, f"{torn} in {aside}")
        self.copy_and_wait("after")
        self.assertFalse((self.desktop.home / "config/autostart/ravelo.desktop").exists())
        self.assertTrue(self.ravelo.preferences()["onboarded"])
        titles = [snippet["title"] for snippet in self.ravelo.store()["snippets"]]
        self.assertEqual(len(titles), 8, "the links of a first start are not added again")

    def test_a_ravelo_that_was_taken_over_saves_nothing_more(self):
        self.ravelo.start()
        self.copy_and_wait("before")
        lock = self.ravelo.folder / "lock"
        self.assertEqual(lock.stat().st_mode & 0o777, 0o600)
        lock.unlink()
        lock.write_text("7\nravelo\nfar.example\nanother machine\nboot\n")
        self.desktop.copy_text("not ours to save")
        time.sleep(SAVE_DELAY + 1)
        self.stop()
        self.assertEqual(self.ravelo.texts(), ["before"])
        self.assertTrue(lock.exists(), "the lock of the one that took over")
        code, output = self.ravelo.call()
        self.assertEqual((code, "far.example (process 7)" in output), (1, True), output)
        self.ravelo.start("--take-over")
        self.copy_and_wait("after")
        self.assertNotIn("far.example", lock.read_text())

    def test_every_way_to_end_keeps_what_was_just_copied(self):
        ends = {
            "SIGTERM": lambda: self.ravelo.process.send_signal(signal.SIGTERM),
            "SIGINT": lambda: self.ravelo.process.send_signal(signal.SIGINT),
            "SIGHUP": lambda: self.ravelo.process.send_signal(signal.SIGHUP),
            "--quit": lambda: self.assertEqual(self.ravelo.call("--quit")[0], 0),
            "X server exits": lambda: self.desktop.server.kill(),  # Must be last.
        }
        for name, end in ends.items():
            with self.subTest(name):
                self.ravelo.start()
                self.copy_and_wait(f"before {name}")
                self.desktop.copy_text(name)
                time.sleep(SAVE_DELAY / 2)  # Seen, but not due to be saved.
                self.assertNotIn(name, self.ravelo.texts(), "saved too early for this test")
                end()
                self.wait_for_end()
                self.assertEqual(self.ravelo.texts()[:1], [name])


class Traces(ProgramCase):
    """docs/privacy.md: files are only where it says, private, and can be erased."""
    KEPT = {"data/Ravelo/store.json", "data/Ravelo/clips/IMAGE.png",
            "config/ravelo/preferences.json", "config/autostart/ravelo.desktop"}

    def files(self):
        """Below the home, without those of the desktop itself."""
        paths = (path.relative_to(self.desktop.home) for path in self.desktop.home.rglob("*")
                 if path.is_file())
        return {str(path) for path in paths if path.parts[0] not in ("runtime", "tmp")}

    def test_nothing_is_left_elsewhere_and_all_can_be_erased(self):
        self.desktop.run("fc-list")  # If the system's cache of fonts is outdated, anybody makes one.
        before = self.files() - self.KEPT
        parked = self.desktop.home / "parked.txt"
        parked.write_text("in the parked file")
        self.ravelo.start()
        self.copy_and_wait("an ordinary text")
        self.desktop.gtk("image", "c04020ff")
        self.wait_for_texts("Image")
        self.assertEqual(self.ravelo.call(parked)[0], 0)
        wait_for(lambda: not self.ravelo.is_collapsed(), "the panel with the shelf")
        self.assertEqual(self.ravelo.call("timer", "start", "25", "a label of the timer")[0], 0)
        self.stop()
        image = self.ravelo.store()["clips"][0]["imageFileName"]
        kept = {name.replace("IMAGE.png", image) for name in self.KEPT}
        self.assertEqual(self.files() - before - {"parked.txt", "ravelo.log"}, kept)
        for name in kept:
            path = self.desktop.home / name
            if not name.endswith(".desktop"):  # Contains only the command.
                self.assertEqual(path.stat().st_mode & 0o077, 0, f"rights of others on {path}")
            for text, where in {"an ordinary text": "store.json", "in the parked file": "",
                                "a label of the timer": ""}.items():
                if text.encode() in path.read_bytes():
                    self.assertEqual(path.name, where, f"{text!r} was kept")


MARKER = "Marker-of-a-secret-text"


class SearchingCase:
    def files_with(self, marker, among=None):
        """All files of the home that contain the text, in any of its usual forms."""
        forms = [marker.encode(), marker.encode("utf-16-le"), marker.encode("utf-16-be")]
        among = among or self.desktop.home
        return [str(path.relative_to(self.desktop.home)) for path in among.rglob("*")
                if path.is_file() and any(form in path.read_bytes() for form in forms)]

    def images(self):
        return list((self.ravelo.folder / "clips").glob("*"))


class Erasing(SearchingCase, ProgramCase):
    """Deletion that is one."""

    def fill(self):
        self.ravelo.start()
        self.copy_and_wait(MARKER)
        self.desktop.gtk("image", "c04020ff")
        self.wait_for_texts("Image", MARKER)
        for name in ("store.json.unreadable", "store.json.AbCdEf", "clips/"
                     "0F8FAD5B-D9CB-469F-A165-70867728950E.png"):
            (self.ravelo.folder / name).write_text(MARKER)
        self.assertEqual(len(self.files_with(MARKER)), 4)

    def expect_nothing(self):
        self.assertEqual(self.files_with(MARKER), [])
        left = [path.name for path in self.ravelo.folder.rglob("*")]
        self.assertEqual([name for name in left if name != "lock"], [])
        self.assertFalse(self.desktop.preferences.exists())

    def test_everything_is_erased_when_the_command_returns(self):
        self.fill()
        self.assertEqual(self.ravelo.call("erase")[0], 2, "only with --yes")
        self.assertEqual(len(self.files_with(MARKER)), 4)
        self.assertEqual(self.ravelo.call("erase", "--yes"), (0, ""))
        self.expect_nothing()
        self.wait_for_end()
        self.expect_nothing()

    def test_also_if_none_runs(self):
        self.fill()
        self.stop()
        self.assertEqual(self.ravelo.call("erase", "--yes"), (0, ""))
        self.expect_nothing()

    def test_nothing_is_found_in_the_raw_image_of_a_file_system_that_discards(self):
        if os.geteuid() != 0:
            self.skipTest("only root can mount an image")
        image = self.desktop.home / "disk"
        with image.open("wb") as file:
            file.truncate(32 << 20)
        for command in (["mkfs.ext4", "-q", "-O", "^has_journal", image],
                        ["mkdir", "-p", self.ravelo.folder],
                        ["mount", "-o", "loop,discard,sync", image, self.ravelo.folder]):
            done = subprocess.run(command, check=False, stderr=subprocess.PIPE, text=True)
            if done.returncode:
                self.skipTest(f"no loop mount here: {done.stderr.strip()}")
        self.addCleanup(subprocess.run, ["umount", "-l", self.ravelo.folder], check=False,
                        stderr=subprocess.DEVNULL)
        self.ravelo.start()
        self.copy_and_wait(MARKER)
        os.sync()
        self.assertIn(MARKER.encode(), image.read_bytes(), "the search itself is at fault")
        self.assertEqual(self.ravelo.call("erase", "--yes"), (0, ""))
        self.wait_for_end()
        os.sync()
        subprocess.run(["fstrim", self.ravelo.folder], check=False)
        self.assertNotIn(MARKER.encode(), image.read_bytes())


class Encrypted(SearchingCase, AssistiveCase, ProgramCase):
    """Encryption with a real keyring."""

    def setUp(self):
        super().setUp()
        self.desktop.provide_assistance()
        self.keyring = None
        self.start_keyring()

    def start_keyring(self):
        """Unlocked."""
        if self.keyring:
            self.keyring.terminate()
            self.keyring.wait()
        self.keyring = self.desktop.spawn(
            "gnome-keyring-daemon", "--foreground", "--components=secrets", "--unlock",
            stdin=subprocess.PIPE, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.keyring.stdin.write(b"password")
        self.keyring.stdin.close()
        wait_for(lambda: "default" in self.secrets("ReadAlias", "default") or
                 "login" in self.secrets("ReadAlias", "default"), "the keyring")

    def secrets(self, method, *arguments):
        return self.desktop.run("gdbus", "call", "--session", "--dest", "org.freedesktop.secrets",
                                "--object-path", "/org/freedesktop/secrets", "--method",
                                f"org.freedesktop.Secret.Service.{method}", *arguments)

    def is_encrypted(self):
        store = self.ravelo.folder / "store.json"
        return store.exists() and store.read_bytes().startswith(b"Ravelo\x1a")

    def open_storage(self):
        self.assertEqual(self.ravelo.call("--settings"), (0, ""))
        wait_for(lambda: self.ravelo.window("Ravelo Settings"), "the settings")
        self.press("ctrl+3")

    def exported(self):
        """The texts of an export, which needs the key."""
        archive = self.desktop.home / "export.tar"
        archive.unlink(missing_ok=True)
        code, output = self.ravelo.call("export", archive)
        if code:
            return output
        store = self.desktop.run("tar", "-xOf", archive, "store.json")
        archive.unlink()
        return [clip["text"] for clip in json.loads(store)["clips"]]

    def encrypt(self):
        self.ravelo.start()
        self.copy_and_wait(MARKER)
        self.desktop.gtk("image", "c04020ff")
        self.wait_for_texts("Image", MARKER)
        (self.ravelo.folder / "store.json.unreadable").write_text(MARKER)
        self.open_storage()
        self.act("Encrypt what is stored")
        wait_for(lambda: self.is_encrypted() and not self.files_with(MARKER), "no plain copy")
        wait_for(lambda: all(image.read_bytes().startswith(b"Ravelo\x1a")
                             for image in self.images()), "encrypted images")
        self.press("Escape")

    def test_everything_is_encrypted_and_opens_with_the_keyring(self):
        self.encrypt()
        self.desktop.copy_text("Marker-two")
        wait_for(lambda: self.exported() == ["Marker-two", "Image", MARKER], self.exported)
        self.stop()
        self.assertEqual(self.files_with("Marker-two"), [])
        self.ravelo.start()
        wait_for(lambda: self.exported() == ["Marker-two", "Image", MARKER], self.exported)
        self.open_storage()
        self.act("Encrypt what is stored")
        wait_for(lambda: not self.is_encrypted(), "plain files")
        self.wait_for_texts("Marker-two", "Image", MARKER)
        wait_for(lambda: not (self.ravelo.folder / "key").exists(), "no key file")
        self.assertTrue(self.images()[0].read_bytes().startswith(b"\x89PNG"))

    def test_a_locked_keyring_loses_and_shows_nothing(self):
        self.encrypt()
        self.stop()
        stored = (self.ravelo.folder / "store.json").read_bytes()
        self.secrets("Lock", "[objectpath '/org/freedesktop/secrets/aliases/default']")
        self.ravelo.start()
        wait_for(lambda: "unlock" in self.exported(), "the refusal to export")
        self.toggle()
        wait_for(lambda: "Waiting for the keyring\u2026" in
                 [node["name"] for node in self.accessible_nodes()], "what it waits for")
        self.press("Escape")
        self.desktop.copy_text("Marker-while-locked")
        wait_for(lambda: list((self.ravelo.folder / "waiting").glob("*")), "a sealed copy")
        self.stop()
        self.assertEqual(self.files_with("Marker-while-locked"), [])
        self.assertEqual((self.ravelo.folder / "store.json").read_bytes(), stored)
        self.ravelo.start()
        self.start_keyring()
        wait_for(lambda: self.exported() == ["Marker-while-locked", "Image", MARKER],
                 self.exported)
        self.assertEqual(list((self.ravelo.folder / "waiting").glob("*")), [])


if __name__ == "__main__":
    unittest.main()
