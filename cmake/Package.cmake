# What is installed, and the Debian package of it: see ./package. Included behind the programs' targets.
include(GNUInstallDirs)
set(CMAKE_INSTALL_DOCDIR ${CMAKE_INSTALL_DATADIR}/doc/kinwright)
set(KW_MAINTAINER "The authors of Kinwright <authors@kinwright.invalid>" CACHE STRING "Whom the package names as its maintainer")
set(packaging ${CMAKE_SOURCE_DIR}/packaging)
set(made ${CMAKE_BINARY_DIR}/packaging)
set(metainfo ${packaging}/org.kinwright.Kinwright.metainfo.xml)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${metainfo})

# The package's history is told once, in the metainfo's release notes: the newest first, the English ones.
# "kw_changelog(OUT)" writes them in the form of a Debian changelog and sets KW_RELEASE_DATE.
function(kw_changelog out)
  file(READ ${metainfo} rest)
  set(changelog "")
  string(FIND "${rest}" "<release " at)
  while(at GREATER -1)
    string(SUBSTRING "${rest}" ${at} -1 rest)
    string(FIND "${rest}" "</release>" end)
    string(SUBSTRING "${rest}" 0 ${end} release)
    string(SUBSTRING "${rest}" ${end} -1 rest)
    string(FIND "${rest}" "<release " at)
    string(REGEX MATCH "version=\"([0-9.]+)\" date=\"([0-9-]+)\"" unused "${release}")
    set(version ${CMAKE_MATCH_1})
    set(date ${CMAKE_MATCH_2})
    if(changelog STREQUAL "")
      if(NOT version STREQUAL PROJECT_VERSION)
        message(FATAL_ERROR "${metainfo}: its newest release is ${version}, the project's version is ${PROJECT_VERSION}")
      endif()
      set(KW_RELEASE_DATE ${date} PARENT_SCOPE)
    endif()
    execute_process(COMMAND ${CMAKE_COMMAND} -E env LC_ALL=C date -u -R -d ${date} OUTPUT_VARIABLE date OUTPUT_STRIP_TRAILING_WHITESPACE)
    string(APPEND changelog "kinwright (${version}) unstable; urgency=medium\n\n")
    string(REGEX MATCHALL "<li>[^<]*</li>" notes "${release}")
    foreach(note IN LISTS notes)
      string(REGEX REPLACE "</?li>" "" note "${note}")
      string(REGEX REPLACE "[ \n]+" " " note "${note}")
      string(APPEND changelog "  * ${note}\n")
    endforeach()
    string(APPEND changelog "\n -- ${KW_MAINTAINER}  ${date}\n\n")
  endwhile()
  file(WRITE ${out} "${changelog}")
endfunction()

# "kw_install_packed(FILE NAME FOLDER)": installs FILE there under NAME, packed as Debian wants manual pages and changelogs.
set(packed_files)
function(kw_install_packed file name folder)
  string(REPLACE "/" "-" beside "${folder}")
  set(packed ${made}/${beside}/${name}.gz)
  file(MAKE_DIRECTORY ${made}/${beside})
  add_custom_command(OUTPUT ${packed} COMMAND gzip -9nc ${file} > ${packed} DEPENDS ${file} VERBATIM)
  install(FILES ${packed} DESTINATION ${folder})
  set(packed_files ${packed_files} ${packed} PARENT_SCOPE)
endfunction()

kw_changelog(${made}/changelog)
kw_install_packed(${made}/changelog changelog ${CMAKE_INSTALL_DOCDIR})
foreach(page kinwright.1 kinwright-replay.1)
  foreach(language en de)
    configure_file(${packaging}/man/${language}/${page} ${made}/${language}/${page} @ONLY)
  endforeach()
  kw_install_packed(${made}/en/${page} ${page} ${CMAKE_INSTALL_MANDIR}/man1)
  kw_install_packed(${made}/de/${page} ${page} ${CMAKE_INSTALL_MANDIR}/de/man1)
endforeach()

# The icon's one source is the SVG.
add_executable(sinnbildgroessen ${packaging}/sinnbildgroessen.cpp)
target_link_libraries(sinnbildgroessen PRIVATE Qt6::Svg)
set_target_properties(sinnbildgroessen PROPERTIES CXX_CLANG_TIDY "")
set(icons)
set(drawn)
foreach(size 16 22 24 32 48 64 128 256 512)
  set(icon ${made}/${size}x${size}/kinwright.png)
  file(MAKE_DIRECTORY ${made}/${size}x${size})
  list(APPEND icons ${icon})
  list(APPEND drawn ${icon} ${size})
  install(FILES ${icon} DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps)
endforeach()
add_custom_command(OUTPUT ${icons} COMMAND sinnbildgroessen ${packaging}/kinwright.svg ${drawn}
                   DEPENDS sinnbildgroessen ${packaging}/kinwright.svg VERBATIM)
add_custom_target(kinwright_packaging ALL DEPENDS ${icons} ${packed_files})

install(TARGETS kinwright kinwright-replay)
install(FILES ${packaging}/kinwright.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${packaging}/kinwright.thumbnailer DESTINATION ${CMAKE_INSTALL_DATADIR}/thumbnailers)
install(FILES ${packaging}/kinwright.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)
install(FILES ${packaging}/kinwright.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(FILES ${metainfo} DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${packaging}/completion/kinwright DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
install(FILES ${packaging}/completion/kinwright DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME kinwright-replay)
install(FILES ${packaging}/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY samples/ DESTINATION ${CMAKE_INSTALL_DOCDIR}/examples FILES_MATCHING PATTERN *.kwp)
install(DIRECTORY help/ DESTINATION ${CMAKE_INSTALL_DATADIR}/kinwright/help PATTERN quellen EXCLUDE)

# A package is made without building tests and benchmark first.
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON)
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME kinwright)
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_SOURCE_DIR}/build/package)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${KW_MAINTAINER}")
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The font that pages are measured with: without it texts have other widths, and pages look otherwise than elsewhere.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-liberation | fonts-liberation2")
# Wayland, the platform's own dialogs in German, printing, what opens the manual; and a font that systems take for their
# menus: where there is no other than the pages' own, they come in typewriter letters.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-wayland, qt6-translations-l10n, cups, fonts-dejavu-core, xdg-utils")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "editor for genograms, the diagrams of a family's relationships")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "\
Kinwright draws genograms as social workers, counsellors and therapists use
them: the persons of a family over several generations on one page of paper,
joined by partnership, child and relationship lines. Ages follow from the
dates of birth, and a legend explains what the page shows.

Pages are printed or exported as PDF, SVG and pictures, also from the command
line. File managers show projects as small pictures of their pages. The
program and its manual are in German and English.")
include(CPack)
