# The Debian packages: docbench, and docbench-dev for hosts of the controls. `packaging/run.sh` makes
# and tries them.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME docbench)
set(CPACK_PACKAGE_VENDOR Tessaforma)
set(CPACK_PACKAGE_CONTACT "${DOCBENCH_MAINTAINER}")
set(CPACK_PACKAGE_HOMEPAGE_URL https://docbench.tessaforma.example/)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
# Folders come with the mode that Debian asks for, whatever the builder's mask is.
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL runtime development)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE ${DOCBENCH_DEBIAN_REVISION})
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME docbench)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION graphics)
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION
    "manager for CAD documents and what they refer to
Shows everything that a part, an assembly or a drawing refers to, to any depth,
with no CAD program running, and renames, replaces and copies documents with
every reference to them rewritten. Finds where a document is used and documents
by rules on their properties; edits properties, configurations and hyperlinks.
.
There is a window, a command line for scripts, and the tool docmodel, which
makes, shows and checks single documents.")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
# What is loaded while the program runs, which no linker sees: the driver of the reference index, and
# the reader of its pictures.
set(CPACK_DEBIAN_RUNTIME_PACKAGE_DEPENDS "libqt6sql6-sqlite, libqt6svg6")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_RECOMMENDS
    "qt6-translations-l10n, ca-certificates, xdg-utils")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SUGGESTS "docbench-dev")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME docbench-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION
    "document manager's controls for programs of others
The controls of docbench, the whole document manager or single panes, to be
placed on the windows of Qt programs: headers, the CMake package Docbench, a
plug-in for Qt Designer and an example.")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "docbench (= ${PROJECT_VERSION}-${DOCBENCH_DEBIAN_REVISION}), qt6-base-dev")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SUGGESTS qt6-tools-dev-tools)

# What Debian wants to lie beside the files: copyright and changelogs, packed, and packed manual
# pages. Done to the files that are packed, so that other installations stay plain.
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_BINARY_DIR}/packaging/finish.cmake)
file(READ ${PROJECT_SOURCE_DIR}/LICENSE license)
string(REGEX REPLACE "^.*\n(Permission is hereby.*)$" "\\1" license "${license}")
string(STRIP "${license}" license)
string(REGEX REPLACE "\n" "\n " license "${license}")
string(REGEX REPLACE "\n \n" "\n .\n" license "${license}")
set(DOCBENCH_LICENSE "${license}")
file(STRINGS ${PROJECT_SOURCE_DIR}/LICENSE DOCBENCH_COPYRIGHT REGEX "^Copyright")
string(REGEX REPLACE "^Copyright \\(c\\) " "" DOCBENCH_COPYRIGHT "${DOCBENCH_COPYRIGHT}")
configure_file(${PROJECT_SOURCE_DIR}/packaging/copyright.in packaging/copyright @ONLY)
file(CONFIGURE OUTPUT packaging/changelog.Debian CONTENT "@DOCBENCH_DEBIAN_CHANGELOG@" @ONLY)
configure_file(${PROJECT_SOURCE_DIR}/packaging/finish.cmake.in packaging/finish.cmake @ONLY)

include(CPack)
