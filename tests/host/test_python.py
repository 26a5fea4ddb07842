"""A host in Python: the package over the shared library, with and without numpy and pandas."""

import asyncio
import ctypes
import gc
import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

import numpy
import pandas
import qmchart6
from qmchart6._tables import values_of


def make(data, rows, columns, graph_id="test"):
    charts = qmchart6.QMChartArray()
    charts.QmMakeGraph(
        graph_id, rows, columns, data, ["r"] * rows, ["c"] * columns, ChartTitle="T", RowTitle="", ColumnTitle="", ValueTitle=""
    )


def cells_of(values):
    rows, columns = values.shape
    return [
        [
            ctypes.c_double.from_address(values.address + row * values.strides[0] + column * values.strides[1]).value
            for column in range(columns)
        ]
        for row in range(rows)
    ]


class Members(unittest.TestCase):
    def tearDown(self):
        for graph_id in qmchart6.open_graphs():
            qmchart6.QMChartArray().QmKillGraph(graph_id)

    def expect_error(self, number, call, *arguments, **named):
        with self.assertRaises(qmchart6.RuntimeError) as raised:
            call(*arguments, **named)
        self.assertEqual(raised.exception.number, number)
        self.assertTrue(raised.exception.description)

    def test_three_charts_one_refreshed_one_saved_one_as_bytes_one_closed(self):
        closed = []
        qmchart6.on_closed(closed.append)
        for graph_id in ("one", "two", " Three "):
            make([[1, 2], [3, 4]], 2, 2, graph_id)
        make([[5, 6]], 1, 2, "ONE")
        self.assertEqual(qmchart6.open_graphs(), ["ONE", "TWO", "THREE"])
        self.assertEqual(qmchart6.picture("one")[:4], b"\x89PNG")
        with tempfile.TemporaryDirectory() as folder:
            file = Path(folder, "saved.pdf")
            self.assertEqual(qmchart6.save([[1, 2]], file, id="saved"), str(file))
            self.assertEqual(file.read_bytes()[:4], b"%PDF")
        qmchart6.QMChartArray().QmKillGraph("two")
        self.assertEqual(closed, ["SAVED", "TWO"])
        qmchart6.on_closed(None)
        qmchart6.QMChartArray().QmKillGraph("three")
        self.assertEqual(closed, ["SAVED", "TWO"])

    def test_constants_are_those_of_all_hosts(self):
        charts = qmchart6.QMChartArray()
        self.assertEqual([charts.QmChNo, charts.QmChNoTitles, charts.QmChYes], [0, 1, 2])
        self.assertEqual([charts.QmChEnglish, charts.QmChPortuguese, charts.QmChSpanish, charts.QmChItalian], [0, 1, 2, 3])

    def test_the_path_is_write_only(self):
        charts = qmchart6.QMChartArray()
        charts.QmChartConfigPath = "/nowhere/"
        with self.assertRaises(AttributeError):
            _ = charts.QmChartConfigPath
        with tempfile.TemporaryDirectory() as folder:
            charts.QmChartConfigPath = folder + "/"

    def test_the_shortcut_shows_the_titles_it_is_given(self):
        qmchart6.QMChartArray().QmMkGr("short", "", 1, 1, [[1]], ["r"], ["c"], "Chart", "Value", "Row")
        picture = qmchart6.picture("short", "svg").decode()
        for title in ("Chart", "Value", "Row"):
            self.assertIn(f">{title}<", picture)

    def test_errors_bear_their_numbers(self):
        self.expect_error(9, make, [[1, 2]], 2, 2)
        self.expect_error(9, make, [[1, 2], [3]], 2, 2)
        self.expect_error(9, qmchart6.QMChartArray().QmMakeGraph, "x", 2, 1, [[1], [2]], ["r"], ["c"], "", "", "", "")
        self.expect_error(13, make, [["many"]], 1, 1)
        self.expect_error(13, make, [[True]], 1, 1)
        self.expect_error(13, make, numpy.array([[1j]]), 1, 1)
        self.expect_error(326, qmchart6.picture, "nobody")
        self.expect_error(5, qmchart6.show, [[1]], title="cut\0off")

    def test_a_language_that_has_no_texts_is_326(self):
        self.expect_error(326, qmchart6.show, [[1]], language=9)


