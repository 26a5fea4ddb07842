"""What the tests of "qmchart config" begin with: a folder with a table in it, and the program."""
import json
import pathlib
import resource
import shutil
import struct
import subprocess
import tempfile
import unittest

import stores

QMCHART = stores.QMCHART
TABLE = b"Year,North,South\n2001,1.5,2\n2002,-3,4\n2003,5,5\n"


def size_of_png(path):
    return struct.unpack(">II", path.read_bytes()[16:24])


def limit_memory():
    """A chart of six numbers needs no more than this, whatever its look says."""
    resource.setrlimit(resource.RLIMIT_AS, (3 << 30, 3 << 30))


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
