"""Where mutants are built and tried: a copy of the tree below build/mutate, never the tree itself."""

import json
import os
import re
import resource
import shlex
import shutil
import signal
import subprocess
import tempfile
import time
from dataclasses import dataclass
from pathlib import Path

# What a copy of the tree leaves out.
_LEFT_OUT = ("build", ".git", "docs")
# The test programs of the core; those of a file's own directory are run first.
_PROGRAMS = ("ledger", "register", "forms", "control", "services", "screen")
_MEMORY = 4 << 30  # bytes that a mutant may take before it counts as stopped


@dataclass
class Outcome:
    """What became of a mutant: killed by "unit" or "scenario", "survived", or "broken" when it
    does not compile. `by` names the first test that failed."""

    result: str
    by: str = ""


def _run(command, cwd, seconds, environment=None):
    """The exit status and what was printed; a status of None when the time was over."""

    def limits():
        resource.setrlimit(resource.RLIMIT_AS, (_MEMORY, _MEMORY))
        resource.setrlimit(resource.RLIMIT_CORE, (0, 0))

    process = subprocess.Popen(command, cwd=cwd, env=environment, preexec_fn=limits, text=True,
                               errors="replace", start_new_session=True,
                               stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                               stderr=subprocess.STDOUT)
    try:
        printed, _ = process.communicate(timeout=seconds)
        return process.returncode, printed
    except subprocess.TimeoutExpired:
        os.killpg(process.pid, signal.SIGKILL)
        process.communicate()
        return None, ""
    except BaseException:
        os.killpg(process.pid, signal.SIGKILL)
        raise


