#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""tools/packages.sh where programs of the tests stand for Debian's: lld is missing, cmake is there."""
import os
import pathlib
import subprocess
import tempfile
import unittest

SCRIPT = pathlib.Path(__file__).parents[2] / "tools" / "packages.sh"

PROGRAMS = {
    "dpkg-query": 'for name; do :; done; if [ "$name" = cmake ]; then echo "install ok installed"; fi',
    "id": "echo $USER_ID",
    # It answers with the lines of a file in turn, then with success.
    "apt-get": 'echo "apt-get $*" >>"$CALLS"\n'
               'answer=$(head -n 1 "$ANSWERS"); sed -i 1d "$ANSWERS"\n'
               'if [ -n "$answer" ]; then echo "$answer" >&2; exit 100; fi',
    "sudo": 'echo sudo >>"$CALLS"; exec "$@"',
}
BUSY = "E: Could not get lock /var/lib/dpkg/lock-frontend. It is held by process 7 (apt-get)"


class Install(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="rbtally-packages-")
        self.addCleanup(folder.cleanup)
        self.top = pathlib.Path(folder.name)
        for name, text in PROGRAMS.items():
            program = self.top / name
            program.write_text(f"#!/bin/sh\n{text}\n")
            program.chmod(0o755)
        for name in ("bash", "sh", "env", "grep", "sed", "head", "tail", "sleep"):
            (self.top / name).symlink_to(f"/bin/{name}")
        self.user = "0"

    def install(self, *packages, answers=()):
        """Exit status, what was said on both outputs, and what was called."""
        calls, answer_file = self.top / "calls", self.top / "answers"
        calls.write_text("")
        answer_file.write_text("".join(f"{answer}\n" for answer in answers))
        environment = {"PATH": str(self.top), "USER_ID": self.user, "CALLS": str(calls), "RBK_APT_PAUSE": "0",
                       "ANSWERS": str(answer_file)}
        run = subprocess.run(["bash", "-euo", "pipefail", "-c", f'. "{SCRIPT}"; install "$@"; say done', "-", *packages],
                             env=environment, capture_output=True, text=True)
        called = [line.replace("-qq ", "") for line in calls.read_text().splitlines()]
        return run.returncode, (run.stdout + run.stderr).splitlines(), called

    UPDATE = "apt-get update"
    INSTALL = "apt-get install -y --no-install-recommends lld"

    def test_asks_nobody_when_nothing_is_missing(self):
        self.user = "1000"
        self.assertEqual(self.install("cmake"), (0, ["== done"], []))

    def test_installs_what_is_missing(self):
        self.assertEqual(self.install("cmake", "lld"),
                         (0, ["== installing lld", "== done"], [self.UPDATE, self.INSTALL]))

    def test_takes_sudo_where_it_is_not_root(self):
        self.user = "1000"
        self.assertEqual(self.install("lld")[2], ["sudo", self.UPDATE, "sudo", self.INSTALL])

    def test_tells_the_right_that_is_missing_in_one_line(self):
        self.user = "1000"
        (self.top / "sudo").unlink()
        self.assertEqual(self.install("lld"), (1, ["== installing lld",
                                                   "./rbk: to install lld it takes root or sudo"], []))

    def test_waits_for_a_busy_package_manager(self):
        status, said, called = self.install("lld", answers=["", BUSY, BUSY])
        self.assertEqual(status, 0)
        self.assertIn("== waiting for another package manager", said)
        self.assertEqual(called, [self.UPDATE] + 3 * [self.INSTALL])

    def test_tells_the_package_that_cannot_be_had_in_one_line(self):
        status, said, _ = self.install("lld", answers=["", "E: Unable to locate package lld"])
        self.assertEqual(status, 1)
        self.assertEqual(said[1:], ["./rbk: cannot install lld: E: Unable to locate package lld"])

    def test_installs_from_old_lists_where_new_ones_cannot_be_had(self):
        status, _, called = self.install("lld", answers=["E: The repository does not answer"])
        self.assertEqual((status, called[-1]), (0, self.INSTALL))


if __name__ == "__main__":
    unittest.main()
