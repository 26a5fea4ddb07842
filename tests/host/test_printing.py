"""Runs qmchart print and printers against a printing system of its own: what arrives there, and what is told when nothing does."""
import os
import re
import subprocess
import unittest

import test_qmchart
from printing_service import PrintingService, wait_for

# The printable area of the test's paper, in points from the page's top left corner.
LEFT, TOP, RIGHT, BOTTOM = 36, 36, 559, 806


def tool(*arguments):
    return subprocess.run([str(argument) for argument in arguments], capture_output=True, check=True,
                          timeout=test_qmchart.LIMIT).stdout


def pixels_of(page):
    """A page as rows of grey pixels, one to a point."""
    header = re.match(rb"P5\s+(\d+)\s+(\d+)\s+255\s", picture := tool("pdftoppm", "-r", 72, "-gray", page))
    width, height = int(header[1]), int(header[2])
    return [picture[header.end() + row * width:header.end() + (row + 1) * width] for row in range(height)]


class Printing(test_qmchart.Host):
    @classmethod
    def setUpClass(cls):
        cls.service = PrintingService()
        cls.addClassCleanup(cls.service.close)
        cls.service.add_printer("office")
        cls.service.add_printer("lab")
        cls.service.run("lpadmin", "-d", "office")

    def setUp(self):
        super().setUp()
        self.environment |= self.service.environment

    def print(self, *arguments, on="office"):
        """Prints and gives the page that arrived."""
        before = self.service.kept_jobs()
        result = self.run_qmchart("print", *arguments)
        self.assertEqual((result.returncode, result.stdout, result.stderr), (0, f"printed on {on}\n".encode(), b""))
        arrived = wait_for(lambda: [job for job in self.service.kept_jobs() if job not in before], "the page")
        self.assertEqual(len(arrived), 1)
        return arrived[0]

    def fails_to_print(self, *arguments):
        before = self.service.kept_jobs()
        line = self.fails(482, "print", self.table, *arguments)
        self.assertEqual(self.service.kept_jobs(), before)
        return line


