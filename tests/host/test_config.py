"""Runs "qmchart config" from outside, on both engines: what it does, says and leaves alone."""
import json
import os
import pathlib
import pwd
import re
import shutil
import sqlite3
import struct
import subprocess
import tempfile
import unittest

import stores

QMCHART = stores.QMCHART
TABLE = b"Year,North,South\n2001,1.5,2\n2002,-3,4\n2003,5,5\n"
ODD_NAMES = ["Plain", "Vendas de Março", "日本 📈", "it's \"quoted\"; DROP TABLE Charts; --", " blanks at ends ", "100% [a]_*?",
             "back\\slash", "two\nlines\tand a tab", "x" * 5000, ".json", "-"]

# The tables as the product promises them to other programs: name and kind of every field, in order.
def _colour(prefix):
    return [(f"{prefix}{part}", "integer") for part in ("Red", "Green", "Blue")]


def _font(prefix):
    return [(f"{prefix}FontName", "text"), (f"{prefix}FontSize", "real"), (f"{prefix}FontStyle", "integer"),
            (f"{prefix}FontEffect", "integer"), *_colour(f"{prefix}FontColor")]


def _rect(prefix):
    return [(f"{prefix}{corner}", "real") for corner in ("MinX", "MinY", "MaxX", "MaxY")]


SCHEMA = {
    "Charts": [("ChartId", "text"), ("ConfigId", "text")],
    "ChartConfigurations": [
        ("ConfigId", "text"), ("ChartMaximized", "boolean"), ("ChartHeight", "real"), ("ChartWidth", "real"),
        ("ControlBar", "boolean"), ("Lines", "integer"), ("Markers", "integer"), ("Stacked", "integer"),
        ("FullStacked", "integer"), ("chartType", "long"), ("Legend", "boolean"), *_colour("BackColor"),
        ("Projection", "long"), ("Flipped", "boolean"), ("PieLabelPos", "long"), ("PlotAutoLayout", "boolean"),
        *_rect("Plot"), ("Rotation", "real"), ("Elevation", "real"), ("TitleText", "text"), ("TitleLocationType", "long"),
        *_rect("Title"), ("TitleOrientation", "long"), ("TitleHorzAlignment", "long"), ("TitleVertAlignment", "long"),
        *_font("Title"), ("LegendLocationType", "long"), *_rect("Legend"), *_font("Legend")],
    "ColumnsConfigurations": [("ConfigId", "text"), ("ColumnId", "integer"), ("ColumnName", "text")],
    "SeriesConfigurations": [
        ("ConfigId", "text"), ("SeriesId", "integer"), ("SeriesType", "long"), ("SeriesStatLine", "integer"),
        ("SeriesStyle", "long"), ("SeriesIndex", "long"), *_colour("SeriesColor"), *_colour("SeriesStyleColor"),
        ("SeriesLabelOrientation", "long"), ("SeriesLabelLocation", "long"), ("SeriesLabelLineStyle", "long"),
        ("SeriesLabelComponents", "integer"), *_font("SeriesLabel")],
    "AxesConfigurations": [
        ("ConfigId", "text"), ("AxisId", "integer"), ("AxisScaleVisible", "boolean"), ("AxisGridStyle", "long"),
        ("AxisTitleText", "text"), ("AxisTitleVisible", "boolean"), ("AxisTitleOrientation", "long"), *_font("AxisTitle"),
        *_font("AxisLabels")],
}
INDEXES = {"Charts_PrimaryKey", "Charts_Config", "ChartConfigurations_PrimaryKey",
           *(f"{table}Configurations_{index}" for table in ("Columns", "Series", "Axes") for index in ("PrimaryKey", "Config"))}
FILE_TYPES = {"text": "TEXT", "boolean": "BOOLEAN", "integer": "SMALLINT", "long": "INTEGER", "real": "REAL"}
SERVER_TYPES = {"text": "text", "boolean": "boolean", "integer": "smallint", "long": "integer", "real": "real"}


def escaped(name):
    return name.replace("\\", "\\\\").replace("\n", "\\n").replace("\t", "\\t")


def size_of_png(path):
    return struct.unpack(">II", path.read_bytes()[16:24])


