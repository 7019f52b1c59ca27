# What is installed, in components, each a Debian package: desktop (lithmark), cli (lithmark-cli), render
# (lithmark-render), data (lithmark-data), doc (lithmark-doc). Changes of the page CHANGELOG.md and the help of lithmark-cli go into what is
# made here, so the version and the options stand in one place.
include(GNUInstallDirs)
find_package(Python3 REQUIRED COMPONENTS Interpreter)
find_program(GZIP_PROGRAM gzip REQUIRED)


# The day of what is made: SOURCE_DATE_EPOCH, else that of the last change of the sources.
if(DEFINED ENV{SOURCE_DATE_EPOCH})
  set(LITHMARK_EPOCH $ENV{SOURCE_DATE_EPOCH})
else()
  execute_process(COMMAND git -C ${PROJECT_SOURCE_DIR} log -1 --format=%ct OUTPUT_VARIABLE LITHMARK_EPOCH
    OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
  if(NOT LITHMARK_EPOCH)
    file(TIMESTAMP ${PROJECT_SOURCE_DIR}/CHANGELOG.md LITHMARK_EPOCH %s UTC)
  endif()
endif()

set(made ${PROJECT_BINARY_DIR}/packaging)
set(packaging ${PROJECT_SOURCE_DIR}/packaging)
set(python ${Python3_EXECUTABLE} -B)
set(changes ${python} ${packaging}/changes.py ${PROJECT_SOURCE_DIR}/CHANGELOG.md ${PROJECT_VERSION} ${LITHMARK_EPOCH})
set(changes_inputs ${packaging}/changes.py ${PROJECT_SOURCE_DIR}/CHANGELOG.md)
set(made_files)

# made(FILE COMMAND ... DEPENDS ...): a file of the standard output of a command.
function(lithmark_make file)
  cmake_parse_arguments(arg "" "" "COMMAND;DEPENDS" ${ARGN})
  add_custom_command(OUTPUT ${made}/${file} COMMAND ${arg_COMMAND} > ${made}/${file} DEPENDS ${arg_DEPENDS} VERBATIM)
  set(made_files ${made_files} ${made}/${file} PARENT_SCOPE)
endfunction()

# Man pages, in English and German.
foreach(page lithmark.1 lithmark.de.1 lithmark-cli.1 lithmark-cli.de.1)
  string(REGEX MATCH "^[a-z-]+" program ${page})
  set(from_help)
  set(inputs ${packaging}/man-page.py ${packaging}/helptext.py ${packaging}/man/${page}.in)
  if(program STREQUAL "lithmark-cli")
    set(language en)
    if(page MATCHES "\\.de\\.")
      set(language de)
    endif()
    set(from_help $<TARGET_FILE:lithmark-cli> ${language})
    list(APPEND inputs lithmark-cli)
  endif()
  lithmark_make(man/${page} COMMAND ${python} ${packaging}/man-page.py ${packaging}/man/${page}.in ${PROJECT_VERSION}
    ${LITHMARK_EPOCH} ${from_help} DEPENDS ${inputs})
  set(folder ${made}/man/en)
  if(page MATCHES "\\.de\\.")
    set(folder ${made}/man/de)
  endif()
  file(MAKE_DIRECTORY ${folder})
  add_custom_command(OUTPUT ${folder}/${program}.1.gz DEPENDS ${made}/man/${page} VERBATIM
    COMMAND ${GZIP_PROGRAM} -9nc ${made}/man/${page} > ${folder}/${program}.1.gz)
  list(APPEND made_files ${folder}/${program}.1.gz)
endforeach()

# Completions of the command line.
file(MAKE_DIRECTORY ${made}/completions)
foreach(shell bash zsh fish)
  lithmark_make(completions/lithmark-cli.${shell} DEPENDS ${packaging}/completions.py ${packaging}/helptext.py lithmark-cli
    COMMAND ${python} ${packaging}/completions.py ${shell} $<TARGET_FILE:lithmark-cli>)
endforeach()

# The page of changes as Debian writes it.
lithmark_make(changelog.Debian COMMAND ${changes} debian ${LITHMARK_CONTACT} DEPENDS ${changes_inputs})
foreach(file changelog.Debian changelog)
  set(from ${made}/changelog.Debian)
  if(file STREQUAL "changelog")
    set(from ${PROJECT_SOURCE_DIR}/CHANGELOG.md)
  endif()
  add_custom_command(OUTPUT ${made}/${file}.gz DEPENDS ${from} VERBATIM
    COMMAND ${GZIP_PROGRAM} -9nc ${from} > ${made}/${file}.gz)
  list(APPEND made_files ${made}/${file}.gz)
endforeach()

# The page of software centres: screenshots by their names, releases from the page of changes.
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${changes_inputs})
execute_process(COMMAND ${changes} releases OUTPUT_VARIABLE LITHMARK_RELEASES COMMAND_ERROR_IS_FATAL ANY)
set(LITHMARK_SCREENSHOTS)
set(kind " type=\"default\"")
foreach(shot "project;A project" "report;The report of a calculation" "curves-german;Curves, in German"
    "displacements-arabic;A dialog, in Arabic")
  list(GET shot 0 name)
  list(GET shot 1 caption)
  string(APPEND LITHMARK_SCREENSHOTS "    <screenshot${kind}>\n      <caption>${caption}</caption>\n"
    "      <image>${LITHMARK_SITE}/screenshots/${name}.png</image>\n    </screenshot>\n")
  set(kind)
