"""Programs that copy and paste on a Wayland desktop: each has a full-screen window of one colour.

`copy` takes a dictionary of types and bytes; `paste` returns the bytes of a type. A program that cannot
copy something has no entry for it in `copies`.
"""

import base64
import http.server
import json
import queue
import subprocess
import threading
import time

from desktop import HERE, wait_for
from wayland import BACKGROUND, HEIGHT, WIDTH

COLOR = "#%02x%02x%02x" % BACKGROUND
ALL = {"text", "link", "image", "files", "secret"}


class Client:
    copies = ALL

    def __init__(self, desktop):
        self.desktop = desktop
        self.process = None

    def focus(self):
        """Returns once it has surely got the keyboard: only then may it copy or paste."""
        self.desktop.click(WIDTH // 2, HEIGHT - 60)
        time.sleep(1)

    def close(self):
        self.process.kill()
        self.process.wait()


class WlClipboard(Client):
    """One type at a time."""

    def __init__(self, desktop):
        super().__init__(desktop)
        self.process = desktop.show_background()

    def copy(self, forms):
        for kind, data in list(forms.items())[-1:]:
            subprocess.run(["wl-copy", "--type", kind], input=data, env=self.desktop.env, check=True)

    def paste(self, kind):
        return subprocess.run(["timeout", "5", "wl-paste", "--no-newline", "--type", kind],
                              env=self.desktop.env, stdout=subprocess.PIPE, check=False).stdout


class PythonClient(Client):
    script = None

    def __init__(self, desktop):
        super().__init__(desktop)
        self.process = desktop.peer("env", "GTK_A11Y=none", "/usr/bin/python3", HERE / self.script,
                                    COLOR, stdin=subprocess.PIPE)
        time.sleep(3)  # For its window, which looks like what is below.

    def _ask(self, request):
        self.focus()
        self.process.stdin.write(json.dumps(request) + "\n")
        self.process.stdin.flush()
        return json.loads(self.process.stdout.readline())

    def copy(self, forms):
        encoded = {kind: base64.b64encode(data).decode() for kind, data in forms.items()}
        assert self._ask({"copy": encoded}) is True, "it does not copy"

    def paste(self, kind):
        answer = self._ask({"paste": kind})
        try:
            return base64.b64decode(answer)
        except ValueError:  # It says why not.
            return answer.encode()


class Gtk4(PythonClient):
    script = "gtk4_peer.py"


class Qt6(PythonClient):
    script = "qt_clip_peer.py"


class XWayland(Client):
    """Xclip, while another X11 window has the focus. One type at a time."""

    def __init__(self, desktop):
        super().__init__(desktop)
        self.process = desktop.peer("env", "GDK_BACKEND=x11", "/usr/bin/python3",
                                    HERE / "gtk_peer.py", "fullscreen", COLOR, 0, WIDTH, HEIGHT)

    def copy(self, forms):
        self.focus()
        for kind, data in list(forms.items())[-1:]:
            kind = "UTF8_STRING" if kind.startswith("text/plain") else kind
            subprocess.run(["xclip", "-selection", "clipboard", "-target", kind, "-i"], input=data,
                           env=self.desktop.env, check=True, stdout=subprocess.DEVNULL)

    def paste(self, kind):
        self.focus()
        kind = "UTF8_STRING" if kind.startswith("text/plain") else kind
        return subprocess.run(["timeout", "5", "xclip", "-selection", "clipboard", "-target", kind,
                               "-o"], env=self.desktop.env, stdout=subprocess.PIPE, check=False).stdout


PAGE = """<!doctype html><title>page</title><style>html {background: %s}</style><script>
const bytes = text => Uint8Array.from(atob(text), letter => letter.charCodeAt(0));
const encoded = async blob => btoa(String.fromCharCode(...new Uint8Array(await blob.arrayBuffer())));
const report = value => fetch("/done", {method: "POST", body: JSON.stringify(value)});
addEventListener("click", async () => {
    try {
        const forms = await (await fetch("/forms")).json();
        const blobs = Object.entries(forms).map(
            ([type, data]) => [type, new Blob([bytes(data)], {type})]);
        if (blobs.length) {
            await navigator.clipboard.write([new ClipboardItem(Object.fromEntries(blobs))]);
        }
        report(true);
    } catch (error) { report(String(error)); }
});
addEventListener("paste", async event => {
    const text = event.clipboardData.getData("text/plain");
    const files = [...event.clipboardData.files];  // Before the event is over.
    const found = {"text/plain": await encoded(new Blob([text]))};
    for (const file of files) found[file.type] = await encoded(file);
    report(found);
});
report(true);
</script>""" % COLOR


class Chromium(Client):
    """A page copies when clicked, and pastes by key."""

    copies = {"text", "link", "image"}

    def __init__(self, desktop):
        super().__init__(desktop)
        self.forms, self.done = {}, queue.Queue()
        client = self

        class Handler(http.server.BaseHTTPRequestHandler):
            def do_GET(self):
                forms = self.path == "/forms"
                body = json.dumps(client.forms) if forms else PAGE
                self.send_response(200)
                self.send_header("Content-Type", "application/json" if forms else "text/html")
                self.end_headers()
                self.wfile.write(body.encode())

            def do_POST(self):
                client.done.put(json.loads(self.rfile.read(int(self.headers["Content-Length"]))))
                self.send_response(204)
                self.end_headers()

            def log_message(self, *_):
                pass

        self._server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Handler)
        threading.Thread(target=self._server.serve_forever, daemon=True).start()
        self.process = desktop.spawn(
            "chromium", "--no-sandbox", "--ozone-platform=wayland", "--kiosk", "--no-first-run",
            "--disable-gpu", f"--user-data-dir={desktop.home}/chromium",
            f"http://127.0.0.1:{self._server.server_port}/", stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL)
        self.done.get(timeout=60)
        wait_for(lambda: desktop.picture().at(WIDTH // 2, HEIGHT // 2) == BACKGROUND, "the page")
        time.sleep(5)  # On sway 1.10 it gets no click sooner.
        self.focus()
        self.done.get(timeout=20)

    def close(self):
        super().close()
        self._server.shutdown()
        self._server.server_close()

    def copy(self, forms):
        self.forms = {kind.split(";")[0]: base64.b64encode(data).decode()
                      for kind, data in forms.items()}
        self.focus()
        assert (done := self.done.get(timeout=20)) is True, done
        self.forms = {}

    def paste(self, kind):
        self.focus()
        self.done.get(timeout=20)
        self.desktop.key("ctrl+v")
        found = self.done.get(timeout=20)
        return base64.b64decode(found.get(kind.split(";")[0], ""))


CLIENTS = {"wl-clipboard": WlClipboard, "GTK 4": Gtk4, "Qt 6": Qt6, "Chromium": Chromium,
           "X11, focused": XWayland}
