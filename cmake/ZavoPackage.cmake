# Debian packages, made by CPack from what is installed: a package for each component. What Debian
# wants beyond that, prepare.cmake adds while a package is made.

set(ZAVO_PACKAGE_CONTACT
    "Zavo Authoring Suite <packages@zavo.example.org>"
    CACHE STRING "Who answers for the packages")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME zavo-schedule-editor)
# Each package has a summary of its own.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_PACKAGE_CONTACT ${ZAVO_PACKAGE_CONTACT})
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_VERBATIM_VARIABLES ON)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_COMPONENTS_ALL Runtime Development)
if(ZAVO_BUILD_HOST)
  list(APPEND CPACK_COMPONENTS_ALL Program)
endif()
if(ZAVO_BUILD_DOCUMENTATION)
  list(APPEND CPACK_COMPONENTS_ALL Documentation)
endif()

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SOURCE ${CPACK_PACKAGE_NAME})
# Whatever Debian itself may one day call its first package of a version is newer than ours.
set(CPACK_DEBIAN_PACKAGE_RELEASE 0zavo1)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER ${ZAVO_PACKAGE_CONTACT})
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
# What a debugger needs of an optimised build is in packages of its own.
if(CMAKE_BUILD_TYPE STREQUAL RelWithDebInfo)
  set(CPACK_DEBIAN_DEBUGINFO_PACKAGE ON)
endif()
set(zavo_package_version ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})

# The three libraries are of one version, change together and share a package, named as that of the
# component.
set(zavo_library_package libzvscheduleeditor${ZAVO_ABI_VERSION})
set(zavo_depends_on_library "${zavo_library_package} (= ${zavo_package_version})")

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${zavo_library_package})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
# Icons are drawn by a plug-in, which no library asks for by name.
set(CPACK_DEBIAN_RUNTIME_PACKAGE_DEPENDS libqt5svg5)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION
    "schedule editor for display channels - libraries
Fills a window of a program with the editor that sets what the screens of a
display playout system show, hour by hour.
.
This package holds the libraries for channels and stages, for what editors
share, and for the editor itself.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libzvscheduleeditor-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${zavo_depends_on_library}, qtbase5-dev (>= 5.15)")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION
    "schedule editor for display channels - development files
Fills a window of a program with the editor that sets what the screens of a
display playout system show, hour by hour.
.
This package holds the headers and a CMake package, ZavoScheduleEditor.")

set(CPACK_DEBIAN_PROGRAM_PACKAGE_NAME ${CPACK_PACKAGE_NAME})
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SECTION video)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SHLIBDEPS ON)
# The program uses more of the libraries than their headers tell. Uploads are done by rsync, and
# Qt's own texts are translated by its catalogues.
set(CPACK_DEBIAN_PROGRAM_PACKAGE_DEPENDS
    "${zavo_depends_on_library}, hicolor-icon-theme, qttranslations5-l10n, rsync")
set(CPACK_DEBIAN_PROGRAM_PACKAGE_RECOMMENDS "openssh-client, xdg-utils")
# Names of stages and channels may be Japanese, as may be the texts of the program.
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SUGGESTS "fonts-ipafont-gothic | fonts-noto-cjk")
set(CPACK_COMPONENT_PROGRAM_DESCRIPTION
    "schedule editor for display channels
Edits what the screens of a display playout system show, hour by hour: a tab
for each channel, and in it the day as a column of bands, each of which puts a
stage on the screens from one time to another.
.
Channels are checked, uploaded to folders, rsync daemons and machines reached
by ssh, and exported as a package, a table, a calendar or a week sheet.")

set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_NAME libzvscheduleeditor-doc)
set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_SECTION doc)
set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SUGGESTS ${CPACK_DEBIAN_DOCUMENTATION_PACKAGE_NAME})
set(CPACK_COMPONENT_DOCUMENTATION_DESCRIPTION
    "schedule editor for display channels - documentation
Fills a window of a program with the editor that sets what the screens of a
display playout system show, hour by hour.
.
This package holds the documentation of the classes for programmers.")

# Where the libraries look for each other; no package says so yet.
foreach(library ZvCore ZvEditorCommon ZvScheduleEditor)
  get_target_property(folder ${library} BINARY_DIR)
  list(APPEND CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${folder})
endforeach()

set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/packaging/debian/prepare.cmake)
set(CPACK_POST_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/packaging/debian/finish.cmake)
set(CPACK_ZAVO_SOURCE_DIR ${PROJECT_SOURCE_DIR})
set(CPACK_ZAVO_VERSION ${zavo_package_version})
set(CPACK_ZAVO_VERSION_DATE ${ZAVO_VERSION_DATE})
set(CPACK_ZAVO_OBJCOPY ${CMAKE_OBJCOPY})
set(CPACK_ZAVO_IS_MULTIARCH OFF)
if(CMAKE_LIBRARY_ARCHITECTURE AND CMAKE_INSTALL_LIBDIR MATCHES "/${CMAKE_LIBRARY_ARCHITECTURE}$")
  set(CPACK_ZAVO_IS_MULTIARCH ON)
endif()

include(CPack)
