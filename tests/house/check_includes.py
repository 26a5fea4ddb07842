#!/usr/bin/env python3
"""Checks that includes between the floors go downwards only, and that neither files nor units know each other in a circle.

check_includes.py TOP FLOORS: FLOORS is what the build wrote about itself, a line for each floor: its name, its folder, and
what it links to. A unit is a header with its source, and with the further sources that a class is cut over, which begin or
end with its name (GraphForm.h, GraphForm.cpp, GraphFormMenu.cpp).
"""
import pathlib
import re
import sys
import tempfile

# The public headers belong to the floors that make them: the vocabulary to the ground, the faces to the top.
PUBLIC = {"Array.h": "base", "Export.h": "base", "Language.h": "base", "RuntimeError.h": "base", "Variant.h": "base"}
FACES = "automation"
C_FACE = "qmchart6.h"
HOST = "apps/qmchart"
INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"]+)"', re.M)


class Floors:
    """The floors by folder, and all that each may know: what it links to, and what that links to."""

    def __init__(self, lines):
        words = [line.split() for line in lines]
        self.folders = {folder: name for name, folder, *_ in words}
        self.links = {name: set(links) for name, _, *links in words}

    def known(self, name):
        below = self.links.get(name, set())
        return below.union(*(self.known(other) for other in below))

    def of(self, path):
        """The floor of a file named relative to src/, include/ or apps/."""
        if path == C_FACE:
            path = "cface/"
        elif path.startswith("qmchart6/"):
            path = PUBLIC.get(path.removeprefix("qmchart6/"), FACES) + "/"
        elif path.startswith("qmchart/"):
            return HOST
        fitting = [folder for folder in self.folders if path.startswith(folder + "/")]
        return self.folders[max(fitting, key=len)] if fitting else None


def read(top):
    """Every file of ours, and those of ours that it includes."""
    files = {}
    for folder in ("src", "include", "apps"):
        base = top / folder
        for path in sorted(base.rglob("*")) if base.exists() else []:
            if path.suffix in (".h", ".cpp"):
                files[str(path.relative_to(base))] = INCLUDE.findall(path.read_text(encoding="utf-8"))
    return files


def upward(files, floors):
    for name, includes in files.items():
        own = floors.of(name)
        if own is None:
            yield f"{name}: stands on no floor"
            continue
        for include in includes:
            other = floors.of(include)
            if own == HOST:
                if other != HOST and not include.startswith("qmchart6/"):
                    yield f"{name}: the command-line host knows the public headers only ({include})"
            elif other not in (None, own) and other not in floors.known(own):
                yield f"{name}: {own} must not know {other} ({include})"


def unit_of(name, headers):
    """The unit that a file belongs to: a header's path without its ending, or a source's own where it has no header."""
    stem = pathlib.PurePath(name).with_suffix("")
    if str(stem) in headers:
        return str(stem)
    beside = [other for other in headers if pathlib.PurePath(other).parent == stem.parent]
    for is_part in (str.startswith, str.endswith):
        names = [other for other in beside if is_part(stem.name, pathlib.PurePath(other).name)]
        if names:
            return max(names, key=len)
    return str(stem)


def units(files):
    """Every unit, and the other units that it knows."""
    headers = {name.removesuffix(".h") for name in files if name.endswith(".h")}
    graph = {}
    for name, includes in files.items():
        unit = unit_of(name, headers)
        known = {unit_of(include, headers) for include in includes if include in files}
        graph.setdefault(unit, set()).update(known - {unit})
    return graph


def way_back(graph, start):
    """The shortest way from a node back to itself; none if there is none."""
    ways = [[start]]
    seen = set()
    for way in ways:
        for other in sorted(graph.get(way[-1], ())):
            if other == start:
                return way + [start]
            if other not in seen:
                seen.add(other)
                ways.append(way + [other])
    return None


def circles(graph):
    """A shortest circle for every node that stands in one; each circle once."""
    found = {}
    for node in graph:
        way = way_back(graph, node)
        if way:
            found.setdefault(frozenset(way), way)
    return list(found.values())


def problems(top, floors):
    files = read(top)
    yield from upward(files, floors)
    for way in circles(files):
        yield "circle of files: " + " -> ".join(way)
    for way in circles(units(files)):
        yield "circle of units: " + " -> ".join(way)


def self_test():
    """The check must find what it is for, and nothing else."""
    floors = Floors(["ground base", "middle config ground", "top viewer middle"])
    with tempfile.TemporaryDirectory() as folder:
        top = pathlib.Path(folder)
        for name, text in {
            "src/base/Up.h": '#include "viewer/Form.h"\n',
            "src/base/Low.h": '#include "base/Round.h"\n',
            "src/base/Round.h": '#include "base/Low.h"\n',
            "src/lost/Lost.h": "",
            "src/config/Store.h": '#include "base/Alone.h"\n',
            "src/base/Alone.h": "",
            "src/viewer/Form.h": '#include "config/Store.h"\n#include "base/Alone.h"\n',
            "src/viewer/FormMenu.cpp": '#include "viewer/Form.h"\n#include "viewer/Menu.h"\n',
            "src/viewer/Menu.h": "",
            "src/viewer/Menu.cpp": '#include "viewer/Menu.h"\n#include "viewer/Form.h"\n',
            "apps/qmchart/Main.cpp": '#include "base/Low.h"\n',
        }.items():
            (top / name).parent.mkdir(parents=True, exist_ok=True)
            (top / name).write_text(text, encoding="utf-8")
        found = list(problems(top, floors))
    expected = ("base/Up.h: ground must not know top (viewer/Form.h)", "lost/Lost.h: stands on no floor",
                "qmchart/Main.cpp: the command-line host knows the public headers only (base/Low.h)",
                "circle of files: base/Low.h -> base/Round.h -> base/Low.h", "circle of units: base/Low -> base/Round -> base/Low",
                "circle of units: viewer/Form -> viewer/Menu -> viewer/Form")
    return [f"missed or too much: {line}" for line in set(found) ^ set(expected)]


def lines(path):
    return [line for line in pathlib.Path(path).read_text(encoding="utf-8").splitlines() if line]


if __name__ == "__main__":
    if sys.argv[1] == "--self-test":
        slips = self_test()
    else:
        slips = list(problems(pathlib.Path(sys.argv[1]), Floors(lines(sys.argv[2]))))
    print("\n".join(slips) or "includes go downwards")
    sys.exit(1 if slips else 0)
