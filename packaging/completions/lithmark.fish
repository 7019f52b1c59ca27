# Completions of lithmark: one project.
complete -c lithmark -f
complete -c lithmark -a '(__fish_complete_suffix .PO3; __fish_complete_suffix .po3)' -d 'Project'
