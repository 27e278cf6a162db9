"""Office and desktop programs on a private desktop: each copies from one document by its own keys, and
is pasted into in another one. What arrived is read from what the program then saved.
"""

import http.server
import json
import os
import pathlib
import queue
import re
import subprocess
import threading
import time

from desktop import wait_for

STYLED = "Larkspur bold words, grün ✓"
OFFICE_NAMESPACES = " ".join(
    f'xmlns:{short}="urn:oasis:names:tc:opendocument:xmlns:{name}:1.0"' for short, name in (
        ("office", "office"), ("style", "style"), ("text", "text"), ("table", "table"))
) + (' xmlns:fo="urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0"'
     ' xmlns:of="urn:oasis:names:tc:opendocument:xmlns:of:1.2"')
BOLD = ('<style:style style:name="B" style:family="{family}">'
        '<style:text-properties fo:font-weight="bold"/></style:style>')
# No questions and no tips.
OFFICE_SETTINGS = """<?xml version="1.0" encoding="UTF-8"?>
<oor:items xmlns:oor="http://openoffice.org/2001/registry" xmlns:xs="http://www.w3.org/2001/XMLSchema"
 xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance">
<item oor:path="/org.openoffice.Office.Common/Misc"><prop oor:name="ShowTipOfTheDay" oor:op="fuse">
<value>false</value></prop></item>
<item oor:path="/org.openoffice.Office.Common/Misc"><prop oor:name="FirstRun" oor:op="fuse">
<value>false</value></prop></item>
<item oor:path="/org.openoffice.Office.Common/Save/Document"><prop oor:name="WarnAlienFormat" oor:op="fuse">
<value>false</value></prop></item>
<item oor:path="/org.openoffice.Setup/Product"><prop oor:name="ooSetupLastVersion" oor:op="fuse">
<value>7.4</value></prop></item>
</oor:items>
"""


class Program:
    """`session` is the desktop with what differs between X11 and Wayland: see scripts/programs."""

    windows = ("source", "target")  # Parts of their titles.

    def __init__(self, session):
        self.session = session
        self.folder = session.desktop.home / type(self).__name__
        self.folder.mkdir()
        self.processes = []
        self.prepare()
        for part in self.windows:
            wait_for(lambda p=part: session.has_window(p), f"the window {part}", 120)
        time.sleep(3)  # A window is there before it listens to keys.

    def prepare(self):
        """Starts it with both documents."""
        raise NotImplementedError

    def spawn(self, *command, **options):
        self.processes.append(self.session.desktop.spawn(
            *command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, **options))

    def copy(self):
        self.keys(self.windows[0], "ctrl+a", "ctrl+c")

    def keys(self, window, *keys):
        self.session.focus(window)
        for key in keys:
            self.session.key(key)
            time.sleep(0.5)

    def arrived(self):
        """What the target got, in words; empty if nothing."""
        raise NotImplementedError

    def close(self):
        for process in self.processes:
            if os.getsid(process.pid) == process.pid:  # Its child may be the program.
                subprocess.run(["pkill", "--session", str(process.pid), "--signal", "KILL"], check=False)
            process.kill()
            process.wait()


class Office(Program):
    kind = family = body = empty = None

    def document(self, name, body):
        path = self.folder / f"{name}.{self.kind}"
        mime = {"fodt": "text", "fods": "spreadsheet"}[self.kind]
        path.write_text(
            f'<?xml version="1.0" encoding="UTF-8"?><office:document {OFFICE_NAMESPACES} '
            f'office:version="1.3" office:mimetype="application/vnd.oasis.opendocument.{mime}">'
            f"<office:automatic-styles>{BOLD.format(family=self.family)}</office:automatic-styles>"
            f"<office:body><office:{mime}>{body}</office:{mime}></office:body></office:document>")
        return path

    def prepare(self):
        profile = self.folder / "profile"
        (profile / "user").mkdir(parents=True)
        (profile / "user/registrymodifications.xcu").write_text(OFFICE_SETTINGS)
        self.target = self.document("target", self.empty)
        self.spawn("soffice", f"-env:UserInstallation={profile.as_uri()}", "--norestore", "--nologo",
                   self.document("source", self.body), self.target, start_new_session=True)

    def saved(self):
        before = self.target.stat().st_mtime_ns
        self.keys("target", "ctrl+s")
        wait_for(lambda: self.target.stat().st_mtime_ns != before, "the saved document", 30)
        time.sleep(1)
        return self.target.read_text()

    @staticmethod
    def bold_styles(text):
        styles = [style.split('"', 1) for style in text.split('<style:style style:name="')[1:]]
        return {name for name, rest in styles if 'fo:font-weight="bold"' in rest.split("</style:style>")[0]}

    def bold(self, text, element):
        """The contents of elements whose style is bold."""
        names = self.bold_styles(text)
        found = re.findall(rf'<{element} [^>]*?(?:text|table):style-name="([^"]+)"[^>]*(?<!/)>(.*?)</{element}>',
                           text, re.S)
        return [re.sub("<[^>]+>", "", content) for name, content in found if name in names]


