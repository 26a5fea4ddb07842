"""Tables of numbers as Python's libraries hold them, as the library takes them: doubles in memory, with strides."""

from __future__ import annotations

import ctypes
import math
from array import array
from collections.abc import Iterable, Sequence
from typing import Any

from ._library import RuntimeError, Table, utf8

_DOUBLE = ctypes.sizeof(ctypes.c_double)
_OUT_OF_RANGE = 9
_TYPE_MISMATCH = 13


def _cell(value: Any) -> float:
    """A cell as a number; None is a missing value."""
    if value is None:
        return math.nan
    if isinstance(value, bool):
        raise RuntimeError(_TYPE_MISMATCH, "a truth value is no number")
    try:
        return float(value)
    except (TypeError, ValueError):
        raise RuntimeError(_TYPE_MISMATCH, f"a cell must be a number, not {value!r}") from None
    except OverflowError:
        raise RuntimeError(6, f"a cell cannot hold {value!r}") from None


class Values:
    """Cells in memory, kept alive as long as this is. `strides` are in bytes."""

    def __init__(self, owner: object, address: int, shape: tuple[int, int], strides: tuple[int, int]) -> None:
        self.owner = owner
        self.address = address
        self.shape = shape
        self.strides = strides


def _of_interface(data: Any) -> Values | None:
    """What tells its memory is looked at where it is; nothing where that holds no table of doubles."""
    told = data.__array_interface__
    shape = told["shape"]
    strides = told.get("strides")
    fits = told["typestr"] in ("=f8", "<f8" if _is_little() else ">f8") and not hasattr(data, "mask")
    if len(shape) == 1:
        shape, strides = (shape[0], 1), ((strides or (_DOUBLE,))[0], _DOUBLE)
    if not fits or len(shape) != 2 or not isinstance(told.get("data"), tuple):
        return None
    strides = strides or (shape[1] * _DOUBLE, _DOUBLE)
    if any(stride % _DOUBLE for stride in strides) or told["data"][0] % _DOUBLE:
        return None
    return Values(data, told["data"][0], tuple(shape), tuple(strides))


def _is_little() -> bool:
    import sys

    return sys.byteorder == "little"


def _of_numpy(data: Any) -> Values:
    import numpy

    found = numpy.ma.filled(numpy.ma.asarray(data, dtype=float), math.nan) if isinstance(data, numpy.ma.MaskedArray) else data
    try:
        if numpy.iscomplexobj(found) or getattr(found, "dtype", None) == bool:
            raise TypeError("neither truth values nor complex numbers are cells")
        table = numpy.ascontiguousarray(found, dtype=numpy.float64)
    except (TypeError, ValueError) as error:
        raise RuntimeError(_TYPE_MISMATCH, f"the table must hold numbers: {error}") from None
    if table.ndim == 1:
        table = table.reshape(-1, 1)
    if table.ndim != 2:
        raise RuntimeError(_TYPE_MISMATCH, f"a table has one or two dimensions, not {table.ndim}")
    values = _of_interface(table)
    assert values is not None
    return values


def _of_rows(data: Iterable[Any]) -> Values:
    """Lists of lists, or a list of numbers as one column."""
    rows = [list(row) if isinstance(row, Iterable) and not isinstance(row, (str, bytes)) else [row] for row in data]
    columns = len(rows[0]) if rows else 0
    for number, row in enumerate(rows):
        if len(row) != columns:
            raise RuntimeError(_OUT_OF_RANGE, f"row {number} has {len(row)} cells where the first has {columns}")
    cells = array("d", (_cell(value) for row in rows for value in row))
    return Values(cells, cells.buffer_info()[0], (len(rows), columns), (columns * _DOUBLE, _DOUBLE))


def values_of(data: Any) -> Values:
    """The cells of a list of lists, of what tells its memory (numpy), or makes an array (pandas and others)."""
    if hasattr(data, "__array_interface__"):
        return _of_interface(data) or _of_numpy(data)
    if hasattr(data, "to_numpy"):
        return _of_numpy(data.to_numpy())
    if hasattr(data, "__array__"):
        return _of_numpy(data.__array__())
    if hasattr(data, "__dataframe__"):
        return _of_frame(data.__dataframe__())
    return _of_rows(data)


def _of_frame(frame: Any) -> Values:
    """The dataframe interchange protocol, through the library that knows it best."""
    from pandas.api.interchange import from_dataframe

    return _of_numpy(from_dataframe(frame).to_numpy())


def labels_of(data: Any) -> tuple[list[str] | None, list[str] | None]:
    """Names of rows and columns, where the table has some."""
    index = getattr(data, "index", None)
    columns = getattr(data, "columns", None)
    rows = None if index is None or callable(index) else [str(name) for name in index]
    if columns is None and rows is not None and hasattr(data, "name"):
        columns = [data.name if data.name is not None else ""]
    names = None if columns is None or callable(columns) else [str(name) for name in columns]
    return rows, names


def _texts(labels: Sequence[Any], count: int, what: str) -> Any:
    if len(labels) < count:
        raise RuntimeError(_OUT_OF_RANGE, f"{count} {what} need as many labels, not {len(labels)}")
    return (ctypes.c_char_p * max(1, count))(*(utf8("" if text is None else text) for text in labels[:count]))


def table_of(data: Any, rows: int, columns: int, row_labels: Sequence[Any], column_labels: Sequence[Any]) -> Table:
    """A table for one call; what it points to lives as long as it does."""
    values = values_of(data)
    if rows > values.shape[0] or columns > values.shape[1]:
        raise RuntimeError(
            _OUT_OF_RANGE, f"a table of {values.shape[0]} by {values.shape[1]} has no {rows} rows and {columns} columns"
        )
    table = Table(ctypes.sizeof(Table))
    table.values = ctypes.cast(values.address, ctypes.POINTER(ctypes.c_double))
    table.rows, table.columns = rows, columns
    table.row_stride, table.column_stride = (stride // _DOUBLE for stride in values.strides)
    table.row_labels = ctypes.cast(_texts(row_labels, rows, "rows"), ctypes.POINTER(ctypes.c_char_p))
    table.column_labels = ctypes.cast(_texts(column_labels, columns, "columns"), ctypes.POINTER(ctypes.c_char_p))
    table.kept = values
    return table
