"""GNOME's shell, without a screen."""
import contextlib
import json
import os
import pathlib
import subprocess
import tempfile
import time

from bus import ask, is_there
from devices import MODIFIERS, ListedWindows
from pictures import GdkPixbuf, colours_of
from waiting import until

SIZE = (1280, 1024)
WINDOWS = """global.get_window_actors().map(actor => {
  const window = actor.meta_window, frame = window.get_frame_rect();
  return {id: window.get_id(), pid: window.get_pid(), title: window.get_title() || "",
          active: window.has_focus(), visible: window.showing_on_its_workspace(),
          x: frame.x, y: frame.y, width: frame.width, height: frame.height,
          type: window.get_window_type()};
})"""
REMOTE = "org.gnome.Mutter.RemoteDesktop"


class Desktop(ListedWindows):
    has_tray = False
    decoration = (3, 30)

    @contextlib.contextmanager
    def running(self, _folder):
        with tempfile.TemporaryDirectory(ignore_cleanup_errors=True) as name:
            folder = pathlib.Path(name)
            log = folder / "log"
            display = pathlib.Path(os.environ["XDG_RUNTIME_DIR"], "wayland-journey")
            environment = os.environ | {
                "HOME": name, "XDG_CONFIG_HOME": name, "XDG_DATA_HOME": name,
                "XDG_CURRENT_DESKTOP": "GNOME", "GSETTINGS_BACKEND": "memory"}
            if not pathlib.Path("/run/systemd/system").exists():  # nobody is asked on that bus
                assert not os.path.exists("/run/systemd/seats"), "else GNOME looks for logind"
                environment["DBUS_SYSTEM_BUS_ADDRESS"] = os.environ["DBUS_SESSION_BUS_ADDRESS"]
            self.environment = {"WAYLAND_DISPLAY": str(display), "QT_QPA_PLATFORM": "wayland",
                                "GDK_BACKEND": "wayland", "XDG_CURRENT_DESKTOP": "GNOME"}
            with (open(log, "w", encoding="utf-8") as told,
                  subprocess.Popen(["gnome-shell", "--headless", "--unsafe-mode", "--wayland",
                                    "--no-x11", "--virtual-monitor", "{}x{}".format(*SIZE),
                                    "--wayland-display", display.name],
                                   env=environment, stdout=told, stderr=told) as process):
                try:
                    until(lambda: is_there("org.gnome.Shell") and is_there(REMOTE),
                          lambda: f"GNOME: {log.read_text()}")
                    until(lambda: self._evaluate(
                        "Main.layoutManager._startingUp || Main.overview.visible ? "
                        "(Main.overview.hide(), false) : true"), "GNOME without its overview")
                    self._picture = str(folder / "picture.png")
                    self.devices = RemoteDevices()
                    yield
                finally:
                    process.terminate()

    def place(self, window, at, size=None):
        """Again until it stands there: a new window is placed by the desktop, somewhat later."""
        found = ("global.get_window_actors().map(actor => actor.meta_window)"
                 f".find(window => window.get_id() == {window})")
        what = "move_frame(true, {}, {})".format(*at)
        if size:
            what = "move_resize_frame(true, {}, {}, {}, {})".format(*at, *size)

        def stands():
            self._evaluate(f"{found}.{what}")
            time.sleep(0.2)
            return any((each["x"], each["y"]) == tuple(at) for each in self._all_windows()
                       if each["id"] == window)
        until(stands, "the window at its place")

    def clipboard(self):
        """What it was when it was asked for last: the answer comes later."""
        return self._evaluate("""imports.gi.St.Clipboard.get_default().get_text(
            imports.gi.St.ClipboardType.CLIPBOARD, (_, text) => { global.copied = text || ""; });
            global.copied || "" """)

    def colours_in(self, rectangle):
        ask("org.gnome.Shell.Screenshot", "/org/gnome/Shell/Screenshot",
            "org.gnome.Shell.Screenshot", "ScreenshotArea", "(iiiibs)", *map(int, rectangle), False,
            self._picture)
        return colours_of(GdkPixbuf.Pixbuf.new_from_file(self._picture))

    def _all_windows(self):
        return self._evaluate(WINDOWS)

    def _evaluate(self, script):
        worked, answer = ask("org.gnome.Shell", "/org/gnome/Shell", "org.gnome.Shell", "Eval",
                             "(s)", script)
        assert worked, answer
        return json.loads(answer) if answer else None


class RemoteDevices:
    """The compositor's own, for those who work from afar."""

    def __init__(self):
        self._session = ask(REMOTE, "/org/gnome/Mutter/RemoteDesktop", REMOTE, "CreateSession")
        self._tell("Start")
        # Into a corner; the one above on the left would open the overview.
        self._tell("NotifyPointerMotionRelative", "(dd)", *SIZE)
        self._at = SIZE[0] - 1, SIZE[1] - 1
        for state in (1, 0):  # the first key makes the keyboard and gets lost
            self.key(MODIFIERS["shift"][0], state, 0)

    def point(self, x, y):
        self._tell("NotifyPointerMotionRelative", "(dd)", x - self._at[0], y - self._at[1])
        self._at = x, y

    def button(self, code, state):
        self._tell("NotifyPointerButton", "(ib)", code, bool(state))

    def key(self, code, state, _modifiers):
        self._tell("NotifyKeyboardKeycode", "(ub)", code, bool(state))

    def _tell(self, what, kinds="()", *arguments):
        ask(REMOTE, self._session, f"{REMOTE}.Session", what, kinds, *arguments)
