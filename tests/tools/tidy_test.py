#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""tools/tidy.py on a small project: what it has read, what it remembers, what it leaves out.

The clang-tidy of these tests notes each source that it is given, and finds fault with the word BAD in it.
"""
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

REPOSITORY = pathlib.Path(__file__).parents[2]
TOOL = REPOSITORY / "tools" / "tidy.py"

CLANG_TIDY = """#!/bin/sh
if [ "$1" = --version ]; then echo "version $TOOL_VERSION"; exit; fi
for name; do :; done
echo "$(basename "$name")" >>"$READ"
if [ -n "$EDITED" ]; then echo "// edited" >>"$EDITED"; fi
! grep -H BAD "$name"
"""
FILES = {
    "CMakeLists.txt": "cmake_minimum_required(VERSION 3.25)\nproject(small LANGUAGES CXX)\n"
                      "set(CMAKE_EXPORT_COMPILE_COMMANDS ON)\nadd_subdirectory(src)\nadd_subdirectory(tests)\n",
    "src/CMakeLists.txt": "add_library(src one.cpp two.cpp)\n"
                          "target_precompile_headers(src PRIVATE <cstddef>)\n",
    "src/one.h": "int One();\n",
    "src/one.cpp": "#include \"one.h\"\nint One() { return 1; }\n",
    "src/two.cpp": "int Two() { return 2; }\n",
    "tests/CMakeLists.txt": "add_library(tests one_test.cpp)\n",
    "tests/.clang-tidy": "InheritParentConfig: true\n",
    "tests/one_test.cpp": "#include \"../src/one.h\"\n",
    ".clang-tidy": "Checks: -*,bugprone-*\n",
    ".gitignore": "/build/\n",
}
ALL = ["one.cpp", "one_test.cpp", "two.cpp"]
# The sources of src/ compiled together.
JOINED = (f"include({REPOSITORY}/cmake/Joined.cmake)\nset(RBTALLY_JOIN ON)\nrbtally_join(sources src one.cpp two.cpp)\n"
          "add_library(src ${sources})\ntarget_precompile_headers(src PRIVATE <cstddef>)\n")


class Tidy(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory(prefix="rbtally-tidy-")
        self.addCleanup(self.folder.cleanup)
        top = pathlib.Path(self.folder.name)
        self.read_file = top / "read"
        (top / "bin").mkdir()
        (top / "bin" / "clang-tidy").write_text(CLANG_TIDY)
        (top / "bin" / "clang-tidy").chmod(0o755)
        self.environment = os.environ | {
            "PATH": f"{top}/bin:{os.environ['PATH']}", "CCACHE_DIR": str(top / "cache" / "ccache"), "TOOL_VERSION": "1",
            "READ": str(self.read_file), "GIT_CONFIG_GLOBAL": "/dev/null", "CCACHE_DISABLE": "1"}
        self.project = top / "project"
        for name, text in FILES.items():
            self.put(name, text)
        self.run_in("git", "init", "-q", "-b", "main")
        self.commit()

    def run_in(self, *command):
        subprocess.run(command, cwd=self.project, env=self.environment, check=True, stdout=subprocess.DEVNULL)

    def put(self, name, text):
        file = self.project / name
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(text)

    def commit(self):
        self.run_in("git", "add", "-A")
        self.run_in("git", "-c", "user.name=a", "-c", "user.email=a@b", "commit", "-q", "--allow-empty", "-m", "x")

    def tidy(self, *arguments):
        """Builds and checks; the sources that were read, and what was said where it failed, else nothing."""
        if not (self.project / "build").exists():
            self.run_in("cmake", "-G", "Ninja", "-S", ".", "-B", "build", "-DCMAKE_CXX_COMPILER_WORKS=1")
        self.run_in("cmake", "--build", "build")
        self.read_file.write_text("")
        run = subprocess.run([sys.executable, TOOL, "build", *arguments], cwd=self.project, env=self.environment,
                             capture_output=True, text=True)
        failure = run.stdout + run.stderr if run.returncode else ""
        return sorted(self.read_file.read_text().split()), failure

    def test_reads_everything_where_no_landing_is_known_and_nothing_twice(self):
        self.assertEqual(self.tidy(), (ALL, ""))
        self.assertEqual(self.tidy(), ([], ""))

    def test_reads_again_what_includes_a_changed_header(self):
        self.tidy()
        self.put("src/one.h", "int One();  // changed\n")
        self.assertEqual(self.tidy(), (["one.cpp", "one_test.cpp"], ""))

    def test_a_finding_fails_and_is_found_again(self):
        self.put("src/two.cpp", "int Two() { return 2; }  // BAD\n")
        for _ in range(2):
            read, failure = self.tidy()
            self.assertIn("two.cpp", read)
            self.assertIn("BAD", failure)
        self.assertEqual(read, ["two.cpp"])

    def test_what_is_edited_meanwhile_is_read_again(self):
        self.environment["EDITED"] = str(self.project / "src" / "one.h")
        self.assertEqual(self.tidy(), (ALL, ""))
        del self.environment["EDITED"]
        self.put("src/one.h", FILES["src/one.h"])
        self.assertEqual(self.tidy(), (["one.cpp", "one_test.cpp"], ""))

    def test_another_clone_knows_what_is_good(self):
        self.tidy()
        shutil.rmtree(self.project / "build")
        self.project = self.project.rename(self.project.with_name("elsewhere"))
        self.assertEqual(self.tidy(), ([], ""))

    def test_other_checks_and_another_tool_read_again(self):
        self.tidy()
        self.put("tests/.clang-tidy", "Checks: -bugprone-branch-clone\n")
        self.assertEqual(self.tidy(), (["one_test.cpp"], ""))
        self.put(".clang-tidy", "Checks: -*\n")
        self.assertEqual(self.tidy(), (ALL, ""))
        self.environment["TOOL_VERSION"] = "2"
        self.assertEqual(self.tidy(), (ALL, ""))

    def test_other_options_of_the_compiler_read_again(self):
        self.tidy()
        self.put("src/CMakeLists.txt", FILES["src/CMakeLists.txt"] + "add_compile_definitions(X=1)\n"
                 "target_compile_definitions(src PRIVATE Y=1)\n")
        self.assertEqual(self.tidy(), (["one.cpp", "two.cpp"], ""))

    def test_what_changes_did_not_reach_is_left_to_all(self):
        self.put("src/two.cpp", "int Two() { return 22; }\n")
        self.assertEqual(self.tidy("--since", "HEAD"), (["two.cpp"], ""))
        self.assertEqual(self.tidy("--all"), (["one.cpp", "one_test.cpp"], ""))

    def test_the_last_landing_is_where_a_branch_left_main(self):
        self.run_in("git", "checkout", "-q", "-b", "branch")
        self.put("src/one.h", "int One(); int Other();\n")
        self.commit()
        self.commit()
        self.assertEqual(self.tidy(), (["one.cpp", "one_test.cpp"], ""))

    def test_changed_options_and_checks_reach_their_sources(self):
        for name, reached in (("src/CMakeLists.txt", ["one.cpp", "two.cpp"]), ("tests/.clang-tidy", ["one_test.cpp"]),
                              ("cmake/Options.cmake", ALL)):
            self.put(name, FILES.get(name, "") + f"# {self.id()}\n")
            self.commit()
            shutil.rmtree(pathlib.Path(self.environment["CCACHE_DIR"]).parent, ignore_errors=True)
            self.assertEqual(self.tidy("--since", "HEAD~1"), (reached, ""), name)

    def test_a_source_that_nothing_compiles_is_refused(self):
        self.put("src/three.cpp", "")
        self.assertIn("no compile command for: src/three.cpp", self.tidy()[1])

    def test_precompiled_headers_are_left_out(self):
        self.tidy("--all")
        database = (self.project / "build" / "tidy" / "compile_commands.json").read_text()
        self.assertIn("one.cpp", database)
        self.assertNotIn("cmake_pch", database)

    def test_sources_that_are_compiled_together_are_read_alone(self):
        self.put("src/CMakeLists.txt", JOINED)
        self.assertEqual(self.tidy(), (ALL, ""))
        self.assertTrue((self.project / "build" / "joined" / "src_1.cpp").exists())
        database = (self.project / "build" / "tidy" / "compile_commands.json").read_text()
        self.assertNotIn("joined", database)
        self.assertNotIn("cmake_pch", database)
        self.assertEqual(self.tidy(), ([], ""))

    def test_of_sources_that_are_compiled_together_those_are_read_again_that_changed(self):
        self.put("src/CMakeLists.txt", JOINED)
        self.put("src/deep.h", "int Deep();\n")
        self.put("src/one.h", "#include \"../src/deep.h\"\nint One();\n")
        self.tidy()
        self.put("src/two.cpp", "int Two() { return 22; }\n")
        self.assertEqual(self.tidy(), (["two.cpp"], ""))
        self.put("src/deep.h", "int Deep(int);\n")
        self.assertEqual(self.tidy(), (["one.cpp", "one_test.cpp"], ""))
        self.put("src/four.cpp", "int Four() { return 4; }\n")
        self.put("src/CMakeLists.txt", JOINED.replace("one.cpp", "four.cpp one.cpp"))
        self.assertEqual(self.tidy(), (["four.cpp"], ""))


if __name__ == "__main__":
    unittest.main()
