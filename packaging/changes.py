#!/usr/bin/env python3
"""changes.py CHANGELOG VERSION EPOCH debian CONTACT|releases|check: what the packages need of the page of changes.

A release of the page is a heading "## 1.0.0 (2026-12-01)" with its list; one without a date is not out yet, and EPOCH
(seconds since 1970) stands for its day. The first one must be VERSION. `check` also asks for its date.
"""
import datetime
import html
import re
import sys
from email.utils import format_datetime

HEADING = re.compile(r'^## (\d+\.\d+\.\d+)(?: \((\d{4}-\d\d-\d\d)\))?$')


def releases(page, epoch):
    """Version, time, whether it has a date, items; the newest first."""
    found = []
    for line in page.splitlines():
        heading = HEADING.match(line)
        if heading:
            moment = datetime.datetime.strptime(heading[2], '%Y-%m-%d').replace(tzinfo=datetime.timezone.utc) \
                if heading[2] else datetime.datetime.fromtimestamp(epoch, datetime.timezone.utc)
            found.append((heading[1], moment, bool(heading[2]), []))
        elif line.startswith('## '):
            raise SystemExit(f'a heading that is no release: {line}')
        elif found and line.startswith('- '):
            found[-1][3].append(line[2:])
        elif found and line.startswith('  ') and found[-1][3]:
            found[-1][3][-1] += ' ' + line.strip()
    return found


def debian(found, contact):
    for version, moment, _, items in found:
        print(f'lithmark ({version}-1) unstable; urgency=medium\n')
        for item in items:
            line = '  *'
            for word in item.split():
                if len(line) + len(word) >= 78:
                    print(line)
                    line = '   '
                line += ' ' + word
            print(line)
        print(f'\n -- {contact}  {format_datetime(moment)}\n')


def metainfo(found, _):
    for version, moment, _, items in found:
        print(f'    <release version="{version}" date="{moment:%Y-%m-%d}">\n      <description>\n        <ul>')
        for item in items:
            print(f"          <li>{html.escape(item.replace('`', ''), quote=False)}</li>")
        print('        </ul>\n      </description>\n    </release>')


def main():
    path, version, epoch, what, *contact = sys.argv[1:]
    with open(path, encoding='utf-8') as file:
        found = releases(file.read(), int(epoch))
    if not found or found[0][0] != version:
        raise SystemExit(f'{path} begins with {found[0][0] if found else "no release"}, the version is {version}')
    if not all(items for *_, items in found):
        raise SystemExit(f'{path}: a release without a change')
    sys.stdout.reconfigure(encoding='utf-8')
    if what == 'check':
        if not found[0][2]:
            raise SystemExit(f'{path}: release {version} has no date: ## {version} ({moment_now()})')
    else:
        {'debian': debian, 'releases': metainfo}[what](found, ' '.join(contact))


def moment_now():
    return f'{datetime.datetime.now(datetime.timezone.utc):%Y-%m-%d}'


main()
