"""Saves while savers are killed, and many at once: nothing that was saved is lost or torn."""
import os
import random
import shutil
import subprocess
import tempfile
import threading
import time
import unittest

import stores

WRITER = os.environ["LOOK_WRITER"]
SHARED = "Shared by all"
RUNTIME = tempfile.mkdtemp()
unittest.addModuleCleanup(shutil.rmtree, RUNTIME)
KILLS = {"SQLite": 200, "PostgreSQL": 40}
SAVES = {"SQLite": 200, "PostgreSQL": 60}  # of each of many at once; a server takes its time for each


class Writer:
    """A look_writer that runs, and what it has printed so far."""

    def __init__(self, store, first, name, *count):
        self.first = first
        self.printed = []
        self.news = threading.Condition()
        self.process = subprocess.Popen([WRITER, store.folder, str(first), name, SHARED, *map(str, count)],
                                        stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True,
                                        env=stores.environment(RUNTIME))
        self.reader = threading.Thread(target=self._read, daemon=True)
        self.reader.start()

    def _read(self):
        for line in self.process.stdout:
            with self.news:
                self.printed.append(int(line))
                self.news.notify_all()

    def wait_for(self, condition):
        with self.news:
            if not self.news.wait_for(lambda: condition(self.printed) or self.process.poll() is not None, stores.LIMIT):
                raise AssertionError("a writer has stopped saving")
            if not condition(self.printed):
                raise AssertionError(f"a writer has ended: {self.process.stderr.read()}")

    def last(self, odd):
        with self.news:
            return next((k for k in reversed(self.printed) if k % 2 == odd), None)

    def end(self):
        """Waits until it has ended; gives how, and its errors."""
        self.process.wait(3 * stores.LIMIT)
        self.reader.join(stores.LIMIT)
        with self.process.stderr, self.process.stdout:
            return self.process.returncode, self.process.stderr.read()

    def kill(self):
        self.process.kill()
        return self.end()


class Life:
    """One name's writers, one after the other, and what may be stored of theirs."""

    def __init__(self, store, name, base):
        self.store = store
        self.name = name
        self.own = {None}
        self.shared = set()
        self.start(base)

    def start(self, first):
        self.writer = Writer(self.store, first, self.name)

    def kill(self, case):
        """Kills the writer and works out what can be there now of what it saved."""
        status, errors = self.writer.kill()
        case.assertEqual((status, errors), (-9, ""))
        printed = self.writer.printed
        under_way = printed[-1] + 1 if printed else self.writer.first
        own, shared = self.writer.last(odd=False), self.writer.last(odd=True)
        self.own = self.own if own is None else {own}
        self.shared = self.shared if shared is None else {shared}
        (self.shared if under_way % 2 else self.own).add(under_way)
        return under_way


class Killed(unittest.TestCase):
    def check(self, store, dead, alive):
        """Everything is whole, and what the dead one had saved is there."""
        least = alive.writer.last(odd=True), alive.writer.last(odd=False)
        tables = store.tables()
        self.assertIsNone(store.complaint())
        own = stores.stored_save(tables, dead.name)
        self.assertIn(own, dead.own)
        if store.engine == "SQLite":  # a server may still be at what the dead one asked for last
            dead.own = {own}
        others = stores.stored_save(tables, alive.name)
        self.assertGreaterEqual(others or 0, least[1] or 0)
        shared = stores.stored_save(tables, SHARED)
        if shared not in dead.shared:
            self.assertIsNotNone(shared)
            self.assertGreaterEqual(shared, alive.writer.first)
            self.assertGreaterEqual(shared, least[0] or 0)
        bound = {row["ChartId"]: row["ConfigId"] for row in tables["Charts"]}
        self.assertIn(bound.get(dead.name), (dead.name, SHARED, *([None] if None in dead.own else [])))
        return shared

    def kill_often(self, store, kills):
        chance = random.Random(6)
        # Numbers that tell the writers apart.
        lives = [Life(store, "First", 0), Life(store, "Second", 10_000_000)]
        try:
            for life in lives:
                life.writer.wait_for(lambda printed: len(printed) >= 2)
            for _ in range(kills):
                dead, alive = chance.sample(lives, 2)
                lines = chance.choice((0, 1, 1, 2, 3))
                dead.writer.wait_for(lambda printed, lines=lines: len(printed) >= lines)
                time.sleep(chance.uniform(0, 0.02))
                under_way = dead.kill(self)
                if chance.random() < 0.5:  # otherwise the other writer puts right what the dead one has left
                    self.check(store, dead, alive)
                seen = len(alive.writer.printed)
                alive.writer.wait_for(lambda printed, seen=seen: len(printed) >= seen + 2)
                # The other one has saved under the shared name since.
                shared = self.check(store, dead, alive)
                if store.engine == "SQLite":
                    self.assertNotIn(shared, dead.shared)
                dead.start(under_way + 1)
        finally:
            for life in lives:
                if life.writer.process.poll() is None:
                    life.writer.kill()

    def run_on(self, make):
        store = make()
        self.addCleanup(store.close)
        start = time.monotonic()
        self.kill_often(store, KILLS[store.engine])
        print(f"{store.engine}: {KILLS[store.engine]} kills in {time.monotonic() - start:.1f} s")

    def test_a_file_survives_kills(self):
        self.run_on(stores.SqliteStore)

    def test_a_server_survives_kills(self):
        self.run_on(stores.PostgresStore)


class Crowd(unittest.TestCase):
    WRITERS = 8

    def run_on(self, make):
        store = make()
        self.addCleanup(store.close)
        saves = SAVES[store.engine]
        start = time.monotonic()
        writers = {f"Writer {n}": Writer(store, n * 1_000_000, f"Writer {n}", saves) for n in range(self.WRITERS)}
        try:
            for name, writer in writers.items():
                self.assertEqual(writer.end(), (0, ""), name)
        finally:
            for writer in writers.values():
                if writer.process.poll() is None:
                    writer.kill()
        print(f"{store.engine}: {self.WRITERS} times {saves} saves in {time.monotonic() - start:.1f} s")
        tables = store.tables()
        self.assertIsNone(store.complaint())
        for name, writer in writers.items():
            self.assertEqual(writer.printed, list(range(writer.first, writer.first + saves)))
            self.assertEqual(stores.stored_save(tables, name), writer.last(odd=False))
        self.assertIn(stores.stored_save(tables, SHARED), [writer.last(odd=True) for writer in writers.values()])
        self.assertEqual({row["ChartId"]: row["ConfigId"] for row in tables["Charts"]}, dict.fromkeys(writers, SHARED))

    def test_nobody_is_turned_away_from_a_file(self):
        self.run_on(stores.SqliteStore)

    def test_nobody_is_turned_away_from_a_server(self):
        self.run_on(stores.PostgresStore)


if __name__ == "__main__":
    unittest.main()
