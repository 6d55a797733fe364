"""The program in a panel's tray of today, whose items are told on the session bus."""
import pathlib
import tempfile
import unittest

from gi.repository import GLib

from bus import ask
from desktop import click, colours_in, press, until, visible_window
from journey import Journey
from program import Process

PANEL = """<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-panel" version="1.0">
  <property name="configver" type="int" value="2"/>
  <property name="panels" type="array">
    <value type="int" value="1"/>
    <property name="panel-1" type="empty">
      <property name="position" type="string" value="p=6;x=0;y=0"/>
      <property name="length" type="uint" value="20"/>
      <property name="position-locked" type="bool" value="true"/>
      <property name="plugin-ids" type="array"><value type="int" value="1"/></property>
    </property>
  </property>
  <property name="plugins" type="empty">
    <property name="plugin-1" type="string" value="systray"/>
  </property>
</channel>
"""
FIRST_ITEM = (0, 0, 24, 24)  # in the panel, which stands in the screen's corner
WATCHER = "org.kde.StatusNotifierWatcher"


class TheTray(Journey):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        folder = tempfile.TemporaryDirectory(ignore_cleanup_errors=True)
        cls.addClassCleanup(folder.cleanup)
        cls.environment = {"HOME": folder.name, "XDG_CONFIG_HOME": folder.name}
        settings = pathlib.Path(folder.name, "xfce4/xfconf/xfce-perchannel-xml/xfce4-panel.xml")
        settings.parent.mkdir(parents=True)
        settings.write_text(PANEL)
        # The bus starts the service that reads them.
        ask("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
            "UpdateActivationEnvironment", "(a{ss})", cls.environment)

    def test_its_item_brings_the_window_back_and_so_does_the_trays_end(self):
        panel = self.start_panel()
        tarn = self.start()
        self.close_and_click(tarn)
        self.close(tarn)
        panel.kill()
        until(lambda: tarn.is_active, "the window to come back")

    def test_a_panel_that_starts_later_is_used_too(self):
        tarn = self.start()
        self.start_panel()
        self.close_and_click(tarn)

    def start_panel(self):
        panel = self.beside(Process(["xfce4-panel", "--disable-wm-check"], self.environment))
        until(lambda: watched("IsStatusNotifierHostRegistered"), "the panel's tray")
        return panel

    def close_and_click(self, tarn):
        self.eventually(item_pids, [tarn.pid])
        until(lambda: any(max(colour) < 150 for colour in colours_in(FIRST_ITEM)), "its icon")
        self.close(tarn)
        click((12, 12))  # shows the quick grab panel, which leads back
        tarn.click("push button", "Open Tarn Loft")
        until(lambda: tarn.is_active, "the window to come back")

    def close(self, tarn):
        press("ctrl+w")
        until(lambda: not visible_window(tarn.pid, "Tarn Loft"), "the window to close")
        self.assertFalse(tarn.has_ended())


def watched(what):
    """What the bus knows of trays and their items; nothing while there is no tray."""
    try:
        return ask(WATCHER, "/StatusNotifierWatcher", "org.freedesktop.DBus.Properties", "Get",
                   "(ss)", WATCHER, what)
    except GLib.Error:
        return None


def item_pids():
    """The processes that have an item in the tray."""
    return [ask("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                "GetConnectionUnixProcessID", "(s)", item.partition("/")[0])
            for item in watched("RegisteredStatusNotifierItems") or ()]


if __name__ == "__main__":
    unittest.main()
