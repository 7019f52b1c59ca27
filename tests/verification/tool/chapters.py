"""A chapter of the verification manual: its cases from a .toml, its values from the .csv beside it.

A row of the .csv is one value: the case, the fields that its run changes, the kind of comparison, the source, what is
taken from the run, what is expected, how that is recomputed, how far the two may differ, and a remark. A source of the
kind "published" keeps its number as it was printed; all others are written anew by renew-verification.
"""
import csv
import io
import tomllib
from dataclasses import dataclass, fields
from pathlib import Path

import mpmath

import theory
from theory import circle, clay, clay_raft, consolidation, disc_punch, elastic, histories, plate_punch, rectangle

FOLDER = Path(__file__).resolve().parent.parent / "chapters"

KINDS = {
    "exact": "exact solution",
    "approximate": "approximate solution",
    "hand": "hand calculation",
    "earlier": "earlier result",
    "other": "another way of computing",
}


@dataclass
class Row:
    case: str
    run: str
    kind: str
    source: str
    quantity: str
    expected: str
    theory: str
    tolerance: str
    remark: str

    def allowed(self, expected):
        """The greatest difference, in the unit of the value."""
        if self.tolerance.endswith("%"):
            return abs(expected) * mpmath.mpf(self.tolerance[:-1]) / 100
        return mpmath.mpf(self.tolerance)


COLUMNS = [field.name for field in fields(Row)]


@dataclass
class Compared:
    """A row with its numbers."""
    row: Row
    expected: object
    ours: object

    @property
    def difference(self):
        return self.ours - self.expected

    @property
    def good(self):
        return abs(self.difference) <= self.row.allowed(self.expected)


def sources():
    """Key: (text, published or not)."""
    return tomllib.loads((FOLDER / "sources.toml").read_text(encoding="utf-8"))


def names_of(run):
    """What an expression of a row may use: fields and results of the run, theories, a few functions."""
    return {**run.names(), "mpf": mpmath.mpf, "mean": mean, "sqrt": mpmath.sqrt, "pi": mpmath.pi, "log10": mpmath.log10,
            "log": mpmath.log, "results": run.results, "theory": theory, "circle": circle, "clay": clay,
            "clay_raft": clay_raft, "consolidation": consolidation, "disc_punch": disc_punch, "elastic": elastic,
            "histories": histories, "plate_punch": plate_punch, "rectangle": rectangle}


def mean(function, start, end):
    """Mean of a function over an interval."""
    with mpmath.workdps(20):
        return mpmath.quad(function, [start, (start + end) / 2, end]) / (mpmath.mpf(end) - start)


BUILTINS = {"sum": sum, "min": min, "max": max, "abs": abs, "zip": zip, "len": len, "range": range, "float": float, "next": next}


def value_of(expression, names):
    return mpmath.mpf(eval(expression, {"__builtins__": BUILTINS, **names}))


class Chapter:
    def __init__(self, name):
        self.name = name
        self.text = tomllib.loads((FOLDER / f"{name}.toml").read_text(encoding="utf-8"))
        self.path = FOLDER / f"{name}.csv"
        with open(self.path, encoding="utf-8", newline="") as file:
            self.rows = [Row(**line) for line in csv.DictReader(file, delimiter=";")]
        self.cases = self.text["case"]
        known = {case["name"] for case in self.cases}
        for row in self.rows:
            if row.case not in known or row.kind not in KINDS:
                raise ValueError(f"{name}.csv: {row}")

    def project(self, case_name):
        """A case's project; several cases may share one."""
        return next(case.get("project", case["name"]) for case in self.cases if case["name"] == case_name)

    def runs(self):
        return [(self.project(row.case), row.run) for row in self.rows]

    def _wide(self, program, row, quantity):
        """The same from the program with stored quantities of 64 bits."""
        if not program.wide:
            raise RuntimeError("the program with stored quantities of 64 bits is missing")
        return value_of(quantity, names_of(program.wide.run(self.project(row.case), row.run)))

    def compare(self, program):
        """All rows with their numbers, and what is wrong with the .csv itself."""
        compared, wrong, renewed = [], [], []
        known = sources()
        cache = {}
        for row in self.rows:
            run = program.run(self.project(row.case), row.run)
            names = names_of(run)
            names["wide"] = lambda quantity, row=row: self._wide(program, row, quantity)
            if not run.results:
                raise RuntimeError(f"{row.case} {row.run}: the calculation aborted: {run.messages}")
            expected = row.expected
            if row.theory:
                key = (row.case, row.run, row.theory)
                if key not in cache:
                    cache[key] = value_of(row.theory, names)
                if known[row.source]["published"]:
                    if abs(cache[key] - mpmath.mpf(row.expected)) > row.allowed(mpmath.mpf(row.expected)):
                        wrong.append(f"{row.case} {row.run} {row.quantity}: {row.expected} was printed, "
                                     f"{mpmath.nstr(cache[key], 8)} is the theory")
                else:
                    expected = mpmath.nstr(cache[key], 10, strip_zeros=True, min_fixed=-4, max_fixed=9)
                    if not _same(expected, row.expected):
                        wrong.append(f"{row.case} {row.run} {row.quantity}: {self.path.name} has {row.expected or 'nothing'}, "
                                     f"{expected} is the theory")
                    else:
                        expected = row.expected  # the last digits of a quadrature may depend on the machine
            renewed.append(Row(**{**row.__dict__, "expected": expected}))
            compared.append(Compared(row, mpmath.mpf(expected), value_of(row.quantity, names)))
        return compared, wrong, _written(renewed)


def _same(first, second):
    if not second:
        return False
    first, second = mpmath.mpf(first), mpmath.mpf(second)
    return abs(first - second) <= mpmath.mpf("2e-9") * max(abs(first), mpmath.mpf("1e-12"))


def _written(rows):
    text = io.StringIO()
    writer = csv.writer(text, delimiter=";", lineterminator="\n")
    writer.writerow(COLUMNS)
    for row in rows:
        writer.writerow([getattr(row, column) for column in COLUMNS])
    return text.getvalue()
