# complete.zsh FOLDER LINE: types LINE and Tab into a zsh that has the completions of FOLDER, and prints what the line is then.
zmodload zsh/zpty
zpty shell zsh -f -i
zpty -w shell "PS1= PS2=; fpath=($1 \$fpath); autoload -Uz compinit; compinit -D; stty -echo"
zpty -w shell "show() { print -r -- \"<line>\$BUFFER</line>\"; exit }; zle -N show; bindkey '^X' show; print ready''now"
zpty -r shell output '*readynow*'
zpty -w -n shell "$2"$'\t'$'\C-x'
zpty -r shell output '*</line>*'
output=${output##*<line>}
print -r -- ${${output%%</line>*}%% }
zpty -d shell
