#!/usr/bin/env python3
"""Compiles every header on its own, with the flags that the build uses.

What compiled is written down in the build folder, and compiled again only when it, or a header of ours that it includes,
has changed. A header that another one begins with is compiled alone with that one. Those that include PRECOMPILED, by
whatever way, get it compiled once: to them it adds nothing that they do not include themselves.
"""
import concurrent.futures
import hashlib
import json
import os
import pathlib
import re
import shlex
import subprocess
import sys
import tempfile

SKIP_NEXT = {"-o", "-c", "-MF", "-MT", "-MQ", "-include"}
SKIP = {"-MD", "-MMD"}
INCLUDE = re.compile(r'^\s*#\s*include\s+(["<][^">]+)[">]', re.M)
PRECOMPILED = "QString"
# The top floor's flags hold every include path that a lower one has.
TOP_FLOOR = "qm6_automation.dir"


def flags(command):
    """The compiler and the flags of a compile command, without what names its files or its launcher."""
    words = shlex.split(command)
    while words and pathlib.Path(words[0]).name in ("ccache", "sccache"):
        words = words[1:]
    kept, skip = [], False
    for word in words[:-1]:
        if skip:
            skip = False
        elif word in SKIP_NEXT:
            skip = True
        elif word not in SKIP:
            kept.append(word)
    return kept


def ours(include, roots):
    """The header of ours that is included; none where it is another's."""
    return next((root / include[1:] for root in roots if include[0] == '"' and (root / include[1:]).exists()), None)


def with_includes(header, roots, found, others):
    """The header and all of our headers that it includes, by whatever way; what else they include goes to the others."""
    if header in found:
        return found
    found.add(header)
    for include in INCLUDE.findall(header.read_text(encoding="utf-8")):
        if ours(include, roots):
            with_includes(ours(include, roots), roots, found, others)
        else:
            others.add(include[1:])
    return found


def beginning(header, roots):
    """The header of ours that this one begins with; none where it begins with anything else."""
    first = INCLUDE.search(header.read_text(encoding="utf-8"))
    return first and ours(first[1], roots)


def digest(header, roots, compiler):
    """Changes whenever the header may compile differently."""
    total = hashlib.sha256("\0".join(compiler).encode())
    for path in sorted(with_includes(header, roots, set(), set())):
        total.update(str(path).encode() + b"\0" + path.read_bytes() + b"\0")
    return total.hexdigest()


def precompile(compiler, folder):
    """The flags that make a compiler take PRECOMPILED as compiled."""
    header = pathlib.Path(folder) / "precompiled.h"
    header.write_text(f"#include <{PRECOMPILED}>\n", encoding="utf-8")
    subprocess.run(compiler + ["-x", "c++-header", "-o", f"{header}.gch", str(header)], check=True)
    return ["-include", str(header), "-Winvalid-pch"]


def compile_alone(headers, roots, compiler, directory):
    """Gives what the compiler says of each that fails."""
    def alone(header):
        others = set()
        with_includes(header, roots, set(), others)
        more = precompiled if PRECOMPILED in others else []
        done = subprocess.run(compiler + more + ["-fsyntax-only", "-x", "c++", "-include", str(header), os.devnull],
                              capture_output=True, text=True, cwd=directory)
        return None if done.returncode == 0 else f"{header}:\n{done.stderr}"

    with tempfile.TemporaryDirectory() as folder:
        precompiled = precompile(compiler, folder)
        with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
            return {header: text for header, text in zip(headers, pool.map(alone, headers)) if text}


def main(top, build):
    command = next(entry for entry in json.loads((build / "compile_commands.json").read_text()) if TOP_FLOOR in entry["command"])
    compiler = flags(command["command"])
    roots = [top / "include", top / "src"]
    digests = {header: digest(header, roots, compiler) for root in roots for header in sorted(root.rglob("*.h"))}
    record = build / "headers_alone.json"
    known = set(json.loads(record.read_text())) if record.exists() else set()
    begun_with = {beginning(header, roots) for header in digests}
    headers = [header for header, value in digests.items() if value not in known and header not in begun_with]
    failed = compile_alone(headers, roots, compiler, command["directory"]) if headers else {}
    record.write_text(json.dumps(sorted(value for header, value in digests.items() if header not in failed)))
    print("\n".join(failed.values()) or f"{len(digests)} headers compile alone, {len(headers)} of them compiled now")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1]).resolve(), pathlib.Path(sys.argv[2]).resolve()))
