#!/usr/bin/env python3
"""Holds the pages that are made from the program against it: the verification manual, and the manual, which tells its sizes.

    pages.py CLI WIDE_CLI FIELD_TABLES
"""
import subprocess
import sys
from pathlib import Path

HERE = Path(__file__).resolve().parent


def main():
    cli, wide, field_tables = sys.argv[1:]
    checks = [[HERE / "verification" / "verify.py", "check", cli, wide], [HERE / "manual" / "manual.py", "check", cli, field_tables]]
    return max(subprocess.run([sys.executable, "-B", *check], check=False).returncode for check in checks)


if __name__ == "__main__":
    sys.exit(main())