class Commands(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder)
        self.table = self.folder / "sales.csv"
        self.table.write_bytes(TABLE)

    def make(self, engine):
        store = engine()
        self.addCleanup(store.close)
        return store

    def qmchart(self, *arguments, given=b"", **more):
        return subprocess.run([QMCHART, *map(str, arguments)], input=given, capture_output=True, timeout=stores.LIMIT,
                              env=stores.environment(self.folder), cwd=self.folder, check=False, **more)

    def does(self, *arguments, given=b"", **more):
        """The command succeeds without a word of complaint; gives what it prints."""
        result = self.qmchart(*arguments, given=given, **more)
        self.assertEqual((result.returncode, result.stderr), (0, b""), arguments)
        return result.stdout.decode()

    def fails(self, number, *arguments, given=b"", **more):
        """The command fails with that error, in one line and nothing else; gives the line."""
        result = self.qmchart(*arguments, given=given, **more)
        line = result.stderr.decode()
        self.assertEqual((result.returncode, result.stdout), (1, b""), (arguments, line))
        self.assertRegex(line, rf"\AError {number}: [^\n]+\n\Z", arguments)
        return line

    def config(self, store, *arguments, given=b"", **more):
        return self.does("config", "--config", store.folder, *arguments, given=given, **more)

    def keep(self, store, name, **fields):
        """Stores a look of two series."""
        look = {"TitleText": f"Title of {name}", "Columns": [{"ColumnName": "a"}, {"ColumnName": "b"}],
                "Series": [{"SeriesColorRed": 10}, {"SeriesColorRed": 20}], **fields}
        return self.config(store, "import", "-", "--as", name, given=json.dumps(look).encode())

    def look(self, store, name):
        return json.loads(self.config(store, "show", "--", name))


