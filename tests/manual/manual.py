#!/usr/bin/env python3
"""Holds the manual against the program, or writes it anew.

    manual.py check CLI FIELD_TABLES    fails on a page that is not up to date and on a worked example that is not right
    manual.py renew CLI FIELD_TABLES    writes docs/manual

CLI is lithmark-cli, FIELD_TABLES the program that prints the dialogs' tables.
"""
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent))

from tool.book import DOCS, Book  # noqa: E402
from tool.program import ROOT, Program  # noqa: E402
from tool.shared import renew, stale_of  # noqa: E402
from tool.source import Failed  # noqa: E402


def main():
    command, cli, field_tables = sys.argv[1:]
    try:
        with Program(cli, field_tables) as program:
            files, wrong = Book(program).written()
    except Failed as error:
        print(error)
        return 1
    stale = stale_of(files)
    made = [path for folder in ("en", "de", "ar", "pictures") for path in (DOCS / folder).glob("*")]
    left = [path for path in made if path not in files]
    if command == "renew":
        renew(files, stale, left, ROOT)
    else:
        wrong += [f"stale, tests/renew-manual writes it anew: {path.relative_to(ROOT)}" for path in stale + left]
    print("\n".join(wrong) or "all pages up to date, all examples right by hand")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
