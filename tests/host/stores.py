"""Places for looks, in a file and on the test run's server, and what look_writer keeps in them."""
import itertools
import json
import os
import pathlib
import shutil
import sqlite3
import subprocess
import tempfile

QMCHART = os.environ["QMCHART"]
LIMIT = 60  # seconds until something that hangs is ended
TABLES = ("Charts", "ChartConfigurations", "ColumnsConfigurations", "SeriesConfigurations", "AxesConfigurations",
          "LookExtras")
PARTS = 4
_count = itertools.count(1)


def environment(folder):
    """The present one, without a display; the folder is the user's own."""
    kept = {name: value for name, value in os.environ.items() if name not in ("DISPLAY", "WAYLAND_DISPLAY")}
    return kept | {"XDG_RUNTIME_DIR": str(folder), "QT_QPA_PLATFORM": "offscreen"}


def make(folder):
    subprocess.run([QMCHART, "config", "init", folder], check=True, stdout=subprocess.DEVNULL, timeout=LIMIT)


class SqliteStore:
    engine = "SQLite"

    def __init__(self):
        self.files = pathlib.Path(tempfile.mkdtemp())
        self.folder = f"{self.files}/"
        self.file = self.files / "QmConfig.mdb"
        make(self.folder)

    def close(self):
        shutil.rmtree(self.files)

    def run(self, *statements):
        """Runs statements behind the product's back and gives the rows of the last."""
        connection = sqlite3.connect(self.file, timeout=LIMIT, isolation_level=None)
        try:
            for statement in statements:
                rows = connection.execute(statement.replace("<", '"').replace(">", '"')).fetchall()
            return rows
        finally:
            connection.close()

    def tables(self):
        """All tables at one moment: name -> records."""
        connection = sqlite3.connect(self.file, timeout=LIMIT, isolation_level=None)
        connection.row_factory = sqlite3.Row
        try:
            connection.execute("BEGIN")
            return {table: [dict(row) for row in connection.execute(f'SELECT * FROM "{table}"')] for table in TABLES}
        finally:
            connection.close()

    def complaint(self):
        """What the engine finds wrong with the file; nothing where it is sound."""
        found = self.run("PRAGMA integrity_check")
        return None if found == [("ok",)] else found


class PostgresStore:
    engine = "PostgreSQL"

    def __init__(self):
        self.server = pathlib.Path(os.environ["POSTGRES_FILE"]).read_text(encoding="utf-8").splitlines()[0]
        self.database = f"t{os.getpid()}_{next(_count)}"
        self.url = self.server.rsplit("/", 2)[0] + "/" + self.database
        self.folder = self.url + "/"
        self.psql(f"CREATE DATABASE {self.database}", at=self.server.rstrip("/"))
        make(self.folder)

    def close(self):
        self.psql(f"DROP DATABASE {self.database} WITH (FORCE)", at=self.server.rstrip("/"))

    def psql(self, command, at=None):
        done = subprocess.run(["psql", "-AtqX", "-v", "ON_ERROR_STOP=1", "-d", at or self.url, "-c", command], text=True,
                              capture_output=True, timeout=LIMIT, check=False)
        if done.returncode != 0:
            raise RuntimeError(f"{command}: {done.stderr}")
        return done.stdout

    def run(self, *statements):
        for statement in statements:
            text = self.psql(statement.replace("<", '"QmConfig.mdb"."').replace(">", '"'))
        return [tuple(line.split("|")) for line in text.splitlines()]

    def tables(self):
        lists = ", ".join(f"""'{table}', (SELECT coalesce(json_agg(t), '[]') FROM "QmConfig.mdb"."{table}" t)"""
                          for table in TABLES)
        return json.loads(self.psql(f"SELECT json_build_object({lists})"))

    def complaint(self):
        return None


# What look_writer's save k holds.

def _colour(prefix, k):
    return {f"{prefix}Red": k % 256, f"{prefix}Green": k // 256 % 256, f"{prefix}Blue": k // 65536 % 256}


def _font(prefix, k):
    return {f"{prefix}FontName": f"Font {k}", f"{prefix}FontSize": 5 + k % 20, **_colour(f"{prefix}FontColor", k)}


def _rect(prefix, k):
    return {f"{prefix}MinX": k % 97 + 0.5, f"{prefix}MinY": k % 89 + 0.25, f"{prefix}MaxX": 100 + k % 83,
            f"{prefix}MaxY": 100 + k % 79}


def expected(k):
    """Table -> the records of save k in the order of their numbers, but for what does not depend on k."""
    whole = {"ChartHeight": 4000 + k % 3000, "ChartWidth": 5000 + k % 4000, "ControlBar": k % 2 == 0, "Rotation": k % 360,
             "TitleText": f"Look {k}", **_colour("BackColor", k), **_rect("Plot", k), **_rect("Title", k + 1),
             **_rect("Legend", k + 2), **_font("Title", k), **_font("Legend", k + 1)}
    numbers = range(1, PARTS + 1)
    return {
        "ChartConfigurations": [whole],
        "ColumnsConfigurations": [{"ColumnId": n, "ColumnName": f"Column {n} of {k}"} for n in numbers],
        "SeriesConfigurations": [{"SeriesId": n, **_colour("SeriesColor", k + n), **_font("SeriesLabel", k + n)}
                                 for n in numbers],
        "AxesConfigurations": [{"AxisId": n - 1, "AxisTitleText": f"Axis {n - 1} of {k}", **_font("AxisTitle", k + n),
                                **_font("AxisLabels", k + n + 1)} for n in numbers],
    }


def stored_save(tables, name):
    """The k of the save that is kept under a name; None for none. Raises AssertionError where it is not whole."""
    found = [row for row in tables["ChartConfigurations"] if row["ConfigId"] == name]
    if not found:
        for table in expected(0):
            assert not any(row["ConfigId"] == name for row in tables[table]), f"{table} has records of a look without head"
        return None
    k = int(found[0]["TitleText"].removeprefix("Look "))
    for table, records in expected(k).items():
        number = next((field for field in ("ColumnId", "SeriesId", "AxisId") if field in records[0]), None)
        stored = [row for row in tables[table] if row["ConfigId"] == name]
        if number:
            stored.sort(key=lambda row: row[number])
        assert len(stored) == len(records), f"{name}, save {k}: {len(stored)} records in {table}"
        for record, row in zip(records, stored):
            mixed = {field: row[field] for field, value in record.items() if row[field] != value}
            assert not mixed, f"{name}, save {k}: {table} holds {mixed}"
    return k
