"""A copy of the tree in which mutants are built and tested. The developer's own tree is only read."""

import json
import os
import pathlib
import re
import shutil
import signal
import subprocess

ENDLESS = "did not end"
FAILURE = re.compile(r"^FAIL!  : (\w+::(\w+)\(.*?\))", re.MULTILINE)


class Test:
    """A test as ctest knows it."""

    def __init__(self, entry):
        properties = {item["name"]: item["value"] for item in entry["properties"]}
        self.name = entry["name"]
        self.folder = properties["WORKING_DIRECTORY"]
        self.room = pathlib.Path(self.folder).name
        self.program = str(pathlib.Path(self.folder) / self.name)
        self.is_picture = "picture" in properties.get("LABELS", [])
        # What is not built yet has no command.
        self.is_program = entry.get("command", [self.program]) == [self.program]
        self.timeout = properties.get("TIMEOUT", 120)
        self.environment = dict(entry.split("=", 1) for entry in properties.get("ENVIRONMENT", []) if "=" in entry)
        self.warnings = [re.compile(text) for text in properties.get("FAIL_REGULAR_EXPRESSION", [])]

    def run(self, functions=()):
        """Empty when it passes, else the first function that failed, or what happened instead."""
        try:
            code, output = run([self.program] + list(functions), self.folder, self.timeout, self.environment)
        except subprocess.TimeoutExpired:
            return ENDLESS
        failure = FAILURE.search(output)
        if failure:
            return failure[1]
        if code != 0:
            return "ended with %d" % code
        return "an unexpected warning" if any(text.search(output) for text in self.warnings) else ""

    def fails(self):
        """As run(); a failure has to come again, so that a test that is late on a busy machine is none. One that used up
        its time was not just late."""
        first = self.run()
        if first == ENDLESS:
            return first
        function = re.match(r"\w+::(\w+)\(", first)
        own = [function[1]] if function and function[1] not in ("initTestCase", "cleanupTestCase") else []
        return self.run(own) and first


def run(command, folder, timeout=None, environment=None):
    """Exit code and output; ends the program and what it started when it takes too long."""
    process = subprocess.Popen(command, cwd=folder, env={**os.environ, **(environment or {})}, text=True, errors="replace",
                               stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                               start_new_session=True)
    try:
        output, _ = process.communicate(timeout=timeout)
        return process.returncode, output
    except BaseException:
        os.killpg(process.pid, signal.SIGKILL)
        process.wait()
        raise


class Workshop:
    def __init__(self, project, folder, compilers):
        self.project = pathlib.Path(project)
        self.tree = pathlib.Path(folder) / "tree"
        self.build = pathlib.Path(folder) / "build"
        self.compilers = compilers
        self.originals = {}

    def set_up(self):
        self.copy_tree()
        # Quick to compile, no test linked anew for each mutant, and an unused variable in a mutant is no mistake.
        options = ["-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS_DEBUG=-O0", "-DBUILD_SHARED_LIBS=ON", "-DNELVO_WERROR=OFF",
                   "-DNELVO_DEMO=OFF"]
        code, output = run(["cmake", "-S", self.tree, "-B", self.build, "-G", "Ninja"] + options, self.tree)
        if code != 0:
            raise RuntimeError(output)

    def copy_tree(self):
        """Files that are as they were keep their times, so that nothing is built for them."""
        listed = subprocess.run(["git", "ls-files", "-z", "-co", "--exclude-standard"], cwd=self.project, check=True,
                                capture_output=True).stdout.decode().split("\0")
        wanted = {name for name in listed if name and (self.project / name).is_file()}
        for path in self.tree.rglob("*"):
            if path.is_file() and str(path.relative_to(self.tree)) not in wanted:
                path.unlink()
        for name in wanted:
            self.write(name, (self.project / name).read_bytes())
            shutil.copymode(self.project / name, self.tree / name)

    def write(self, name, content):
        path = self.tree / name
        path.parent.mkdir(parents=True, exist_ok=True)
        if not path.is_file() or path.read_bytes() != content:
            path.write_bytes(content)

    def original(self, name):
        """The text of a file as it was copied, whatever has been put in its place."""
        return self.originals.get(name) or (self.tree / name).read_text(encoding="utf-8")

    def put(self, texts):
        """Changes these files and puts those changed before back."""
        before = self.originals
        self.originals = {name: self.original(name) for name in texts}
        for name, text in {**before, **texts}.items():
            self.write(name, text.encode())

    def make(self, test):
        """Empty when the test's program was built, else what the compiler said."""
        environment = {"CCACHE_BASEDIR": str(self.tree.parent), "CCACHE_NOHASHDIR": "1"}
        code, output = run(["ninja", "-C", self.build, "-j", str(self.compilers), "test-" + test], self.build,
                           environment=environment)
        return "" if code == 0 else output

    def tests(self):
        """The tests that are programs of their own name; pictures on scaled displays are left out."""
        code, output = run(["ctest", "--show-only=json-v1"], self.build)
        if code != 0:
            raise RuntimeError(output)
        tests = [Test(entry) for entry in json.loads(output)["tests"]]
        return [test for test in tests if test.is_program and "_scale_" not in test.name]
