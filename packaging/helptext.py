"""Reads what a command line program says of itself: the commands, arguments and options of its --help.

The man page and the completions are made from it, so that they name what the parser takes and nothing else.
"""
import os
import re
import subprocess
from dataclasses import dataclass, field

LINE = re.compile(r'^  (\S.*?)(?:  +(\S.*))?$')
OPTION = re.compile(r'^(?P<flags>-[^ ]+)(?: (?P<rest>.*))?$')


@dataclass
class Entry:
    """An option or an argument: its flags or name, the form of its value, the words that it takes, its text."""
    flags: list
    value: str = ''
    choices: list = field(default_factory=list)
    required: bool = False
    text: str = ''

    @property
    def long(self):
        return next((flag for flag in self.flags if flag.startswith('--')), self.flags[0])


@dataclass
class Command:
    name: str
    text: str = ''
    arguments: list = field(default_factory=list)
    options: list = field(default_factory=list)
    commands: list = field(default_factory=list)


def run(program, *words):
    environment = dict(os.environ, LC_ALL='C.UTF-8', HOME='/nonexistent', XDG_CONFIG_HOME='/nonexistent')
    done = subprocess.run([program, *words], capture_output=True, text=True, encoding='utf-8', env=environment)
    if done.returncode != 0:
        raise SystemExit(f"{program} {' '.join(words)} ended with status {done.returncode}: {done.stderr.strip()}")
    return done.stdout


def value_of(rest, entry):
    """Takes apart `a|b`, and leaves other forms of a value, such as `FILE ...`, without the dots."""
    while rest.endswith(' ...'):
        rest = rest[:-4]
    if '|' in rest:
        entry.choices = rest.split('|')
    entry.value = rest
    return entry


def entry_of(head, text):
    option = OPTION.match(head)
    if option:
        return value_of(option['rest'] or '', Entry(option['flags'].split(','), text=text))
    name, _, rest = head.partition(' ')
    return value_of(rest, Entry([name], text=text))


def rows(lines):
    """Pairs of head and text; a head that is too long has its text on the next line, a long text goes on there."""
    found = []
    for line in lines:
        if line.startswith('   ') and found:
            found[-1][1] = f'{found[-1][1]} {line.strip()}'.strip()
            continue
        match = LINE.match(line)
        if not match:
            raise SystemExit(f'a line of the help that has no known form: {line!r}')
        found.append([match[1], match[2] or ''])
    return found


# What stands under a heading, by its English words; help in another language has the same parts in the same order.
PARTS = {'arguments': 'arguments', 'subcommands': 'commands', 'commands': 'commands',
         'options': 'options', 'common options': 'options', 'examples': None, 'exit status': None, 'usage': None}


def parts(program, language, *words):
    text = run(program, *words, '--help', '--lang', language)
    return [block.split('\n') for block in text.strip('\n').split('\n\n')]


def read(program, language, *words):
    """The command that `words` name; without any the program itself, with all its commands."""
    (description, *_), *blocks = parts(program, language, *words)
    english = parts(program, 'en', *words)[1:]
    command = Command(words[-1] if words else os.path.basename(program), text=description)
    for (_, *body), (heading, *_) in zip(blocks, english, strict=True):
        what = PARTS.get('usage' if heading.startswith('Usage') else heading.rstrip(':').lower(), 'unknown')
        if what == 'arguments':
            command.arguments += [entry_of(name, text) for name, text in rows(body)]
        elif what == 'commands':
            command.commands += [read(program, language, *words, name) for name, _ in rows(body)]
        elif what == 'options':
            command.options += [entry_of(name, text) for name, text in rows(body)]
        elif what:
            raise SystemExit(f'a part of the help that is not known: {heading}')
        elif heading.startswith('Usage'):
            needed = set(heading.split())
    for option in command.options:
        option.required = option.long in needed
    if not words and not command.commands:
        raise SystemExit(f'{program} names no commands')
    for each in command.commands:
        for argument in each.arguments:
            if argument.flags[0] == 'COMMAND':
                argument.choices = [other.name for other in command.commands]
    return command
