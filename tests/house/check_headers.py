#!/usr/bin/env python3
"""Compiles every header on its own, with the flags that the build uses."""
import concurrent.futures
import json
import os
import pathlib
import shlex
import subprocess
import sys

SKIP_NEXT = {"-o", "-c", "-MF", "-MT", "-MQ"}
SKIP = {"-MD", "-MMD"}


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


def main(top, build):
    commands = json.loads((build / "compile_commands.json").read_text())
    # The flags of the top floor hold every include path that a lower one has.
    best = max(commands, key=lambda entry: len(entry["command"]) if "/src/" in entry["file"] and str(build) not in entry["file"] else 0)
    compiler = flags(best["command"])
    headers = sorted(path for folder in ("include", "src") for path in (top / folder).rglob("*.h"))

    def compile_alone(header):
        done = subprocess.run(compiler + ["-fsyntax-only", "-x", "c++", "-include", str(header), os.devnull],
                              capture_output=True, text=True, cwd=best["directory"])
        return None if done.returncode == 0 else f"{header}:\n{done.stderr}"

    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        failed = [text for text in pool.map(compile_alone, headers) if text]
    print("\n".join(failed) or f"{len(headers)} headers compile alone")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1]).resolve(), pathlib.Path(sys.argv[2]).resolve()))
