#!/usr/bin/env python3
"""Checks that every source is formatted as .clang-format says."""
import pathlib
import subprocess
import sys

top = pathlib.Path(sys.argv[1])
sources = [str(path) for folder in ("include", "src", "apps", "tests", "bench", "examples") for path in sorted((top / folder).rglob("*"))
           if path.suffix in (".h", ".cpp", ".c")]
sys.exit(subprocess.run([sys.argv[2], "--dry-run", "--Werror", *sources]).returncode)
