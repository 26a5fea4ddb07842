"""Charts of tables in windows, on paper and as pictures.

    import qmchart6
    qmchart6.show([[3, 4.5], [5, 6.25]], title="Sales", rows=["2025", "2026"], columns=["North", "South"])

Tables are lists of lists, numpy arrays, pandas frames, or whatever else tells its memory or makes an array. None and
not-a-number are missing values. `QMChartArray` has the members that all hosts know; the functions are what a script
needs most. All calls are made on one thread, the first that made any.
"""

from __future__ import annotations

import ctypes
import enum
import os
import sys
from collections.abc import Callable, Sequence
from ctypes import byref, c_void_p
from typing import Any

from . import _library
from ._events import follow_prompt, has_display, pump, run, run_async
from ._library import RuntimeError, call, utf8
from ._tables import labels_of, table_of, values_of

__all__ = [
    "Chart",
    "Language",
    "QMChartArray",
    "RuntimeError",
    "UseConfig",
    "formats_follow_data",
    "has_display",
    "on_closed",
    "open_graphs",
    "picture",
    "pump",
    "run",
    "run_async",
    "save",
    "set_chart_size",
    "set_printer",
    "show",
    "use_look",
]

__version__: str = _library.library.qmchart6_version().decode()


class Language(enum.IntEnum):
    """The languages of all that a person reads."""

    ENGLISH = 0
    PORTUGUESE = 1
    SPANISH = 2
    ITALIAN = 3


class UseConfig(enum.IntEnum):
    """What is taken from the stored look that a chart is bound to."""

    NO = 0
    NO_TITLES = 1
    YES = 2


def _titles(chart: str, row: str, column: str, value: str) -> _library.Titles:
    return _library.Titles(ctypes.sizeof(_library.Titles), utf8(chart), utf8(row), utf8(column), utf8(value))


