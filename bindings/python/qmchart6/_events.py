"""Windows stay alive while Python waits: at the interactive prompt, under asyncio, or in a loop of the host's own."""

from __future__ import annotations

import asyncio
import ctypes
from ctypes import byref, c_int32

from ._library import call, open_graphs

_INTERVAL = 0.02  # seconds between two looks at what waits
_hook = None


def has_display() -> bool:
    """Whether windows can be shown. Without a display charts are made, saved and printed, unseen."""
    on = c_int32()
    call("has_display", byref(on))
    return bool(on.value)


def run() -> None:
    """Handles events until the last viewer was closed; returns at once without a display."""
    call("run")


def pump(milliseconds: int = 0) -> None:
    """Handles events for so many milliseconds; 0 handles those that wait."""
    call("pump", milliseconds)


async def run_async() -> None:
    """As run(), beside whatever else asyncio runs."""
    if not has_display():
        return
    while open_graphs():
        pump()
        await asyncio.sleep(_INTERVAL)


def follow_prompt() -> None:
    """Lets windows live while somebody types at Python's own prompt. IPython's prompt asks for pump itself."""
    global _hook
    if _hook is not None:
        return

    def while_waiting() -> int:
        try:
            pump()
        except Exception:  # nothing may leave a hook of the interpreter
            return 0
        return 0

    _hook = ctypes.PYFUNCTYPE(c_int32)(while_waiting)
    pointer = ctypes.c_void_p.in_dll(ctypes.pythonapi, "PyOS_InputHook")
    if pointer.value is None:
        pointer.value = ctypes.cast(_hook, ctypes.c_void_p).value
