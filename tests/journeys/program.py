"""The program as a user runs it, what it keeps on disk, and the other programs on the desktop."""
import configparser
import contextlib
import json
import os
import pathlib
import shutil
import signal
import subprocess
import threading
import time
import uuid

import accessible
import desktop
from desktop import until

HERE = pathlib.Path(__file__).parent


class Package:
    """A brand on disk."""

    def __init__(self, path):
        self.path = path

    @property
    def manifest(self):
        return json.loads((self.path / "manifest.json").read_text())

    @property
    def name(self):
        return self.manifest["name"]

    def section(self, name):
        return next(each for each in self.manifest["sections"] if each["name"] == name)

    def items(self, section):
        """The values of a section's items, in their order."""
        return [value for item in self.section(section)["items"]
                for value in item["payload"].values()]

    def add(self, kind, section, file):
        """Puts a file in as an item of that kind, as another machine may have done."""
        manifest = self.manifest
        stored = f"{str(uuid.uuid4()).upper()}{file.suffix}"
        (self.path / "assets").mkdir(exist_ok=True)
        shutil.copy(file, self.path / "assets" / stored)
        value = {"asset": {"filename": stored, "originalName": file.name}, "name": file.stem}
        items = next(each for each in manifest["sections"] if each["name"] == section)["items"]
        items.append({"id": str(uuid.uuid4()).upper(), "payload": {kind: value}})
        (self.path / "manifest.json").write_text(json.dumps(manifest))

    def asset(self, item):
        return (self.path / "assets" / item["asset"]["filename"]).read_bytes()


class Home:
    """The folders of one user."""

    def __init__(self, folder):
        self.folder = pathlib.Path(folder)
        self.library = self.folder / "share/Tarn Loft/Library"
        self.runtime = self.folder / "runtime"
        self.runtime.mkdir(mode=0o700)
        self.environment = {
            "HOME": folder, "XDG_CONFIG_HOME": f"{folder}/config",
            "XDG_DATA_HOME": f"{folder}/share", "XDG_STATE_HOME": f"{folder}/state",
            "XDG_CACHE_HOME": f"{folder}/cache",
            "XDG_RUNTIME_DIR": str(self.runtime), "TMPDIR": folder,
        }

    def add_samples(self):
        for package in pathlib.Path(os.environ["SAMPLES"]).glob("*.tarnloft"):
            shutil.copytree(package, self.library / package.name)

    def add_brand(self, name, sections=()):
        """A brand as another machine may have made it."""
        package = self.library / f"{name}.tarnloft"
        package.mkdir(parents=True)
        now = "2026-01-01T00:00:00Z"
        manifest = {"schemaVersion": 1, "id": str(uuid.uuid4()).upper(), "name": name,
                    "createdAt": now, "updatedAt": now,
                    "sections": [{"id": str(uuid.uuid4()).upper(), "name": section, "items": []}
                                 for section in sections]}
        (package / "manifest.json").write_text(json.dumps(manifest))
        return Package(package)

    def brand(self, name):
        return Package(self.library / f"{name}.tarnloft")

    def brand_names(self):
        return sorted(path.stem for path in self.library.glob("*.tarnloft"))

    def kept(self, file):
        """The settings in a file such as "config/tarnloft.ini"."""
        reader = configparser.ConfigParser(interpolation=None)
        reader.optionxform = str
        reader.read(self.folder / file)
        return reader["General"] if reader.has_section("General") else {}


