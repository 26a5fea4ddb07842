"""Runs "qmchart config" from outside, on both engines: what it does, says and leaves alone."""
import json
import re
import struct
import subprocess
import time
import unittest

import stores
from config_case import Commands, limit_memory, size_of_png
from look_schema import FILE_TYPES, INDEXES, SCHEMA, SERVER_TYPES

ODD_NAMES = ["Plain", "Vendas de Março", "日本 📈", "it's \"quoted\"; DROP TABLE Charts; --", " blanks at ends ", "100% [a]_*?",
             "back\\slash", "two\nlines\tand a tab", "x" * 5000, ".json", "-"]

def escaped(name):
    return name.replace("\\", "\\\\").replace("\n", "\\n").replace("\t", "\\t")


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
        self.assertEqual([len(rows) for rows in self.store.tables().values()], [0] * 6)

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

    BEYOND = [{"Element": "Axis 1", "Field": "Logarithmic", "Value": True},
              {"Element": "Series", "Field": "LineWidth", "Value": 2.5},
              {"Element": "Series 12", "Field": "MarkerSize", "Value": 9}]

    def test_what_a_look_says_beyond_its_fields_comes_back_and_goes(self):
        self.keep(self.store, "Plain")
        self.assertNotIn("Beyond", self.look(self.store, "Plain"))
        self.keep(self.store, "Log", Beyond=self.BEYOND)
        self.assertEqual(self.look(self.store, "Log")["Beyond"], self.BEYOND)
        self.assertEqual(len(self.store.tables()["LookExtras"]), 3)
        self.keep(self.store, "Log", Beyond=self.BEYOND[:1])
        self.assertEqual(self.look(self.store, "Log")["Beyond"], self.BEYOND[:1])
        self.config(self.store, "delete", "log")
        self.assertEqual(self.store.tables()["LookExtras"], [])

    def test_what_means_nothing_beyond_the_fields_is_refused(self):
        for number, word, change in ((321, "Axis 3", {"Element": "Axis 9"}), (3265, "Minimum", {"Field": "Least"}),
                                     (13, "true or false", {"Value": 1})):
            look = json.dumps({"Beyond": [self.BEYOND[0] | change]}).encode()
            self.assertIn(word, self.fails(number, "config", "import", "-", "--as", "Bad", "--config", self.store.folder,
                                           given=look))
        self.assertEqual(self.config(self.store, "list"), "")

    def test_an_older_store_works_on_says_what_it_does_not_keep_and_is_upgraded(self):
        self.keep(self.store, "Old")
        self.store.run("DROP TABLE <LookExtras>")
        look = json.dumps({"Beyond": self.BEYOND, "TitleText": "Kept"}).encode()
        result = self.qmchart("config", "import", "-", "--as", "Log", "--config", self.store.folder, given=look)
        self.assertEqual((result.returncode, result.stdout), (0, b"stored Log\n"))
        self.assertRegex(result.stderr.decode(), r'\Aqmchart: 3 values of "Beyond" were not kept: [^\n]+ config upgrade [^\n]+\n\Z')
        self.assertEqual(self.look(self.store, "Log")["TitleText"], "Kept")
        self.assertNotIn("Beyond", self.look(self.store, "Log"))
        self.config(self.store, "delete", "Log")
        self.assertEqual(self.does("config", "upgrade", self.store.folder), f"upgraded {self.store.folder}QmConfig.mdb\n")
        self.assertEqual(self.does("config", "upgrade", self.store.folder),
                         f"{self.store.folder}QmConfig.mdb is up to date\n")
        self.config(self.store, "import", "-", "--as", "Log", given=look)
        self.assertEqual(self.look(self.store, "Log")["Beyond"], self.BEYOND)
        self.assertEqual(self.config(self.store, "list"), "Log\nOld\n")

    def test_a_chart_has_what_its_look_says_beyond(self):
        beyond = [{"Element": "Series", "Field": "LineWidth", "Value": 7.25}]
        self.keep(self.store, "Thick", chartType=3, Beyond=beyond)
        self.config(self.store, "export", "Thick", "thick.json")
        self.does("save", self.table, "file.svg", "--look", "thick.json")
        self.config(self.store, "bind", "sales", "Thick")
        self.does("save", self.table, "bound.svg", "--config", self.store.folder, "--use-config", "no-titles")
        for name in ("file.svg", "bound.svg"):
            self.assertIn("7.25", (self.folder / name).read_text(encoding="utf-8"))


    def test_without_a_look_a_chart_is_calm_unless_the_store_binds_another(self):
        def picture(*options):
            self.does("save", self.table, "a.svg", *options)
            return (self.folder / "a.svg").read_text(encoding="utf-8")
        calm = picture()
        self.assertIn("#4670a8", calm)
        self.assertEqual(calm, picture("--look", "calm"))
        self.assertEqual(calm, picture("--config", self.store.folder))
        plain = picture("--look", "plain")
        self.assertNotIn("#4670a8", plain)
        self.assertEqual(plain, picture("--use-config", "no"))
        self.keep(self.store, "Mine", BackColorRed=1, BackColorGreen=2, BackColorBlue=3)
        self.config(self.store, "bind", "sales", "Mine")
        bound = picture("--config", self.store.folder)
        self.assertIn("#010203", bound)
        self.assertNotIn("Title of Mine", bound)

    def test_looks_of_the_program(self):
        listed = [line.split(" ", 1) for line in self.does("looks").splitlines()]
        self.assertEqual(len(listed), 10)
        pictures = set()
        for name, purpose in listed:
            self.assertTrue(purpose.strip())
            self.does("save", self.table, "a.svg", "--look", name)
            pictures.add((self.folder / "a.svg").read_bytes())
        self.assertGreaterEqual(len(pictures), 9)  # of small numbers a logarithmic axis may show no more than another
        self.keep(self.store, "dark", BackColorRed=1, BackColorGreen=2, BackColorBlue=3)
        self.does("save", self.table, "a.svg", "--look", "dark", "--config", self.store.folder)
        self.assertIn("#010203", (self.folder / "a.svg").read_text(encoding="utf-8"))


