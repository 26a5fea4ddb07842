"""Stores that cannot be written, are locked, are something else, or hold what means nothing."""
import json
import os
import pathlib
import pwd
import sqlite3
import subprocess
import unittest

import stores
from config_case import QMCHART, Commands, limit_memory, size_of_png


class OddRecords:
    """Loads a look with one value at a time that no program would have stored."""

    def test_records_that_mean_nothing_end_in_an_error_or_a_picture(self):
        self.store = self.make(self.engine)
        self.keep(self.store, "Odd", Beyond=[{"Element": "Series", "Field": "LineWidth", "Value": 3}])
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
        extras = "LookExtras"
        cases += [(extras, field, value) for field, value in (
            ("Value", "'-1'"), ("Value", "'1e400'"), ("Value", "'nan'"), ("Value", "''"), ("Field", "'Nonsense'"),
            ("Field", "'EdgeColor'"), ("Element", "'Axis'"), ("Element", "'Series 40000'"), ("Element", "''"))]
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
                # What is refused is told, and no picture made.
                told = result.stderr.decode()
                self.assertRegex(told, r"\A(Error (?!7:)\d+: [^\n]+\n)?\Z")
                self.assertEqual((result.returncode, picture.exists()), (1, False) if told else (0, True), told)
                if told:
                    continue
                width, height = size_of_png(picture)
                self.assertTrue(0 < width <= 16384 and 0 < height <= 16384, (width, height))
        self.does("save", self.table, "odd.png", "--config", self.store.folder, "--use-config", "yes")


class OddRecordsInAFile(OddRecords, Commands):
    engine = stores.SqliteStore
    every = 1  # of so many odd values one is tried
    # A file takes any value in any field.
    alien_cases = [("ChartConfigurations", "Rotation", "'text'"), ("ChartConfigurations", "Lines", "1e30"),
                   ("ChartConfigurations", "TitleText", "x'00ff'"), ("SeriesConfigurations", "SeriesType", "9223372036854775807"),
                   ("ChartConfigurations", "ChartWidth", "9e999"), ("AxesConfigurations", "AxisTitleVisible", "'perhaps'"),
                   ("ChartConfigurations", "TitleFontName", "hex(zeroblob(500000))")]

    def literal(self, value):
        return f"'{value}'" if isinstance(value, str) else repr(value)


class OddRecordsOnAServer(OddRecords, Commands):
    engine = stores.PostgresStore
    every = 10
    alien_cases = [("ChartConfigurations", "ChartWidth", "'Infinity'"), ("ChartConfigurations", "TitleFontSize", "'NaN'"),
                   ("ChartConfigurations", "TitleFontName", "repeat('F', 1000000)")]

    def literal(self, value):
        # psql gives everything as text, from which the server makes the field's kind again.
        return "'" + value.replace("'", "''") + "'"


class Files(Commands):
    def setUp(self):
        super().setUp()
        self.store = self.make(stores.SqliteStore)

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

    def test_a_folder_that_may_not_be_searched_is_error_70(self):
        other = {}
        if os.geteuid() == 0:
            other = {"user": "nobody", "group": pwd.getpwnam("nobody").pw_gid, "extra_groups": []}
            if not self.can_run(other):
                self.skipTest("nobody may not run the program where it was built")
            os.chown(self.folder, pwd.getpwnam("nobody").pw_uid, -1)
        self.store.files.chmod(0o600)
        self.addCleanup(self.store.files.chmod, 0o755)
        for command in (["list", "--config", self.store.folder], ["init", self.store.folder],
                        ["list", "--config", f"{self.store.folder}below"]):
            self.assertIn(self.store.folder, self.fails(70, "config", *command, **other))

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


if __name__ == "__main__":
    unittest.main()