class OnBothEngines:
    """What every engine does alike."""

    def setUp(self):
        super().setUp()
        self.store = self.make(self.engine)

    def test_a_second_init_changes_nothing(self):
        self.keep(self.store, "Kept")
        self.fails(58, "config", "init", self.store.folder)
        self.assertEqual(self.config(self.store, "list"), "Kept\n")

    def test_odd_names_come_back(self):
        self.assertEqual(self.config(self.store, "list"), "")
        for name in ODD_NAMES:
            self.assertEqual(self.keep(self.store, name), f"stored {escaped(name)}\n")
        listed = self.config(self.store, "list").splitlines()
        self.assertCountEqual(listed, [escaped(name) for name in ODD_NAMES])
        for name in ODD_NAMES:
            with self.subTest(name[:40]):
                look = self.look(self.store, name)
                self.assertEqual((look["ConfigId"], look["TitleText"]), (name, f"Title of {name}"))
                self.assertEqual(self.config(self.store, "delete", "--", name), f"deleted {escaped(name)}\n")
        self.assertEqual(self.config(self.store, "list"), "")
        self.assertEqual([len(rows) for rows in self.store.tables().values()], [0] * 5)

    def test_case_does_not_tell_names_apart(self):
        self.keep(self.store, "Sales")
        self.keep(self.store, "SALES", TitleText="new")
        self.assertEqual(self.config(self.store, "list"), "Sales\n")
        self.assertEqual(self.look(self.store, "sales")["TitleText"], "new")

    def test_bindings(self):
        self.keep(self.store, "One")
        self.keep(self.store, "Two")
        self.assertEqual(self.config(self.store, "bind", " sales\u00e9 ", "One"), "bound  sales\u00e9  to One\n")
        self.config(self.store, "bind", "B", "One")
        self.config(self.store, "bind", "b", "Two")
        self.assertEqual(self.config(self.store, "bindings"), "B\tTwo\nSALES\u00c9\tOne\n")
        self.fails(326, "config", "bind", "B", "Nobody", "--config", self.store.folder)
        self.config(self.store, "delete", "Two")
        self.assertEqual(self.config(self.store, "bindings"), "SALES\u00c9\tOne\n")

    def test_an_unknown_name(self):
        for command in (["show", "No"], ["delete", "No"], ["export", "No", "a.json"]):
            self.assertIn('"No"', self.fails(326, "config", *command, "--config", self.store.folder))
        self.assertFalse((self.folder / "a.json").exists())

    def test_what_is_exported_is_what_is_imported(self):
        self.keep(self.store, "One", Rotation=33.25, BackColorGreen=7)
        self.assertEqual(self.config(self.store, "export", "One", "one.json"), "one.json\n")
        self.assertEqual((self.folder / "one.json").read_text(encoding="utf-8"), self.config(self.store, "show", "One"))
        self.config(self.store, "import", "one.json", "--as", "Two")
        one, two = self.look(self.store, "One"), self.look(self.store, "Two")
        self.assertEqual((one.pop("ConfigId"), two.pop("ConfigId")), ("One", "Two"))
        self.assertEqual(one, two)
        self.assertEqual((one["Rotation"], one["BackColorGreen"]), (33.25, 7))

    def test_looks_that_mean_nothing_are_refused_by_name_and_leave_nothing(self):
        before = self.store.tables()
        for number, word, look in ((3265, "Colour", {"Colour": 1}), (3265, "Nonsense", {"Series": [{"Nonsense": 1}]}),
                                   (13, "TitleText", {"TitleText": 1}), (13, "Rotation", {"Rotation": "1"}),
                                   (13, "Legend", {"Legend": 1}), (13, "Lines", {"Lines": 1.5}),
                                   (6, "Lines", {"Lines": 40000}), (6, "Rotation", {"Rotation": 1e39}),
                                   (6, "chartType", {"chartType": 3e9}), (380, "", {"chartType": 99}),
                                   (380, "", {"TitleOrientation": 99}), (380, "", {"BackColorRed": 256}),
                                   (380, "", {"BackColorRed": -1}), (380, "SeriesId", {"Series": [{"SeriesId": 0}]}),
                                   (380, "AxisId", {"Axes": [{"AxisId": 4}]}),
                                   (3022, "SeriesId", {"Series": [{"SeriesId": 1}, {"SeriesId": 1}]}),
                                   (321, "", []), (321, "", {"Series": 1}), (321, "", {"Series": [1]})):
            with self.subTest(look=look):
                line = self.fails(number, "config", "import", "-", "--as", "Bad", "--config", self.store.folder,
                                  given=json.dumps(look).encode())
                self.assertIn(word, line)
        self.fails(321, "config", "import", "-", "--as", "Bad", "--config", self.store.folder, given=b"{\"a\"")
        self.fails(321, "config", "import", "-", "--config", self.store.folder, given=b"{}")
        self.assertEqual(self.store.tables(), before)

    def test_a_missing_table_field_or_index(self):
        self.keep(self.store, "One")
        for number, word, command, change in (
                (3265, "TitleText", ["show", "One"], 'ALTER TABLE <ChartConfigurations> DROP COLUMN "TitleText"'),
                (3078, "SeriesConfigurations", ["show", "One"], "DROP TABLE <SeriesConfigurations>"),
                (3015, "PrimaryKey", ["list"], self.drop_index("ChartConfigurations_PrimaryKey"))):
            self.store.run(change)
            self.assertIn(word, self.fails(number, "config", *command, "--config", self.store.folder))

    def test_a_saved_chart_has_its_look(self):
        self.keep(self.store, "Mine", TitleText="Stored title", BackColorRed=1, BackColorGreen=2, BackColorBlue=3)
        self.config(self.store, "bind", "sales", "Mine")
        options = ["--config", self.store.folder]
        for use, titled, coloured in (("yes", True, True), ("no-titles", False, True), ("no", False, False)):
            with self.subTest(use):
                self.does("save", self.table, "a.svg", "--use-config", use, *options)
                picture = (self.folder / "a.svg").read_text(encoding="utf-8")
                self.assertEqual("Stored title" in picture, titled)
                self.assertEqual("#010203" in picture, coloured)

    def test_a_look_by_name_and_by_file(self):
        self.keep(self.store, "Mine", BackColorRed=1, BackColorGreen=2, BackColorBlue=3)
        self.config(self.store, "export", "Mine", "mine.json")
        self.does("save", self.table, "name.svg", "--look", "Mine", "--config", self.store.folder)
        self.does("save", self.table, "file.svg", "--look", "mine.json")
        self.does("save", self.table, "none.svg")
        name, file, none = ((self.folder / f"{kind}.svg").read_text(encoding="utf-8") for kind in ("name", "file", "none"))
        self.assertIn("#010203", name)
        self.assertEqual(name, file)
        self.assertNotIn("#010203", none)
        self.fails(326, "save", self.table, "a.svg", "--look", "Nobody", "--config", self.store.folder)
        self.fails(53, "save", self.table, "a.svg", "--look", "nowhere.json")
        self.assertFalse((self.folder / "a.svg").exists())

    def test_records_that_mean_nothing_end_in_an_error_or_a_picture(self):
        self.keep(self.store, "Odd")
        self.config(self.store, "bind", "sales", "Odd")
        whole, series, axes = "ChartConfigurations", "SeriesConfigurations", "AxesConfigurations"
        reals = ("-1e30", "1e30", "0", "-5", "3e38", "1e-30", "1e6", "2e9")
        numbers = ("-32768", "32767", "99", "-1")
        cases = [(whole, field, value) for field in ("ChartHeight", "ChartWidth", "Rotation", "Elevation", "PlotMinX", "PlotMaxY",
                                                     "TitleMaxX", "LegendMinY", "TitleFontSize", "LegendFontSize") for value in reals]
        cases += [(table, field, value) for table, field in ((series, "SeriesLabelFontSize"), (axes, "AxisTitleFontSize"),
                                                             (axes, "AxisLabelsFontSize")) for value in reals]
        cases += [(table, field, value) for table, field in (
            (whole, "chartType"), (whole, "TitleOrientation"), (whole, "Projection"), (whole, "PieLabelPos"),
            (whole, "LegendLocationType"), (whole, "Lines"), (whole, "Stacked"), (whole, "FullStacked"), (whole, "BackColorRed"),
            (whole, "TitleFontStyle"), (whole, "TitleFontEffect"), (series, "SeriesType"), (series, "SeriesIndex"),
            (series, "SeriesStatLine"), (series, "SeriesLabelComponents"), (series, "SeriesStyle"), (axes, "AxisGridStyle"),
            (axes, "AxisTitleOrientation")) for value in numbers]
        cases = cases[::self.every] + [(whole, "TitleText", "NULL"), (whole, "Rotation", "NULL"),
                                       (series, "SeriesColorRed", "NULL"), *self.alien_cases]
        for table, field, value in cases:
            with self.subTest(field=field, value=value):
                before = self.store.run(f'SELECT "{field}" FROM <{table}> LIMIT 1')[0][0]
                self.store.run(f'UPDATE <{table}> SET "{field}" = {value}')
                picture = self.folder / "odd.png"
                picture.unlink(missing_ok=True)
                try:
                    result = self.qmchart("save", self.table, picture, "--config", self.store.folder, "--use-config", "yes",
                                          preexec_fn=limit_memory)
                finally:
                    self.store.run(f'UPDATE <{table}> SET "{field}" = {self.literal(before)}')
                # What is refused ends the loading with a message; the picture is made with what was loaded until then.
                told = result.stderr.decode()
                self.assertEqual(result.returncode, 0, told)
                self.assertTrue(picture.exists())
                self.assertRegex(told, r"\A(Error (?!7:)\d+: [^\n]+\n)?\Z")
                width, height = size_of_png(picture)
                self.assertTrue(0 < width <= 16384 and 0 < height <= 16384, (width, height))
        self.does("save", self.table, "odd.png", "--config", self.store.folder, "--use-config", "yes")


