"""The pages of docs/verification from the chapters' comparisons."""
from itertools import groupby

from tool import numbers
from tool.chapters import KINDS, names_of, sources
from tool.sketches import sketch

UNITS = {
    "cm": {"u", "v", "w", "s", "NodeSettlement", "RaftMidSettlement", "RaftMidFlexible", "SettlementSum",
           "SuddenSettlement"},
    "kN/m²": {"Sigma_x", "Sigma_y", "Sigma_z", "Tau_xy", "Tau_xz", "Tau_yz", "max_Tau", "max_Sigma", "min_Sigma", "p", "q",
              "IsoU0", "IsoUf", "NodePressure"},
    "kN": {"NodeForce"},
    "%": {"Uc", "SuddenPercent"},
    "m²/s": {"CvTS"},
    "m": {"h"},
}
SKIPPED = {"ProblemType", "Auftr", "Datum", "Proj", "StartDate"}


def unit_of(quantity):
    name = quantity.split("(")[0]
    if quantity != name and not quantity.endswith(")") or quantity.count("(") > 1:
        return ""
    return next((f" [{unit}]" for unit, members in UNITS.items() if name in members), "")


def _field(value):
    if isinstance(value, bool):
        return "true" if value else "false"
    if isinstance(value, list):
        return "(" + ", ".join(_field(item) for item in value) + ")"
    return value if isinstance(value, str) else numbers.plain(value)


def inputs(fields):
    return ", ".join(f"`{name}` {_field(value)}" for name, value in fields.items() if name not in SKIPPED)


def origin(key, known):
    """How a source is called on a page."""
    if key == "earlier":
        return f"pinned: {known[key]['text']}"
    return f"{'published' if known[key]['published'] else 'recomputed'}: {known[key]['text']}"


def _steps(case, program):
    """The table of a calculation by hand."""
    run = program.run(case.get("project", case["name"]), case["steps"]["run"])
    rows = eval(case["steps"]["rows"], names_of(run))  # an expression of our own data
    columns = case["steps"]["columns"]
    lines = ["| " + " | ".join(columns.values()) + " |", "|" + "---|" * len(columns)]
    for row in rows:
        lines.append("| " + " | ".join(numbers.plain(getattr(row, column)) for column in columns) + " |")
    return lines


def chapter_page(chapter, compared, program):
    """Text of a page and its pictures by file name."""
    known = sources()
    lines, pictures = [f"# {chapter.text['title']}", "", chapter.text["intro"].strip(), ""], {}
    for case in chapter.cases:
        project = case.get("project", case["name"])
        fields = program.fields(project)
        picture = f"{case['name']}.svg"
        pictures[picture] = sketch(fields, int(fields["ProblemType"]))
        lines += [f"## {case['title']}", "", f"![{case['title']}](pictures/{picture})", "",
                  f"Project [{project}](../../{program.folder_of(project)}): {inputs(fields)}.", ""]
        if "text" in case:
            lines += [case["text"].strip(), ""]
        if "steps" in case:
            lines += [*_steps(case, program), ""]
        mine = [value for value in compared if value.row.case == case["name"]]
        for (kind, source), values in groupby(sorted(mine, key=lambda v: _order(v, mine)),
                                              lambda v: (v.row.kind, v.row.source)):
            values = list(values)
            remarks = any(value.row.remark for value in values)
            runs = any(value.row.run for value in values)
            lines += [f"**{KINDS[kind].capitalize()}**, {origin(source, known)}.", ""]
            head = (["run with"] if runs else []) + ["result", "expected", "Lithmark", "difference", "allowed"]
            head += ["remark"] if remarks else []
            lines += ["| " + " | ".join(head) + " |", "|" + "---|" * len(head)]
            for value in values:
                row = value.row
                cells = [f"`{row.run}`" if row.run else ""] if runs else []
                cells += [_label(chapter, row.quantity), _expected(value, known),
                          numbers.plain(value.ours), numbers.difference(value), numbers.tolerance(row)]
                lines.append("| " + " | ".join(cells + ([row.remark] if remarks else [])) + " |")
            lines.append("")
        if "why" in case:
            lines += ["Why: " + case["why"].strip(), ""]
    return "\n".join(lines), pictures


def _order(value, all_values):
    """Groups in the order of their first row."""
    key = (value.row.kind, value.row.source)
    return next(i for i, other in enumerate(all_values) if (other.row.kind, other.row.source) == key)


def _label(chapter, quantity):
    names = chapter.text.get("names", {})
    return names.get(quantity) or f"`{quantity}`{unit_of(quantity)}"


def _expected(value, known):
    """As printed where the number is published."""
    if known[value.row.source]["published"] and value.row.source != "earlier":
        return value.row.expected
    return numbers.plain(value.expected)


def index_page(chapters, results, extra):
    """README.md: what is compared, how often, and how far apart the values are."""
    lines = [extra["head"].strip(), "", "| page | problems | values | " + " | ".join(KINDS.values()) + " |",
             "|" + "---|" * (3 + len(KINDS))]
    total = dict.fromkeys(KINDS, 0)
    for chapter in chapters:
        compared, problems = results[chapter.name]
        counts = {kind: sum(value.row.kind == kind for value in compared) for kind in KINDS}
        for kind in KINDS:
            total[kind] += counts[kind]
        lines.append(f"| [{chapter.text['title']}]({chapter.name}.md) | {', '.join(map(str, sorted(problems)))} | "
                     f"{len(compared)} | " + " | ".join(str(count or "") for count in counts.values()) + " |")
    lines.append(f"| all | | {sum(total.values())} | " + " | ".join(map(str, total.values())) + " |")
    return "\n".join([*lines, "", extra["tail"].strip(), ""])
