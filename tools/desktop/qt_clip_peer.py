"""The same as gtk4_peer.py with Qt 6."""

import base64
import json
import sys

from PyQt6.QtCore import QMimeData, QSocketNotifier
from PyQt6.QtGui import QColor, QGuiApplication, QRasterWindow, QPainter


class Window(QRasterWindow):
    def paintEvent(self, _event):
        QPainter(self).fillRect(0, 0, self.width(), self.height(), QColor(sys.argv[1]))


def do(verb, value):
    clipboard = QGuiApplication.clipboard()
    if verb == "paste":
        data = clipboard.mimeData()
        if value.startswith("text/plain"):  # Qt 6.8 hides its charset.
            return base64.b64encode(data.text().encode()).decode()
        return base64.b64encode(data.data(value).data()).decode() if data.hasFormat(value) else \
            f"no {value}, but {data.formats()}"
    data = QMimeData()
    for kind, content in value.items():
        data.setData(kind, base64.b64decode(content))
    clipboard.setMimeData(data)
    return True


def read():
    for verb, value in json.loads(sys.stdin.readline()).items():
        print(json.dumps(do(verb, value)), flush=True)


application = QGuiApplication(sys.argv)
window = Window()
window.showFullScreen()
notifier = QSocketNotifier(0, QSocketNotifier.Type.Read)
notifier.activated.connect(read)
print("ready", flush=True)
application.exec()
