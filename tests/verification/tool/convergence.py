"""The page on convergence: errors of every discretised result against its refinement, and the order that is seen."""
import math
import tomllib

from tool import numbers
from tool.chapters import FOLDER, names_of, value_of
from tool.charts import error_chart


def _filled(words, setting):
    """An expression of our own data with {n}, the setting, in its place."""
    return eval("f" + repr(words), {"n": setting})


class Study:
    """One preference that refines, and the results that it refines."""

    def __init__(self, data):
        self.data = data
        self.settings = data["settings"]

    def _run(self, curve, setting):
        changes = _filled(curve.get("change") or self.data["change"], setting)
        return curve["project"], f"{curve.get('run', '')} {changes}".strip()

    def runs(self):
        return [self._run(curve, setting) for curve in self.data["curve"] for setting in self.settings]

    def errors(self, program):
        """Per curve the errors in per cent."""
        found = []
        for curve in self.data["curve"]:
            theory, values = None, []
            for setting in self.settings:
                names = names_of(program.run(*self._run(curve, setting)))
                if theory is None:  # the same for all settings
                    theory = value_of(_filled(curve["theory"], setting), names)
                ours = value_of(_filled(curve["quantity"], setting), names)
                scale = value_of(curve["of"], names) if "of" in curve else theory
                values.append(float(100 * (ours - theory) / scale))
            found.append(values)
        return found

    def fineness(self):
        """Settings as numbers that grow with refinement."""
        return [1 / setting if self.data.get("smaller") else setting for setting in self.settings]

    def orders(self, errors):
        """Observed order from one setting to the next; None where an error changes its sign or is nothing."""
        fine, found = self.fineness(), [None]
        for i in range(1, len(errors)):
            before, after = errors[i - 1], errors[i]
            found.append(math.log(before / after) / math.log(fine[i] / fine[i - 1]) if before * after > 0 else None)
        return found

    def first_within(self, errors, limit=1.0):
        """The coarsest setting from which on all errors are within the limit; None if there is none."""
        good = None
        for setting, error in zip(reversed(self.settings), reversed(errors)):
            if abs(error) > limit:
                break
            good = setting
        return good

    @staticmethod
    def limit(errors):
        """Error of the limit that a scheme of the first order lets expect from its last two settings, the last half of the
        one before."""
        return 2 * errors[-1] - errors[-2]

    def default_error(self, errors):
        return errors[self.settings.index(self.data["default"])] if "default" in self.data else None

    def section(self, all_errors):
        data = self.data
        unit = data.get("unit", "%")
        lines = [f"## {data['title']}", "", f"![{data['title']}](pictures/convergence-{data['name']}.svg)", "",
                 data["text"].strip(), ""]
        labels = [curve["label"] for curve in data["curve"]]
        lines += ["| " + data["setting"] + " | " + " | ".join(f"{label}: error | order" for label in labels) + " |",
                  "|" + "---|" * (1 + 2 * len(labels))]
        orders = [self.orders(errors) for errors in all_errors]
        for i, setting in enumerate(self.settings):
            cells = [f"{setting:g}" + (" (default)" if setting == data.get("default") else "")]
            for errors, order in zip(all_errors, orders):
                cells += [f"{numbers.plain(errors[i], 2)} {unit}", "" if order[i] is None else f"{order[i]:.1f}"]
            lines.append("| " + " | ".join(cells) + " |")
        if data.get("extrapolated"):
            cells = [cell for errors in all_errors for cell in (f"{numbers.plain(self.limit(errors), 2)} {unit}", "")]
            lines.append("| " + " | ".join(["twice the last less the one before", *cells]) + " |")
        lines += ["", f"| result | error of the default | 1 {unit.removesuffix('s')} |", "|---|---|---|"]
        for label, errors in zip(labels, all_errors):
            default, within = self.default_error(errors), self.first_within(errors)
            lines.append(f"| {label} | " + ("" if default is None else f"{numbers.plain(default, 2)} {unit}") + " | "
                         + (f"from {within:g} on" if within is not None else "none of these") + " |")
        if "why" in data:
            lines += ["", "Why: " + data["why"].strip()]
        return [*lines, ""]

    def picture(self, all_errors):
        labels = [curve["label"] for curve in self.data["curve"]]
        return error_chart(self.fineness(), list(zip(labels, all_errors)), self.data.get("axis", self.data["setting"]),
                           self.data.get("unit", "%"))


class Convergence:
    def __init__(self):
        self.text = tomllib.loads((FOLDER / "convergence.toml").read_text(encoding="utf-8"))
        self.studies = [Study(data) for data in self.text["study"]]

    def runs(self):
        return [run for study in self.studies for run in study.runs()]

    def page(self, program):
        """Text, pictures, and what the manual must say: (words, where they come from)."""
        lines, pictures, said = [f"# {self.text['title']}", "", self.text["intro"].strip(), ""], {}, []
        for study in self.studies:
            errors = study.errors(program)
            lines += study.section(errors)
            pictures[f"convergence-{study.data['name']}.svg"] = study.picture(errors)
            for template in study.data.get("said", []):
                values = {f"error{i + 1}": abs(study.default_error(mine)) for i, mine in enumerate(errors)}
                values["last"] = max(abs(study.limit(mine)) for mine in errors)
                values |= {f"one{i + 1}": study.first_within(mine) for i, mine in enumerate(errors)}
                said.append((template.format(**values), f"convergence: {study.data['title']}"))
        return "\n".join(lines), pictures, said