def limit_memory():
    """A chart of six numbers needs no more than this, whatever its look says."""
    import resource
    resource.setrlimit(resource.RLIMIT_AS, (3 << 30, 3 << 30))


class OnAFile(OnBothEngines, Commands):
    engine = stores.SqliteStore
    every = 1  # of so many odd values one is tried
    # A file takes any value in any field.
    alien_cases = [("ChartConfigurations", "Rotation", "'text'"), ("ChartConfigurations", "Lines", "1e30"),
                   ("ChartConfigurations", "TitleText", "x'00ff'"), ("SeriesConfigurations", "SeriesType", "9223372036854775807"),
                   ("ChartConfigurations", "ChartWidth", "9e999"), ("AxesConfigurations", "AxisTitleVisible", "'perhaps'"),
                   ("ChartConfigurations", "TitleFontName", "hex(zeroblob(500000))")]

    def drop_index(self, name):
        return f'DROP INDEX "{name}"'

    def literal(self, value):
        return f"'{value}'" if isinstance(value, str) else repr(value)

    def test_another_program_sees_the_tables(self):
        text = subprocess.run(["sqlite3", str(self.store.file), ".schema"], capture_output=True, text=True, check=True).stdout
        found = {table: re.findall(r'^ *"(\w+)" (\w+)', body, re.MULTILINE)
                 for table, body in re.findall(r'CREATE TABLE (?:IF NOT EXISTS )?"(\w+)" \((.*?)\n\)', text, re.DOTALL)}
        self.assertEqual({table: dict(fields) for table, fields in found.items()},
                         {table: {name: FILE_TYPES[kind] for name, kind in fields} for table, fields in SCHEMA.items()})
        for table, fields in SCHEMA.items():
            self.assertEqual([name for name, _ in found[table]], [name for name, _ in fields])
        self.assertEqual(set(re.findall(r'INDEX "(\w+)"', text)), INDEXES)

    def test_where_nothing_may_be_written_looks_are_read_only(self):
        self.keep(self.store, "One")
        other = {}
        if os.geteuid() == 0:
            other = {"user": "nobody", "group": pwd.getpwnam("nobody").pw_gid, "extra_groups": []}
            if not self.can_run(other):
                self.skipTest("nobody may not run the program where it was built")
            os.chown(self.folder, pwd.getpwnam("nobody").pw_uid, -1)
        self.store.files.chmod(0o555)
        self.addCleanup(self.store.files.chmod, 0o755)
        self.store.file.chmod(0o444)
        before = self.store.file.read_bytes()
        self.assertEqual(self.config(self.store, "list", **other), "One\n")
        self.assertEqual(json.loads(self.config(self.store, "show", "One", **other))["ConfigId"], "One")
        for command in (["import", "-", "--as", "Two"], ["import", "-", "--as", "One"], ["delete", "One"], ["bind", "a", "One"]):
            self.fails(70, "config", *command, "--config", self.store.folder, given=b"{}", **other)
        self.assertEqual(self.store.file.read_bytes(), before)
        self.assertEqual([path.name for path in self.store.files.iterdir()], ["QmConfig.mdb"])
        self.store.file.chmod(0o000)
        if other:
            self.fails(70, "config", "list", "--config", self.store.folder, **other)

    def can_run(self, other):
        try:
            return self.qmchart("--version", **other).returncode == 0
        except PermissionError:
            return False

    def test_a_full_disk_leaves_the_old_look(self):
        if os.geteuid() != 0 and subprocess.run(["unshare", "-rm", "true"], capture_output=True, check=False).returncode != 0:
            self.skipTest("no file system of one's own may be mounted here")
        disk = self.folder / "disk"
        disk.mkdir()
        series = [{"SeriesLabelFontName": "F" * 3000} for _ in range(30)]
        (self.folder / "new.json").write_text(json.dumps({"TitleText": "new", "Series": series}), encoding="utf-8")
        (self.folder / "old.json").write_text(json.dumps({"TitleText": "old", "Series": series[:3]}), encoding="utf-8")
        script = """
            mount -t tmpfs -o size=1m tmpfs disk || exit 77
            "$0" config init disk && "$0" config import old.json --as One --config disk || exit 1
            "$0" config export One before.json --config disk || exit 1
            dd if=/dev/zero of=disk/rest bs=1k 2>/dev/null
            "$0" config import new.json --as One --config disk 2>told; echo $? >>told
            "$0" config import old.json --as Two --config disk 2>>told; echo $? >>told
            "$0" config export One after.json --config disk || exit 1
            sqlite3 disk/QmConfig.mdb 'PRAGMA integrity_check' >sound
            rm disk/rest
            "$0" config import new.json --as One --config disk || exit 1
            "$0" config export One last.json --config disk || exit 1
        """
        done = subprocess.run(["unshare", "-m" if os.geteuid() == 0 else "-rm", "sh", "-c", script, QMCHART], cwd=self.folder,
                              env=stores.environment(self.folder), capture_output=True, text=True, timeout=stores.LIMIT,
                              check=False)
        if done.returncode == 77 or "unshare" in done.stderr:
            self.skipTest(f"no file system of one's own may be mounted here: {done.stderr.strip()}")
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        told = (self.folder / "told").read_text(encoding="utf-8").splitlines()
        self.assertEqual([told[1], told[3]], ["1", "1"], told)
        self.assertRegex(told[0], r"\AError 61: ")
        self.assertRegex(told[2], r"\AError 61: ")
        self.assertEqual((self.folder / "sound").read_text(encoding="utf-8"), "ok\n")
        before, after, last = (json.loads((self.folder / f"{name}.json").read_text(encoding="utf-8"))
                               for name in ("before", "after", "last"))
        self.assertEqual(before, after)
        self.assertEqual((before["TitleText"], last["TitleText"], len(last["Series"])), ("old", "new", 30))

    def test_files_that_are_no_database(self):
        self.keep(self.store, "One")
        sound = self.store.file.read_bytes()
        for name, content in (("text", b"This is a letter, not a database.\n" * 100), ("empty", b""), ("cut", sound[:5000]),
                              ("head only", sound[:100]), ("zeros", bytes(len(sound))),
                              ("torn", sound[:4096] + bytes(len(sound) - 4096))):
            with self.subTest(name):
                self.store.file.write_bytes(content)
                for command in (["show", "One"], ["delete", "One"], ["import", "-", "--as", "One"]):
                    result = self.qmchart("config", *command, "--config", self.store.folder, given=b"{}")
                    self.assertEqual(result.returncode, 1)
                    self.assertRegex(result.stderr.decode(), r"\AError (3343|3078): [^\n]+\n\Z")
        self.store.file.write_bytes(sound)
        self.assertEqual(self.config(self.store, "list"), "One\n")

    def test_places_where_nothing_is(self):
        self.assertIn("config init", self.fails(3024, "config", "list", "--config", self.folder))
        self.fails(3044, "config", "list", "--config", self.folder / "nowhere")
        self.fails(3044, "config", "init", self.folder / "nowhere")
        self.assertEqual([path.name for path in self.folder.iterdir()], ["sales.csv"])
        (self.folder / "QmConfig.mdb").mkdir()
        self.fails(3044, "config", "list", "--config", self.folder)

    def test_what_is_kept_locked_is_given_up(self):
        self.keep(self.store, "One")
        holder = sqlite3.connect(self.store.file, isolation_level=None)
        self.addCleanup(holder.close)
        holder.execute("BEGIN EXCLUSIVE")
        for command in (["list"], ["import", "-", "--as", "Two"]):
            self.assertIn("another program", self.fails(3050, "config", *command, "--config", self.store.folder, given=b"{}"))
        holder.execute("ROLLBACK")
        self.assertEqual(self.config(self.store, "list"), "One\n")

    def test_what_is_released_in_time_is_waited_for(self):
        holder = sqlite3.connect(self.store.file, isolation_level=None)
        self.addCleanup(holder.close)
        holder.execute("BEGIN EXCLUSIVE")
        with subprocess.Popen([QMCHART, "config", "import", "-", "--as", "Two", "--config", self.store.folder],
                              stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                              env=stores.environment(self.folder)) as process:
            process.stdin.write(b"{}")
            process.stdin.close()
            process.stdin = None
            while process.poll() is None and not self.has_open(process.pid):
                pass
            self.assertIsNone(process.poll())
            holder.execute("ROLLBACK")
            output, errors = process.communicate(timeout=stores.LIMIT)
        self.assertEqual((process.returncode, output, errors), (0, b"stored Two\n", b""))

    def has_open(self, process):
        """Whether a process has the store's file open."""
        folder = pathlib.Path(f"/proc/{process}/fd")
        try:
            return any(os.readlink(entry) == str(self.store.file) for entry in folder.iterdir())
        except OSError:
            return False