class Writer(Office):
    kind, family = "fodt", "text"
    body = f'<text:p><text:span text:style-name="B">{STYLED}</text:span> and plain</text:p>'
    empty = "<text:p/>"

    def arrived(self):
        text = self.saved()
        if STYLED in "".join(self.bold(text, "text:span") + self.bold(text, "text:p")):
            return "bold" + (", the rest plain" if "and plain" in text else ", the rest is missing")
        return "plain text" if STYLED in text else ""


class Calc(Office):
    kind, family = "fods", "table-cell"
    body = ('<table:table table:name="One"><table:table-row>'
            '<table:table-cell table:style-name="B" office:value-type="string"><text:p>Oak</text:p>'
            "</table:table-cell>"
            '<table:table-cell office:value-type="float" office:value="18"><text:p>18</text:p></table:table-cell>'
            '<table:table-cell table:formula="of:=[.B1]*2" office:value-type="float" office:value="36">'
            "<text:p>36</text:p></table:table-cell></table:table-row></table:table>")
    empty = '<table:table table:name="Two"><table:table-row><table:table-cell/></table:table-row></table:table>'

    def copy(self):
        self.keys("source", "ctrl+shift+End", "ctrl+c")

    def arrived(self):
        text = self.saved()
        # A style can be that of a column.
        used = re.findall(r'table:(?:default-cell-)?style-name="([^"]+)"', text)
        cells = [word for word, there in (
            ("bold text", "Oak" in text and self.bold_styles(text) & set(used)),
            ("number", 'office:value="18"' in text),
            ("formula", "of:=[.B1]*2" in text)) if there]
        return ", ".join(cells) or ("plain text" if "Oak" in text else "")


class Thunar(Program):
    NAMES = ("one a.txt", "zwei ü.txt", "three%20.txt")

    def prepare(self):
        for name in ("source", "target"):
            (self.folder / name).mkdir()
        for name in self.NAMES:
            (self.folder / "source" / name).write_text(name)
        self.spawn("dbus-run-session", "thunar", self.folder / "source", self.folder / "target",
                   start_new_session=True)

    def arrived(self):
        there = [name for name in self.NAMES if (self.folder / "target" / name).exists()]
        for name in there:
            wait_for(lambda n=name: (self.folder / "target" / n).read_text() == n, f"all of {name}")
            assert (self.folder / "source" / name).exists(), f"{name} was moved"
        return f"{len(there)} files" if there else ""


class Gimp(Program):
    """Pastes into a picture of one colour, and overwrites its file."""

    def prepare(self):
        for release in ("2.10", "3.0"):
            settings = pathlib.Path(self.session.desktop.env["XDG_CONFIG_HOME"]) / "GIMP" / release
            settings.mkdir(parents=True)
            (settings / "menurc").write_text('(gtk_accel_path "<Actions>/file/file-export" "")\n'
                                             '(gtk_accel_path "<Actions>/file/file-overwrite" "<Primary>e")\n')
            (settings / "shortcutsrc").write_text('(file-version 1)\n(action "file-export")\n'
                                                  '(action "file-overwrite" "<Primary>e")\n')
            (settings / "gimprc").write_text("(check-updates no)\n(show-tips no)\n(show-welcome-dialog no)\n"
                                               "(color-profile-policy keep)\n")
            (settings / "sessionrc").write_text("(single-window-mode no)\n")
        run = self.session.desktop.run
        run("convert", "-size", "48x32", "xc:#c04020", "-depth", 8, self.folder / "source.png")
        run("convert", "-size", "48x32", "xc:#f0e0ff", "-depth", 8, f"PNG24:{self.folder}/target.png")
        self.spawn("gimp", "--no-splash", self.folder / "source.png", self.folder / "target.png",
                   start_new_session=True)

    def arrived(self):
        target = self.folder / "target.png"
        before = target.stat().st_mtime_ns
        self.keys("target", "ctrl+h", "ctrl+e")  # Anchors what was pasted.
        wait_for(lambda: target.stat().st_mtime_ns != before, "the overwritten picture", 30)
        time.sleep(2)
        color = self.session.desktop.run("convert", target, "-format", "%[hex:p{24,16}]", "info:")
        return "the picture" if color.lower().startswith("c04020") else ""


