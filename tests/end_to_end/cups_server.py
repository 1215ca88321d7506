# SPDX-License-Identifier: MIT
"""A print server of its own: CUPS in a temporary folder, on a socket there, with printers that write PDF files.

Nothing outside that folder is read or changed, no service need run. The scheduler and the backend are run from copies,
because confinement goes by a program's path and would hold them off the folder.
"""
import ctypes
import os
import pathlib
import re
import shutil
import signal
import socket
import subprocess
import tempfile
import time

SCHEDULER = "/usr/sbin/cupsd"
PARTS = pathlib.Path("/usr/lib/cups")
DESCRIPTION = pathlib.Path("/usr/share/ppd/cups-pdf/CUPS-PDF_opt.ppd")
NEEDED = (SCHEDULER, PARTS / "backend" / "cups-pdf", PARTS / "filter" / "pdftopdf", DESCRIPTION,
          "/usr/sbin/lpadmin", "/usr/sbin/cupsreject", "/usr/bin/lpstat", "/usr/bin/gs")

SETTINGS = """
LogLevel debug
Listen {folder}/socket
Browsing Off
WebInterface No
DefaultAuthType None
ErrorPolicy abort-job
PreserveJobFiles Yes
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  JobPrivateAccess all
  JobPrivateValues none
  <Limit All>
    Order deny,allow
    Allow all
  </Limit>
</Policy>
"""
FILES = """
ServerRoot {folder}/root
ServerBin {folder}/programs
RequestRoot {folder}/requests
CacheDir {folder}/cache
StateDir {folder}/state
TempDir {folder}/temporary
ErrorLog {folder}/error_log
AccessLog {folder}/access_log
PageLog {folder}/page_log
"""
# Options of the PDF printer that name where it works, below the folder in which the scheduler was started.
PLACES = "".join(f'*OpenUI *{key}/{key}: PickOne\n*Default{key}: {place}\n*{key} {place}/{place}: ""\n*CloseUI: *{key}\n'
                 for key, place in (("Out", "printed"), ("Spool", "spool"), ("Log", "log")))


PR_SET_PDEATHSIG = 1


def end_with_parent():
    """A test that is killed leaves no print server behind."""
    ctypes.CDLL(None).prctl(PR_SET_PDEATHSIG, signal.SIGTERM)


