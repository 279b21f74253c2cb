# The editor, its manual, and what makes it known to the desktop.

set(id example.zevmenu.Creator)
set(drawing ${PROJECT_SOURCE_DIR}/app/resources/icons/zevmenu_creator.svg)

zev_install_program(editor bin zevmenu-creator)
# Not in the folder above: CPack would have packages tell the system's linker of it.
zev_install_program(editor lib/zevmenu-creator/modules zevmenu_webview)

file(GLOB manual RELATIVE ${PROJECT_SOURCE_DIR}/help
    ${PROJECT_SOURCE_DIR}/help/*.css ${PROJECT_SOURCE_DIR}/help/*.html
    ${PROJECT_SOURCE_DIR}/help/images/*.png)
zev_install_tree(editor ${share}/help ${PROJECT_SOURCE_DIR}/help ${manual})

zev_install_compressed(editor share/man/man1 zevmenu-creator.1
    ${CMAKE_CURRENT_SOURCE_DIR}/man/zevmenu-creator.1 ${version_of_page})
zev_install_as(editor ${bash_folder} zevmenu-creator
    ${CMAKE_CURRENT_SOURCE_DIR}/completion/zevmenu-creator.bash)
zev_install(editor ${fish_folder} ${CMAKE_CURRENT_SOURCE_DIR}/completion/zevmenu-creator.fish)
zev_install_as(editor ${zsh_folder} _zevmenu-creator
    ${CMAKE_CURRENT_SOURCE_DIR}/completion/zevmenu-creator.zsh)

set(homepage)
if(ZEV_VENDOR_SITE)
    set(homepage "<url type=\"homepage\">https://${ZEV_VENDOR_SITE}/</url>")
endif()
configure_file(desktop/${id}.metainfo.xml.in ${made}/${id}.metainfo.xml @ONLY)
zev_install(editor share/metainfo ${made}/${id}.metainfo.xml)
zev_install(editor share/applications ${CMAKE_CURRENT_SOURCE_DIR}/desktop/${id}.desktop)
zev_install(editor share/mime/packages ${CMAKE_CURRENT_SOURCE_DIR}/desktop/zevmenu-creator.xml)

# One drawing is the icon at every size; the pictures are for desktops that cannot draw.
add_executable(zev_draw_icon draw_icon.cpp)
target_link_libraries(zev_draw_icon PRIVATE Qt6::Svg zev_warnings)
set(icons)
foreach(size IN ITEMS 16 22 24 32 48 64 128 256)
    set(icon ${made}/icons/${size}.png)
    add_custom_command(OUTPUT ${icon}
        COMMAND zev_draw_icon ${drawing} ${size} ${icon}
        DEPENDS zev_draw_icon ${drawing})
    zev_install_as(editor share/icons/hicolor/${size}x${size}/apps ${id}.png ${icon})
    list(APPEND icons ${icon})
endforeach()
file(MAKE_DIRECTORY ${made}/icons)
zev_install_as(editor share/icons/hicolor/scalable/apps ${id}.svg ${drawing})
