"""A tree of its own in which faults are made: never the one that the user works in."""
import json
import os
import pathlib
import subprocess
from dataclasses import dataclass

from suite import Test

PRESET = "mutate"
OPTIONS = ("-DKZM_BUILD_TESTS=ON", "-DKZM_BUILD_EXAMPLES=OFF", "-DKZM_BUILD_BENCHMARKS=OFF", "-DKZM_ALL_TESTS=OFF",
           "-DCMAKE_LINK_DEPENDS_NO_SHARED=ON")
COMPILING_TAKES = 600  # seconds, at most; a compiler may be made to calculate forever


class Broken(Exception):
    """The tree cannot be made ready; the text says why."""


def said(command, folder, **options):
    done = subprocess.run(command, cwd=folder, text=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, **options)
    if done.returncode != 0:
        raise Broken(f"{' '.join(map(str, command))}\n{done.stdout}")
    return done.stdout


def state_of(project):
    """The commit that holds what the project's tracked files hold now, committed or not."""
    return said(["git", "stash", "create"], project).strip() or said(["git", "rev-parse", "HEAD"], project).strip()


@dataclass
class Tree:
    folder: pathlib.Path
    jobs: int

    @property
    def build_folder(self):
        return self.folder / "build" / PRESET

    def prepare(self, project):
        state = state_of(project)
        if not (self.folder / ".git").exists():
            said(["git", "worktree", "prune"], project)
            said(["git", "worktree", "add", "--detach", self.folder, state], project)
        said(["git", "checkout", "--force", "--detach", state], self.folder)
        said(["git", "clean", "-fdq"], self.folder)
        said(["cmake", "--preset", PRESET, *OPTIONS], self.folder)
        said(self.building("all"), self.folder)

    def building(self, *targets):
        return ["cmake", "--build", "--preset", PRESET, "-j", str(self.jobs), "--target", *targets]

    def builds(self, *targets):
        """Whether they can be built; nothing is linked or run after an error."""
        try:
            done = subprocess.run(self.building(*targets), cwd=self.folder, stdout=subprocess.DEVNULL,
                                  stderr=subprocess.DEVNULL, timeout=COMPILING_TAKES)
        except subprocess.TimeoutExpired:
            return False
        return done.returncode == 0

    def tests(self):
        """The tests that run something of this build."""
        listed = json.loads(said(["ctest", "--test-dir", self.build_folder, "--show-only=json-v1"], self.folder))
        for test in listed["tests"]:
            properties = {each["name"]: each["value"] for each in test["properties"]}
            if any(self.is_built(word) for word in test["command"]):
                yield Test(test["name"], tuple(test["command"]), pathlib.Path(properties["WORKING_DIRECTORY"]),
                           tuple(properties.get("ENVIRONMENT", ())))

    def mirrors(self, test, source):
        """Whether the test belongs to the folder of the source."""
        return test.folder.is_relative_to(self.build_folder / "tests" / source.split("/")[0])

    def is_built(self, word):
        return word.startswith(f"{self.build_folder}/") and os.path.isfile(word)
