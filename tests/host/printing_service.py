"""A printing system of its own for a test: a scheduler on a free port of the loopback, with queues that keep their jobs."""
import grp
import os
import pathlib
import pwd
import shutil
import socket
import subprocess
import tempfile
import time

LIMIT = 30  # seconds until something that does not come is given up

SERVER = """Listen 127.0.0.1:{port}
DefaultAuthType None
DefaultEncryption Never
WebInterface No
Browsing No
LogLevel debug
ErrorPolicy stop-printer
<Location />
  Order allow,deny
  Allow all
</Location>
<Location /admin>
  Order allow,deny
  Allow all
</Location>
<Policy default>
  <Limit All>
    Order allow,deny
    Allow all
  </Limit>
</Policy>
"""

FILES = """ServerRoot {folder}
CacheDir {folder}/cache
StateDir {folder}/state
RequestRoot {folder}/spool
TempDir {folder}/temporary
ServerBin {folder}/programs
DataDir /usr/share/cups
AccessLog {folder}/access.log
ErrorLog {folder}/error.log
PageLog {folder}/page.log
FileDevice Yes
Sandboxing relaxed
"""

# Called with a job: its number first, its file last, or the job on the standard input.
BACKEND = """#!/bin/sh
if [ $# -eq 0 ]; then
  echo 'direct keep "Unknown" "Keeps jobs"'
  exit 0
fi
folder=${DEVICE_URI#keep:}
[ "$folder" = /failing ] && exit 1
cat "${6:--}" >"$folder/$1.part" && mv "$folder/$1.part" "$folder/$1.pdf"
"""

# A printer that takes a page as PDF, A4 with a margin of half an inch.
DESCRIPTION = """*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "KEEP.PPD"
*Manufacturer: "Test"
*Product: "(Keep)"
*ModelName: "Keep"
*ShortNickName: "Keep"
*NickName: "Keep"
*PSVersion: "(3010.000) 0"
*LanguageLevel: "3"
*ColorDevice: True
*DefaultColorSpace: RGB
*cupsVersion: 2.4
*cupsFilter: "application/pdf 0 -"
*OpenUI *PageSize/Media Size: PickOne
*DefaultPageSize: A4
*PageSize A4/A4: "<</PageSize[595 842]>>setpagedevice"
*CloseUI: *PageSize
*OpenUI *PageRegion/Media Size: PickOne
*DefaultPageRegion: A4
*PageRegion A4/A4: "<</PageSize[595 842]>>setpagedevice"
*CloseUI: *PageRegion
*DefaultImageableArea: A4
*ImageableArea A4/A4: "36 36 559 806"
*DefaultPaperDimension: A4
*PaperDimension A4/A4: "595 842"
"""


def wait_for(condition, what):
    """What the condition gives, once that is something."""
    end = time.monotonic() + LIMIT
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > end:
            raise TimeoutError(what)
        time.sleep(0.02)


def free_port():
    with socket.socket() as probe:
        probe.bind(("127.0.0.1", 0))
        return probe.getsockname()[1]


class PrintingService:
    def __init__(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="printing-"))
        self.folder.chmod(0o755)  # as root, the scheduler's programs run as somebody else
        self.jobs = self.folder / "jobs"
        for name in ("cache", "state", "spool", "temporary", "programs", "programs/backend", "jobs"):
            (self.folder / name).mkdir()
        self.jobs.chmod(0o777)
        for name in ("filter", "daemon", "notifier"):
            (self.folder / "programs" / name).symlink_to(pathlib.Path("/usr/lib/cups") / name)
        backend = self.folder / "programs" / "backend" / "keep"
        backend.write_text(BACKEND)
        backend.chmod(0o755)
        self.description = self.folder / "keep.ppd"
        self.description.write_text(DESCRIPTION)
        self.port = free_port()
        (self.folder / "cupsd.conf").write_text(SERVER.format(port=self.port))
        files = FILES.format(folder=self.folder)
        if os.geteuid() == 0:
            files += f"User lp\nGroup {grp.getgrgid(pwd.getpwnam('lp').pw_gid).gr_name}\n"
        (self.folder / "cups-files.conf").write_text(files)
        self.environment = {"CUPS_SERVER": f"127.0.0.1:{self.port}", "HOME": str(self.folder)}
        self.scheduler = subprocess.Popen(
            [self.program("cupsd"), "-f", "-c", self.folder / "cupsd.conf", "-s", self.folder / "cups-files.conf"],
            stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        try:
            wait_for(self.answers, "the scheduler's first answer")
        except BaseException:
            self.close()
            raise

    @staticmethod
    def program(name):
        path = shutil.which(name, path=os.environ.get("PATH", "") + ":/usr/sbin")
        if path is None:
            raise FileNotFoundError(name)
        return path

    def answers(self):
        if self.scheduler.poll() is not None:
            raise RuntimeError("the scheduler ended: " + self.log()[-2000:])
        try:
            socket.create_connection(("127.0.0.1", self.port), 1).close()
            return True
        except OSError:
            return False

    def log(self):
        path = self.folder / "error.log"
        return path.read_text(errors="replace") if path.exists() else ""

    def run(self, name, *arguments):
        return subprocess.run([self.program(name), *arguments], env={**os.environ, **self.environment}, check=True,
                              capture_output=True, text=True, timeout=LIMIT).stdout

    def add_printer(self, name, folder=None):
        """A printer that keeps its jobs in a folder; "/failing" fails."""
        self.run("lpadmin", "-p", name, "-v", f"keep:{folder or self.jobs}", "-P", str(self.description), "-E")

    def state_of(self, name):
        return self.run("lpstat", "-p", name)

    def kept_jobs(self):
        return sorted(self.jobs.glob("*.pdf"))

    def stop(self):
        self.scheduler.terminate()
        try:
            self.scheduler.wait(LIMIT)
        except subprocess.TimeoutExpired:
            self.scheduler.kill()
            self.scheduler.wait()

    def close(self):
        self.stop()
        shutil.rmtree(self.folder)
