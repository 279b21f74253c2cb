#compdef zevmenu-creator
# zsh completion of zevmenu-creator.
_arguments \
    '(-h --help)'{-h,--help}'[Print help and exit]' \
    '--help-all[Print help with the options of the toolkit and exit]' \
    '(-v --version)'{-v,--version}'[Print the version and exit]' \
    '--screenshot[Save a picture of the preview and end]:picture:_files' \
    '1:definition:_files -g "*.js"'
