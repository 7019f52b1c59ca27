# The Debian packages, one of each component; scripts/package makes them.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME lithmark)
set(CPACK_PACKAGE_VENDOR "The Lithmark developers")
set(CPACK_PACKAGE_CONTACT ${LITHMARK_CONTACT})
set(CPACK_PACKAGE_HOMEPAGE_URL ${PROJECT_HOMEPAGE_URL})
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/packaging/strip.cmake)
set(CPACK_COMPONENTS_ALL ${LITHMARK_COMPONENTS})
set(CPACK_COMPONENTS_GROUPING IGNORE)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SOURCE lithmark)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(same_version "${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}")

set(CPACK_DEBIAN_DESKTOP_PACKAGE_NAME lithmark)
set(CPACK_DEBIAN_DESKTOP_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_DESKTOP_PACKAGE_DEPENDS "lithmark-cli (= ${same_version}), lithmark-data (= ${same_version}), fonts-dejavu-core")
set(CPACK_DEBIAN_DESKTOP_PACKAGE_RECOMMENDS
  "desktop-file-utils, qt6-translations-l10n, shared-mime-info, xdg-utils")
set(CPACK_DEBIAN_DESKTOP_PACKAGE_SUGGESTS lithmark-doc)
set(CPACK_DEBIAN_DESKTOP_DESCRIPTION "calculator for foundation engineers
Stresses, strains and displacements of the soil under point, rectangular and
circular loads; consolidation settlement and degree of consolidation;
settlement of a building in time, with evaluation of measurements; settlements
and contact pressures of rigid rafts on elastic layers and on clay.
.
Each problem has one dialog and gives a report in German, English or Arabic,
curves, and for rafts contour plots.")

set(CPACK_DEBIAN_CLI_PACKAGE_NAME lithmark-cli)
set(CPACK_DEBIAN_CLI_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_CLI_PACKAGE_DEPENDS fonts-dejavu-core)
set(CPACK_DEBIAN_CLI_PACKAGE_SUGGESTS "lithmark, lithmark-data, lithmark-doc")
set(CPACK_DEBIAN_CLI_DESCRIPTION "calculator for foundation engineers (command line)
Makes, calculates, draws and prints projects of Lithmark without a screen, for
scripts and batch runs: reports in German, English and Arabic, results as JSON,
curves and contour plots.
.
Studies calculate a project over varied and random fields, on all cores and
parted over machines.")

# Without the toolkit the command line stands alone; documents and pictures come with lithmark-render.
if(render IN_LIST LITHMARK_COMPONENTS)
  set(CPACK_DEBIAN_CLI_PACKAGE_DEPENDS)
  set(CPACK_DEBIAN_CLI_PACKAGE_RECOMMENDS "lithmark-render (= ${same_version})")
  set(CPACK_DEBIAN_RENDER_PACKAGE_NAME lithmark-render)
  set(CPACK_DEBIAN_RENDER_PACKAGE_SHLIBDEPS ON)
  set(CPACK_DEBIAN_RENDER_PACKAGE_DEPENDS "lithmark-cli (= ${same_version}), fonts-dejavu-core")
  set(CPACK_DEBIAN_RENDER_DESCRIPTION "calculator for foundation engineers (documents and pictures)
The part of the command line of Lithmark that writes what needs a toolkit: PDF,
HTML and RTF documents, spreadsheets, curves and contour plots as SVG, PNG and
PDF.")
endif()

set(CPACK_DEBIAN_DATA_PACKAGE_NAME lithmark-data)
set(CPACK_DEBIAN_DATA_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_DATA_DESCRIPTION "calculator for foundation engineers (data)
The icons and the file type of Lithmark, and an example project for every
problem.")

set(CPACK_DEBIAN_DOC_PACKAGE_NAME lithmark-doc)
set(CPACK_DEBIAN_DOC_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_DOC_PACKAGE_DEPENDS "lithmark-data (= ${same_version})")
set(CPACK_DEBIAN_DOC_PACKAGE_SECTION doc)
set(CPACK_DEBIAN_DOC_DESCRIPTION "calculator for foundation engineers (documentation)
The manual of Lithmark, the theory of its problems, the pages on studies, files
and the command line, and the verification manual: results against theory,
published tables and calculations by hand.")

include(CPack)
