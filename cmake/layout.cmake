# Where things stand once they are installed, below the prefix.
include(GNUInstallDirs)

# Programs, shared libraries, the document library and the language folders: one folder, as in the
# build.
set(DOCBENCH_FOLDER ${CMAKE_INSTALL_LIBDIR}/docbench)
set(DOCBENCH_HEADERS ${CMAKE_INSTALL_INCLUDEDIR}/docbench)
set(DOCBENCH_PACKAGE ${CMAKE_INSTALL_LIBDIR}/cmake/Docbench)
set(DOCBENCH_DESIGNER ${CMAKE_INSTALL_LIBDIR}/qt6/plugins/designer)

# Who stands behind a package, and which package of one version it is.
set(DOCBENCH_MAINTAINER "Tessaforma Docbench developers <docbench@tessaforma.example>")
set(DOCBENCH_DEBIAN_REVISION 1)

# A program finds its libraries beside itself, wherever the prefix is moved to, and in the build as well:
# what CMake puts there otherwise ends in an empty entry, which stands for the working folder.
set(CMAKE_INSTALL_RPATH "$ORIGIN")
set(CMAKE_BUILD_WITH_INSTALL_RPATH ON)
