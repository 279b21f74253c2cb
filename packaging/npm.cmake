# The library as a package for sites that are built with node, in the folder npm/ of the build.
set(npm ${PROJECT_BINARY_DIR}/npm)
configure_file(npm/package.json.in ${npm}/package.json @ONLY)
configure_file(npm/README.md ${npm}/README.md COPYONLY)
configure_file(npm/zevmenu.d.ts ${npm}/zevmenu.d.ts COPYONLY)
configure_file(${PROJECT_SOURCE_DIR}/LICENSE ${npm}/LICENSE COPYONLY)
foreach(name IN ITEMS zevmenu_loader.js zevmenu_dom.js zevmenu_ns4.js)
    add_custom_command(OUTPUT ${npm}/${name}
        COMMAND ${CMAKE_COMMAND} -E copy ${bin}/${name} ${npm}/${name}
        DEPENDS ${bin}/${name} zev_runtime_files)
    list(APPEND npm_files ${npm}/${name})
endforeach()
add_custom_target(zev_npm_files ALL DEPENDS ${npm_files})