class OnAFile(OnBothEngines, Commands):
    engine = stores.SqliteStore

    def drop_index(self, name):
        return f'DROP INDEX "{name}"'

    def test_another_program_sees_the_tables(self):
        text = subprocess.run(["sqlite3", str(self.store.file), ".schema"], capture_output=True, text=True, check=True).stdout
        found = {table: re.findall(r'^ *"(\w+)" (\w+)', body, re.MULTILINE)
                 for table, body in re.findall(r'CREATE TABLE (?:IF NOT EXISTS )?"(\w+)" \((.*?)\n\)', text, re.DOTALL)}
        self.assertEqual({table: dict(fields) for table, fields in found.items()},
                         {table: {name: FILE_TYPES[kind] for name, kind in fields} for table, fields in SCHEMA.items()})
        for table, fields in SCHEMA.items():
            self.assertEqual([name for name, _ in found[table]], [name for name, _ in fields])
        self.assertEqual(set(re.findall(r'INDEX "(\w+)"', text)), INDEXES)

    def test_places_where_nothing_is(self):
        self.assertIn("config init", self.fails(3024, "config", "list", "--config", self.folder))
        self.fails(3044, "config", "list", "--config", self.folder / "nowhere")
        self.assertEqual([path.name for path in self.folder.iterdir()], ["sales.csv"])
        self.does("config", "init", self.folder / "made" / "too")
        self.assertEqual(self.does("config", "list", "--config", self.folder / "made" / "too"), "")
        self.fails(75, "config", "init", self.table / "below")
        (self.folder / "QmConfig.mdb").mkdir()
        self.fails(3044, "config", "list", "--config", self.folder)


