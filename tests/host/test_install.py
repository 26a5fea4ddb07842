"""What an installation leaves behind, used as a stranger uses it: by CMake, by pkg-config and a bare compiler."""

import os
import re
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

BUILD = Path(os.environ["QMCHART6_BUILD"])
SOURCE = Path(os.environ["QMCHART6_SOURCE"])


def run(*command, **options):
    done = subprocess.run([str(part) for part in command], capture_output=True, text=True, timeout=300, **options)
    if done.returncode != 0:
        raise AssertionError(f"{command}: {done.returncode}\n{done.stdout}{done.stderr}")
    return done.stdout


class Installed(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = Path(tempfile.mkdtemp())
        cls.prefix = cls.folder / "prefix"
        run("cmake", "--install", BUILD, "--prefix", cls.prefix)
        cls.library = next(cls.prefix.glob("lib*/**/libqmchart6.so"))
        cls.environment = dict(os.environ, QT_QPA_PLATFORM="offscreen", LC_ALL="C.UTF-8")

    @classmethod
    def tearDownClass(cls):
        shutil.rmtree(cls.folder)

    def build_example(self, name):
        build = self.folder / name
        run("cmake", "-S", SOURCE / "examples" / name, "-B", build, "-G", "Ninja", f"-DCMAKE_PREFIX_PATH={self.prefix}")
        run("cmake", "--build", build)
        return build / "host"

    def test_a_host_in_cpp_finds_the_package_and_draws(self):
        host = self.build_example("host")
        self.assertEqual(run(host, cwd=self.folder, env=self.environment), "sales.svg\n")
        self.assertIn("<svg", (self.folder / "sales.svg").read_text())

    def test_a_host_in_c_finds_the_package_without_qt(self):
        host = self.build_example("host-c")
        self.assertEqual(run(host, cwd=self.folder, env=self.environment), "sales.svg\n")
        needed = run("readelf", "-d", host)
        self.assertNotIn("libQt6", needed)

    def test_pkg_config_tells_a_bare_compiler_all_it_needs(self):
        configs = self.library.parent / "pkgconfig"
        flags = run("pkg-config", "--cflags", "--libs", "qmchart6", env=dict(os.environ, PKG_CONFIG_PATH=str(configs))).split()
        program = self.folder / "c-host"
        run("cc", "-std=c99", "-Wall", "-Wextra", "-Wpedantic", "-Werror", SOURCE / "tests/host/c/host.c", "-o", program, *flags)
        run(program, self.folder / "bare.png", env=dict(self.environment, LD_LIBRARY_PATH=str(self.library.parent)))
        self.assertEqual((self.folder / "bare.png").read_bytes()[:4], b"\x89PNG")

    def test_the_program_runs_from_where_it_was_put(self):
        moved = self.folder / "moved"
        shutil.copytree(self.prefix, moved, symlinks=True)
        self.assertRegex(run(moved / "bin/qmchart", "--version"), r"\d+\.\d+\.\d+")

    def test_the_library_bears_a_version_and_shows_public_names_only(self):
        self.assertRegex(run("readelf", "-d", self.library), r"SONAME.*libqmchart6\.so\.\d+\]")
        names = run("nm", "-DC", "--defined-only", self.library).splitlines()
        for line in names:
            name = line.split(" ", 2)[2]
            self.assertRegex(name, r"@@QMCHART6_\d+$|^QMCHART6_\d+$", name)
            self.assertTrue(re.match(r"(typeinfo (name )?for |vtable for )?QmChart6::|qmchart6_|QMCHART6_", name), name)
        self.assertGreater(len(names), 50)

    def test_every_function_of_the_c_header_is_there(self):
        header = (self.prefix / "include/qmchart6.h").read_text()
        declared = set(re.findall(r"\b(qmchart6_\w+)\(", header))
        defined = set(re.findall(r"\b(qmchart6_\w+)@@", run("nm", "-D", "--defined-only", self.library)))
        self.assertEqual(declared, defined)

    def test_the_library_is_hardened(self):
        dynamic = run("readelf", "-d", self.library)
        self.assertIn("BIND_NOW", dynamic)
        self.assertIn("GNU_RELRO", run("readelf", "-lW", self.library))
        self.assertIn("__stack_chk_fail", run("nm", "-D", "--undefined-only", self.library))


if __name__ == "__main__":
    unittest.main()
