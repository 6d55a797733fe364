"""Pointer and keys for a Wayland compositor, by the wire protocol and nothing else.

The devices live as long as their connection: a pointer that goes takes its drag along."""
import socket
import struct
import tempfile
import time

BUTTONS = {1: 0x110, 2: 0x112, 3: 0x111}
KEYMAP = b"""xkb_keymap { xkb_keycodes { include "evdev+aliases(qwerty)" };
xkb_types { include "complete" }; xkb_compat { include "complete" };
xkb_symbols { include "pc+us+inet(evdev)" }; };\0"""
MODIFIERS = {"shift": (42, 1), "ctrl": (29, 4), "alt": (56, 8)}  # code of the key, bit in the mask
ROWS = {2: "1234567890-=", 16: "qwertyuiop[]", 30: "asdfghjkl;'`", 43: "\\zxcvbnm,./"}
KEYS = {key: first + at for first, row in ROWS.items() for at, key in enumerate(row)} | {
    "Escape": 1, "BackSpace": 14, "Tab": 15, "Return": 28, "space": 57, " ": 57, "F2": 60,
    "F4": 62, "F10": 68, "Home": 102, "Up": 103, "Left": 105, "Right": 106, "End": 107,
    "Down": 108, "Delete": 111, "Menu": 127}
SHIFTED = dict(zip('!@#$%^&*()_+{}:"~<>?|', "1234567890-=[];'`,./\\"))

# Numbers of requests and events, as the protocols' descriptions count them.
DISPLAY, SYNC, GET_REGISTRY, ERROR = 1, 0, 1, 0
BIND, GLOBAL = 0, 0
CREATE_DEVICE = 0
POINTER_MOTION_ABSOLUTE, POINTER_BUTTON, POINTER_FRAME = 1, 2, 4
KEYBOARD_KEYMAP, KEYBOARD_KEY, KEYBOARD_MODIFIERS = 0, 1, 2
FAKE_AUTHENTICATE, FAKE_BUTTON, FAKE_MOTION_ABSOLUTE, FAKE_KEY = 0, 2, 9, 10


class Connection:
    """One program's connection to a compositor, with the names of what that offers."""

    def __init__(self, display):
        self._socket = socket.socket(socket.AF_UNIX)
        self._socket.connect(display)
        self._last, self._received, self._globals = DISPLAY, b"", {}
        self._registry = self.new()
        self.send(DISPLAY, GET_REGISTRY, struct.pack("I", self._registry))
        self.wait()

    def close(self):
        self._socket.close()

    def new(self):
        self._last += 1
        return self._last

    def send(self, to, request, body=b"", files=()):
        message = struct.pack("II", to, (8 + len(body)) << 16 | request) + body
        socket.send_fds(self._socket, [message], files)

    def bind(self, interface, version=1):
        bound, name = self.new(), struct.pack("I", self._globals[interface])
        self.send(self._registry, BIND,
                  name + text(interface) + struct.pack("II", version, bound))
        return bound

    def wait(self):
        """Until the compositor has done all that it was told."""
        done = self.new()
        self.send(DISPLAY, SYNC, struct.pack("I", done))
        while (event := self._event())[0] != done:
            sender, number, body = event
            if (sender, number) == (DISPLAY, ERROR):
                raise AssertionError(f"the compositor complained: {body[12:]}")
            if (sender, number) == (self._registry, GLOBAL):
                name, length = struct.unpack_from("II", body)
                self._globals[body[8:8 + length - 1].decode()] = name

    def _event(self):
        while True:
            if len(self._received) >= 8:
                sender, what = struct.unpack_from("II", self._received)
                if len(self._received) >= what >> 16:
                    body = self._received[8:what >> 16]
                    self._received = self._received[what >> 16:]
                    return sender, what & 0xffff, body
            received = self._socket.recv(65536)
            assert received, "the compositor has gone"
            self._received += received


def text(words):
    """As a message has it: its length, its bytes, and nothing up to a whole number."""
    ended = words.encode() + b"\0"
    return struct.pack("I", len(ended)) + ended + b"\0" * (-len(ended) % 4)


