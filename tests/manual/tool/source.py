"""Turns a page's source into the page of one language. The source's rules: docs/manual/source/README.md."""
import re
import textwrap

from tool import fields, settings
from tool.direction import isolated
from tool.numbers import plain, signs_in
from tool.program import ROOT
from tool.steps import Steps

LANGUAGES = ("en", "de")
NOTICES = {"en": "../../notices.md", "de": "notices.md"}  # seen from a problem's page
SOURCE_PAGES = ROOT / "docs" / "manual" / "source"
WIDTH = 120
TOLERANCE = 2e-5  # of a hand calculation in 64 bits against the program's numbers of seven digits
INLINE = re.compile(r"\{\{(.+?)(?:\|(\d+g?))?\}\}")


def _parts(text):
    """What stands between semicolons with blanks around them."""
    return [part.strip() for part in re.split(r"(?:^|(?<=\s));(?=\s|$)", text)]


class Failed(Exception):
    """What is wrong with a source."""


class Page:
    def __init__(self, path, language, book):
        self.path, self.language, self.book = path, language, book
        self.steps = Steps(language)
        self.steps.values.update(T=self._text, D=book.deviation, C=self._caption, L=language, **settings.NAMES)
        self.out, self.wrong, self.extra, self.given = [], [], [], []
        self.problem = self.example = None
        self.listed = False  # the last line belongs to a numbered list
        self.number = 0

    # What {{...}} can ask for.
    def _text(self, number):
        return self.book.message(str(number), self.language)

    def _caption(self, problem):
        return self.book.program.dialogs[self.language][str(problem)]["caption"]

    def _inline(self, match):
        value = self.steps.value(match[1])
        return value if isinstance(value, str) else plain(float(value), match[2] or "6g", self.language)

    def written(self):
        for number, line in enumerate(self.path.read_text(encoding="utf-8").split("\n"), 1):
            tagged = re.match(r"(en|de|ar)\| ?", line)
            if tagged:
                if tagged[1] != self.language:
                    continue
                line = line[tagged.end():]
            try:
                self._line(line)
            except Exception as error:
                raise Failed(f"{self.path.name}:{number} ({self.language}): {type(error).__name__}: {error}") from error
        text = re.sub(r"\n{3,}", "\n\n", "\n".join(self.out)).strip() + "\n"
        self.wrong += foreign_signs(text, self.language, self.path.name)
        return text

    def _line(self, line):
        if not line.startswith("%given"):
            self._end_given()
        if line.startswith("%"):
            command, _, rest = line[1:].partition(" ")
            getattr(self, "_do_" + command)(rest.strip())
            return
        if line.startswith("#"):
            self.number = 0
        self._put(INLINE.sub(self._inline, line))

    def _put(self, line):
        if line.startswith("> ") and self.out and self.out[-1].startswith("> "):
            self.out.append(">")  # a formula of its own, on a line of its own
        if self.listed and line and not re.match(r"\d+\. ", line):
            self.out.append("")  # a list ends with an empty line
        self.listed = bool(re.match(r"\d+\. ", line))
        self.out += self._wrapped(isolated(line) if self.language == "ar" else lowered(line))

    @staticmethod
    def _wrapped(line):
        if len(line) <= WIDTH or line.startswith(("|", "#", "!", "`", " ")):
            return [line]
        mark = re.match(r"(?:- |\d+\. |> )?", line)[0]
        later = mark if mark.startswith(">") else " " * len(mark)
        # A line that begins with "+" would be a list.
        return textwrap.wrap(line.replace(" + ", "\u00a0+ "), WIDTH, subsequent_indent=later, break_long_words=False, break_on_hyphens=False)

    # Directives.
    def _do_problem(self, rest):
        self.problem = int(rest)

    def _do_example(self, rest):
        self.example = rest
        self.steps.load(self.book.program.fields(rest))
        self.steps.values["R"] = self.book.program.results(rest)
        self.number = 0

    def _do_let(self, rest):
        self.steps.define(rest)

    def _do_given(self, rest):
        name, symbol, unit, digits = _parts(rest)
        text = plain(float(self.steps.value(name)), digits, self.language)
        self.steps.note(symbol, text)
        nbsp = "\u00a0"
        self.given.append(f"{symbol} = {text}{nbsp + unit if unit else ''}")

    def _end_given(self):
        if self.given:
            self._put(", ".join(self.given))
            self.out.append("")
            self.given = []

    def _do_step(self, rest):
        name, symbol, formula, expression, unit, digits = _parts(rest)
        self.number += 1
        self._put(f"{self.number}. " + self.steps.step(name, symbol, formula, expression, unit, digits))

    def _do_f(self, rest):
        """A formula, on a line of its own."""
        self._put("> " + INLINE.sub(self._inline, rest))

    def _do_note(self, rest):
        symbol, expression, digits = _parts(rest)
        self.steps.note(symbol, plain(float(self.steps.value(expression)), digits, self.language))

    def _do_check(self, rest):
        """A value worked out by hand against the program's."""
        hand, program, *tolerance = _parts(rest)
        ours, theirs = float(self.steps.value(hand)), float(self.steps.value(program))
        allowed = float(tolerance[0]) if tolerance else TOLERANCE
        if not abs(ours - theirs) <= allowed * max(abs(ours), abs(theirs)):
            self.wrong.append(f"{self.path.name}: by hand {hand} = {ours:.9g}, the program has {program} = {theirs:.9g}")

    def _report(self):
        return [signs_in(line, self.language) for line in self.book.program.report(self.example, self.language)]

    def _do_report(self, rest):
        """Lines of the report by their symbols."""
        lines = []
        for symbol in rest.split():
            found = [line for line in self._report() if re.search(rf"\s{re.escape(symbol)}\s+\S+\s+= ", line)]
            if not found:
                raise Failed(f"the report has no line of {symbol}")
            lines.append(found[-1].rstrip())
        self.out += ["```", *lines, "```", ""]

    def _do_rows(self, rest):
        """Rows of a table of the report, with its head: T3 ; 0 1 2. The table of a report without numbers is -."""
        table, wanted = _parts(rest)
        lines = self._report()
        start = 0 if table == "-" else next(i for i, line in enumerate(lines) if re.match(rf"\S+ {table}$", line))
        dashes = [i for i in range(start, len(lines)) if re.fullmatch(r"-{30,}", lines[i].strip())]
        if table == "-":
            dashes = dashes[-3:]
        head, body = lines[dashes[0] - 1:dashes[1] + 1], lines[dashes[1] + 1:dashes[2]]
        rows = [line for number in wanted.split() for line in body if line.split()[0] == number]
        if len(rows) != len(wanted.split()):
            raise Failed(f"table {table} lacks a row of {wanted}")
        self.out += ["```", *(line.rstrip() for line in head + rows), "```", ""]

    def _do_each(self, rest):
        """A table's rows: VARIABLE in VALUES ; cell | cell."""
        loop, cells = _parts(rest)
        variable, values = (part.strip() for part in loop.split(" in ", 1))
        for value in self.steps.value(values):
            names = [name.strip() for name in variable.split(",")]
            self.steps.values.update(zip(names, value) if len(names) > 1 else [(variable, value)])
            self._put("| " + INLINE.sub(self._inline, cells.strip()) + " |")

    def _do_field(self, rest):
        name, symbol, unit, limits, default, *meaning = _parts(rest)
        self.extra.append((symbol, name, unit, limits, default, INLINE.sub(self._inline, meaning[LANGUAGES.index(self.language)])))

    def _do_fields(self, rest):
        dialog = self.book.program.dialogs[self.language][str(self.problem)]
        self.out += [lowered(line) for line in fields.table(dialog, self.language, self.extra)]
        # All data of a project of this problem stand in the table, but those of the sibling problems that share its file.
        missing = set(self.book.program.fields(rest.split()[0])) - fields.named(dialog, self.extra) - set(rest.split()[1:])
        missing -= {"ProblemType", "Auftr", "Datum", "Proj"}
        if missing:
            self.wrong.append(f"{self.path.name}: fields that the table lacks: {', '.join(sorted(missing))}")

    def _do_message(self, rest):
        """A row of the table of messages: NUMBER ; English ; German. Numbers may be A+B, what the program puts in between, or A>B, B in A."""
        number, *means = _parts(rest)
        if not self.out[-1].startswith("|"):
            self._head({"en": ("message", "means, and what to do"), "de": ("Meldung", "Bedeutung und Abhilfe")})
        words = self.book.message(number, self.language)
        self._put(f"| {words} | {means[LANGUAGES.index(self.language)]} |")

    def _head(self, words):
        cells = words[self.language]
        self.out += ["| " + " | ".join(cells) + " |", "|" + "---|" * len(cells)]

    def _do_notices(self, rest):
        self._head({"en": ("notice", "means", "do"), "de": ("Hinweis", "bedeutet", "Abhilfe")})
        for name in rest.split():
            means, remedy = self.book.notices[name][self.language]
            self._put(f"| [{name}]({NOTICES[self.language]}#{name}) | {means} | {remedy} |")

    def _do_picture(self, rest):
        name, _, words = rest.partition(" ")
        self.out.append(f"![{words.strip()}](../pictures/{name}.svg)")


def foreign_signs(text, language, name):
    """Numbers with a point in a German page. What stands as `code` is as files and scripts have it."""
    if language != "de":
        return []
    prose = re.sub(r"`[^`]*`|\]\([^)]*\)", "", re.sub(r"(?ms)^```.*?^```", "", text))
    return [f"{name} (de): a number with a point: {line.strip()}" for line in prose.split("\n") if re.search(r"\d\.\d", line)]


def lowered(line):
    """σ_z with its index lowered, u_(i+1) with a longer one, outside of `code` and links."""
    parts = re.split(r"(`[^`]*`|\]\([^)]*\))", line)
    for i in range(0, len(parts), 2):
        parts[i] = re.sub(r"(?<![A-Za-z0-9_])(Δ?[A-Za-zα-ωΣ]|log)_(?:([A-Za-z0-9]+)|\(([^()]+)\))",
                          lambda m: f"{m[1]}<sub>{m[2] or m[3]}</sub>", parts[i])
    return "".join(parts)
