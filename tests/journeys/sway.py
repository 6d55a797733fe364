"""sway, a Wayland compositor, without a screen."""
import contextlib
import json
import os
import pathlib
import subprocess
import tempfile

from devices import ListedWindows, Wlroots
from waiting import PATIENCE, until

SIZE = (1280, 1024)
NOBODY = 65534
# Borderless and floating: places are those of contents, and windows keep the size that they want.
CONFIG = """
output HEADLESS-1 resolution {}x{} position 0,0 scale 1
xwayland disable
input * repeat_rate 0
default_border none
default_floating_border none
for_window [app_id=".*"] floating enable
bindsym Mod1+F4 kill
""".format(*SIZE)


class Desktop(ListedWindows):
    has_tray = False

    @contextlib.contextmanager
    def running(self, _folder):
        with tempfile.TemporaryDirectory() as name:
            folder = pathlib.Path(name)  # of the user that it runs as
            (folder / "config").write_text(CONFIG)
            as_user = []
            if os.getuid() == 0:  # it refuses to
                os.chown(folder, NOBODY, NOBODY)
                as_user = ["setpriv", f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups",
                           "--inh-caps=-all"]
            self._ipc, display, log = folder / "ipc", folder / "wayland-1", folder / "log"
            self.environment = {"WAYLAND_DISPLAY": str(display), "QT_QPA_PLATFORM": "wayland",
                                "GDK_BACKEND": "wayland"}
            environment = {"PATH": os.environ["PATH"], "HOME": name, "XDG_RUNTIME_DIR": name,
                           "SWAYSOCK": str(self._ipc), "WLR_BACKENDS": "headless",
                           "WLR_RENDERER": "pixman", "WLR_LIBINPUT_NO_DEVICES": "1"}
            with (open(log, "w", encoding="utf-8") as told,
                  subprocess.Popen([*as_user, "sway", "--config", folder / "config"],
                                   env=environment, stdout=told, stderr=told) as process):
                try:
                    until(lambda: display.exists() and
                          b"HEADLESS-1" in self._tell(kind="get_outputs", check=False),
                          lambda: f"sway: {log.read_text()}")
                    with contextlib.closing(Wlroots(str(display), SIZE)) as self.devices:
                        yield
                finally:
                    process.terminate()

    def place(self, window, at, size=None):
        resize = "resize set {} {}, ".format(*size) if size else ""
        self._tell(f"[con_id={window}] {resize}move absolute position {at[0]} {at[1]}")

    def clipboard(self):
        return self._run("wl-paste", "--no-newline", check=False).decode()

    def colours_in(self, rectangle):
        x, y, width, height = rectangle
        picture = self._run("grim", "-t", "ppm", "-g", f"{x},{y} {width}x{height}", "-")
        pixels = picture[-3 * width * height:]
        return {tuple(pixels[at:at + 3]) for at in range(0, len(pixels), 3)}

    def _all_windows(self):
        """Those of the compositor's tree, which tells the topmost ones last."""
        found, left = [], [json.loads(self._tell(kind="get_tree"))]
        while left:
            node = left.pop(0)
            left += node["nodes"] + node["floating_nodes"]
            if "pid" in node:
                found.append({"id": node["id"], "pid": node["pid"], "title": node["name"] or "",
                              "active": node["focused"], "visible": node["visible"],
                              "x": node["rect"]["x"], "y": node["rect"]["y"]})
        return found

    def _tell(self, *words, kind="command", check=True):
        return self._run("swaymsg", "-s", self._ipc, "-r", "-t", kind, *words, check=check)

    def _run(self, *words, check=True):
        return subprocess.run(words, env=os.environ | self.environment, check=check,
                              capture_output=True, timeout=PATIENCE).stdout
