#!/usr/bin/env python3
"""Compiles every header on its own, with the flags that the build uses.

What compiled is written down in the build folder, and compiled again only when it, or a header of ours that it includes,
has changed.
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

SKIP_NEXT = {"-o", "-c", "-MF", "-MT", "-MQ"}
SKIP = {"-MD", "-MMD"}
INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"]+)"', re.M)


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


def with_includes(header, roots, found):
    """The header and all of our headers that it includes, by whatever way."""
    if header in found:
        return found
    found.add(header)
    for name in INCLUDE.findall(header.read_text(encoding="utf-8")):
        for root in roots:
            if (root / name).exists():
                with_includes(root / name, roots, found)
    return found


def digest(header, roots, compiler):
    """Changes whenever the header may compile differently."""
    total = hashlib.sha256("\0".join(compiler).encode())
    for path in sorted(with_includes(header, roots, set())):
        total.update(str(path).encode() + b"\0" + path.read_bytes() + b"\0")
    return total.hexdigest()


def main(top, build):
    commands = json.loads((build / "compile_commands.json").read_text())
    # The flags of the top floor hold every include path that a lower one has.
    best = max(commands, key=lambda entry: len(entry["command"]) if "/src/" in entry["file"] and str(build) not in entry["file"] else 0)
    compiler = flags(best["command"])
    roots = [top / "include", top / "src"]
    digests = {header: digest(header, roots, compiler) for root in roots for header in sorted(root.rglob("*.h"))}
    record = build / "headers_alone.json"
    known = set(json.loads(record.read_text())) if record.exists() else set()
    headers = [header for header, value in digests.items() if value not in known]

    def compile_alone(header):
        done = subprocess.run(compiler + ["-fsyntax-only", "-x", "c++", "-include", str(header), os.devnull],
                              capture_output=True, text=True, cwd=best["directory"])
        if done.returncode == 0:
            known.add(digests[header])
            return None
        return f"{header}:\n{done.stderr}"

    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        failed = [text for text in pool.map(compile_alone, headers) if text]
    record.write_text(json.dumps(sorted(known & set(digests.values()))))
    print("\n".join(failed) or f"{len(digests)} headers compile alone, {len(headers)} of them compiled now")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1]).resolve(), pathlib.Path(sys.argv[2]).resolve()))