class Process:
    """A running program with its lines of output."""

    def __init__(self, command, environment=None):
        self._process = subprocess.Popen(
            list(map(str, command)), env=os.environ | desktop.here.environment | (environment or {}),
            stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
        self.pid = self._process.pid
        self.lines = []
        self._reader = threading.Thread(target=self._read, daemon=True)
        self._reader.start()

    def _read(self):
        for line in self._process.stdout:
            self.lines.append(line.rstrip("\n"))

    def line(self, beginning):
        """What follows on the first line that begins so."""
        def find():
            return next((line for line in self.lines if line.startswith(beginning)), None)
        line = until(find, lambda: f"“{beginning}” of {self._process.args[0]}: {self.lines}")
        return line[len(beginning):].strip()

    def has_ended(self):
        return self._process.poll() is not None

    def wait(self):
        """Its exit status, once it has ended by itself."""
        until(self.has_ended, f"the end of {self._process.args[0]}")
        self._reader.join()
        return self._process.returncode

    def kill(self):
        self._process.kill()
        self._process.wait()
        self._reader.join()
        self._process.stdout.close()


def gtk_partner(at, files=(), asks=None):
    """Another program's window; with `asks` it asks a drop for these formats, else for files."""
    command = ["/usr/bin/python3", "-B", HERE / "gtk_partner.py", *files]
    if asks:
        command += ["--asks", *asks]
    partner = Process(command, {"NO_AT_BRIDGE": "1"})
    partner.line("READY")
    window = until(lambda: desktop.visible_window(partner.pid), "the partner's window")
    desktop.here.place(window, at)
    return partner


class Program(Process):
    """Tarn Loft, started by the user of a home and used by its accessible tree.

    While another program stands still, alerts can't be heard: the library would wait for it."""

    def __init__(self, home, hears_alerts=True):
        self._alerts = accessible.Alerts() if hears_alerts else None  # before it asks who listens
        self.toasts = self._alerts.said if hears_alerts else []
        super().__init__([os.environ["TARNLOFT"]], home.environment | {
            "QT_QUICK_BACKEND": "software", "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"})
        self.home = home

    def kill(self):
        super().kill()
        self._stop_hearing()

    def _stop_hearing(self):
        if self._alerts:
            self._alerts.end()
            self._alerts = None

    @contextlib.contextmanager
    def stopped(self):
        """Without a turn of the processor meanwhile, and unheard from then on."""
        self._stop_hearing()
        os.kill(self.pid, signal.SIGSTOP)
        try:
            yield
        finally:
            if not self.has_ended():
                os.kill(self.pid, signal.SIGCONT)

    @property
    def tree(self):
        """All that shows now, from the application down."""
        def origin():
            return desktop.here.origin(self.pid)
        return until(lambda: accessible.application(self.pid, origin), "the program's accessible tree")

    def all(self, role, name=None, within=None):
        """Those that show now; `within` is the name of something around them."""
        def around(node):
            while node := node.parent:
                if node.name == within:
                    return True
            return False
        return [node for node in self.tree if node.role == role and name in (None, node.name)
                and (within is None or around(node))]

    def find(self, role, name=None, within=None):
        """The one that shows, as soon as there is one and it stands still."""
        def standing():
            for node in self.all(role, name, within):
                before = node.rectangle
                time.sleep(0.03)
                return node if before and node.rectangle == before else None
        return until(standing, lambda: f"{role} “{name}” within “{within}” in\n{self.tree.outline}")

    def gone(self, role, name=None):
        until(lambda: not self.all(role, name), lambda: f"{role} “{name}” to go")

    def dismiss(self, role, name=None):
        """Closes it by the Esc key."""
        desktop.press("Escape")
        self.gone(role, name)

    def focused(self):
        return accessible.focused(self.tree)

    @property
    def focus(self):
        """The name of what has the keyboard."""
        return getattr(self.focused(), "name", None)

    def click(self, role, name=None, within=None, button=1):
        desktop.click(self.find(role, name, within).middle, button)

    def card(self, name):
        """The middle of a tile's card, which is above its name."""
        x, y, width, _ = self.find("list item", name).rectangle
        return x + width // 2, y + 48

    @property
    def window(self):
        """Its window's number on the desktop."""
        return until(lambda: desktop.visible_window(self.pid, "Tarn Loft"), "the window")

    @property
    def is_active(self):
        """Whether its window is in front and gets the keys."""
        return desktop.active_window() == desktop.visible_window(self.pid, "Tarn Loft") is not None

    def place(self, at, size):
        """Moves the window's frame and sizes its content, as its user does with its border."""
        until(lambda: "didRightSizeWindow" in self.home.kept("config/tarnloft.ini"),
              "the window's own idea of its size")
        desktop.here.place(self.window, at, size)

    @property
    def geometry(self):
        """Where the window's content is, and its size."""
        return self.find("frame").rectangle
