"""The manual as a whole: what its pages draw on, and its files."""
import re
import tomllib

from tool import sketches, words
from tool.program import ROOT, language_texts
from tool.source import LANGUAGES, SOURCE_PAGES, Page

DOCS = ROOT / "docs" / "manual"
# Pages for those who look behind the methods, beside the other theory pages.
ENGLISH_ALONE = ("consolidation-theory.md", "raft-theory.md")
# In all three languages, as the program tells them; the English page stands beside the theory.
NOTICES = "notices.md"
MADE = "<!-- Made by tests/renew-manual from docs/manual/source. -->\n"


class Deviation:
    """A row of docs/verification/deviations.md: what theory has, and what the program has."""

    def __init__(self, theory, ours):
        self.theory, self.ours = (float(text) if text else None for text in (theory, ours))
        if self.theory:
            self.percent = abs(100 * (self.ours / self.theory - 1))
            self.ratio = self.ours / self.theory


class Book:
    def __init__(self, program):
        self.program = program
        self.texts = language_texts()
        self.notices = tomllib.loads((SOURCE_PAGES / "notices.toml").read_text(encoding="utf-8"))
        page = (ROOT / "docs" / "verification" / "deviations.md").read_text(encoding="utf-8")
        row = re.compile(r"^\| \[(\w+)\]\([^)]*\)(?: `([^`]*)`)? \| `([^`]*)` \| (\S*) ?\| (\S+) \|", re.MULTILINE)
        self.sizes = {(m[1], m[2] or "", m[3]): Deviation(m[4], m[5]) for m in row.finditer(page)}

    def deviation(self, project, run, quantity):
        return self.sizes[project, run, quantity]

    def message(self, numbers, language):
        """A text with dots where the program puts in what it is about; A+B has that between A and B, A>B is B in A."""
        outer, _, cause = numbers.partition(">")
        words = "…".join(self.texts[int(number)][language] for number in outer.split("+"))
        if cause:
            words = words.replace("|3", self.texts[int(cause)][language])
        return re.sub(r"\|\d", "…", words)

    @staticmethod
    def _languages(name):
        if name in ENGLISH_ALONE:
            return ("en",)
        return (*LANGUAGES, "ar") if name == NOTICES else LANGUAGES

    def written(self):
        """All files by path, and what is wrong."""
        files = {DOCS / "pictures" / f"{name}.svg": text for name, text in sketches.drawn().items()}
        wrong = []
        for source in sorted(SOURCE_PAGES.glob("*.md")):
            if source.name == "README.md":
                continue
            for language in self._languages(source.name):
                page = Page(source, language, self)
                beside = language == "en" and source.name in (*ENGLISH_ALONE, NOTICES)
                folder = DOCS.parent if beside else DOCS / language
                files[folder / source.name] = MADE + page.written()
                wrong += page.wrong
        files[DOCS / "ar" / "words.md"] = MADE + words.page(self)
        return files, wrong
