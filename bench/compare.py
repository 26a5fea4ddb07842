#!/usr/bin/env python3
"""Runs the fixed works, ours and the peers' in turn, and prints figures and ratios: compare.py BUILD TOP PEERS WORK..."""
import os
import pathlib
import statistics
import subprocess
import sys

# What is compared: work, metric of ours, metric of the peers, and the goal for ours / best peer.
GOALS = [
    ("W1", "chart_ms", ["chart_ms"], 0.5),
    ("W2", "cold_ms", ["cold_ms"], 0.8),
    ("W3", "load_ms", ["load_ms"], 0.7),
    ("W3", "first_ms", ["first_ms"], 0.35),
    ("W3", "redraw_ms", ["redraw_ms"], 0.25),
    ("W3", "wide_ms", ["wide_ms"], 0.01),
    ("W3", "rss_mb", ["rss_mb"], 1.2),
    ("W4", "load+first", ["load+first"], 0.15),
    ("W4", "redraw_ms", ["redraw_ms"], 0.15),
    ("W5", "chart_ms", ["chart_ms"], 0.06),
    ("W6", "chart_ms", ["chart_ms"], 0.3),
]

# The store of looks has goals of its own: the end of a metric, and its CPU milliseconds. A server's own work is not in
# them, as it may be on another machine.
STORE_GOALS = {"_first_save_ms": None, "_save_ms": 20, "_load_ms": 10, "_list_ms": 100}


def lines_of(command, **options):
    done = subprocess.run(command, capture_output=True, text=True, **options)
    return done.stdout.splitlines()


def ours(build, work, *arguments):
    """Figures of our program: metric -> value."""
    figures = {}
    for line in lines_of([str(build / "bench" / "bench_charts"), work, *arguments]):
        words = line.split()
        if words[:1] == ["R"]:
            figures[words[2]] = float(words[3])
    return figures


def cold(build, top):
    """The whole process, from nothing to a picture file: CPU milliseconds and peak memory, medians of nine."""
    program = str(build / "apps" / "qmchart" / "qmchart")
    table = str(top / "bench" / "small.csv")
    times, peaks = [], []
    null = os.open(os.devnull, os.O_RDWR)
    for _ in range(10):
        arguments = [program, "save", table, str(build / "cold.png"), "--title", "Sales by month and region",
                     "--row-title", "Month", "--value-title", "Units sold"]
        process = os.posix_spawn(program, arguments, os.environ,
                                 file_actions=[(os.POSIX_SPAWN_DUP2, null, stream) for stream in (0, 1, 2)])
        _, status, usage = os.wait4(process, 0)
        if status:
            sys.exit(f"the cold start failed: {status}")
        times.append((usage.ru_utime + usage.ru_stime) * 1e3)
        peaks.append(usage.ru_maxrss / 1024)
    return {"cold_ms": statistics.median(times[1:]), "peak_mb": statistics.median(peaks[1:])}


def theirs(peers, work):
    """Figures of the peers: (peer, metric) -> value; of several variants the default."""
    figures = {}
    for line in lines_of(["bash", str(peers / "run.sh"), work], cwd=peers,
                         env=os.environ | {"PEERS_BUILD": os.environ.get("PEERS_BUILD", "/tmp/peers-build")}):
        words = line.split()
        if len(words) == 5 and words[1] == work and words[2] == "default":
            figures[words[0], words[3]] = float(words[4])
        elif len(words) == 4 and words[1] == work:
            figures[words[0], words[2]] = float(words[3])
    return figures


def store(build):
    """Prints the store's figures; BENCH_SERVER is the URL of an empty database on a server, if one is to be measured."""
    server = [os.environ["BENCH_SERVER"]] if os.environ.get("BENCH_SERVER") else []
    figures = ours(build, "S", *server)
    if not figures or (server and not any(metric.startswith("server") for metric in figures)):
        sys.exit("S failed")
    for metric, value in figures.items():
        goal = next(goal for end, goal in STORE_GOALS.items() if metric.endswith(end))
        beside = f" (goal {goal}, {'met' if value <= goal else 'missed'})" if goal else ""
        print(f"S {metric} {value:.2f}{beside}")


def with_sums(figures):
    """Adds load+first, which some works are judged by."""
    sums = dict(figures)
    for name, value in figures.items():
        peer, metric = name if isinstance(name, tuple) else (None, name)
        first = (peer, "first_ms") if peer else "first_ms"
        if metric == "load_ms" and first in figures:
            sums[(peer, "load+first") if peer else "load+first"] = value + figures[first]
    return sums


def main(build, top, peers, works):
    for work in works:
        if work == "S":
            store(build)
            continue
        if work == "W7":
            redraws = [ours(build, "W3", str(rows), "16")["redraw_ms"] for rows in (2048, 8192, 32767)]
            print(f"W7 redraw of 16 series: {redraws[0]:.2f} ms at 2,048 rows, {redraws[1]:.2f} at 8,192, "
                  f"{redraws[2]:.2f} at 32,767: {redraws[2] / redraws[0]:.2f} times (goal 1.15)")
            continue
        mine = with_sums(cold(build, top) if work == "W2" else ours(build, work))
        others = with_sums(theirs(peers, work)) if peers else {}
        print(f"{work} ours: " + ", ".join(f"{metric} {value:.2f}" for metric, value in mine.items()))
        for goal_work, metric, names, goal in GOALS:
            rivals = [(value, peer) for (peer, name), value in others.items() if name in names and not peer.startswith("floor")]
            if goal_work != work or metric not in mine or not rivals:
                continue
            best, peer = min(rivals)
            ratio = mine[metric] / best
            print(f"   {metric}: {ratio:.3f} of {peer}'s {best:.2f} (goal {goal}{', met' if ratio <= goal else ', missed'})")


if __name__ == "__main__":
    main(pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2]), pathlib.Path(sys.argv[3]) if sys.argv[3] else None,
         sys.argv[4:])
