# fish completion of zevmenu-creator.
complete -c zevmenu-creator -f -a '(__fish_complete_suffix .js)'
complete -c zevmenu-creator -s h -l help -d 'Print help and exit'
complete -c zevmenu-creator -l help-all -d 'Print help with the options of the toolkit and exit'
complete -c zevmenu-creator -s v -l version -d 'Print the version and exit'
complete -c zevmenu-creator -l screenshot -r -F -d 'Save a picture of the preview and end'
