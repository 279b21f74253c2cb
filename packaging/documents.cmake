# Licence, changes and licences of others, of each component, where Debian's packages have them.

# Not one of Debian's own revisions, which begin with 1.
set(debian_revision 0zev1)

# zev_install_documents(<component> <package>)
function(zev_install_documents component package)
    set(folder share/doc/${package})
    configure_file(debian/changelog.in ${made}/${component}/debian_changelog @ONLY)
    zev_install(${component} ${folder} ${CMAKE_CURRENT_SOURCE_DIR}/debian/copyright)
    zev_install_compressed(${component} ${folder} changelog ${PROJECT_SOURCE_DIR}/CHANGELOG.md)
    zev_install_compressed(${component} ${folder} changelog.Debian
        ${made}/${component}/debian_changelog)
    set(compressed ${compressed} PARENT_SCOPE)
endfunction()

zev_install_documents(command zevmenu)
if(ZEV_EDITOR)
    zev_install_documents(editor zevmenu-creator)
endif()

# Manual pages say of which version they are.
set(version_of_page "s/^\\.Os$/.Os \"ZEVMenu Creator ${PROJECT_VERSION}\"/")
