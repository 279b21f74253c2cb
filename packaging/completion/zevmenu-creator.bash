# bash completion of zevmenu-creator.
_zevmenu_creator() {
    local word=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    COMPREPLY=()
    if [[ $word == -* ]]; then
        COMPREPLY=($(compgen -W '--help --help-all --screenshot --version' -- "$word"))
    elif [[ $previous == --screenshot ]]; then
        compopt -o default
    else
        compopt -o filenames
        mapfile -t COMPREPLY < <(compgen -d -- "$word"; compgen -f -X '!*.js' -- "$word")
    fi
}
complete -F _zevmenu_creator zevmenu-creator