class Tables(unittest.TestCase):
    def test_doubles_are_not_copied_whatever_their_strides(self):
        base = numpy.arange(24, dtype=float).reshape(4, 6)
        for table in (base, base.T, base[::2, ::3], base[::-1], numpy.asfortranarray(base)):
            values = values_of(table)
            self.assertEqual(values.address, table.__array_interface__["data"][0])
            self.assertEqual(cells_of(values), table.tolist())

    def test_other_real_types_are_converted(self):
        for kind in ("i1", "u2", "<i4", ">i4", "i8", "f2", "f4", ">f8"):
            self.assertEqual(cells_of(values_of(numpy.array([[1, 2], [3, 4]], dtype=kind))), [[1, 2], [3, 4]])

    def test_masked_cells_are_missing(self):
        cells = cells_of(values_of(numpy.ma.masked_equal([[1.0, 9.0]], 9.0)))
        self.assertEqual(cells[0][0], 1)
        self.assertNotEqual(cells[0][1], cells[0][1])

    def test_lists_with_none_and_a_list_as_one_column(self):
        self.assertEqual(cells_of(values_of([1, 2, 3])), [[1], [2], [3]])
        cells = cells_of(values_of([[1, None]]))
        self.assertNotEqual(cells[0][1], cells[0][1])

    def test_frames_bring_their_labels(self):
        frame = pandas.DataFrame({"North": [1, 2], "South": [3.5, None]}, index=["2025", "2026"])
        chart = qmchart6.show(frame, id="frame")
        picture = chart.picture("svg").decode()
        for name in ("North", "South", "2025", "2026"):
            self.assertIn(f">{name}<", picture)
        chart.close()

    def test_a_series_is_one_column_of_its_name(self):
        chart = qmchart6.show(pandas.Series([1, 2], index=["a", "b"], name="Only"), id="series")
        self.assertIn(">a<", chart.picture("svg").decode())
        chart.close()

    def test_what_knows_the_interchange_protocol_is_read(self):
        class Exchanged:
            def __init__(self, frame):
                self.frame = frame

            def __dataframe__(self, *_, **__):
                return self.frame.__dataframe__()

        frame = pandas.DataFrame({"a": [1.0, 2.0]})
        self.assertEqual(cells_of(values_of(Exchanged(frame))), [[1], [2]])

    def test_memory_is_kept_during_the_call_and_let_go_after_it(self):
        table = numpy.ones((3, 3))
        before = sys.getrefcount(table)
        make(table, 3, 3)
        gc.collect()
        self.assertEqual(sys.getrefcount(table), before)
        qmchart6.QMChartArray().QmKillGraph("test")


class Loops(unittest.TestCase):
    def test_without_a_display_run_returns_at_once(self):
        self.assertFalse(qmchart6.has_display())
        qmchart6.run()
        asyncio.run(qmchart6.run_async())
        qmchart6.pump(1)

    def test_notebooks_show_pictures(self):
        chart = qmchart6.show([[1, 2]], id="inline")
        self.assertEqual(chart._repr_png_()[:4], b"\x89PNG")
        self.assertIn("image/svg+xml", chart._repr_mimebundle_())
        chart.close()

    def test_a_script_ends_cleanly_with_charts_open(self):
        script = "import qmchart6; qmchart6.show([[1, 2], [3, 4]]); print(qmchart6.open_graphs())"
        done = subprocess.run([sys.executable, "-c", script], capture_output=True, text=True, timeout=60)
        self.assertEqual((done.returncode, done.stdout), (0, "['CHART']\n"), done.stderr)

    def test_a_library_that_is_not_there_is_told(self):
        environment = dict(os.environ, QMCHART6_LIBRARY="/nowhere/libqmchart6.so.0")
        done = subprocess.run([sys.executable, "-c", "import qmchart6"], capture_output=True, text=True, env=environment, timeout=60)
        self.assertIn("QMCHART6_LIBRARY", done.stderr)
        self.assertNotEqual(done.returncode, 0)


if __name__ == "__main__":
    unittest.main()