class Workshop:
    """A snapshot of the tree, built once, in which any number of mutants are tried at a time."""

    def __init__(self, root):
        self.root = Path(root)
        self.folder = self.root / "build" / "mutate"
        self.tree = self.folder / "tree"
        self.build = self.tree / "build" / "mutate"
        self.limit = 60.0  # seconds that one test program may take
        self.scenarios = []

    def take_snapshot(self):
        """Copies what changed since the last snapshot and drops what is gone."""
        wanted = set()
        for directory, folders, files in os.walk(self.root):
            place = Path(directory).relative_to(self.root)
            folders[:] = [f for f in folders if not (place == Path(".") and f in _LEFT_OUT)]
            for name in files:
                wanted.add(place / name)
                self._copy(self.root / place / name, self.tree / place / name)
        for directory, folders, files in os.walk(self.tree):
            place = Path(directory).relative_to(self.tree)
            if place == Path("."):
                folders[:] = [f for f in folders if f != "build"]
            for name in files:
                if place / name not in wanted:
                    (self.tree / place / name).unlink()

    @staticmethod
    def _copy(source, target):
        if target.exists() and target.read_bytes() == source.read_bytes():
            return
        target.parent.mkdir(parents=True, exist_ok=True)
        shutil.copy(source, target)

    def prepare(self, jobs, say):
        """Builds the snapshot as it is and runs its tests, which must pass. Learns the commands
        that compile and link, and how long the tests take."""
        say(f"building {self.build.relative_to(self.root)}")
        linker = ["-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=lld"] if shutil.which("ld.lld") else []
        self._must(["cmake", "--preset", "mutate", *linker], self.tree)
        targets = [f"{name}_test" for name in _PROGRAMS]
        targets += ["qvzj-script", "qvdb", "scenario_runner"]
        self._must(["ninja", "-C", str(self.build), "-j", str(jobs), *targets], self.tree)
        self._learn_commands(targets)
        say("running the tests of what is not changed")
        times = {}
        started = time.monotonic()
        with tempfile.TemporaryDirectory(dir=_memory_folder()) as scratch:
            for name in _PROGRAMS:
                failed = self._unit(self.build / self.programs[f"{name}_test"], scratch)
                if failed:
                    raise SystemExit(f"the tests fail before anything is changed: {failed}")
            slowest = time.monotonic() - started
            for script in sorted((self.tree / "tests" / "scenarios").glob("*.qvs")):
                if "# engine: server" in script.read_text():
                    continue
                begun = time.monotonic()
                if self._scenario(script, self.build / self.programs["qvzj-script"], scratch):
                    raise SystemExit(f"the scenario {script.stem} fails before anything is changed")
                times[script] = time.monotonic() - begun
        self.scenarios = sorted(times, key=times.get)
        self.limit = max(20.0, 10 * max(slowest, *times.values()))

    def _must(self, command, cwd):
        log = self.folder / "build.log"
        with open(log, "w", encoding="utf-8") as out:
            if subprocess.run(command, cwd=cwd, stdout=out, stderr=out, check=False).returncode:
                raise SystemExit(f"{command[0]} failed, see {log}")

    def _learn_commands(self, targets):
        with open(self.build / "compile_commands.json", encoding="utf-8") as listed:
            self.compile = {entry["file"]: shlex.split(entry["command"]) for entry in json.load(listed)}
        self.link, self.programs = {}, {}
        for target in targets:
            commands = subprocess.run(["ninja", "-C", str(self.build), "-t", "commands", target],
                                      capture_output=True, text=True, check=True).stdout
            for part in re.split(r" && |\n", commands):
                words = shlex.split(part) if " -o " in part else []
                output = words[words.index("-o") + 1] if words else ""
                if Path(output).name == target:
                    self.link[target], self.programs[target] = words, output

    def text(self, file):
        """A file of the snapshot."""
        return (self.tree / file).read_text(encoding="utf-8")

    def try_mutant(self, mutant, on_all=False):
        """Compiles the changed file alone, links it before the libraries that hold the unchanged
        one, and runs the tests until one fails; with `on_all`, all of them, and `by` names each."""
        with tempfile.TemporaryDirectory(dir=_memory_folder(), prefix="qvzj-mutant-") as scratch:
            scratch = Path(scratch)
            changed = scratch / Path(mutant.file).name
            changed.write_text(mutant.apply(self.text(mutant.file)), encoding="utf-8")
            compiled = scratch / "mutant.o"
            command = list(self.compile[str(self.tree / mutant.file)])
            command[command.index("-o") + 1] = str(compiled)
            command[command.index("-c") + 1] = str(changed)
            if _run(command, self.build, 300)[0] != 0:
                return Outcome("broken")
            killed = []
            for kind, failed in self._failures(mutant, compiled, scratch):
                killed.append((kind, failed))
                if not on_all:
                    break
        if not killed:
            return Outcome("survived")
        return Outcome(killed[0][0], " ".join(failed for _, failed in killed))

    def _failures(self, mutant, compiled, scratch):
        own = Path(mutant.file).parts[0]
        for name in sorted(_PROGRAMS, key=lambda program: program != own):
            if not any(word.endswith(f"libqv_{own}.a") for word in self.link[f"{name}_test"]):
                continue  # it holds nothing of what is changed
            program = self._linked(f"{name}_test", compiled, scratch)
            failed = self._unit(program, scratch)
            program.unlink()
            if failed:
                yield "unit", failed
        program = self._linked("qvzj-script", compiled, scratch)
        for script in self.scenarios:
            if self._scenario(script, program, scratch):
                yield "scenario", f"Scenario.{script.stem}"

    def _linked(self, target, compiled, scratch):
        program = scratch / target
        command = list(self.link[target])
        place = command.index("-o")
        command[place + 1] = str(program)
        # In front of everything: the libraries are asked only for what is still missing.
        command.insert(1, str(compiled))
        status, printed = _run(command, self.build, 300)
        if status != 0:
            raise RuntimeError(f"{target} could not be linked: {printed[-2000:]}")
        return program

    def _unit(self, program, scratch):
        """The first test that fails; "" when all pass."""
        environment = dict(os.environ, TMPDIR=str(scratch))
        status, printed = _run([str(program), "--gtest_fail_fast", "--gtest_brief=1"], scratch,
                               self.limit, environment)
        if status == 0:
            return ""
        failed = re.search(r"\[  FAILED  \] ([\w./]+)", printed)
        if failed:
            return failed.group(1)
        return f"{Path(program).name} {'took too long' if status is None else 'broke off'}"

    def _scenario(self, script, program, scratch):
        """Does the scenario fail?"""
        environment = dict(os.environ, TMPDIR=str(scratch),
                           QVDB=str(self.build / self.programs["qvdb"]))
        runner = self.build / self.programs["scenario_runner"]
        status, _ = _run([str(runner), str(program), str(script)], scratch, self.limit, environment)
        return status != 0


def _memory_folder():
    """A folder in memory where there is one: each test makes a database of its own."""
    return "/dev/shm" if os.access("/dev/shm", os.W_OK) else None
