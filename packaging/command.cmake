# The command line, the run-time files, samples.

zev_install_program(command bin zevmenu)
zev_install(command ${share}
    ${bin}/zevmenu_loader.js ${bin}/zevmenu_dom.js ${bin}/zevmenu_ns4.js ${bin}/zevmenu.html)

file(GLOB pages man/zevmenu.1 man/zevmenu-*.1)
list(FILTER pages EXCLUDE REGEX "zevmenu-creator\\.1$")
foreach(page IN LISTS pages)
    cmake_path(GET page FILENAME name)
    zev_install_compressed(command share/man/man1 ${name} ${page} ${version_of_page})
endforeach()

# Their pages and README tell of a build, where the library lies elsewhere.
file(GLOB_RECURSE samples RELATIVE ${PROJECT_SOURCE_DIR}/samples ${PROJECT_SOURCE_DIR}/samples/*)
list(FILTER samples EXCLUDE REGEX "^(\\.gitattributes|README\\.md|[^/]*\\.html|[^/]*\\.mjs)$")
zev_install_tree(command share/doc/zevmenu/examples ${PROJECT_SOURCE_DIR}/samples ${samples})

set(completions)
# zev_completion(<shell> <folder> <name>)
function(zev_completion shell folder name)
    set(file ${made}/completion/${shell})
    add_custom_command(OUTPUT ${file}
        COMMAND zev_write_completion ${shell} ${file}
        DEPENDS zev_write_completion)
    zev_install_as(command ${folder} ${name} ${file})
    set(completions ${completions} ${file} PARENT_SCOPE)
endfunction()
file(MAKE_DIRECTORY ${made}/completion)

set(bash_folder share/bash-completion/completions)
set(fish_folder share/fish/vendor_completions.d)
set(zsh_folder share/zsh/vendor-completions)
zev_completion(bash ${bash_folder} zevmenu)
zev_completion(fish ${fish_folder} zevmenu.fish)
zev_completion(zsh ${zsh_folder} _zevmenu)
