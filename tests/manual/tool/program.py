"""What the manual asks of the program: projects, results and reports by lithmark-cli, the dialogs' tables, the texts."""
import json
import re
import shutil
import subprocess
import tempfile
from pathlib import Path

from tool.shared import FROM_ZERO, ROOT, Numbers

EXAMPLES = ROOT / "examples"


def _value(text):
    if text.startswith("("):
        return Numbers([_value(part.strip()) for part in text[1:-1].split(",")], 1)
    if text in ("#TRUE#", "#FALSE#"):
        return text == "#TRUE#"
    try:
        return float(text)
    except ValueError:
        return text


class Program:
    def __init__(self, cli, field_tables):
        self.cli = str(cli)
        self.folder = Path(tempfile.mkdtemp(prefix="lithmark-manual-"))
        (self.folder / "settings").mkdir()
        self.kept = {}
        done = subprocess.run([str(field_tables)], capture_output=True, text=True, check=True)
        self.dialogs = json.loads(done.stdout)

    def __enter__(self):
        return self

    def __exit__(self, *unused):
        shutil.rmtree(self.folder, ignore_errors=True)

    def _project(self, name):
        """A copy of an example: a raft writes its export files beside its project."""
        if not (self.folder / name).exists():
            shutil.copytree(EXAMPLES / name, self.folder / name)
        return self.folder / name

    def _call(self, command, name, *arguments):
        key = (command, name, *arguments)
        if key not in self.kept:
            folder = self._project(name)
            own = folder / "settings"
            done = subprocess.run([self.cli, command, str(folder / f"{name}.PO3"), *arguments, "--settings",
                                   str(own if own.is_dir() else self.folder / "settings")],
                                  capture_output=True, text=True, check=False)
            if done.returncode:
                raise RuntimeError(f"{' '.join(key)}: {done.stderr.strip()}")
            self.kept[key] = done.stdout
        return self.kept[key]

    def fields(self, name):
        """The data of a project by name, in the order of its file."""
        shown = self._call("show", name, "--lang", "en")
        return {field: _value(text) for field, text in re.findall(r"^(\w+) = (.*)$", shown, re.MULTILINE)}

    def results(self, name):
        answer = json.loads(self._call("report", name, "--format", "json", "--lang", "en"))
        return {field: Numbers(value, 0 if field in FROM_ZERO else 1) if isinstance(value, list) else value
                for field, value in answer["results"].items()}

    def report(self, name, language):
        return self._call("report", name, "--lang", language).replace("\r", "").split("\n")


def language_texts():
    """All texts by number: {"de", "en", "ar"}."""
    texts = {}
    part = r'"(?:[^"\\]|\\.)*"'
    row = re.compile(rf'TEXT\((\d+),\s*((?:{part}\s*)+),\s*((?:{part}\s*)+),\s*((?:{part}\s*)+)\)')
    for path in sorted((ROOT / "texts" / "tables").glob("*.inc")):
        if path.name == "column_titles.inc":
            continue
        for match in row.finditer(path.read_text(encoding="utf-8")):
            words = ["".join(json.loads(piece) for piece in re.findall(part, match[i])) for i in (2, 3, 4)]
            texts[int(match[1])] = dict(zip(("de", "en", "ar"), (w.replace("&", "") for w in words)))
    return texts
