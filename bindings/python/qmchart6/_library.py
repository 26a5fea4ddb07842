"""The shared library: how it is found, and its functions as C declares them."""

import ctypes
import ctypes.util
import os
from ctypes import POINTER, Structure, byref, c_char, c_char_p, c_double, c_int32, c_int64, c_size_t, c_uint8, c_void_p

_SONAME = "libqmchart6.so.0"


class Table(Structure):
    _fields_ = [
        ("size", c_size_t),
        ("values", POINTER(c_double)),
        ("rows", c_int64),
        ("columns", c_int64),
        ("row_stride", c_int64),
        ("column_stride", c_int64),
        ("row_labels", POINTER(c_char_p)),
        ("column_labels", POINTER(c_char_p)),
    ]


class Titles(Structure):
    _fields_ = [("size", c_size_t), ("chart", c_char_p), ("row", c_char_p), ("column", c_char_p), ("value", c_char_p)]


class PictureSize(Structure):
    _fields_ = [("size", c_size_t), ("width", c_int32), ("height", c_int32), ("ratio", c_int32)]


Closed = ctypes.CFUNCTYPE(None, c_char_p, c_void_p)

# Those that give the number of an error, with what follows the handle.
_CALLS = {
    "set_config_path": [c_char_p],
    "make_graph": [c_char_p, POINTER(Table), POINTER(Titles), c_int32, c_int32],
    "kill_graph": [c_char_p],
    "print_graph": [c_char_p, POINTER(Table), POINTER(Titles), c_int32],
    "save_graph": [c_char_p, POINTER(Table), POINTER(Titles), c_int32, c_char_p, POINTER(c_void_p)],
    "mk_gr": [c_char_p, c_char_p, POINTER(Table), POINTER(Titles)],
    "picture": [c_char_p, c_char_p, POINTER(PictureSize), POINTER(POINTER(c_uint8)), POINTER(c_size_t)],
    "open_graphs": [POINTER(POINTER(c_char))],
    "on_closed": [Closed, c_void_p],
    "formats_follow_data": [c_int32],
    "set_chart_size": [c_int32, c_int32, c_int32],
    "use_look": [c_char_p, c_char_p],
    "set_printer": [c_char_p],
    "has_display": [POINTER(c_int32)],
    "run": [],
    "pump": [c_int32],
}


class RuntimeError(Exception):  # noqa: A001 - the name that all hosts know it by
    """A failure of a chart: a stable number and a sentence that says what was expected."""

    def __init__(self, number: int, description: str) -> None:
        super().__init__(f"Error {number}: {description}")
        self.number = number
        self.description = description


def _load() -> ctypes.CDLL:
    path = os.environ.get("QMCHART6_LIBRARY") or _SONAME
    try:
        library = ctypes.CDLL(path)
    except OSError as error:
        raise ImportError(f"{path} cannot be loaded ({error}); install the library, or name it in QMCHART6_LIBRARY") from error
    library.qmchart6_version.restype = c_char_p
    library.qmchart6_new.restype = c_void_p
    library.qmchart6_free.argtypes = [c_void_p]
    library.qmchart6_free.restype = None
    library.qmchart6_error_text.argtypes = [c_void_p]
    library.qmchart6_error_text.restype = c_char_p
    library.qmchart6_free_bytes.argtypes = [POINTER(c_uint8)]
    library.qmchart6_free_bytes.restype = None
    library.qmchart6_free_text.argtypes = [c_void_p]
    library.qmchart6_free_text.restype = None
    for name, arguments in _CALLS.items():
        function = getattr(library, "qmchart6_" + name)
        function.argtypes = [c_void_p, *arguments]
        function.restype = c_int32
    return library


library = _load()
_handle = library.qmchart6_new()
if not _handle:
    raise MemoryError


def call(name: str, *arguments: object) -> None:
    """Calls a function of the library; an error is raised with its number."""
    number = getattr(library, "qmchart6_" + name)(_handle, *arguments)
    if number == 7:
        raise MemoryError
    if number != 0:
        raise RuntimeError(number, library.qmchart6_error_text(_handle).decode("utf-8", "replace"))


def utf8(text: str) -> bytes:
    """A text as C takes it. A text with a NUL would be cut there: error 5."""
    encoded = str(text).encode("utf-8", "replace")
    if b"\0" in encoded:
        raise RuntimeError(5, "a text cannot hold a NUL character")
    return encoded


def take_text(address: c_void_p) -> str:
    """A text that the library made, which is freed."""
    try:
        return ctypes.cast(address, c_char_p).value.decode("utf-8")
    finally:
        library.qmchart6_free_text(address)


def picture(graph_id: str, form: str, width: int, height: int, ratio: int) -> bytes:
    size = PictureSize(ctypes.sizeof(PictureSize), width, height, ratio)
    start = POINTER(c_uint8)()
    count = c_size_t()
    call("picture", utf8(graph_id), utf8(form), byref(size), byref(start), byref(count))
    try:
        return ctypes.string_at(start, count.value)
    finally:
        library.qmchart6_free_bytes(start)


def open_graphs() -> list[str]:
    start = POINTER(c_char)()
    call("open_graphs", byref(start))
    try:
        ids = []
        address = ctypes.cast(start, c_void_p).value
        while text := ctypes.string_at(address):
            ids.append(text.decode("utf-8"))
            address += len(text) + 1
        return ids
    finally:
        library.qmchart6_free_text(start)
