# What `cmake --install` puts where, and the Debian package made by CPack.
#
#   bin/Brimo2010
#   bin/brimo-settings                       the settings from the command line
#   share/brimo/legends/ZorelMsg_*.txt       copied into a prefix by the demo script
#   share/brimo/make-demo-prefix.sh          makes a demo installation in a Wine prefix
#   share/applications/brimo.desktop
#   share/icons/hicolor/scalable/apps/brimo.svg
#   share/metainfo/org.example.brimo.metainfo.xml
#   share/bash-completion/completions/brimo-settings
#   share/brimo/ansible/library/brimo_settings.py   the Ansible module
#   share/man/man1/Brimo2010.1.gz, brimo-settings.1.gz
#   share/doc/brimo/changelog.gz, copyright
#
# The program itself finds its files through the Wine prefix alone; nothing
# installed here is read by it at run time.

set(BRIMO_SHARE_DIR ${PROJECT_SOURCE_DIR}/share)

install(TARGETS Brimo2010 brimo-settings RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(DIRECTORY ${BRIMO_SHARE_DIR}/legends/
        DESTINATION ${CMAKE_INSTALL_DATADIR}/brimo/legends
        FILES_MATCHING PATTERN "ZorelMsg_*.txt")
install(PROGRAMS ${PROJECT_SOURCE_DIR}/scripts/make-demo-prefix.sh
        DESTINATION ${CMAKE_INSTALL_DATADIR}/brimo)
install(FILES ${BRIMO_SHARE_DIR}/applications/brimo.desktop
        DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${BRIMO_SHARE_DIR}/icons/brimo.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(FILES ${BRIMO_SHARE_DIR}/metainfo/org.example.brimo.metainfo.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${BRIMO_SHARE_DIR}/completions/brimo-settings
        DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
install(FILES ${PROJECT_SOURCE_DIR}/contrib/ansible/library/brimo_settings.py
        DESTINATION ${CMAKE_INSTALL_DATADIR}/brimo/ansible/library)

# The maintainer's contact, said once: the package's Maintainer field, the
# changelog's entries and the copyright's Upstream-Contact.
set(BRIMO_PACKAGE_MAINTAINER "Brimo maintainers <brimo@example.org>"
    CACHE STRING "Maintainer field of the Debian package")
set(BRIMO_PACKED_DIR ${PROJECT_BINARY_DIR}/packed)
configure_file(${BRIMO_SHARE_DIR}/doc/copyright ${BRIMO_PACKED_DIR}/copyright @ONLY)
install(FILES ${BRIMO_PACKED_DIR}/copyright DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/brimo)

# One version everywhere: the project's. The changelog's last entry must
# name it, and the manual pages take it at build.
file(STRINGS ${BRIMO_SHARE_DIR}/doc/changelog brimo_changelog_head LIMIT_COUNT 1)
if(NOT brimo_changelog_head MATCHES "^brimo \\(${PROJECT_VERSION}\\) ")
  message(FATAL_ERROR "share/doc/changelog does not start with version ${PROJECT_VERSION}: ${brimo_changelog_head}")
endif()

# The manual pages and the changelog go compressed, as Debian wants them.
set(BRIMO_PACKED)
# brimo-settings(1) lists the keys that the tool itself lists (brimo-settings keys).
add_custom_command(
  OUTPUT ${BRIMO_PACKED_DIR}/brimo-settings.1
  COMMAND python3 ${PROJECT_SOURCE_DIR}/scripts/man-keys.py ${BRIMO_SHARE_DIR}/man/brimo-settings.1
          $<TARGET_FILE:brimo-settings> ${PROJECT_VERSION} ${BRIMO_PACKED_DIR}/brimo-settings.1
  DEPENDS ${BRIMO_SHARE_DIR}/man/brimo-settings.1 ${PROJECT_SOURCE_DIR}/scripts/man-keys.py brimo-settings
  VERBATIM)
foreach(source man/Brimo2010.1 man/brimo-settings.1 doc/changelog)
  get_filename_component(name ${source} NAME)
  if(NOT name STREQUAL "brimo-settings.1")
    configure_file(${BRIMO_SHARE_DIR}/${source} ${BRIMO_PACKED_DIR}/${name} @ONLY)
  endif()
  add_custom_command(
    OUTPUT ${BRIMO_PACKED_DIR}/${name}.gz
    COMMAND gzip -9nc ${BRIMO_PACKED_DIR}/${name} > ${BRIMO_PACKED_DIR}/${name}.gz
    DEPENDS ${BRIMO_PACKED_DIR}/${name}
    VERBATIM)
  list(APPEND BRIMO_PACKED ${BRIMO_PACKED_DIR}/${name}.gz)
endforeach()
add_custom_target(brimo_packed_docs ALL DEPENDS ${BRIMO_PACKED})
install(FILES ${BRIMO_PACKED_DIR}/Brimo2010.1.gz ${BRIMO_PACKED_DIR}/brimo-settings.1.gz
        DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${BRIMO_PACKED_DIR}/changelog.gz DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/brimo)

# Debian package: `cpack` in the build folder.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME brimo)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_VENDOR "Brimo")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "variable editor of the Zorel add-on for AutoCAD")
set(CPACK_PACKAGE_DESCRIPTION
  "Brimo2010 edits the settings that the Zorel add-on works with: the drawing
frame and layer, units, text styles and heights, dimension style, office
details, language, display switches and the locations of other programs, and
the parameters of the slope-toe search. OK writes each value to a Lisp file
that the add-on loads and to the user's profile file. The command
brimo-settings reads and writes the same settings from a terminal or a script.

The program works on the Windows installation of a Wine prefix, where AutoCAD
and the add-on run. Its dialogs speak French, English, German and Italian.")
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${BRIMO_PACKAGE_MAINTAINER}")
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The forms are drawn in a narrow sans-serif close to the classic dialog font;
# brimo-settings says Qt's own words (an unknown option) in the user's language.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-liberation, qt6-translations-l10n")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
include(CPack)
