"""A GNOME Shell without a screen: private buses, a stand-in for the login service, a home of its own."""

import ctypes
import json
import os
import pathlib
import shutil
import signal
import subprocess
import sys
import tempfile
import time

from gi.repository import Gio, GLib

ROOT = pathlib.Path(__file__).resolve().parents[2]
COMPANION = "companion@ravelo.org"
DRIVER = "driver@ravelo.test"

BUS = """<busconfig><type>{type}</type><listen>unix:path={path}</listen><auth>EXTERNAL</auth>
<policy context="default"><allow send_destination="*" eavesdrop="true"/><allow eavesdrop="true"/>
<allow own="*"/></policy></busconfig>"""


def end_with_us():
    ctypes.CDLL(None).prctl(1, signal.SIGKILL)  # PR_SET_PDEATHSIG


def release():
    """The installed GNOME Shell's release, like 43."""
    return int(subprocess.check_output(["gnome-shell", "--version"], text=True).split()[2].split(".")[0])


def until(condition, what, seconds=20):
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        value = condition()
        if value:
            return value
        time.sleep(0.02)
    raise AssertionError(f"never: {what}")


class Shell:
    def __init__(self, extensions=(COMPANION,), monitors=("1280x800",), x11=False, settings=""):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="ravelo-gnome-"))
        self.processes = []
        self.runtime = self.folder / "run"
        self.runtime.mkdir(mode=0o700)
        self.home = self.folder / "home"
        self.environment = {
            "PATH": os.environ["PATH"], "LC_ALL": "C.UTF-8", "HOME": str(self.home),
            "XDG_RUNTIME_DIR": str(self.runtime), "XDG_SESSION_TYPE": "wayland", "XDG_SESSION_ID": "c1",
            "XDG_CURRENT_DESKTOP": "GNOME", "GSK_RENDERER": "cairo", "LIBGL_ALWAYS_SOFTWARE": "1", "GSETTINGS_BACKEND": "keyfile",
            "XDG_DATA_DIRS": "/usr/local/share:/usr/share", "NO_AT_BRIDGE": "1", "GTK_A11Y": "none",
            "DBUS_SESSION_BUS_ADDRESS": self.bus("session"), "DBUS_SYSTEM_BUS_ADDRESS": self.bus("system"),
        }
        self.connection = Gio.DBusConnection.new_for_address_sync(
            self.environment["DBUS_SESSION_BUS_ADDRESS"], Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT
            | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION, None, None)
        self.write_settings(extensions, settings)
        self.install(DRIVER, ROOT / "tests/gnome/driver")
        self.start_logind()
        monitor_arguments = [word for monitor in monitors for word in ("--virtual-monitor", monitor)]
        self.shell = self.start("gnome-shell", "--headless", "--wayland", "--wayland-display", "wayland-test",
                                *monitor_arguments, *([] if x11 else ["--no-x11"]), log="shell.log")
        self.environment["WAYLAND_DISPLAY"] = "wayland-test"

    def __enter__(self):
        until(self.is_up, "the shell is up", 120)
        until(lambda: not self.run("return Main.layoutManager._startingUp"), "the shell has started", 60)
        until(lambda: self.run("Main.overview.hide(); await sleep(400);"
                               "return !Main.overview.visible && global.top_window_group.visible"),
              "the overview is gone", 60)
        self.run("move(600, 500)")
        return self

    def __exit__(self, *_):
        for process in reversed(self.processes):
            process.kill()
            process.wait()
        if os.environ.get("RAVELO_KEEP"):
            print(f"kept: {self.folder}")
        else:
            shutil.rmtree(self.folder, ignore_errors=True)

    def bus(self, kind):
        configuration = self.folder / f"{kind}.conf"
        configuration.write_text(BUS.format(type=kind, path=self.runtime / f"{kind}-bus"))
        daemon = subprocess.Popen(["dbus-daemon", f"--config-file={configuration}", "--nofork",
                                   "--print-address"], stdout=subprocess.PIPE, text=True,
                                  preexec_fn=end_with_us)
        self.processes.append(daemon)
        return daemon.stdout.readline().strip()

    def start(self, *command, log=None, **environment):
        output = open(self.folder / log, "w") if log else subprocess.DEVNULL
        process = subprocess.Popen([str(word) for word in command], stdout=output, stderr=output,
                                   stdin=subprocess.DEVNULL, preexec_fn=end_with_us,
                                   env={**self.environment, **environment})
        self.processes.append(process)
        return process

    def start_logind(self):
        self.start(sys.executable, "-m", "dbusmock", "--system", "--template", "logind", log="logind.log")
        def call():
            return subprocess.run(
                ["gdbus", "call", "--system", "-d", "org.freedesktop.login1", "-o", "/org/freedesktop/login1",
                 "-m", "org.freedesktop.DBus.Mock.AddSession", "c1", "seat0", str(os.getuid()), "user", "true"],
                env=self.environment, capture_output=True, check=False).returncode == 0
        until(call, "the login service's stand-in is up")

    def write_settings(self, extensions, settings):
        folder = self.home / ".config/glib-2.0/settings"
        folder.mkdir(parents=True)
        names = ", ".join(f"'{name}'" for name in (DRIVER, *extensions))
        (folder / "keyfile").write_text(
            f"[org/gnome/shell]\nenabled-extensions=[{names}]\ndisable-user-extensions=false\n"
            f"welcome-dialog-last-shown-version='999'\n[org/gnome/desktop/session]\nidle-delay=uint32 0\n{settings}")
        self.install(COMPANION, ROOT / "gnome", ROOT / "src/platform/gnome/protocol.js")

    def install(self, name, *sources):
        files = [file for source in sources for file in ([source] if source.is_file() else source.iterdir())
                 if file.suffix in (".js", ".in")]
        if not any(file.name == "metadata.json.in" for file in files):
            return
        folder = self.home / ".local/share/gnome-shell/extensions" / name
        subprocess.run([ROOT / "gnome/assemble", str(release()), folder, "0", *files], check=True)

    def call(self, name, path, interface, method, arguments=None, seconds=30):
        return self.connection.call_sync(name, path, interface, method, arguments, None, 0, seconds * 1000,
                                         None).unpack()

    def is_up(self):
        if self.shell.poll() is not None:
            raise AssertionError((self.folder / "shell.log").read_text()[-4000:])
        try:
            return self.run("return 1") == 1
        except GLib.Error:
            return False

    def run(self, code, seconds=30):
        """What this JavaScript returns when it runs in the shell."""
        answer = json.loads(self.call("org.ravelo.Test.Driver", "/org/ravelo/Test/Driver",
                                      "org.ravelo.Test.Driver", "Run", GLib.Variant("(s)", (code,)), seconds)[0])
        if "error" in answer:
            raise AssertionError(answer["error"])
        return answer["value"]

    def set_scale(self, scale):
        """Of all monitors; 1 or 2."""
        name, path = "org.gnome.Mutter.DisplayConfig", "/org/gnome/Mutter/DisplayConfig"
        serial, monitors, logical, _ = self.call(name, path, name, "GetCurrentState")
        modes = {monitor[0][0]: next(mode[0] for mode in monitor[1] if mode[6].get("is-current"))
                 for monitor in monitors}
        layout = [(x, y, scale, transform, primary, [(spec[0], modes[spec[0]], {}) for spec in specs])
                  for x, y, _, transform, primary, specs, _ in logical]
        self.call(name, path, name, "ApplyMonitorsConfig",
                  GLib.Variant("(uua(iiduba(ssa{sv}))a{sv})", (serial, 1, layout, {})))