class QMChartArray:
    """The automation class: shows, prints, saves and closes charts of tables.

    Objects hold nothing of their own; all share the viewers, the configuration folder and the language of the process.
    A chart is addressed by its graph id; blanks at both ends and case do not count. Arrays are handed over from 1.
    Every failure is a RuntimeError with its `number` and `description`: 9 (a table or labels too small), 13 (a cell
    that is no number), 6 (a number too large), 380 (a negative count), and those of files, looks and printers.
    """

    def _set_path(self, folder: str) -> None:
        call("set_config_path", utf8(folder))

    QmChartConfigPath = property(fset=_set_path, doc="The folder of the stored looks, ending in a separator. Write only.")

    @property
    def QmChNo(self) -> int:
        """UseConfig: the default look."""
        return int(UseConfig.NO)

    @property
    def QmChNoTitles(self) -> int:
        """UseConfig: the stored look with the caller's titles."""
        return int(UseConfig.NO_TITLES)

    @property
    def QmChYes(self) -> int:
        """UseConfig: the stored look and titles."""
        return int(UseConfig.YES)

    @property
    def QmChEnglish(self) -> int:
        """Language: English."""
        return int(Language.ENGLISH)

    @property
    def QmChPortuguese(self) -> int:
        """Language: Portuguese."""
        return int(Language.PORTUGUESE)

    @property
    def QmChSpanish(self) -> int:
        """Language: Spanish."""
        return int(Language.SPANISH)

    @property
    def QmChItalian(self) -> int:
        """Language: Italian."""
        return int(Language.ITALIAN)

    def QmMakeGraph(
        self,
        GraphId: str,
        Rows: int,
        Columns: int,
        Data: Any,
        RowLabels: Sequence[str],
        ColumnLabels: Sequence[str],
        ChartTitle: str,
        RowTitle: str,
        ColumnTitle: str,
        ValueTitle: str,
        Language: int = 0,
        UseConfig: int = 0,
    ) -> None:
        """Shows the chart in the viewer of that graph id, which is opened if there is none.

        RowTitle is the category axis' title, ColumnTitle the depth axis', ValueTitle that of both value axes.
        """
        table = table_of(Data, Rows, Columns, RowLabels, ColumnLabels)
        titles = _titles(ChartTitle, RowTitle, ColumnTitle, ValueTitle)
        call("make_graph", utf8(GraphId), byref(table), byref(titles), int(Language), int(UseConfig))

    def QmKillGraph(self, GraphId: str) -> None:
        """Closes the viewer of that graph id; an unknown id does nothing."""
        call("kill_graph", utf8(GraphId))

    def QmPrintGraph(
        self,
        GraphId: str,
        Rows: int,
        Columns: int,
        Data: Any,
        RowLabels: Sequence[str],
        ColumnLabels: Sequence[str],
        ChartTitle: str,
        RowTitle: str,
        ColumnTitle: str,
        ValueTitle: str,
        UseConfig: int = 0,
    ) -> None:
        """Builds the chart as QmMakeGraph, prints it, and closes its viewer."""
        table = table_of(Data, Rows, Columns, RowLabels, ColumnLabels)
        titles = _titles(ChartTitle, RowTitle, ColumnTitle, ValueTitle)
        call("print_graph", utf8(GraphId), byref(table), byref(titles), int(UseConfig))

    def QmSaveGraph(
        self,
        GraphId: str,
        Rows: int,
        Columns: int,
        Data: Any,
        RowLabels: Sequence[str],
        ColumnLabels: Sequence[str],
        ChartTitle: str,
        RowTitle: str,
        ColumnTitle: str,
        ValueTitle: str,
        UseConfig: int = 0,
        FileName: str = "",
    ) -> str:
        """Builds the chart, saves its picture, closes its viewer, and gives the name that was used.

        The format follows the name's extension: .bmp, .png, .svg, .pdf, otherwise a metafile. An empty name asks the
        person at the desk; "" is given where they cancelled.
        """
        table = table_of(Data, Rows, Columns, RowLabels, ColumnLabels)
        titles = _titles(ChartTitle, RowTitle, ColumnTitle, ValueTitle)
        used = c_void_p()
        name = utf8(os.fspath(FileName))
        call("save_graph", utf8(GraphId), byref(table), byref(titles), int(UseConfig), name, byref(used))
        return _library.take_text(used)

    def QmMkGr(
        self,
        GraphId: str,
        ConfigId: str,
        Rows: int,
        Columns: int,
        Data: Any,
        RowLabels: Sequence[str],
        ColumnLabels: Sequence[str],
        ChartTitle: str,
        ValueTitle: str,
        RowTitle: str,
    ) -> None:
        """A shortcut to QmMakeGraph with Spanish texts and the default look; ConfigId is not used."""
        table = table_of(Data, Rows, Columns, RowLabels, ColumnLabels)
        titles = _titles(ChartTitle, RowTitle, "", ValueTitle)
        call("mk_gr", utf8(GraphId), utf8(ConfigId), byref(table), byref(titles))


class Chart:
    """An open chart. Notebooks show it as a picture."""

    def __init__(self, graph_id: str) -> None:
        self.id = graph_id.strip().upper()

    def picture(self, format: str = "png", width: int = 0, height: int = 0, ratio: int = 1) -> bytes:
        """The chart as it is now: "png", "bmp", "svg", "pdf" or "emf"; 0 by 0 pixels is the viewer's size."""
        return _library.picture(self.id, format, width, height, ratio)

    def close(self) -> None:
        """Closes the viewer."""
        call("kill_graph", utf8(self.id))

    def _repr_png_(self) -> bytes:
        return self.picture("png", ratio=2)

    def _repr_svg_(self) -> str:
        return self.picture("svg").decode("utf-8")

    def _repr_mimebundle_(self, include: Any = None, exclude: Any = None) -> dict[str, Any]:
        return {"image/svg+xml": self._repr_svg_(), "text/plain": repr(self)}

    def __repr__(self) -> str:
        return f"<qmchart6.Chart {self.id!r}>"


