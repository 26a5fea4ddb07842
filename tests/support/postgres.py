#!/usr/bin/env python3
"""A throw-away PostgreSQL server on loopback, for tests: postgres.py start FILE | stop FILE.

FILE keeps where the server is: the first line is its URL with a database, the second its folder. The server runs as an
ordinary user; where that is started by root, as the user postgres or nobody.
"""
import glob
import os
import pathlib
import pwd
import shutil
import socket
import subprocess
import sys
import tempfile

DATABASE = "looks"
USER = "tester"


def program(name):
    found = sorted(glob.glob(f"/usr/lib/postgresql/*/bin/{name}"))
    path = found[-1] if found else shutil.which(name)
    if not path:
        sys.exit(f"{name} is missing: install the package postgresql")
    return path


def ordinary_user():
    """The account to run as; None for the present one."""
    if os.geteuid() != 0:
        return None
    names = {entry.pw_name for entry in pwd.getpwall()}
    return "postgres" if "postgres" in names else "nobody"


def run(command, **more):
    user = ordinary_user()
    as_user = {"user": user, "group": pwd.getpwnam(user).pw_gid, "extra_groups": []} if user else {}
    done = subprocess.run(command, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                          timeout=60, check=False, cwd="/", **as_user, **more)
    if done.returncode != 0:
        sys.exit(f"{command[0]} failed:\n{done.stdout.decode(errors='replace')}")


def free_port():
    with socket.socket() as probe:
        probe.bind(("127.0.0.1", 0))
        return probe.getsockname()[1]


def start(file):
    stop(file)
    folder = tempfile.mkdtemp(prefix="qmchart6-postgres-")
    user = ordinary_user()
    if user:
        os.chown(folder, pwd.getpwnam(user).pw_uid, pwd.getpwnam(user).pw_gid)
    data = os.path.join(folder, "data")
    run([program("initdb"), "-D", data, "-U", USER, "-A", "trust", "-E", "UTF8", "--locale=C", "--no-sync"])
    port = free_port()
    log = os.path.join(folder, "log")
    # Its output goes to a file: a pipe would keep whoever started it waiting for ever.
    run([program("pg_ctl"), "-D", data, "-l", log, "-w", "-o",
         f"-p {port} -k {folder} -c listen_addresses=127.0.0.1 -c fsync=off -c max_connections=40", "start"])
    run([program("createdb"), "-h", "127.0.0.1", "-p", str(port), "-U", USER, DATABASE])
    file.parent.mkdir(parents=True, exist_ok=True)
    file.write_text(f"postgresql://{USER}@127.0.0.1:{port}/{DATABASE}/\n{folder}\n", encoding="utf-8")


def stop(file):
    if not file.exists():
        return
    folder = pathlib.Path(file.read_text(encoding="utf-8").splitlines()[1])
    if (folder / "data" / "postmaster.pid").exists():
        run([program("pg_ctl"), "-D", str(folder / "data"), "-m", "immediate", "-w", "stop"])
    shutil.rmtree(folder, ignore_errors=True)
    file.unlink()


if __name__ == "__main__":
    if len(sys.argv) != 3 or sys.argv[1] not in ("start", "stop"):
        sys.exit(__doc__)
    {"start": start, "stop": stop}[sys.argv[1]](pathlib.Path(sys.argv[2]))
