"""Tables as people have them, and the commands of the front page as they stand there."""
import pathlib
import shlex
import shutil
import sqlite3
import subprocess
import unittest

import stores
from config_case import QMCHART, Commands

SOURCE = pathlib.Path(__file__).resolve().parents[2]


class Tables(Commands):
    def file(self, content, name="table.csv"):
        (self.folder / name).write_bytes(content)
        return name

    def picture(self, content, *options, name="table.csv"):
        self.does("save", self.file(content, name), "a.svg", "--title", "T", *options)
        return (self.folder / "a.svg").read_text(encoding="utf-8")

    def same(self, content, *options, as_plain):
        self.assertEqual(self.picture(content, *options), self.picture(as_plain), content)

    def test_messages_name_file_line_and_column(self):
        for text, number, place in (
                (b"a,b\nx,1\ny,two\n", 13, "odd.csv, line 3, column 2: "), (b'a,b\nx,1"\n', 5, "odd.csv, line 2, column 2: "),
                (b"a,b\nx,\xff\n", 5, "odd.csv, line 2: "), (b"a,b\nx,1,2\n", 5, "odd.csv, line 2: "), (b"", 5, "odd.csv: "),
                (b"a,b\n", 5, "odd.csv: ")):
            line = self.fails(number, "save", self.file(text, "odd.csv"), "a.png")
            self.assertIn(place, line)
            self.assertNotIn("Invalid procedure call", line)
        self.assertIn("the standard input, line 3, column 2: ", self.fails(13, "save", "-", "a.png", given=b"a,b\nx,1\ny,two\n"))

    def test_a_quote_that_is_not_closed_is_told_where_it_opens(self):
        for text, place in ((b'a,b\nx,1\n"y,2\nz,3\n', "line 3, column 1: "), (b'a,b,c\n"x\ny",1,"2\nz,3,4\n', "line 3, column 3: "),
                            (b'a,b\n"x,1\ny,"2"\n', "line 2, column 1: ")):
            self.assertIn(place, self.fails(5, "save", self.file(text), "a.png"), text)

    def test_a_zero_byte_does_not_cut_a_message(self):
        self.assertIn("is no number", self.fails(13, "save", self.file(b"a,b\nx,1\0two\n"), "a.png"))

    def test_other_encodings_are_read_where_they_are_named(self):
        text = "Größe,Área\nñ,1\n"
        line = self.fails(5, "save", self.file(text.encode("latin-1")), "a.png")
        self.assertIn("line 1: ", line)
        self.assertIn("--encoding windows-1252", line)
        plain = text.encode()
        self.same(text.encode("latin-1"), "--encoding", "latin-1", as_plain=plain)
        self.same(text.encode("utf-16-le"), "--encoding", "utf-16", as_plain=plain)
        self.same(plain, "--encoding", "UTF-8", as_plain=plain)
        self.same("€,„Œuvre“\n—,1\n".encode("cp1252"), "--encoding", "windows-1252", as_plain="€,„Œuvre“\n—,1\n".encode())

    def test_a_first_line_names_the_separator(self):
        self.same(b"sep=;\r\nk;a;b\r\n1;2,5;3\r\n", as_plain=b"k,a,b\n1,2.5,3\n")
        self.same(b'"sep=,"\nk,a\n1,2\n', as_plain=b"k,a\n1,2\n")
        self.same(b"\xef\xbb\xbfSEP=|\nk|a\n1|2\n", as_plain=b"k,a\n1,2\n")
        self.assertIn("line 3, column 2", self.fails(13, "save", self.file(b"sep=;\nk;a\n1;x\n"), "a.png"))

    def test_units_and_brackets_are_read_where_all_of_a_column_agrees(self):
        plain = b"k,a,b\n1,12,-3\n2,45,1200\n"
        for text in (b"k,a,b\n1,12%,(3)\n2,45%,1200\n", b'k,a,b\n1,$12,$(3)\n2,$45,"$1,200"\n',
                     'k;a;b\n1;12 €;-3,0 €\n2;45 €;1.200,0 €\n'.encode(), "k,a,b\n1,R$ 12,-£3\n2,R$ 45,£1200\n".encode()):
            self.assertEqual(self.picture(text, "--value-title", "V"), self.picture(plain, "--value-title", "V"), text)
        for text, place in ((b"k,a\n1,12%\n2,45\n", 'line 3, column 2: "45"'), ("k,a\n1,$12\n2,€45\n".encode(), 'line 3, column 2: "€45"'),
                            (b"k,a\n1,(3)\n2,-4\n", 'line 3, column 2: "-4"')):
            self.assertIn(place, self.fails(13, "save", self.file(text), "a.png"))

    def test_a_unit_that_all_numbers_share_names_the_value_axis(self):
        self.assertIn(">%<", self.picture(b"k,a,b\n1,12%,3%\n2,45%,6%\n"))

    def test_a_number_that_can_be_read_in_two_ways_is_asked_about(self):
        for text in (b"k;a\n1;1.234\n2;5\n", b"k;a\n1;1,234\n2;5\n", b"k\ta\n1\t1.234\n"):
            line = self.fails(5, "save", self.file(text), "a.png")
            self.assertIn("--decimal", line)
            self.assertRegex(line, r'"1[.,]234"')
        self.same(b"k;a\n1;1.234\n2;5\n", "--decimal", ",", as_plain=b"k,a\n1,1234\n2,5\n")
        self.same(b"k;a\n1;1.234\n2;5\n", "--decimal", "point", as_plain=b"k,a\n1,1.234\n2,5\n")
        self.same(b'k,a\n1,"1,5"\n', "--decimal", "comma", as_plain=b"k,a\n1,1.5\n")
        self.same(b"k;a\n1;1.234\n2;5,5\n", as_plain=b"k,a\n1,1234\n2,5.5\n")

    def test_short_rows_are_warned_of(self):
        result = self.qmchart("save", self.file(b"k,a,b\n1,2,3\n2,4\n3\n"), "a.png")
        self.assertEqual((result.returncode, result.stdout), (0, b"a.png\n"))
        self.assertRegex(result.stderr.decode(), r"\Aqmchart: table.csv, line 3: 2 of 3 cells[^\n]*2 rows[^\n]*\n\Z")

    def test_what_is_not_understood(self):
        for options in (["a.png", "--decimal", ";"], ["a.png", "--encoding", "ebcdic"], ["a.png", "--format", "png"], ["-"],
                        ["-", "--format", "jpg"], ["a.jpg"], ["a.gif"], ["a"], ["a.png.txt"]):
            with self.subTest(options):
                result = self.qmchart("save", "sales.csv", *options)
                self.assertEqual((result.returncode, result.stdout), (2, b""))
                self.assertRegex(result.stderr.decode(), r"\Aqmchart: [^\n]+ \(see qmchart --help\)\n\Z")
        for ending in ("bmp", "png", "svg", "pdf", "emf"):
            self.assertIn(ending, self.qmchart("save", "sales.csv", "a.jpg").stderr.decode())

    def test_a_picture_goes_to_the_standard_output(self):
        for form in ("bmp", "png", "svg", "pdf", "emf"):
            self.does("save", self.table, f"a.{form}")
            result = self.qmchart("save", self.table, "-", "--format", form)
            self.assertEqual((result.returncode, result.stderr), (0, b""))
            written = (self.folder / f"a.{form}").read_bytes()
            if form == "pdf":  # it bears the date of its making, and its fonts in any order
                self.assertEqual((result.stdout[:8], len(result.stdout)), (written[:8], len(written)))
            else:
                self.assertEqual(result.stdout, written)
        with open("/dev/full", "wb") as full:
            done = subprocess.run([QMCHART, "save", self.table, "-", "--format", "png"], stdout=full, stderr=subprocess.PIPE,
                                  env=stores.environment(self.folder), timeout=stores.LIMIT, check=False)
        self.assertEqual(done.returncode, 1)


