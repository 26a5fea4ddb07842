"""Runs qmchart from outside: what it prints, what it writes, how it ends."""
import os
import pathlib
import re
import shutil
import signal
import struct
import subprocess
import tempfile
import time
import unittest

QMCHART = os.environ["QMCHART"]
# Seconds: until something that hangs is ended, and until a key that did nothing is pressed again.
LIMIT = 60
PRESS_AGAIN = 5
TABLE = "Year,North,South\n2001,1.5,2\n2002,-3,4\n2003,NA,5\n"


class Host(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder)
        self.table = self.write("sales-by-year.csv", TABLE.encode())
        self.environment = {name: value for name, value in os.environ.items()
                            if name not in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")}
        self.environment["XDG_RUNTIME_DIR"] = str(self.folder)
        os.chmod(self.folder, 0o700)

    def write(self, name, content):
        path = self.folder / name
        path.write_bytes(content)
        return path

    def run_qmchart(self, *arguments, given=b"", under=()):
        return subprocess.run([*under, QMCHART, *map(str, arguments)], input=given, capture_output=True, timeout=LIMIT,
                              env=self.environment, cwd=self.folder, check=False)

    def save(self, *arguments, given=b""):
        """Saves and gives the path that was printed."""
        result = self.run_qmchart("save", *arguments, given=given)
        self.assertEqual((result.returncode, result.stderr), (0, b""))
        self.assertTrue(result.stdout.endswith(b"\n"))
        return self.folder / result.stdout.decode().removesuffix("\n")

    def fails(self, number, *arguments, **more):
        """The command fails with that error, in one line and nothing else; gives the line."""
        result = self.run_qmchart(*arguments, **more)
        line = result.stderr.decode()
        self.assertEqual((result.returncode, result.stdout), (1, b""), line)
        self.assertRegex(line, rf"\AError {number}: [^\n]+\n\Z")
        return line


def kind(path):
    return subprocess.run(["file", "--brief", str(path)], capture_output=True, text=True, check=True).stdout


def size_of_png(path):
    return struct.unpack(">II", path.read_bytes()[16:24])


class Pictures(Host):
    def test_the_ending_names_the_format(self):
        for name, expected in (("a.bmp", "PC bitmap"), ("a.png", "PNG image"), ("a.svg", "SVG"), ("a.pdf", "PDF document"),
                               ("a.emf", "Enhanced Metafile"), ("A.PNG", "PNG image")):
            with self.subTest(name):
                path = self.save(self.table, self.folder / name)
                self.assertEqual(path, self.folder / name)
                self.assertRegex(kind(path), f"(?i){expected}")

    def test_a_relative_name_is_printed_as_given(self):
        result = self.run_qmchart("save", self.table.name, "chart.png")
        self.assertEqual((result.returncode, result.stdout), (0, b"chart.png\n"))
        self.assertIn("PNG", kind(self.folder / "chart.png"))

    def test_at_2x_has_twice_the_pixels(self):
        width, height = size_of_png(self.save(self.table, "chart.png"))
        self.assertEqual(size_of_png(self.save(self.table, "chart@2x.png")), (2 * width, 2 * height))

    def test_texts_reach_the_picture(self):
        svg = self.save(self.table, "chart.svg").read_text(encoding="utf-8")
        for text in ("Sales by year", "North", "South", "2001", "2003", "Year"):
            self.assertIn(text, svg)
        svg = self.save(self.table, "named.svg", "--title", "Ventes à Évry", "--row-title", "Jahr", "--value-title",
                        "EUR").read_text(encoding="utf-8")
        for text in ("Ventes à Évry", "Jahr", "EUR"):
            self.assertIn(text, svg)
        self.assertNotIn("Sales by year", svg)

    def test_the_same_table_gives_the_same_picture_whatever_the_form(self):
        plain = self.save(self.table, "plain.png", "--title", "T").read_bytes()
        for name, text in (("marked.csv", b"\xef\xbb\xbf" + TABLE.encode()), ("wide.csv", TABLE.encode("utf-16")),
                           ("tabs.tsv", TABLE.replace(",", "\t").encode()),
                           ("commas.csv", TABLE.replace(",", ";").replace("1.5", "1,5").encode()),
                           ("lines.csv", TABLE.replace("\n", "\r\n").encode())):
            with self.subTest(name):
                other = self.save(self.write(name, text), "other.png", "--title", "T")
                self.assertEqual(other.read_bytes(), plain)

    def test_reads_the_standard_input(self):
        piped = self.save("-", "piped.png", "--title", "T", given=TABLE.encode())
        self.assertEqual(piped.read_bytes(), self.save(self.table, "plain.png", "--title", "T").read_bytes())

    def test_every_language_is_taken(self):
        english = self.save(self.table, "en.png", "--language", "en").read_bytes()
        for language in ("pt", "es", "it"):
            self.assertEqual(self.save(self.table, language + ".png", "--language", language).read_bytes(), english)

    def test_options_of_the_layout(self):
        bare = self.write("bare.txt", b"1:2\n3:4\n")
        svg = self.save(bare, "bare.svg", "--no-header", "--no-row-labels", "--separator", ":").read_text(encoding="utf-8")
        self.assertIn("Bare", svg)


class Errors(Host):
    def test_missing_and_unreadable_tables(self):
        self.assertIn("none.csv", self.fails(53, "save", "none.csv", "a.png"))
        self.fails(75, "save", self.folder, "a.png")
        self.fails(70, "save", "/proc/self/mem", "a.png")
        self.assertFalse((self.folder / "a.png").exists())

    def test_malformed_tables(self):
        for text, number, told in (
                (b"", 5, "empty"), (b"a,b\n", 5, "no rows"), (b'a,b\n"x"y,1\n', 5, "line 2"), (b'a,b\nx,1"\n', 5, "line 2"),
                (b'a,b\nx,1\n"y,2\n', 5, "line 3"), (b"a,b\nx,\xff\n", 5, "line 2"), (b"a,b\nx,1,2\n", 5, "line 2"),
                (b"a,b\nx,1\ny,two\n", 13, 'line 3, column 2: "two"'),
                (b"a,b\n" + 32768 * b"x,1\n", 380, "32768"), (b"a" + 32768 * b",b" + b"\nx,1\n", 380, "32768")):
            with self.subTest(text[:40]):
                self.assertIn(told, self.fails(number, "save", "-", "a.png", given=text))
        self.assertEqual(sorted(path.name for path in self.folder.iterdir()), [self.table.name])

    def test_nothing_half_written_where_a_picture_cannot_be(self):
        self.fails(76, "save", self.table, "none/a.png")
        (self.folder / "folder.png").mkdir()
        self.fails(75, "save", self.table, "folder.png")
        closed = self.folder / "closed"
        closed.mkdir(mode=0o500)
        # To root no folder is closed, unless it gives up that right.
        under = ("setpriv", "--bounding-set=-dac_override") if os.geteuid() == 0 else ()
        self.fails("(70|75)", "save", self.table, closed / "a.png", under=under)
        self.assertEqual(list(closed.iterdir()), [])

    def test_a_picture_that_is_there_stays_when_the_table_is_wrong(self):
        picture = self.write("a.png", b"precious")
        self.fails(13, "save", "-", picture, given=b"a,b\nx,y\n")
        self.assertEqual(picture.read_bytes(), b"precious")

    def test_show_without_a_display_names_save(self):
        self.assertIn("qmchart save", self.fails(r"\d+", "show", self.table))
        self.assertIn("none.csv", self.fails(53, "show", "none.csv"))

    def test_output_that_nobody_can_take(self):
        with open("/dev/full", "wb") as full:
            result = subprocess.run([QMCHART, "--help"], stdout=full, stderr=subprocess.PIPE, timeout=LIMIT, check=False)
        self.assertEqual(result.returncode, 1)
        self.assertRegex(result.stderr, rb"\AError 75: ")


class Usage(Host):
    def test_help_and_version(self):
        for arguments in (["--help"], ["-h"], ["save", "--help"]):
            result = self.run_qmchart(*arguments)
            self.assertEqual((result.returncode, result.stderr), (0, b""))
            for told in (b"qmchart show TABLE", b"qmchart save TABLE PICTURE", b"--use-config"):
                self.assertIn(told, result.stdout)
        self.assertRegex(self.run_qmchart("--version").stdout, rb"\Aqmchart \d+\.\d+\.\d+\n\Z")

    def test_what_is_not_understood(self):
        for arguments in ([], ["draw"], ["save", "t"], ["save", "t", ""], ["show", "t", "--colour"],
                          ["show", "t", "--language", "xx"], ["show", "t", "--separator", "ab"]):
            with self.subTest(arguments):
                result = self.run_qmchart(*arguments)
                self.assertEqual((result.returncode, result.stdout), (2, b""))
                self.assertRegex(result.stderr, rb"\Aqmchart: [^\n]+\n\Z")


class OnADisplay(Host):
    """A window under a display of its own, closed as a person closes it."""

    def setUp(self):
        super().setUp()
        reader, writer = os.pipe()
        self.start(["Xvfb", "-displayfd", str(writer), "-screen", "0", "1280x1024x24", "-noreset", "-nolisten", "tcp"], writer)
        os.close(writer)
        with os.fdopen(reader) as told:
            self.environment["DISPLAY"] = ":" + told.readline().strip()
        self.start(["openbox"])
        self.xdotool("search", "--sync", "--class", "openbox")

    def start(self, command, *descriptors):
        process = subprocess.Popen(command, env=self.environment, pass_fds=descriptors, stdout=subprocess.DEVNULL,
                                   stderr=subprocess.DEVNULL)
        self.addCleanup(process.wait, LIMIT)
        self.addCleanup(process.send_signal, signal.SIGTERM)

    def xdotool(self, *arguments):
        return subprocess.run(["xdotool", *arguments], env=self.environment, capture_output=True, text=True,
                              timeout=LIMIT, check=True).stdout

    def test_show_returns_when_its_window_is_closed(self):
        self.show_and_close(self.table)

    def test_a_table_of_whole_numbers_is_shown_too(self):
        table = os.path.join(self.folder, "whole.csv")
        with open(table, "w", encoding="utf-8") as file:
            file.write("Year,A,B\n2001,1,2\n2002,3,4\n")
        self.show_and_close(table)

    def close(self, shown, window):
        """Alt+F4, pressed again where it came before the window manager listened; what the program told of errors."""
        deadline = time.monotonic() + LIMIT
        while True:
            try:
                self.xdotool("windowactivate", "--sync", window, "key", "--clearmodifiers", "alt+F4")
                return shown.communicate(timeout=PRESS_AGAIN)[1]
            except subprocess.CalledProcessError:  # the window went in the meantime
                return shown.communicate(timeout=LIMIT)[1]
            except subprocess.TimeoutExpired:
                if time.monotonic() > deadline:
                    raise

    def show_and_close(self, table):
        with subprocess.Popen([QMCHART, "show", table, "--language", "pt"], env=self.environment,
                              stderr=subprocess.PIPE) as shown:
            try:
                window = self.xdotool("search", "--sync", "--onlyvisible", "--pid", str(shown.pid)).split()[0]
                self.assertTrue(self.xdotool("getwindowname", window).strip())
                self.assertIsNone(shown.poll())
                errors = self.close(shown, window)
            finally:
                shown.kill()
        self.assertEqual((shown.returncode, errors), (0, b""))


if __name__ == "__main__":
    unittest.main()