class Wlroots:
    """Virtual devices of the compositors that are made with wlroots."""

    def __init__(self, display, size):
        self._wire, self._size = Connection(display), size
        seat = self._wire.bind("wl_seat")
        self._pointer = self._device("zwlr_virtual_pointer_manager_v1", seat)
        self._keyboard = self._device("zwp_virtual_keyboard_manager_v1", seat)
        with tempfile.TemporaryFile() as file:
            file.write(KEYMAP)
            file.flush()
            self._wire.send(self._keyboard, KEYBOARD_KEYMAP, struct.pack("II", 1, len(KEYMAP)),
                            [file.fileno()])
        self._wire.wait()

    def close(self):
        self._wire.close()

    def point(self, x, y):
        self._tell(POINTER_MOTION_ABSOLUTE, struct.pack("IIII", x, y, *self._size))

    def button(self, code, state):
        self._tell(POINTER_BUTTON, struct.pack("II", code, state))

    def key(self, code, state, modifiers):
        self._wire.send(self._keyboard, KEYBOARD_MODIFIERS,
                        struct.pack("IIII", modifiers, 0, 0, 0))
        self._wire.send(self._keyboard, KEYBOARD_KEY, _now() + struct.pack("II", code, state))
        self._wire.wait()

    def _device(self, manager, seat):
        bound, made = self._wire.bind(manager), self._wire.new()
        self._wire.send(bound, CREATE_DEVICE, struct.pack("II", seat, made))
        return made

    def _tell(self, request, body):
        self._wire.send(self._pointer, request, _now() + body)
        self._wire.send(self._pointer, POINTER_FRAME)
        self._wire.wait()


class FakeInput:
    """Devices of KWin's."""

    def __init__(self, display):
        self._wire = Connection(display)
        self._input = self._wire.bind("org_kde_kwin_fake_input", 4)
        self._tell(FAKE_AUTHENTICATE, 2 * text("journey"))

    def close(self):
        self._wire.close()

    def point(self, x, y):
        self._tell(FAKE_MOTION_ABSOLUTE, struct.pack("ii", x * 256, y * 256))

    def button(self, code, state):
        self._tell(FAKE_BUTTON, struct.pack("II", code, state))

    def key(self, code, state, _modifiers):
        self._tell(FAKE_KEY, struct.pack("II", code, state))

    def _tell(self, request, body):
        self._wire.send(self._input, request, body)
        self._wire.wait()


def _now():
    return struct.pack("I", int(time.monotonic() * 1000) & 0xffffffff)


class Hands:
    """A desktop's pointer and keys, by devices that are there while it runs."""

    def __init__(self):
        self.devices = None
        self._held = set()

    def move(self, *points, pause):
        for point in points:
            self.devices.point(*point)
            time.sleep(pause)

    def hold(self, button):
        self._held.add(button)
        self.devices.button(BUTTONS[button], 1)
        time.sleep(0.05)

    def release(self, button):
        if button in self._held:
            self._held.remove(button)
            self.devices.button(BUTTONS[button], 0)

    def press(self, *keys):
        for combination in keys:
            *held, key = combination.split("+")
            self._press(held, key)

    def write(self, text):
        for character in text:
            held = ["shift"] if character in SHIFTED or character.isupper() else []
            self._press(held, SHIFTED.get(character, character.lower()))

    def _press(self, held, key):
        modifiers = sum(MODIFIERS[name][1] for name in held)
        codes = [MODIFIERS[name][0] for name in held] + [KEYS[key]]
        for code in codes:
            self.devices.key(code, 1, modifiers)
        time.sleep(0.02)
        for code in reversed(codes):
            self.devices.key(code, 0, modifiers if code == codes[-1] else 0)
        time.sleep(0.02)


class ListedWindows(Hands):
    """A desktop that tells of its windows, the topmost ones last: _all_windows() gives the id, pid,
    title, active, visible, x and y of each."""
    brings_back_places = False
    decoration = (0, 0)  # drawn by the toolkit beside and above its contents

    def visible_window(self, pid, name=""):
        found = [each for each in self._windows(pid) if each["visible"] and name in each["title"]]
        return found[-1]["id"] if found else None

    def active_window(self):
        return next((each["id"] for each in self._all_windows() if each["active"]), None)

    def origin(self, pid):
        found = self._windows(pid) or [{"x": 0, "y": 0}]
        return (round(found[-1]["x"]) + self.decoration[0],
                round(found[-1]["y"]) + self.decoration[1])

    def _windows(self, pid):
        return [each for each in self._all_windows() if each["pid"] == pid]