class OnAServer(OnBothEngines, Commands):
    engine = stores.PostgresStore
    every = 10
    alien_cases = [("ChartConfigurations", "ChartWidth", "'Infinity'"), ("ChartConfigurations", "TitleFontSize", "'NaN'"),
                   ("ChartConfigurations", "TitleFontName", "repeat('F', 1000000)")]

    def drop_index(self, name):
        return f'DROP INDEX "QmConfig.mdb"."{name}"'

    def literal(self, value):
        # psql gives everything as text, from which the server makes the field's kind again.
        return "'" + value.replace("'", "''") + "'"

    def test_another_program_sees_the_tables(self):
        indexes = set()
        for table, fields in SCHEMA.items():
            text = self.store.psql(f'\\d "QmConfig.mdb"."{table}"')
            found = [tuple(line.split("|")[:2]) for line in text.splitlines() if "|" in line]
            self.assertEqual(found, [(name, SERVER_TYPES[kind]) for name, kind in fields])
            # Rows alone have no index: those stand below the table.
            text = subprocess.run(["psql", "-X", "-d", self.store.url, "-c", f'\\d "QmConfig.mdb"."{table}"'], text=True,
                                  capture_output=True, check=True, timeout=stores.LIMIT).stdout
            indexes |= set(re.findall(r'^ +"(\w+)" ', text, re.MULTILINE))
        self.assertEqual(indexes, INDEXES)

    def test_places_where_nothing_is(self):
        server = self.store.server
        self.fails(3024, "config", "list", "--config", server.rsplit("/", 2)[0] + "/no_such_database")
        self.assertIn("config init", self.fails(3024, "config", "list", "--config", server))
        self.fails(3151, "config", "list", "--config", "postgresql://tester@127.0.0.1:1/looks")
        for place in ("postgresql://", "postgresql://tester@127.0.0.1/", "postgresql://127.0.0.1:99999/looks",
                      "postgresql://127.0.0.1/looks/more"):
            self.fails(3044, "config", "list", "--config", place)
        self.fails(70, "config", "list", "--config", self.store.url.replace("tester@", "stranger@"))