class Pages(Printing):
    def test_the_page_is_text_and_vectors(self):
        page = self.print(self.table)
        text = tool("pdftotext", page, "-").decode()
        for told in ("Sales by year", "North", "South", "2001", "2003", "Year"):
            self.assertIn(told, text)
        self.assertRegex(tool("pdfinfo", page), rb"Pages: +1\n")
        self.assertEqual(len(tool("pdfimages", "-list", page).splitlines()), 2, "no more than the list's head")
        fonts = tool("pdffonts", page).decode().splitlines()[2:]
        self.assertTrue(fonts)
        for font in fonts:
            self.assertRegex(font, r" yes (no|yes) +yes ", "embedded, and readable as text")

    def test_the_ground_is_white_without_a_frame_and_the_chart_fills_the_page(self):
        rows = pixels_of(self.print(self.table))
        inked = [(x, y) for y, row in enumerate(rows) for x, grey in enumerate(row) if grey < 250]
        left, right = min(x for x, _ in inked), max(x for x, _ in inked)
        top, bottom = min(y for _, y in inked), max(y for _, y in inked)
        for edge, limit in ((left, LEFT), (top, TOP)):
            self.assertGreater(edge, limit + 1, "a frame would stand here")
        self.assertLess(right, RIGHT - 1)
        self.assertGreater(right - left, 0.9 * (RIGHT - LEFT))
        # As wide as the page takes it, and as high as the window's proportions make that.
        height = (RIGHT - LEFT) * 480 / 760
        self.assertLess(bottom - TOP, height + 1)
        self.assertGreater(bottom - top, 0.85 * height)
        corner = [grey for row in rows[TOP:TOP + 5] for grey in row[LEFT:LEFT + 20]]
        self.assertEqual(set(corner), {255})

    def test_the_options_of_the_picture_go_with_the_page(self):
        bare = self.write("bare.txt", b"1:2\n3:4\n")
        text = tool("pdftotext", self.print(bare, "--no-header", "--no-row-labels", "--separator", ":", "--title",
                                            "Ventes", "--row-title", "Jahr", "--value-title", "EUR"), "-").decode()
        for told in ("Ventes", "Jahr", "EUR"):
            self.assertIn(told, text)

    def test_a_printer_is_chosen_by_name(self):
        self.print(self.table, "--printer", "lab", on="lab")
        self.assertRegex(self.service.run("lpstat", "-W", "completed", "-o", "lab"), r"\Alab-\d+ ")

    def test_nobody_is_asked_on_a_display(self):
        reader, writer = os.pipe()
        display = subprocess.Popen(["Xvfb", "-displayfd", str(writer), "-noreset", "-nolisten", "tcp"], pass_fds=[writer],
                                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.addCleanup(display.wait, test_qmchart.LIMIT)
        self.addCleanup(display.terminate)
        os.close(writer)
        with os.fdopen(reader) as told:
            self.environment["DISPLAY"] = ":" + told.readline().strip()
        self.print(self.table)
        self.print(self.table, "--printer", "lab", on="lab")


class Names(Printing):
    def test_one_to_a_line_the_default_marked(self):
        result = self.run_qmchart("printers")
        self.assertEqual((result.returncode, result.stderr), (0, b""))
        self.assertEqual(sorted(result.stdout.decode().splitlines()), ["lab", "office (default)"])

    def test_what_is_not_understood(self):
        for arguments in (["print"], ["print", "t", "u"], ["print", ""], ["print", "t", "--printer", ""],
                          ["printers", "office"], ["save", "t", "a.png", "--printer", "office"]):
            with self.subTest(arguments):
                result = self.run_qmchart(*arguments)
                self.assertEqual((result.returncode, result.stdout), (2, b""))
                self.assertRegex(result.stderr, rb"\Aqmchart: [^\n]+\n\Z")

    def test_the_help_tells_of_both(self):
        told = self.run_qmchart("--help").stdout
        for text in (b"qmchart print TABLE", b"qmchart printers", b"--printer NAME"):
            self.assertIn(text, told)


class Failures(Printing):
    def test_an_unknown_name_tells_those_that_there_are(self):
        line = self.fails_to_print("--printer", "cellar")
        for name in ("cellar", "lab", "office"):
            self.assertIn(name, line)

    def test_a_printer_that_fails_at_the_page(self):
        self.service.add_printer("broken", "/failing")
        self.addCleanup(self.service.run, "lpadmin", "-x", "broken")
        self.assertIn("broken", self.fails_to_print("--printer", "broken"))
        wait_for(lambda: "disabled" in self.service.state_of("broken"), "the printer's being stopped")
        self.assertIn("stopped", self.fails_to_print("--printer", "broken"))

    def test_a_printer_that_gives_the_page_up(self):
        self.service.add_printer("giving-up", "/failing")
        self.addCleanup(self.service.run, "lpadmin", "-x", "giving-up")
        self.service.run("lpadmin", "-p", "giving-up", "-o", "printer-error-policy=abort-job")
        self.assertIn("failed", self.fails_to_print("--printer", "giving-up"))

    def test_a_stopped_printer(self):
        self.service.run("cupsdisable", "lab")
        self.addCleanup(self.service.run, "cupsenable", "lab")
        self.assertIn("stopped", self.fails_to_print("--printer", "lab"))

    def test_a_printer_that_takes_no_jobs(self):
        self.service.run("cupsreject", "office")
        self.addCleanup(self.service.run, "cupsaccept", "office")
        self.assertIn("takes no jobs", self.fails_to_print())

    def test_a_printer_that_is_for_others(self):
        self.service.run("lpadmin", "-p", "lab", "-u", "allow:somebody-else")
        self.addCleanup(self.service.run, "lpadmin", "-p", "lab", "-u", "allow:all")
        # Who may not use a printer does not see it either, unless they look after the system.
        self.assertRegex(self.fails_to_print("--printer", "lab"), "did not take the page|no printer named")

    def test_the_table_is_looked_at_first(self):
        self.fails(53, "print", "none.csv")
        self.fails(13, "print", "-", given=b"a,b\nx,y\n")


class Nothing(Printing):
    """A printing system without printers, and then none at all."""

    @classmethod
    def setUpClass(cls):
        cls.service = PrintingService()
        cls.addClassCleanup(cls.service.close)

    def nothing_prints(self):
        result = self.run_qmchart("printers")
        self.assertEqual((result.returncode, result.stdout), (0, b""))
        self.assertIn("default printer", self.fails_to_print())
        self.assertIn("there is no printer", self.fails_to_print("--printer", "office"))

    def test_without_printers_and_without_the_system(self):
        self.nothing_prints()
        self.service.stop()
        self.nothing_prints()


if __name__ == "__main__":
    unittest.main()
