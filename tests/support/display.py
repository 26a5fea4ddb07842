"""A screen of the test's own with a window manager, or a Wayland desktop, and a command run on it.

    display.py [--size 1280x900] [--scale 2] openbox|xfwm4|weston COMMAND...

Needs Xvfb, x11-utils and the manager; weston needs neither of them, but Qt's Wayland platform.
"""
import argparse
import os
import signal
import subprocess
import sys
import tempfile
import time

PATIENCE = 30  # seconds that a machine with much else to do may take
MANAGERS = {"openbox": ["openbox"], "xfwm4": ["dbus-run-session", "--", "xfwm4", "--compositor=off"]}


def until(condition, what):
    """What the condition gives once it gives anything."""
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        found = condition()
        if found:
            return found
        time.sleep(0.02)
    raise AssertionError(f"waited in vain for {what}")


class Display:
    """A screen with a window manager. DISPLAY names it while it is there."""

    def __init__(self, manager="openbox", size="1280x900"):
        reading, writing = os.pipe()
        # Without a reset it does not begin anew, and lose who just comes, when a first program has come and gone.
        self.server = subprocess.Popen(["Xvfb", "-displayfd", str(writing), "-screen", "0", size + "x24", "-noreset", "-nolisten", "tcp"],
                                       pass_fds=[writing], stderr=subprocess.DEVNULL)
        os.close(writing)
        with os.fdopen(reading) as numbers:
            os.environ["DISPLAY"] = ":" + numbers.readline().strip()
        self.manager = subprocess.Popen(MANAGERS[manager], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                                        start_new_session=True)
        try:
            until(lambda: b"window id" in subprocess.run(["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"], capture_output=True,
                                                         check=False).stdout, "the window manager")
        except AssertionError:
            self.close()
            raise

    def close(self):
        os.killpg(self.manager.pid, signal.SIGTERM)
        self.manager.wait(PATIENCE)
        self.server.terminate()
        self.server.wait(PATIENCE)


class WaylandDesktop:
    """A desktop without a screen and without devices. WAYLAND_DISPLAY names it while it is there."""

    def __init__(self, size="1280x900"):
        width, height = size.split("x")
        name = "qmchart6-test"
        self.server = subprocess.Popen(["weston", "--backend=headless-backend.so", "--socket=" + name, "--width=" + width,
                                        "--height=" + height, "--idle-time=0", "--no-config"],
                                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        try:
            until(lambda: os.path.exists(os.path.join(os.environ["XDG_RUNTIME_DIR"], name)), "the Wayland desktop")
        except AssertionError:
            self.close()
            raise
        # Without devices there is no input method either, and Qt's own for Wayland does not look whether there is one.
        os.environ.update(WAYLAND_DISPLAY=name, QT_QPA_PLATFORM="wayland", QT_IM_MODULE="compose")

    def close(self):
        self.server.terminate()
        self.server.wait(PATIENCE)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("manager", choices=[*sorted(MANAGERS), "weston"])
    parser.add_argument("--size", default="1280x900")
    parser.add_argument("--scale", default="1")
    parser.add_argument("command", nargs=argparse.REMAINDER)
    wanted = parser.parse_args()
    with tempfile.TemporaryDirectory() as runtime:
        os.environ.update(XDG_RUNTIME_DIR=runtime, QT_QPA_PLATFORM="xcb", QT_SCALE_FACTOR=wanted.scale)
        os.environ.pop("WAYLAND_DISPLAY", None)
        display = WaylandDesktop(wanted.size) if wanted.manager == "weston" else Display(wanted.manager, wanted.size)
        try:
            return subprocess.run(wanted.command, check=False).returncode
        finally:
            display.close()


if __name__ == "__main__":
    sys.exit(main())