class Copies(Commands):
    def test_both_ways_every_look_is_the_same(self):
        file, server, back = self.make(stores.SqliteStore), self.make(stores.PostgresStore), self.make(stores.SqliteStore)
        for number, name in enumerate(ODD_NAMES):
            self.keep(file, name, Rotation=number + 0.1, TitleFontSize=1e-7 * (number + 1), PlotMaxX=1e30 / (number + 1))
        self.config(file, "bind", "a", "Plain")
        self.config(file, "bind", "b", ODD_NAMES[2])
        self.keep(server, "PLAIN", TitleText="is replaced")
        told = f"copied {len(ODD_NAMES)} looks and 2 bindings\n"
        self.assertEqual(self.does("config", "copy", file.folder, server.folder), told)
        self.assertEqual(self.does("config", "copy", server.folder, back.folder), told)
        for name in ODD_NAMES:
            first = self.look(file, name)
            self.assertEqual(first, self.look(back, name) | {"ConfigId": name})
            self.assertEqual(first, self.look(server, name) | {"ConfigId": name})
        self.assertEqual(self.config(file, "bindings"), self.config(back, "bindings"))
        self.assertEqual(self.config(file, "bindings"), self.config(server, "bindings"))

    def test_into_nothing(self):
        file = self.make(stores.SqliteStore)
        self.fails(3024, "config", "copy", file.folder, self.folder)
        self.fails(3024, "config", "copy", self.folder, file.folder)