class OnAServer(OnBothEngines, Commands):
    engine = stores.PostgresStore

    def drop_index(self, name):
        return f'DROP INDEX "QmConfig.mdb"."{name}"'

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
            self.keep(file, name, Rotation=number + 0.1, TitleFontSize=1e-7 * (number + 1), PlotMaxX=1e30 / (number + 1),
                      Beyond=[{"Element": "Axis 1", "Field": "LabelFormat", "Value": f"0.0 \"{number}\""}])
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

    def test_a_look_with_a_bad_record_is_named_and_left_out_and_the_others_are_copied_whole(self):
        for engine in (stores.SqliteStore, stores.PostgresStore):
            with self.subTest(engine.engine):
                file, target = self.make(stores.SqliteStore), self.make(engine)
                for name in ("One", "Torn", "Zero"):
                    self.keep(file, name)
                    self.keep(target, name, TitleText="old", Series=[{"SeriesColorRed": n} for n in (1, 2, 3)],
                              Columns=[{"ColumnName": n} for n in "xyz"])
                    self.config(file, "bind", "of " + name, name)
                file.run("UPDATE <AxesConfigurations> SET <AxisTitleText> = NULL WHERE <ConfigId> = 'Torn' AND <AxisId> = 2")
                before = self.look(target, "Torn")
                result = self.qmchart("config", "copy", file.folder, target.folder)
                self.assertEqual((result.returncode, result.stdout), (1, b"copied 2 looks and 2 bindings\n"))
                self.assertRegex(result.stderr.decode(), r'\A[^\n]*left out[^\n]*"Torn"[^\n]*AxisTitleText[^\n]*\n\Z')
                self.assertEqual(self.look(target, "Torn"), before)
                for name in ("One", "Zero"):
                    self.assertEqual(self.look(target, name), self.look(file, name))
                self.assertEqual(self.config(target, "bindings"), "OF ONE\tOne\nOF ZERO\tZero\n")

    def test_a_look_that_the_target_refuses_stays_there_as_it_was(self):
        file, target = self.make(stores.SqliteStore), self.make(stores.PostgresStore)
        for name in ("One", "Torn"):
            self.keep(file, name)
            self.keep(target, name, TitleText="old")
        target.psql("""ALTER TABLE "QmConfig.mdb"."AxesConfigurations"
                       ADD CHECK ("ConfigId" <> 'Torn' OR "AxisTitleText" = '')""")
        file.run("UPDATE <AxesConfigurations> SET <AxisTitleText> = 'new' WHERE <AxisId> = 3")
        before = self.look(target, "Torn")
        result = self.qmchart("config", "copy", file.folder, target.folder)
        self.assertEqual((result.returncode, result.stdout), (1, b"copied 1 looks and 0 bindings\n"))
        self.assertEqual(self.look(target, "Torn"), before)
        self.assertEqual(self.look(target, "One"), self.look(file, "One"))

    def test_a_store_is_not_copied_to_itself(self):
        file = self.make(stores.SqliteStore)
        self.keep(file, "One")
        link = self.folder / "link"
        link.symlink_to(file.folder)
        for place in (file.folder, link):
            began = time.monotonic()
            self.assertIn("same store", self.fails(5, "config", "copy", file.folder, place))
            self.assertLess(time.monotonic() - began, 4)
        self.assertEqual([path.name for path in file.files.iterdir()], ["QmConfig.mdb"])

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

    def test_more_pixels_to_an_inch_are_the_same_chart_with_more_pixels(self):
        for size in ((1501, 907), (3000, 2000)):
            self.does("save", self.table, "a.png", "--size", f"{size[0]}x{size[1]}", "--dpi", "300")
            self.assertEqual(size_of_png(self.folder / "a.png"), size)
        self.assertIn(b"pHYs" + struct.pack(">II", 11811, 11811), (self.folder / "a.png").read_bytes())
        self.does("save", self.table, "large.svg", "--size", "1600x1000", "--dpi", "192")
        self.does("save", self.table, "usual.svg", "--size", "800x500")
        self.assertEqual((self.folder / "large.svg").read_bytes(), (self.folder / "usual.svg").read_bytes())
        self.does("save", self.table, "a.png", "--dpi", "192")
        self.does("save", self.table, "b@2x.png")
        self.assertEqual((self.folder / "a.png").read_bytes(), (self.folder / "b@2x.png").read_bytes())
        self.fails(380, "save", self.table, "a.png", "--dpi", "5000")

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
