#!/usr/bin/env python3
"""Holds Lithmark against the verification manual, or writes the manual anew.

    verify.py check CLI [WIDE_CLI]      fails on a value beyond its tolerance and on a stale page
    verify.py renew CLI [WIDE_CLI]      recomputes what is expected and writes docs/verification

CLI is lithmark-cli, WIDE_CLI the same program with stored quantities of 64 bits; without it, values that need it fail.
"""
import os
import re
import sys
import tomllib
from pathlib import Path

os.environ.setdefault("OPENBLAS_NUM_THREADS", "1")  # the same sums everywhere, and no threads that wait for each other
sys.path.insert(0, str(Path(__file__).resolve().parent))

from tool import pages  # noqa: E402
from tool.chapters import FOLDER, Chapter  # noqa: E402
from tool.convergence import Convergence  # noqa: E402
from tool.deviations import Deviations  # noqa: E402
from tool.program import ROOT, Program  # noqa: E402
from tool.renewed import renew, stale_of  # noqa: E402

DOCS = ROOT / "docs" / "verification"


def words_of(path):
    return re.sub(r"\s+", " ", path.read_text(encoding="utf-8"))


def written(program):
    """All files of the manual by path, the renewed data of the chapters, and what is wrong."""
    book = tomllib.loads((FOLDER / "book.toml").read_text(encoding="utf-8"))
    chapters = [Chapter(name) for name in book["chapters"]]
    convergence, deviations = Convergence(), Deviations()
    program.prepare([run for part in (*chapters, convergence, deviations) for run in part.runs()])

    files, wrong, results = {}, [], {}
    for chapter in chapters:
        compared, mistakes, renewed = chapter.compare(program)
        wrong += mistakes
        wrong += [f"{v.row.case} {v.row.run} {v.row.quantity}: {pages.numbers.plain(v.ours, 9)} for "
                  f"{pages.numbers.plain(v.expected, 9)}, allowed {v.row.tolerance}" for v in compared if not v.good]
        text, pictures = pages.chapter_page(chapter, compared, program)
        files[chapter.path] = renewed
        files[DOCS / f"{chapter.name}.md"] = text
        files |= {DOCS / "pictures" / name: picture for name, picture in pictures.items()}
        problems = {int(program.fields(chapter.project(v.row.case))["ProblemType"]) for v in compared}
        results[chapter.name] = (compared, problems)

    text, pictures, said = convergence.page(program)
    files[DOCS / "convergence.md"] = text
    files |= {DOCS / "pictures" / name: picture for name, picture in pictures.items()}
    text, more = deviations.page(program, book["deviations"])
    files[DOCS / "deviations.md"] = text
    files[DOCS / "README.md"] = pages.index_page(chapters, results, book)
    manual = words_of(ROOT / "docs" / "manual.md")
    wrong += [f'docs/manual.md does not say "{words}" ({where})' for words, where in said + more if words not in manual]
    return files, wrong


def main():
    command, cli, *wide = sys.argv[1:]
    with Program(cli, *wide) as program:
        files, wrong = written(program)
    stale = stale_of(files)
    left = [path for path in (*DOCS.glob("*.md"), *DOCS.glob("pictures/*.svg")) if path not in files]
    if command == "renew":
        renew(files, stale, left, ROOT)
        wrong = [line for line in wrong if not line.endswith("is the theory") or "was printed" in line]
    else:
        wrong += [f"stale, tests/renew-verification writes it anew: {path.relative_to(ROOT)}" for path in stale + left]
    print("\n".join(wrong) or "all values within their tolerances, all pages up to date")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