class StoresThatFail(Commands):
    def setUp(self):
        super().setUp()
        self.store = self.make(stores.SqliteStore)
        self.keep(self.store, "Mine")
        self.config(self.store, "bind", "sales", "Mine")

    def test_no_picture_is_made_without_the_look_that_was_asked_for(self):
        options = ("save", self.table, "a.png", "--use-config", "yes", "--config")
        self.fails(3024, *options, self.folder)
        self.store.run("UPDATE <ChartConfigurations> SET <Projection> = 77")
        self.fails(380, *options, self.store.folder)
        self.store.run("UPDATE <ChartConfigurations> SET <Projection> = NULL")
        self.fails(94, *options, self.store.folder)
        self.fails(3024, "save", self.table, "a.png", "--use-config", "no-titles")
        self.assertFalse((self.folder / "a.png").exists())

    def test_a_look_is_exported_to_the_standard_output(self):
        self.assertEqual(self.config(self.store, "export", "Mine", "-"), self.config(self.store, "show", "Mine"))

    def test_what_is_not_there_is_told_with_the_folder_and_what_to_do(self):
        line = self.fails(3024, "config", "list", "--config", self.folder)
        self.assertIn(f'in the folder "{self.folder}"', line)
        self.assertIn(f"qmchart config init {self.folder}", line)
        line = self.fails(3044, "config", "list", "--config", self.folder / "nowhere")
        self.assertIn(f'no folder "{self.folder}/nowhere"', line)


class FrontPage(Commands):
    def test_its_commands_work_on_a_new_account(self):
        home = self.folder / "home"
        home.mkdir()
        shutil.copytree(SOURCE / "examples", self.folder / "project" / "examples")
        text = (SOURCE / "README.md").read_text(encoding="utf-8")
        commands = [shlex.split(line.strip(), comments=True) for line in text.splitlines() if line.startswith("    ./run ")]
        done = 0
        for command in commands:
            arguments = [word.replace("~", str(home)) for word in command[1:]]
            if not arguments or arguments[0] in ("print", "printers"):
                continue
            if arguments[0] == "show":  # there is no display: the same as a picture
                arguments[0] = "save"
                arguments.insert(2, "shown.png")
            result = subprocess.run([QMCHART, *arguments], cwd=self.folder / "project", capture_output=True, timeout=stores.LIMIT,
                                    env=stores.environment(self.folder) | {"HOME": str(home)}, check=False)
            self.assertEqual((result.returncode, result.stderr), (0, b""), command)
            done += 1
        self.assertGreater(done, 8)
        bound = sqlite3.connect(home / "looks" / "QmConfig.mdb").execute('SELECT "ChartId" FROM "Charts"').fetchall()
        self.assertEqual(bound, [("FERTILITY-BY-COUNTRY",)])


if __name__ == "__main__":
    unittest.main()
