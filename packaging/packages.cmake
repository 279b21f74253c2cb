# The packages for Debian, made by scripts/package: one for each component, no file in both.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME zevmenu-creator)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "${ZEV_MAINTAINER}")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_COMPONENTS_ALL command)
if(ZEV_EDITOR)
    list(APPEND CPACK_COMPONENTS_ALL editor)
endif()
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
# Whatever the umask of who builds.
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_SOURCE_DIR}/same_times.cmake)
set(CPACK_SOURCE_DATE ${source_date})

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_PACKAGE_RELEASE ${debian_revision})
set(CPACK_DEBIAN_PACKAGE_SECTION web)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
if(ZEV_VENDOR_SITE)
    set(CPACK_DEBIAN_PACKAGE_HOMEPAGE https://${ZEV_VENDOR_SITE}/)
endif()

# The first line of each description is its summary; that of the project is that of neither. This is
# what CPack has where there is none.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${CMAKE_PROJECT_NAME} built using CMake")
set(CPACK_DEBIAN_COMMAND_PACKAGE_NAME zevmenu)
set(CPACK_COMPONENT_COMMAND_DESCRIPTION
"menus of web sites on the command line, and their script library
Checks, compares, converts and publishes the menu definitions of the editor
in zevmenu-creator, and puts menus onto web pages, without a display.

Holds the script library that draws a menu in the visitors' browsers, and
sample menus.")

set(CPACK_DEBIAN_EDITOR_PACKAGE_NAME zevmenu-creator)
set(CPACK_DEBIAN_EDITOR_PACKAGE_DEPENDS
    "zevmenu (= ${PROJECT_VERSION}-${debian_revision}), libqt6svg6, qt6-qpa-plugins, xdg-utils")
set(CPACK_DEBIAN_EDITOR_PACKAGE_RECOMMENDS "fonts-dejavu-core, hicolor-icon-theme, qt6-wayland")
set(CPACK_COMPONENT_EDITOR_DESCRIPTION
"editor for cascading menus on web sites
A menu is built as a tree of items, looked at in the preview, and saved as one
JavaScript file that every page of the site loads. A small script library,
copied beside it, draws the menu in the visitors' browsers.

A wizard puts menus onto pages that are there, with a backup of each.")

include(CPack)
