"""The program's own tables of units, number formats and preferences, read where they stand in its sources."""
import re

from tool.program import EXAMPLES, ROOT


def _rows(path, pattern):
    rows = re.findall(pattern, (ROOT / path).read_text(encoding="utf-8"))
    if not rows:
        raise ValueError(f"{path} has no such rows any more")
    return rows


def formats_of():
    """(field, default) of each line of "NOFORMAT"."""
    return _rows("core/Units.cpp", r'NumberFormatRow\{&SessionRecord::(\w+), "([^"]*)"\}')


def units_of(kind):
    """(label, factor) of "Length" or "Force"."""
    source = (ROOT / "services/storage/UnitsFile.cpp").read_text(encoding="utf-8")
    table = source[source.index(f"k{kind}Units"):]
    return re.findall(r'"(\[\w+\])", ([0-9.]+)\}', table[:table.index("};\n\n") if "};\n\n" in table else None])


def preference(name):
    return _rows("core/StartSession.cpp", rf"Session\.{name} = ([0-9.]+);")[0]


def example_lines(project, name):
    """The lines of a settings file that comes with an example."""
    return (EXAMPLES / project / "settings" / name).read_text(encoding="utf-8").replace("\r", "").split("\n")


def code(text):
    """As it stands in the file; nothing for no text."""
    return f"`{text}`" if text else ""


NAMES = {"code": code, "formats_of": formats_of, "units_of": units_of, "preference": preference, "example_lines": example_lines}
