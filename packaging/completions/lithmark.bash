# Completions of lithmark: one project.
complete -f -X '!*.[Pp][Oo]3' -o plusdirs lithmark
