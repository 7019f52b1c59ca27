"""The page on deviations: what differs from theory on purpose or by its method, with its size as the manual says it."""
import csv
from dataclasses import dataclass

from tool import numbers
from tool.chapters import FOLDER, names_of, value_of


@dataclass
class Deviation:
    """A row of deviations.csv. said: the manual's words, with {ours}, {theory}, {difference}, {ratio}, {percent} (without
    a sign) and {rough} (two digits, for what swings) where numbers stand."""
    group: str
    project: str
    run: str
    quantity: str
    theory: str
    said: str
    remark: str


def rough(value):
    """Two significant digits, for results that swing."""
    return int(float(f"{value:.2g}"))


class Deviations:
    def __init__(self):
        with open(FOLDER / "deviations.csv", encoding="utf-8", newline="") as file:
            self.rows = [Deviation(**line) for line in csv.DictReader(file, delimiter=";")]

    def runs(self):
        return [(row.project, row.run) for row in self.rows]

    def page(self, program, intro):
        """Text, and what the manual must say: (words, where they come from)."""
        lines, said, group = [intro.strip(), ""], [], None
        for row in self.rows:
            if row.group != group:
                group = row.group
                lines += ["", f"## {group}", "", "| project, run with | result | theory | Lithmark | in the manual's words | |",
                          "|---|---|---|---|---|---|"]
            names = names_of(program.run(row.project, row.run))
            names["other"] = lambda run, quantity, project=row.project: value_of(
                quantity, names_of(program.run(project, run)))
            names["wide"] = lambda quantity, row=row: value_of(quantity, names_of(program.wide.run(row.project, row.run)))
            ours = value_of(row.quantity, names)
            theory = value_of(row.theory, names) if row.theory else None
            values = {"ours": float(ours), "rough": rough(float(ours))}
            if theory is not None:
                values |= {"theory": float(theory), "difference": float(ours - theory)}
                if theory:
                    values |= {"ratio": float(ours / theory), "percent": abs(float(100 * (ours / theory - 1)))}
            words = row.said.format(**values)
            if words:
                said.append((words, f"deviations: {row.project} {row.run} {row.quantity}"))
            link = f"[{row.project}](../../{program.folder_of(row.project)})"
            run = f" `{row.run}`" if row.run else ""
            lines.append(f"| {link}{run} | `{row.quantity}` | "
                         f"{'' if theory is None else numbers.plain(theory, 5)} | "
                         f"{numbers.plain(ours, 2 if '{rough}' in row.said else 5)} | {words} | {row.remark} |")
        return "\n".join([*lines, ""]), said


