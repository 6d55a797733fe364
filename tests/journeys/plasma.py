"""KDE's Plasma on KWin's Wayland, without a screen."""
import contextlib
import itertools
import json
import os
import pathlib
import shutil
import subprocess
import tempfile

from bus import ask, ask_with_file, is_there
from devices import FakeInput, ListedWindows
from waiting import until

SIZE = (1280, 1024)
# Without their frames, places are those of contents.
WINDOWS = """workspace.clientList().map(function(window) {
  if (window.normalWindow) window.noBorder = true;
  return {id: String(window.internalId), pid: window.pid, title: window.caption,
          active: window.active, visible: !window.minimized,
          x: window.frameGeometry.x, y: window.frameGeometry.y}; })"""
PLACE = """workspace.clientList().filter(function(window) {
  if (String(window.internalId) != "%s") return false;
  var now = window.frameGeometry;
  window.frameGeometry = {x: %d, y: %d, width: %d || now.width, height: %d || now.height};
  return true; }).length"""


class Desktop(ListedWindows):
    has_tray = True

    @contextlib.contextmanager
    def running(self, _folder):
        with tempfile.TemporaryDirectory(ignore_cleanup_errors=True) as name:
            self._folder, self._numbers = pathlib.Path(name), itertools.count()
            compositor = self._folder / "kwin_wayland"  # without capabilities, which may be refused
            shutil.copyfile(shutil.which("kwin_wayland"), compositor)
            compositor.chmod(0o755)
            display = pathlib.Path(os.environ["XDG_RUNTIME_DIR"], "wayland-journey")
            desktop = {"XDG_CURRENT_DESKTOP": "KDE", "KDE_FULL_SESSION": "true",
                       "KDE_SESSION_VERSION": "5"}
            environment = os.environ | desktop | {
                "HOME": name, "XDG_CONFIG_HOME": name, "XDG_DATA_HOME": name,
                "XDG_CACHE_HOME": name, "XDG_MENU_PREFIX": "kf5-",
                "KWIN_SCREENSHOT_NO_PERMISSION_CHECKS": "1",
                "KWIN_WAYLAND_NO_PERMISSION_CHECKS": "1"}  # the pointer and the keys
            self.environment = desktop | {"WAYLAND_DISPLAY": str(display), "GDK_BACKEND": "wayland",
                                          "QT_QPA_PLATFORM": "wayland"}
            self._log = self._folder / "log"
            with contextlib.ExitStack() as stack:
                told = stack.enter_context(open(self._log, "w", encoding="utf-8"))

                def start(*command, **more):
                    process = stack.enter_context(subprocess.Popen(
                        command, env=environment | more, stdout=told, stderr=told))
                    stack.callback(process.kill)
                    return process
                start("kbuildsycoca5", QT_QPA_PLATFORM="offscreen").wait()
                start(compositor, "--virtual", "--width", str(SIZE[0]), "--height", str(SIZE[1]),
                      "--no-lockscreen", "--socket", display.name)
                until(lambda: display.exists() and is_there("org.kde.KWin"), self._log.read_text)
                # What the bus starts needs a display too.
                ask("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                    "UpdateActivationEnvironment", "(a{ss})", dict(environment | self.environment))
                self.devices = stack.enter_context(contextlib.closing(FakeInput(str(display))))
                start("kded5", **self.environment)
                start("plasmashell", **self.environment)
                until(lambda: is_there("org.kde.klipper") and is_there("org.kde.plasmashell"),
                      self._log.read_text)
                yield

    def place(self, window, at, size=(0, 0)):
        assert self._evaluate(PLACE % (window, *at, *size)) == 1

    def clipboard(self):
        return ask("org.kde.klipper", "/klipper", "org.kde.klipper.klipper",
                   "getClipboardContents")

    def colours_in(self, rectangle):
        with tempfile.TemporaryFile() as file:
            told = ask_with_file(
                "org.kde.KWin", "/org/kde/KWin/ScreenShot2", "org.kde.KWin.ScreenShot2",
                "CaptureArea", "(iiuua{sv}h)", *map(int, rectangle), {}, file=file)
            until(lambda: os.fstat(file.fileno()).st_size >= told["stride"] * told["height"],
                  "the picture")
            file.seek(0)
            rows = file.read()
        pixels = (y * told["stride"] + x * 4
                  for y in range(told["height"]) for x in range(told["width"]))
        return {tuple(rows[at:at + 3][::-1]) for at in pixels}

    def _all_windows(self):
        return self._evaluate(WINDOWS)

    def _evaluate(self, script):
        """KWin runs scripts from files, and what they print goes where it complains."""
        name = f"journey-{next(self._numbers)}"
        (file := self._folder / name).write_text(
            f'print("{name} " + JSON.stringify({script}) + " {name}");')
        scripting = ("org.kde.KWin", "/Scripting", "org.kde.kwin.Scripting")
        number = ask(*scripting, "loadScript", "(ss)", str(file), name)
        ask("org.kde.KWin", f"/{number}", "org.kde.kwin.Script", "run")

        def answer():
            parts = self._log.read_text().split(name)
            return parts[1] if len(parts) > 2 else None
        told = until(answer, lambda: f"KWin's answer to {script}: {self._log.read_text()[-2000:]}")
        ask(*scripting, "unloadScript", "(s)", name)
        return json.loads(told)
