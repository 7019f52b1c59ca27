#!/usr/bin/env python3
"""man-page.py TEMPLATE VERSION EPOCH [PROGRAM LANGUAGE]: prints a page of section 1.

The template is the page in roff; @VERSION@ and @DATE@ are filled in, @SYNOPSIS@, @COMMANDS@ and @OPTIONS@ from the help of
the program in that language.
"""
import datetime
import sys

import helptext


def plain(text):
    """A text of the help as roff: signs that roff would take for its own, or set otherwise, stay what they are."""
    text = text.replace('\\', r'\e').replace('-', r'\-').replace("'", r'\(aq').replace('^', r'\(ha').replace('~', r'\(ti')
    return '\\&' + text if text.startswith(('.', '\\(aq')) else text


def head(entry):
    flags = ', '.join(rf'\fB{plain(flag)}\fP' if flag.startswith('-') else rf'\fI{plain(flag)}\fP' for flag in entry.flags)
    value = rf'{"|".join(plain(word) for word in entry.choices)}' if entry.choices else rf'\fI{plain(entry.value)}\fP'
    if not entry.flags[0].startswith('-') or not (entry.choices or entry.value):
        return flags
    return f'{flags} {value}'


def listed(entries):
    return ''.join(f'.TP\n{head(entry)}\n{plain(entry.text)}\n' for entry in entries)


def synopsis(program):
    lines = []
    for command in program.commands:
        needed = ''.join(f' {head(option)}' for option in command.options if option.required)
        names = ' '.join(rf'\fI{plain(argument.flags[0])}\fP' for argument in command.arguments)
        lines.append(rf'\fB{plain(program.name)} {plain(command.name)}\fP {names}{needed} [\fIOPTION\fP ...]')
    flags = '|'.join(rf'\fB{plain(option.long)}\fP' for option in program.options if not option.value)
    return '\n.br\n'.join(lines + [rf'\fB{plain(program.name)}\fP {flags}']) + '\n'


def shared(program):
    """The options that every command has, in the order of the first one."""
    first, *others = program.commands
    return [option for option in first.options if all(option in other.options for other in others)]


def commands(program):
    common = shared(program)
    page = ''
    for command in program.commands:
        page += f'.SS {plain(command.name)}\n{plain(command.text)}\n'
        page += listed(command.arguments)
        page += listed(option for option in command.options if option not in common)
    return page


def main():
    template, version, epoch = sys.argv[1:4]
    with open(template, encoding='utf-8') as file:
        page = file.read()
    day = datetime.datetime.fromtimestamp(int(epoch), datetime.timezone.utc).strftime('%Y-%m-%d')
    page = page.replace('@VERSION@', version).replace('@DATE@', day)
    if len(sys.argv) > 4:
        program = helptext.read(sys.argv[4], sys.argv[5])
        page = page.replace('@SYNOPSIS@\n', synopsis(program)).replace('@COMMANDS@\n', commands(program))
        page = page.replace('@OPTIONS@\n', listed(shared(program)))
    sys.stdout.reconfigure(encoding='utf-8')
    sys.stdout.write(page)


main()