endforeach()
configure_file(${packaging}/debian/copyright.in ${made}/copyright @ONLY)
configure_file(${packaging}/desktop/lithmark.metainfo.xml.in ${made}/${LITHMARK_COMPONENT_ID}.metainfo.xml @ONLY)

# Everything that an installation needs.
add_custom_target(lithmark-made ALL DEPENDS ${made_files})
add_dependencies(lithmark-made lithmark lithmark-cli)
if(TARGET lithmark-render)
  add_dependencies(lithmark-made lithmark-render)
endif()

# --- desktop ---
install(TARGETS lithmark COMPONENT desktop)
install(FILES ${packaging}/desktop/lithmark.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT desktop)
install(FILES ${made}/${LITHMARK_COMPONENT_ID}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo
  COMPONENT desktop)
# --- command line ---
install(TARGETS lithmark-cli COMPONENT cli)
# Documents and pictures of the command line come from a program of their own, which has the toolkit.
set(LITHMARK_COMPONENTS desktop cli data doc)
if(TARGET lithmark-render)
  list(APPEND LITHMARK_COMPONENTS render)
  install(TARGETS lithmark-render COMPONENT render)
  file(CREATE_LINK lithmark-cli.1.gz ${made}/man/lithmark-render.1.gz SYMBOLIC)
  install(FILES ${made}/man/lithmark-render.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT render)
endif()
# --- both ---
foreach(program lithmark lithmark-cli)
  set(component desktop)
  set(from ${packaging}/completions)
  set(names lithmark.bash _lithmark lithmark.fish)
  if(program STREQUAL "lithmark-cli")
    set(component cli)
    set(from ${made}/completions)
    set(names lithmark-cli.bash lithmark-cli.zsh lithmark-cli.fish)
  endif()
  install(FILES ${made}/man/en/${program}.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT ${component})
  install(FILES ${made}/man/de/${program}.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/de/man1 COMPONENT ${component})
  list(GET names 0 bash)
  list(GET names 1 zsh)
  list(GET names 2 fish)
  install(FILES ${from}/${bash} DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME ${program}
    COMPONENT ${component})
  install(FILES ${from}/${zsh} DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions RENAME _${program}
    COMPONENT ${component})
  install(FILES ${from}/${fish} DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d RENAME ${program}.fish
    COMPONENT ${component})
endforeach()
# --- data ---
set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
foreach(icon lithmark application-x-lithmark-project)
  set(kind apps)
  if(NOT icon STREQUAL "lithmark")
    set(kind mimetypes)
  endif()
  install(FILES ${packaging}/icons/${icon}.svg DESTINATION ${icons}/scalable/${kind} COMPONENT data)
  foreach(size 48 128)
    install(FILES ${packaging}/icons/${icon}-${size}.png DESTINATION ${icons}/${size}x${size}/${kind} RENAME ${icon}.png
      COMPONENT data)
  endforeach()
endforeach()
install(FILES ${packaging}/desktop/lithmark-mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages
  RENAME lithmark.xml COMPONENT data)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/examples DESTINATION ${CMAKE_INSTALL_DATADIR}/lithmark COMPONENT data
  REGEX "\\.(TO1|PO1|PL[468]|PC1|P21|BAU|PH[12]|PW1|lock)$" EXCLUDE)
# --- documents ---
# They lie as in the sources, so that what they refer to is found: the examples, the projects of the verification manual.
set(doc ${CMAKE_INSTALL_DATADIR}/doc)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs DESTINATION ${doc}/lithmark-doc COMPONENT doc)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/tests/verification/projects DESTINATION ${doc}/lithmark-doc/tests/verification
  COMPONENT doc)
file(CREATE_LINK ../../lithmark/examples ${made}/examples SYMBOLIC)
install(FILES ${made}/examples DESTINATION ${doc}/lithmark-doc COMPONENT doc)

foreach(component ${LITHMARK_COMPONENTS})
  set(package lithmark-${component})
  if(component STREQUAL "desktop")
    set(package lithmark)
  endif()
  install(FILES ${made}/copyright ${made}/changelog.gz ${made}/changelog.Debian.gz
    DESTINATION ${doc}/${package} COMPONENT ${component})
  if(EXISTS ${packaging}/debian/${package}.lintian-overrides)
    install(FILES ${packaging}/debian/${package}.lintian-overrides DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides
      RENAME ${package} COMPONENT ${component})
  endif()
endforeach()

include(cmake/Packages.cmake)
