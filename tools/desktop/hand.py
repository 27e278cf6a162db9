"""Fast access to pointer, window sizes and selection owners over its own X connection.

For hundreds of moves per minute, too many to start a program for each.
"""

import ctypes
import ctypes.util


class _Attributes(ctypes.Structure):
    _fields_ = [(name, ctypes.c_int) for name in ("x", "y", "width", "height")] + [
        ("rest", ctypes.c_char * 256)]


class Hand:
    def __init__(self, display):
        self._x = ctypes.CDLL(ctypes.util.find_library("X11"))
        self._test = ctypes.CDLL(ctypes.util.find_library("Xtst"))
        self._x.XOpenDisplay.restype = ctypes.c_void_p
        self._x.XInternAtom.restype = self._x.XGetSelectionOwner.restype = ctypes.c_ulong
        self._display = ctypes.c_void_p(self._x.XOpenDisplay(display.encode()))
        assert self._display, f"no X server {display}"

    def _sync(self):
        self._x.XSync(self._display, 0)

    def move(self, x, y):
        self._test.XTestFakeMotionEvent(self._display, -1, int(x), int(y), ctypes.c_ulong(0))
        self._sync()

    def press(self, down=True):
        self._test.XTestFakeButtonEvent(self._display, 1, int(down), ctypes.c_ulong(0))
        self._sync()

    def click(self, x, y):
        self.move(x, y)
        self.press()
        self.press(False)

    def size(self, window):
        """Width and height of an existing child of the root window."""
        found = _Attributes()
        self._x.XGetWindowAttributes(self._display, ctypes.c_ulong(int(window)),
                                     ctypes.byref(found))
        return found.width, found.height

    def selection_owner(self, name):
        """The window that owns a selection; 0 if none does."""
        atom = self._x.XInternAtom(self._display, name.encode(), 0)
        return self._x.XGetSelectionOwner(self._display, ctypes.c_ulong(atom))
