#!/usr/bin/env python3
"""completions.py SHELL PROGRAM: prints the completions of a command line program for bash, zsh or fish, from its help."""
import sys

import helptext


def kind(entry, command):
    """What may stand as a value: words, a project, files, folders, or anything."""
    if entry.choices:
        return 'words'
    if entry.flags[0] in ('project', 'PROJECT', 'DIR/NAME'):
        return 'folder' if command.name == 'new' else 'project'
    return {'FILE': 'file', 'DIR': 'folder'}.get(entry.value, 'any' if entry.value else 'none')


def quoted(text):
    return "'" + text.replace("'", "'\\''") + "'"


# --- bash ---

BASH_VALUES = {
    'file': 'compopt -o filenames; mapfile -t COMPREPLY < <(compgen -f -- "$word")',
    'folder': 'compopt -o filenames; mapfile -t COMPREPLY < <(compgen -d -- "$word")',
    'project': "compopt -o filenames; mapfile -t COMPREPLY < <(compgen -f -X '!*.[Pp][Oo]3' -- \"$word\"; "
               'compgen -d -- "$word")',
    'any': 'COMPREPLY=()',
}


def bash_value(entry, command):
    if entry.choices:
        return f'mapfile -t COMPREPLY < <(compgen -W {quoted(" ".join(entry.choices))} -- "$word")'
    return BASH_VALUES[kind(entry, command)]


def bash(program):
    name = program.name.replace('-', '_')
    lines = [f'# Completions of {program.name}, made from its help.', f'_{name}() {{',
             '  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD-1]} command= i',
             '  # --lang=de comes as three words.',
             '  if [[ $word == "=" ]]; then',
             '    word=',
             '  elif [[ $before == "=" ]]; then',
             '    before=${COMP_WORDS[COMP_CWORD-2]}',
             '  fi',
             '  for ((i = 1; i < COMP_CWORD; ++i)); do',
             f'    case ${{COMP_WORDS[i]}} in {" | ".join(command.name for command in program.commands)})',
             '      command=${COMP_WORDS[i]}',
             '      break ;;',
             '    esac',
             '  done',
             '  case $command:$before in']
    for command in program.commands:
        for option in command.options:
            if kind(option, command) != 'none':
                flags = ' | '.join(f'{command.name}:{flag}' for flag in option.flags)
                lines.append(f'    {flags}) {bash_value(option, command)}; return ;;')
    lines += ['  esac', '  case $command:$word in']
    every = [command.name for command in program.commands] + [flag for option in program.options for flag in option.flags]
    lines.append(f'    :*) mapfile -t COMPREPLY < <(compgen -W {quoted(" ".join(every))} -- "$word") ;;')
    for command in program.commands:
        flags = ' '.join(flag for option in command.options for flag in option.flags)
        lines.append(f'    {command.name}:-*) mapfile -t COMPREPLY < <(compgen -W {quoted(flags)} -- "$word") ;;')
        for argument in command.arguments:
            lines.append(f'    {command.name}:*) {bash_value(argument, command)} ;;')
    return lines + ['  esac', '}', f'complete -F _{name} {program.name}']


# --- zsh ---

def zsh_text(text):
    for sign in '\\[]:':
        text = text.replace(sign, '\\' + sign)
    return text


def zsh_value(entry, command):
    return {'words': '(' + ' '.join(word.replace('%', '\\%') for word in entry.choices) + ')', 'file': '_files',
            'folder': '_files -/', 'project': '_files -g "*.(#i)po3"', 'any': ' '}[kind(entry, command)]


def zsh_option(option, command):
    # What is no choice of words may stand several times.
    several = '*' if kind(option, command) == 'any' else ''
    forms = []
    for flag in option.flags:
        if kind(option, command) == 'none':
            forms.append(quoted(f'{several}{flag}[{zsh_text(option.text)}]'))
        else:
            form = f'{flag}=' if flag.startswith('--') else f'{flag}+'
            what = zsh_text(option.value or 'value')
            forms.append(quoted(f'{several}{form}[{zsh_text(option.text)}]:{what}:{zsh_value(option, command)}'))
    return forms


def zsh(program):
    name = program.name.replace('-', '_')
    lines = [f'#compdef {program.name}', f'# Completions of {program.name}, made from its help.', f'_{name}() {{',
             '  local context state line', '  typeset -A opt_args', '  _arguments -C \\']
    for option in program.options:
        for flag in option.flags:
            lines.append('    ' + quoted(f'(- *){flag}[{zsh_text(option.text)}]') + ' \\')
    lines += ["    '1: :->command' '*:: :->rest'", '  case $state in', '    command)', '      local -a commands=(']
    for command in program.commands:
        lines.append('        ' + quoted(f'{command.name}:{zsh_text(command.text)}'))
    lines += ['      )', "      _describe 'command' commands ;;", '    rest)', '      case $words[1] in']
    for command in program.commands:
        forms = [form for option in command.options for form in zsh_option(option, command)]
        forms += [quoted(f'{place}:{argument.flags[0]}:{zsh_value(argument, command)}')
                  for place, argument in enumerate(command.arguments, 1)]
        lines.append(f'        {command.name})')
        lines.append('          _arguments ' + ' \\\n            '.join(forms) + ' ;;')
    return lines + ['      esac ;;', '  esac', '}', f'_{name} "$@"']


# --- fish ---

FISH_VALUES = {'file': '-r -F', 'folder': "-x -a '(__fish_complete_directories)'", 'any': '-x', 'none': '',
               'project': "-a '(__fish_complete_suffix .PO3; __fish_complete_suffix .po3)'"}


def fish_value(entry, command):
    return f"-x -a {quoted(' '.join(entry.choices))}" if entry.choices else FISH_VALUES[kind(entry, command)]


def fish_flags(option):
    return ' '.join(f'-l {flag[2:]}' if flag.startswith('--') else f'-s {flag[1:]}' for flag in option.flags)


def fish(program):
    start = f'complete -c {program.name}'
    lines = [f'# Completions of {program.name}, made from its help.', f'{start} -f']
    for option in program.options:
        lines.append(f'{start} -n __fish_use_subcommand {fish_flags(option)} -d {quoted(option.text)}')
    for command in program.commands:
        lines.append(f'{start} -n __fish_use_subcommand -a {command.name} -d {quoted(command.text)}')
    for command in program.commands:
        seen = f"{start} -n '__fish_seen_subcommand_from {command.name}'"
        for option in command.options:
            lines.append(f'{seen} {fish_flags(option)} {fish_value(option, command)} -d {quoted(option.text)}')
        for argument in command.arguments:
            lines.append(f'{seen} {fish_value(argument, command).replace("-x ", "")} -d {quoted(argument.text)}')
    return lines


def main():
    makers = {'bash': bash, 'zsh': zsh, 'fish': fish}
    if len(sys.argv) != 3 or sys.argv[1] not in makers:
        raise SystemExit('usage: completions.py bash|zsh|fish PROGRAM')
    sys.stdout.reconfigure(encoding='utf-8')
    print('\n'.join(makers[sys.argv[1]](helptext.read(sys.argv[2], 'en'))))


main()
