"""Runs lithmark-cli on the projects of the verification manual."""
import json
import os
import re
import shutil
import subprocess
import tempfile
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

import mpmath

ROOT = Path(__file__).resolve().parents[3]

# Lists that begin at 0; all others begin at 1.
FROM_ZERO = {"IsoZ", "IsoU0", "IsoUf", "LoadCurve", "SuddenPercent", "SuddenSettlement", "SettlementSum", "LoadChartTime",
             "LoadChartNew", "LoadChartPrev"}


class Numbers(list):
    """A list of a run, taken as in a study: name(index) with the index from the field's lower bound."""

    def __init__(self, values, first):
        super().__init__(values)
        self.first = first

    def __call__(self, index):
        if not self.first <= index < self.first + len(self):
            raise IndexError(f"no element {index}")
        return self[index - self.first]


class Run:
    """Input fields and results of one calculation."""

    def __init__(self, fields, results, messages):
        self.fields, self.results, self.messages = fields, results, messages

    def names(self):
        return {**self.fields, **self.results}


def _number(text):
    """A field's value: an exact number, a list of them, a flag or a word."""
    if text.startswith("("):
        return Numbers([_number(part.strip()) for part in text[1:-1].split(",")], 1)
    if text in ("#TRUE#", "#FALSE#"):
        return text == "#TRUE#"
    try:
        return mpmath.mpf(text)
    except ValueError:
        return text


class Program:
    """The command line tool, with the settings of a fresh installation and results kept for repeated runs."""

    def __init__(self, cli, wide=None):
        self.cli = str(cli)
        self.wide = Program(wide) if wide else None
        self.folder = Path(tempfile.mkdtemp(prefix="lithmark-verification-"))
        (self.folder / "settings").mkdir()
        self.kept = {}
        self.shown = {}

    def __enter__(self):
        return self

    def __exit__(self, *unused):
        if self.wide:
            self.wide.__exit__()
        shutil.rmtree(self.folder, ignore_errors=True)

    def _call(self, *arguments):
        environment = {**os.environ, "QT_QPA_PLATFORM": "offscreen"}
        return subprocess.run([self.cli, *arguments, "--lang", "en", "--settings", str(self.folder / "settings")],
                              capture_output=True, text=True, env=environment, check=False)

    @staticmethod
    def folder_of(project):
        """Where a project lies: of the manual's own, or one of the examples."""
        own = Path("tests/verification/projects") / project
        return own if (ROOT / own).is_dir() else Path("examples") / project

    def fields(self, project):
        """The data of a project by name, in the order of its file."""
        if project not in self.shown:
            done = self._call("show", str(ROOT / self.folder_of(project) / f"{project}.PO3"))
            if done.returncode:
                raise RuntimeError(f"{project}: {done.stderr.strip()}")
            pairs = re.findall(r"^(\w+(?:\(\d\))?) = (.*)$", done.stdout, re.MULTILINE)
            self.shown[project] = {name: _number(value) for name, value in pairs}
        return self.shown[project]

    def prepare(self, runs):
        """Works all (project, sets) on several cores."""
        runs = [run for run in dict.fromkeys(runs) if run not in self.kept]
        with ThreadPoolExecutor(os.cpu_count()) as pool:
            list(pool.map(self.fields, dict.fromkeys(project for project, _ in runs)))
            for run, done in zip(runs, pool.map(lambda run: self._work(*run), runs)):
                self.kept[run] = done

    def run(self, project, sets=""):
        """The calculation of a project with fields set as in "x=1 PrefND=24"."""
        if (project, sets) not in self.kept:
            self.prepare([(project, sets)])
        return self.kept[project, sets]

    def _report(self, folder, project, sets):
        changes = [argument for change in sets.split() for argument in ("--set", change)]
        return self._call("report", str(folder / f"{project}.PO3"), "--format", "json", *changes)

    def _work(self, project, sets):
        if int(self.fields(project)["ProblemType"]) < 9:
            done = self._report(ROOT / self.folder_of(project), project, sets)
        else:  # a raft writes its export files beside the project: work on a copy
            with tempfile.TemporaryDirectory(dir=self.folder) as copy:
                shutil.copytree(ROOT / self.folder_of(project), Path(copy) / project)
                done = self._report(Path(copy) / project, project, sets)
        if not done.stdout.startswith("{"):
            raise RuntimeError(f"{project} {sets}: {done.stderr.strip()}")
        answer = json.loads(done.stdout)
        fields = dict(self.fields(project))
        for change in sets.split():
            name, value = change.split("=", 1)
            element = re.fullmatch(r"(\w+)\((\d)\)", name)
            if element:
                values = Numbers(fields[element[1]], 1)
                values[int(element[2]) - 1] = _number(value)
                fields[element[1]] = values
            else:
                fields[name] = _number(value)
        results = {}
        if not answer["aborted"]:
            for name, value in answer["results"].items():
                results[name] = Numbers(value, 0 if name in FROM_ZERO else 1) if isinstance(value, list) else value
        return Run(fields, results, [message["text"] for message in answer["messages"]])