class PrintServer:
    """with PrintServer() as server: ...; what fails in there shows the end of the server's log."""

    def __init__(self, patience=60):
        self.patience = patience
        self.process = None
        missing = [str(path) for path in NEEDED if not os.path.exists(path)]
        assert not missing, f"CUPS with its PDF printer is not installed: {' '.join(missing)} missing"
        # Short, for a socket's name; open to the account under which filters run.
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="rbtally-cups-", dir="/tmp"))
        self.folder.chmod(0o755)
        self.socket = self.folder / "socket"
        self.printed = self.folder / "printed"

    def __enter__(self):
        try:
            self.lay_out()
            self.start()
        except BaseException:
            self.__exit__(AssertionError, None, None)
            raise
        return self

    def __exit__(self, kind, fault, trace):
        self.stop()
        if kind is not None:
            print(self.log())
        shutil.rmtree(self.folder, ignore_errors=True)

    def lay_out(self):
        for name in ("root", "programs/backend", "requests", "cache", "state", "temporary", "printed", "spool", "log"):
            (self.folder / name).mkdir(parents=True)
        (self.folder / "temporary").chmod(0o1777)
        (self.folder / "root" / "cupsd.conf").write_text(SETTINGS.format(folder=self.folder))
        (self.folder / "root" / "cups-files.conf").write_text(FILES.format(folder=self.folder))
        for part in PARTS.iterdir():
            if part.name != "backend":
                (self.folder / "programs" / part.name).symlink_to(part)
        shutil.copy(PARTS / "backend" / "cups-pdf", self.folder / "programs" / "backend")
        shutil.copy(SCHEDULER, self.folder / "programs")

    def start(self):
        self.process = subprocess.Popen(
            [self.folder / "programs" / "cupsd", "-f", "-c", self.folder / "root" / "cupsd.conf",
             "-s", self.folder / "root" / "cups-files.conf"], cwd=self.folder, stdin=subprocess.DEVNULL,
            stdout=(self.folder / "output").open("w"), stderr=subprocess.STDOUT, preexec_fn=end_with_parent)
        self.wait_until(self.answers, "the print server does not answer")

    def stop(self):
        if self.process is None:
            return
        self.process.terminate()
        try:
            self.process.wait(self.patience)
        except subprocess.TimeoutExpired:
            self.process.kill()
            self.process.wait()
        self.process = None

    def answers(self):
        assert self.process.poll() is None, f"the print server ended with status {self.process.returncode}"
        with socket.socket(socket.AF_UNIX) as end:
            return end.connect_ex(str(self.socket)) == 0

    def wait_until(self, happened, complaint):
        deadline = time.monotonic() + self.patience
        while not happened():
            assert time.monotonic() < deadline, f"{complaint} after {self.patience} s"
            time.sleep(0.1)

    def log(self):
        files = [self.folder / "output", self.folder / "error_log", *sorted((self.folder / "log").glob("*"))]
        return "\n".join(f"--- end of {file.name}\n" + "\n".join(self.telling(file)[-80:])
                         for file in files if file.exists())

    @staticmethod
    def telling(file):
        """What jobs did and what went wrong, without the scheduler's own housekeeping."""
        return [line for line in file.read_text(errors="replace").splitlines()
                if not line.startswith("D [") or "[Job " in line and "envp[" not in line]

    def environment(self):
        """For programs that are to print here."""
        return {"CUPS_SERVER": str(self.socket)}

    def run(self, *command):
        done = subprocess.run(command, capture_output=True, text=True, timeout=self.patience,
                              env={"PATH": "/usr/sbin:/usr/bin:/sbin:/bin", "LC_ALL": "C.UTF-8",
                                   "HOME": str(self.folder)} | self.environment())
        assert done.returncode == 0, f"{' '.join(map(str, command))}: {done.stderr}"
        return done.stdout

    # -- printers ------------------------------------------------------------------------------------------

    def add_printer(self, name, paper="A4", margins=(0, 0, 0, 0)):
        """Margins are left, bottom, right and top of the sheet in portrait, in points."""
        left, bottom, right, top = margins

        def narrowed(area):
            width, height = (float(side) for side in area[2].split())
            return f'{area[1]}"{left} {bottom} {width - right} {height - top}"'

        text = DESCRIPTION.read_text("latin-1")
        text = re.sub(r'(\*ImageableArea [^:]+: *)"0(?:\.0)? 0(?:\.0)? ([\d.]+ [\d.]+)"', narrowed, text)
        text = text.replace("*CloseGroup: General\n", PLACES + "*CloseGroup: General\n")
        assert PLACES in text, f"{DESCRIPTION} is not as expected"
        file = self.folder / "printer.ppd"
        file.write_text(text, "latin-1")
        self.run("lpadmin", "-p", name, "-v", "cups-pdf:/", "-P", str(file), "-o", f"PageSize={paper}", "-E")

    def printed_by(self, action):
        """Runs `action` and waits until its jobs have ended. For each of them, in their order, the PDF file that was
        handed in and the one that came out."""
        before = set(self.printed.iterdir())
        action()
        self.wait_until(lambda: not self.run("lpstat", "-W", "not-completed", "-o").strip(), "a job has not ended")
        jobs = {int(re.search(r"(\d+)\.pdf$", file.name)[1]): file for file in set(self.printed.iterdir()) - before}
        return [(self.folder / "requests" / f"d{job:05}-001", jobs[job]) for job in sorted(jobs)]