WEB = "Larkspur bold page, grün ✓"
SOURCE_PAGE = f"""<!doctype html><meta charset="utf-8"><title>source</title><p><b>{WEB}</b> and plain
<canvas id="c" width="48" height="32" hidden></canvas><script>
const context = c.getContext("2d");
context.fillStyle = "#c04020";
context.fillRect(0, 0, 48, 32);
addEventListener("keydown", event => {{
    if (event.key === "i" && !event.ctrlKey) c.toBlob(blob =>
        navigator.clipboard.write([new ClipboardItem({{"image/png": blob}})]));
}});
</script>"""
TARGET_PAGE = """<!doctype html><meta charset="utf-8"><title>target</title>
<div contenteditable autofocus id="field" style="min-height: 90vh"></div><script>
field.focus();
addEventListener("focus", () => field.focus());
addEventListener("paste", event => {
    const files = [...event.clipboardData.files];
    setTimeout(() => fetch("/pasted", {method: "POST", body: JSON.stringify(
        {html: field.innerHTML, files: files.map(file => file.type)})}), 300);
});
</script>"""


class Chromium(Program):
    def prepare(self):
        self.pasted = queue.Queue()
        pasted = self.pasted

        class Handler(http.server.BaseHTTPRequestHandler):
            def do_GET(self):
                self.send_response(200)
                self.send_header("Content-Type", "text/html")
                self.end_headers()
                self.wfile.write((SOURCE_PAGE if self.path == "/source" else TARGET_PAGE).encode())

            def do_POST(self):
                pasted.put(json.loads(self.rfile.read(int(self.headers["Content-Length"]))))
                self.send_response(204)
                self.end_headers()

            def log_message(self, *_):
                pass

        self._server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Handler)
        threading.Thread(target=self._server.serve_forever, daemon=True).start()
        address = f"http://127.0.0.1:{self._server.server_port}"
        for page in ("source", "target"):
            self.spawn("chromium", "--no-sandbox",
                       f"--ozone-platform={self.session.name}", "--no-first-run", "--disable-gpu",
                       "--password-store=basic", f"--user-data-dir={self.folder}/{page}",
                       f"--app={address}/{page}")

    def arrived(self):
        try:
            found = self.pasted.get(timeout=10)
        except queue.Empty:
            return ""
        if found["files"]:
            return "the picture" if found["files"] == ["image/png"] else str(found["files"])
        bold = re.search(rf"<(b|strong|span)[^>]*>{WEB}</", found["html"])
        return "bold" if bold and re.search("<b|bold|700", found["html"]) else \
            "plain text" if WEB in found["html"] else ""

    def close(self):
        super().close()
        self._server.shutdown()
        self._server.server_close()


class ChromiumPicture(Chromium):
    def copy(self):
        self.keys("source", "i")


class Terminal(Program):
    """Copies nothing: a text is copied for it."""

    windows = ("target",)
    LINE = "echo Larkspur, grün ✓"

    def prepare(self):
        self.file = self.folder / "typed"
        shell = ("sh", "-c", f"stty -icanon; cat > {self.file}")
        if self.session.name == "x11":
            self.spawn("xterm", "-u8", "-title", "target", "-e", *shell)
        else:
            self.spawn("foot", "--log-level=none", "--title=target", *shell)

    def copy(self):
        self.session.desktop.copy_text(self.LINE)

    def arrived(self):
        time.sleep(1)
        return "the line" if self.file.read_text() == self.LINE else self.file.read_text()


PROGRAMS = {"LibreOffice Writer": Writer, "LibreOffice Calc": Calc, "Thunar": Thunar, "GIMP": Gimp,
            "Chromium, formatted text": Chromium, "Chromium, a picture": ChromiumPicture,
            "terminal": Terminal}