def _filled(data: Any, rows: Sequence[Any] | None, columns: Sequence[Any] | None) -> tuple[Any, list[Any], list[Any]]:
    """The cells with the labels that were given, or else those that the table has itself."""
    own_rows, own_columns = labels_of(data)
    values = values_of(data)
    row_count, column_count = values.shape
    given_rows = rows if rows is not None else own_rows
    given_columns = columns if columns is not None else own_columns
    return (
        data,
        list(given_rows) if given_rows is not None else [""] * row_count,
        list(given_columns) if given_columns is not None else [""] * column_count,
    )


def show(
    data: Any,
    *,
    title: str = "",
    row_title: str = "",
    column_title: str = "",
    value_title: str = "",
    rows: Sequence[Any] | None = None,
    columns: Sequence[Any] | None = None,
    id: str = "chart",
    language: int = 0,
    use_config: int = 0,
) -> Chart:
    """Shows a table in the viewer of that id. Labels are those of the frame unless given.

    At the interactive prompt the window lives on while you type; a script ends with run().
    """
    table, row_labels, column_labels = _filled(data, rows, columns)
    if hasattr(sys, "ps1"):
        follow_prompt()
    QMChartArray().QmMakeGraph(
        id,
        len(row_labels),
        len(column_labels),
        table,
        row_labels,
        column_labels,
        title,
        row_title,
        column_title,
        value_title,
        language,
        use_config,
    )
    return Chart(id)


def save(
    data: Any,
    file: str | os.PathLike[str],
    *,
    title: str = "",
    row_title: str = "",
    column_title: str = "",
    value_title: str = "",
    rows: Sequence[Any] | None = None,
    columns: Sequence[Any] | None = None,
    id: str = "chart",
    use_config: int = 0,
) -> str:
    """Saves a table's picture: .bmp, .png, .svg, .pdf, otherwise a metafile. Gives the name."""
    table, row_labels, column_labels = _filled(data, rows, columns)
    return QMChartArray().QmSaveGraph(
        id,
        len(row_labels),
        len(column_labels),
        table,
        row_labels,
        column_labels,
        title,
        row_title,
        column_title,
        value_title,
        use_config,
        os.fspath(file),
    )


def picture(graph_id: str, format: str = "png", width: int = 0, height: int = 0, ratio: int = 1) -> bytes:
    """A picture of an open chart as bytes. Error 326 where none of that id is open."""
    return _library.picture(graph_id, format, width, height, ratio)


def open_graphs() -> list[str]:
    """The ids of the open charts, in the order of their viewers."""
    return _library.open_graphs()


_closed_handler: Any = None


def on_closed(handler: Callable[[str], None] | None) -> None:
    """Calls the handler with the graph id when a viewer was closed, by whomever. None calls nobody."""
    global _closed_handler

    def told(graph_id: bytes, _: object) -> None:
        assert handler is not None
        handler(graph_id.decode("utf-8"))

    kept = _library.Closed(told) if handler is not None else _library.Closed()
    call("on_closed", kept, None)
    _closed_handler = kept


def formats_follow_data(on: bool = True) -> None:
    """From here on values have as many decimals as they need."""
    call("formats_follow_data", int(on))


def set_chart_size(width: int, height: int, pixels_per_inch: int = 96) -> None:
    """Charts are made in this size from here on, in pixels; 0, 0 leaves it to the look."""
    call("set_chart_size", width, height, pixels_per_inch)


def use_look(graph_id: str, look: str) -> None:
    """The chart of that id gets this look, given as JSON, whenever it is made with a stored look."""
    call("use_look", utf8(graph_id), utf8(look))


def set_printer(name: str) -> None:
    """The printer that graphs are printed on; "" asks the person at the desk."""
    call("set_printer", utf8(name))
