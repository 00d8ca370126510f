"""Tests, run until the first one fails. A changed program may signal any process, fill the memory or never end: each
test has its own process numbers, its own folders and bounds."""
import os
import pathlib
import re
import shutil
import signal
import subprocess
import tempfile
import threading
import time
from dataclasses import dataclass

OWN_PROCESSES = ["unshare", *([] if os.geteuid() == 0 else ["--user", "--map-root-user"]), "--pid", "--fork",
                 "--kill-child", "--mount-proc"]
BOUNDS = ["prlimit", f"--as={16 << 30}:", f"--fsize={1 << 30}:", "--core=0:"]  # bytes; a test may go higher
# The first process of a set is sent no signal that it does not ask for, so that is a shell.
FIRST_PROCESS = ["sh", "-c", '"$@"; exit $?', "sh"]
CONFINED = BOUNDS + OWN_PROCESSES + FIRST_PROCESS
SOONEST_END, TIMES_LONGER = 20.0, 10.0  # seconds, and times what the test takes without a fault


@dataclass(frozen=True)
class Test:
    name: str
    command: tuple
    folder: pathlib.Path  # where it runs
    environment: tuple  # NAME=VALUE


@dataclass(frozen=True)
class Run:
    passed: bool
    end: str  # how it ended where it did not pass
    seconds: float


def failed_case(output):
    """The first case that failed, as GoogleTest says it."""
    match = re.search(r"\[  FAILED  \] ([\w/]+\.[\w/]+)", output)
    return match[1] if match else None


def ended_by(status, output):
    case = failed_case(output)
    if case:
        return case
    return signal.Signals(status - 128).name if 128 < status < 160 else f"status {status}"


class Suite:
    def __init__(self, scratch, jobs):
        self.scratch = pathlib.Path(scratch)
        self.jobs = jobs
        self.seconds = {}  # by name, without a fault
        self.running = {}

    def environment(self, test, home):
        given = {name: value for name, value in os.environ.items() if not name.startswith("XDG_")}
        own = {"HOME": home, "TMPDIR": home, "GTEST_FAIL_FAST": "1", "GTEST_BRIEF": "1"}
        return given | own | dict(each.split("=", 1) for each in test.environment)

    def most_seconds(self, test):
        return SOONEST_END + TIMES_LONGER * self.seconds.get(test.name, 60.0)

    def run(self, test):
        home = tempfile.mkdtemp(dir=self.scratch)
        os.chmod(home, 0o755)  # some tests act for another user
        start = time.monotonic()
        with tempfile.TemporaryFile(dir=self.scratch) as output:
            process = subprocess.Popen([*CONFINED, *test.command], cwd=test.folder, stdin=subprocess.DEVNULL,
                                       stdout=output, stderr=output, env=self.environment(test, home))
            self.running[test.name] = process
            try:
                status = process.wait(self.most_seconds(test))
                output.seek(0)
                end = ended_by(status, output.read().decode(errors="replace"))
            except subprocess.TimeoutExpired:
                process.kill()
                status, end = process.wait(), "no end"
            del self.running[test.name]
        shutil.rmtree(home, ignore_errors=True)
        return Run(status == 0, end, time.monotonic() - start)

    def at_once(self, work):
        threads = [threading.Thread(target=work) for _ in range(self.jobs)]
        for thread in threads:
            thread.start()
        for thread in threads:
            thread.join()

    def measure(self, tests):
        """How long they take without a fault; what fails even so."""
        waiting = iter(tests)
        failed = []

        def work():
            for test in waiting:
                run = self.run(test)
                self.seconds[test.name] = run.seconds
                if not run.passed:
                    failed.append(f"{test.name}: {run.end}")

        self.at_once(work)
        return failed

    def failed_twice(self, test):
        """How it failed; None where it passed, be it the second time: a busy machine fails tests as well."""
        run = self.run(test)
        return run if not run.passed and not self.run(test).passed else None

    def first_failure(self, tests):
        """What notices first, the quick ones asked before the slow ones; None where all pass."""
        waiting = iter(sorted(tests, key=lambda test: self.seconds[test.name]))
        failures = []

        def work():
            for test in waiting:
                if failures:
                    return
                run = self.failed_twice(test)
                if run is not None and not failures:
                    failures.append(f"{test.name} ({run.end})")
                    for process in list(self.running.values()):
                        process.kill()

        self.at_once(work)
        return failures[0] if failures else None
