#!/usr/bin/env python3
"""Checks that includes between the floors go downwards only and that no files include each other in a circle."""
import pathlib
import re
import sys
import tempfile

# From the ground up. A file may include its own floor and those below; floors with the same number, only themselves.
FLOORS = {
    "base": 0,
    "desktop": 1,
    "chartcontrol/model": 1,
    "chartcontrol/scale": 1,
    "chartcontrol/scene": 2,
    "chartcontrol/layout": 3,
    "chartcontrol/paint": 4,
    "chartcontrol/widget": 5,
    "database": 6,
    "text": 7,
    "chart": 8,
    "config": 9,
    "dialogs": 10,
    "viewer": 11,
    "automation": 12,
    "bindings": 13,
    "apps": 14,
}
# The public headers belong to the floors that make them: the vocabulary to the ground, the faces to the top.
PUBLIC = {"Array.h": "base", "Export.h": "base", "Language.h": "base", "RuntimeError.h": "base", "Variant.h": "base"}
INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"]+)"', re.M)


def floor_of(path):
    """The floor of a file named relative to src/, include/ or apps/."""
    if path.startswith("qmchart6/"):
        return PUBLIC.get(path.removeprefix("qmchart6/"), "automation")
    if path.startswith("qmchart/"):
        return "apps"
    fitting = [floor for floor in FLOORS if path.startswith(floor + "/")]
    return max(fitting, key=len) if fitting else None


def read(top):
    files = {}
    for folder in ("src", "include", "apps"):
        base = top / folder
        for path in sorted(base.rglob("*")) if base.exists() else []:
            if path.suffix in (".h", ".cpp"):
                files[str(path.relative_to(base))] = INCLUDE.findall(path.read_text(encoding="utf-8"))
    return files


def upward(files):
    for name, includes in files.items():
        own = floor_of(name)
        if own is None:
            yield f"{name}: stands on no floor"
            continue
        for include in includes:
            other = floor_of(include)
            if other is None or other == own:
                continue
            if FLOORS[other] >= FLOORS[own]:
                yield f"{name}: {own} must not know {other} ({include})"
            if own == "apps" and not include.startswith("qmchart6/"):
                yield f"{name}: the command-line host knows the public headers only ({include})"


def circles(files):
    done, path = set(), []

    def visit(name):
        if name in path:
            yield "circle: " + " -> ".join(path[path.index(name):] + [name])
            return
        if name in done or name not in files:
            return
        path.append(name)
        for include in files[name]:
            yield from visit(include)
        path.pop()
        done.add(name)

    for name in files:
        yield from visit(name)


def problems(top):
    files = read(top)
    return list(upward(files)) + list(circles(files))


def self_test():
    """The check must find what it is for."""
    with tempfile.TemporaryDirectory() as folder:
        top = pathlib.Path(folder)
        for name, text in {
            "src/base/Up.h": '#include "viewer/GraphForm.h"\n',
            "src/viewer/GraphForm.h": '#include "base/Low.h"\n',
            "src/base/Low.h": '#include "base/Round.h"\n',
            "src/base/Round.h": '#include "base/Low.h"\n',
            "apps/qmchart/Main.cpp": '#include "base/Low.h"\n',
        }.items():
            (top / name).parent.mkdir(parents=True, exist_ok=True)
            (top / name).write_text(text, encoding="utf-8")
        found = problems(top)
        expected = ("base must not know viewer", "circle: base/Low.h -> base/Round.h", "public headers only")
        missed = [wanted for wanted in expected if not any(wanted in line for line in found)]
        return [f"did not find: {wanted}" for wanted in missed] + ([] if len(found) == 3 else found)


if __name__ == "__main__":
    slips = self_test() if sys.argv[1] == "--self-test" else problems(pathlib.Path(sys.argv[1]))
    print("\n".join(slips) or "includes go downwards")
    sys.exit(1 if slips else 0)