class CommandLines(Commands):
    def test_what_is_not_understood(self):
        for arguments in (["config"], ["config", "lists"], ["config", "list"], ["config", "init"], ["config", "list", "x", "--config", "."],
                          ["config", "show", "--config", "."], ["config", "copy", "a"], ["config", "list", "--config", ""],
                          ["save", "sales.csv", "a.png", "--size", "10"], ["save", "sales.csv", "a.png", "--size", "0x10"],
                          ["save", "sales.csv", "a.png", "--size", "-1x10"], ["save", "sales.csv", "a.png", "--size", "axb"],
                          ["save", "sales.csv", "a.png", "--look", "Name"],
                          ["save", "sales.csv", "a.png", "--look", "a.json", "--use-config", "no"]):
            with self.subTest(arguments):
                result = self.qmchart(*arguments)
                self.assertEqual((result.returncode, result.stdout), (2, b""))
                self.assertRegex(result.stderr.decode(), r"\Aqmchart: [^\n]+ \(see qmchart --help\)\n\Z")
        self.assertEqual([path.name for path in self.folder.iterdir()], ["sales.csv"])

    def test_a_size_in_pixels(self):
        for size in ((640, 360), (1, 1), (3000, 200)):
            with self.subTest(size):
                self.does("save", self.table, "a.png", "--size", f"{size[0]}x{size[1]}")
                self.assertEqual(size_of_png(self.folder / "a.png"), size)
        self.fails(380, "save", self.table, "a.png", "--size", "16385x10")

    def test_a_look_with_very_many_parts_needs_little_memory(self):
        store = self.make(stores.SqliteStore)
        look = json.dumps({"Series": [{"SeriesId": 32767}], "Columns": [{"ColumnId": 32767}]}).encode()
        result = self.qmchart("config", "import", "-", "--as", "Wide", "--config", store.folder, given=look,
                              preexec_fn=limit_memory)
        self.assertIn(result.returncode, (0, 1))
        if result.returncode == 1:
            self.assertRegex(result.stderr.decode(), r"\AError (?!7:)\d+: [^\n]+\n\Z")


if __name__ == "__main__":
    unittest.main()
