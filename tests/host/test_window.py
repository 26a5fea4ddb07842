#!/usr/bin/env python3
"""The chart window as a stranger's process uses it: a real display with a window manager, keys, and the names that
screen readers get.

Environment: QMCHART, the program. Needs Xvfb, openbox, xdotool, ImageMagick, a message bus and AT-SPI.
"""
import os
import pathlib
import shutil
import sqlite3
import subprocess
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "support"))
from display import PATIENCE, Display, until  # noqa: E402

QMCHART = os.environ["QMCHART"]
EXAMPLES = pathlib.Path(__file__).resolve().parents[2] / "examples"
# What newer releases of the view for screen readers call a role.
RENAMED = {"button": "push button"}


def role_of(part):
    role = part.getRoleName()
    return RENAMED.get(role, role)


def run(*command):
    return subprocess.run(command, stdin=subprocess.DEVNULL, capture_output=True, timeout=PATIENCE, check=True).stdout


class Viewer:
    """A chart that is shown; what it has is found by the names for screen readers."""

    def __init__(self, *arguments):
        import pyatspi  # it connects to the bus of the display when it is loaded
        self.atspi = pyatspi
        self.process = subprocess.Popen([QMCHART, "show", *arguments], stdin=subprocess.DEVNULL, stderr=subprocess.PIPE)

    def parts(self):
        """All accessible parts of the program, as far as they are there at the moment."""
        found, waiting = [], []
        for program in self.atspi.Registry.getDesktop(0):
            if program is not None and program.get_process_id() == self.process.pid:
                waiting.append(program)
        while waiting:
            part = waiting.pop()
            found.append(part)
            try:
                waiting.extend(child for child in part if child is not None)
            except Exception:  # it went away meanwhile
                continue
        return found

    def find(self, role, name=None, **wanted):
        """The first part of a role and a name that is on the screen; None where there is none."""
        for part in self.parts():
            try:
                state = part.getState()
                if role_of(part) == role and (name is None or part.name == name) and \
                        state.contains(self.atspi.STATE_SHOWING) and \
                        all(state.contains(getattr(self.atspi, "STATE_" + key.upper())) == value for key, value in wanted.items()):
                    return part
            except Exception:  # it went away meanwhile
                continue
        return None

    def wait(self, role, name=None, **wanted):
        return until(lambda: self.find(role, name, **wanted), f"{role} {name} {wanted}")

    def click(self, part, along=0.5):
        """Clicks a part at its middle, or nearer to its left and upper edges."""
        place = part.queryComponent().getExtents(self.atspi.DESKTOP_COORDS)
        run("xdotool", "mousemove", str(place.x + int(place.width * along)), str(place.y + int(place.height * along)),
            "click", "1")

    def press(self, name):
        """Clicks the check button of a name and waits until it has the other state."""
        button = self.wait("check box", name, enabled=True)
        checked = button.getState().contains(self.atspi.STATE_CHECKED)
        self.click(button)
        self.wait("check box", name, checked=not checked)

    def picture(self, folder, name):
        """The chart as it is on the screen, without the pointer."""
        run("xdotool", "mousemove", "1", "899")
        place = self.wait("chart").queryComponent().getExtents(self.atspi.DESKTOP_COORDS)
        file = os.path.join(folder, name)
        run("import", "-window", "root", "-crop", f"{place.width}x{place.height}+{place.x}+{place.y}", "+repage", file)
        return file

    def windows(self):
        """How many windows are on the screen; an open menu is one."""
        return len(run("xdotool", "search", "--onlyvisible", "--pid", str(self.process.pid), "").split())

    def ends(self):
        until(lambda: self.process.poll() is not None, "the program's end")
        return self.process.returncode

    def close(self):
        if self.process.poll() is None:
            self.process.kill()
        self.process.wait(PATIENCE)
        self.process.stderr.close()


def key(*names):
    for name in names:
        run("xdotool", "key", "--clearmodifiers", name)


def same(one, other):
    """How many pixels of two pictures differ."""
    done = subprocess.run(["compare", "-metric", "AE", one, other, "null:"], capture_output=True, check=False)
    return float(done.stderr.decode().split()[0])


class WindowTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.display = Display()

    @classmethod
    def tearDownClass(cls):
        cls.display.close()

    def setUp(self):
        self.folder = tempfile.mkdtemp()
        self.addCleanup(shutil.rmtree, self.folder)
        run(QMCHART, "config", "init", self.folder)

    def show(self, *arguments, table="fertility-by-country.csv"):
        viewer = Viewer(str(EXAMPLES / table), "--config", self.folder, *arguments)
        self.addCleanup(viewer.close)
        return viewer

    def names(self):
        store = sqlite3.connect(f"file:{self.folder}/QmConfig.mdb?mode=ro", uri=True, timeout=PATIENCE)
        try:
            return [row[0] for row in store.execute('SELECT "ConfigId" FROM "ChartConfigurations" ORDER BY 1')]
        finally:
            store.close()

    def test_a_look_made_by_hand_is_there_again_the_next_time(self):
        viewer = self.show("--use-config", "yes")
        chart = viewer.wait("chart", "Fertility by country")
        self.assertIn("5 series", chart.description)
        plain = viewer.picture(self.folder, "plain.png")

        viewer.click(viewer.wait("combo box", "Bar"))
        viewer.wait("list item", "Area")
        key("a", "Return")
        viewer.wait("combo box", "Area")
        for button in ("Stack", "100%", "Flip"):
            viewer.press(button)
        made = viewer.picture(self.folder, "made.png")
        self.assertGreater(same(plain, made), 1000)

        # The context menu by its key, its last entry but one, a name, Enter.
        viewer.click(viewer.wait("chart"), along=0.01)
        before = viewer.windows()
        key("Menu")
        until(lambda: viewer.windows() > before, "the menu")
        key("Up", "Up", "Return")
        viewer.wait("text", "Configuration Name", focused=True)
        run("xdotool", "type", "--delay", "5", "By hand")
        key("Return")
        until(lambda: self.names() == ["By hand"], "the look in the store")
        viewer.wait("chart")

        key("alt+F4")  # what was changed is asked about, though it was stored under another name
        viewer.wait("push button", "No")
        key("alt+n")
        self.assertEqual(viewer.ends(), 0)

        again = self.show("--use-config", "yes")
        again.wait("combo box", "Area")
        for button, checked in (("Stack", True), ("100%", True), ("Flip", True), ("3D", False)):
            again.wait("check box", button, checked=checked)
        self.assertEqual(same(made, again.picture(self.folder, "again.png")), 0)
        key("alt+F4")
        self.assertEqual(again.ends(), 0)

    def test_a_store_that_is_not_there_is_told_and_the_chart_shown(self):
        os.remove(os.path.join(self.folder, "QmConfig.mdb"))
        viewer = self.show("--use-config", "yes")
        message = until(lambda: next((part.name for part in viewer.parts() if part.name.startswith("Error ")), None), "the message")
        self.assertTrue(message.startswith("Error 3024: "), message)
        key("Return")
        viewer.wait("chart", "Fertility by country")
        self.assertFalse(os.path.exists(os.path.join(self.folder, "QmConfig.mdb")))

    def test_everything_on_the_window_has_a_name_in_the_viewers_language(self):
        viewer = self.show("--language", "it")
        viewer.wait("chart")
        for role in ("check box", "push button"):
            for part in [part for part in viewer.parts() if role_of(part) == role]:
                if part.getState().contains(viewer.atspi.STATE_SHOWING):
                    self.assertNotEqual(part.name + part.description, "", role)
        viewer.wait("push button", "Carica Configurazione")
        viewer.wait("push button", "Salva Configurazione")


if __name__ == "__main__":
    if "QMCHART6_IN_SESSION" not in os.environ:
        # A message bus of its own: nobody else's programs are seen, and none of ours is left.
        os.environ.update(QMCHART6_IN_SESSION="1", QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", NO_AT_BRIDGE="0", LC_ALL="C.UTF-8")
        os.environ.pop("QT_QPA_PLATFORM", None)
        runtime = tempfile.mkdtemp()
        os.environ["XDG_RUNTIME_DIR"] = runtime
        done = subprocess.run(["dbus-run-session", "--", sys.executable, *sys.argv], check=False)
        shutil.rmtree(runtime, ignore_errors=True)
        sys.exit(done.returncode)
    unittest.main()
