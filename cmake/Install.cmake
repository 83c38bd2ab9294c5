# What `cmake --install` puts where. All places are relative to the prefix.
include(GNUInstallDirs)
# Not ${CMAKE_INSTALL_DOCDIR}: that is named after the project, and Debian wants it named after the package.
set(documents ${CMAKE_INSTALL_DATADIR}/doc/tandry-vorel)

install(TARGETS tvorel vorel)

install(DIRECTORY share/applications share/metainfo DESTINATION ${CMAKE_INSTALL_DATADIR})
install(FILES share/mime/tvorel.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)

set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable)
install(FILES share/icons/tvorel.svg DESTINATION ${icons}/apps)
install(FILES share/icons/document-tvm.svg DESTINATION ${icons}/mimetypes
    RENAME application-x-tandry-vorel-profile.svg)
install(FILES share/icons/document-vs.svg DESTINATION ${icons}/mimetypes RENAME text-x-vorelspeak.svg)

# The folder that tvorel looks in, from beside its executable.
install(FILES share/vslist.vs DESTINATION ${CMAKE_INSTALL_DATADIR}/tvorel)
install(DIRECTORY examples DESTINATION ${CMAKE_INSTALL_DATADIR}/tvorel)

install(FILES share/completions/vorel.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
    RENAME vorel)
install(FILES share/completions/_vorel DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions)
install(FILES share/completions/vorel.fish DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d)

# Not ${CMAKE_INSTALL_LIBDIR}: units lie in lib/ on every architecture.
install(FILES share/systemd/user/vorel@.service share/systemd/user/vorel-many@.service DESTINATION lib/systemd/user)

# The README's links into docs/ stay good.
install(FILES README.md CHANGELOG.md CONTRIBUTING.md LICENSE share/doc/copyright DESTINATION ${documents})
install(DIRECTORY docs DESTINATION ${documents})

# Debian wants manual pages compressed, and every system reads them so. No time stamp goes in: the same sources make
# the same package.
find_program(GZIP gzip REQUIRED)
set(pages)
foreach(page tvorel.1 vorel.1)
    add_custom_command(OUTPUT ${PROJECT_BINARY_DIR}/${page}.gz DEPENDS ${PROJECT_SOURCE_DIR}/share/man/${page}
        COMMAND ${GZIP} -9nc ${PROJECT_SOURCE_DIR}/share/man/${page} > ${PROJECT_BINARY_DIR}/${page}.gz VERBATIM)
    list(APPEND pages ${PROJECT_BINARY_DIR}/${page}.gz)
endforeach()
add_custom_target(manual ALL DEPENDS ${pages})
install(FILES ${pages} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
