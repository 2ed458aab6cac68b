# Run by CPack for the files of all packages, before it packs them: adds what Debian wants in each
# package and compresses what it wants compressed.

set(ZAVO_PACKAGE_CONTACT ${CPACK_PACKAGE_CONTACT})
set(ZAVO_DEBIAN_VERSION ${CPACK_ZAVO_VERSION})

function(zavo_run)
  execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

function(zavo_compress)
  foreach(file IN LISTS ARGN)
    zavo_run(gzip --best --no-name ${file})
  endforeach()
endfunction()

# The day on which the version was made, as a changelog writes it.
function(zavo_date_for_changelog result)
  execute_process(
    COMMAND ${CMAKE_COMMAND} -E env LC_ALL=C date --utc --rfc-email --date=${CPACK_ZAVO_VERSION_DATE}
    OUTPUT_VARIABLE date
    OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  set(${result} ${date} PARENT_SCOPE)
endfunction()

# zavo_put(SOURCE DESTINATION MODE): with COPYONLY as it is, with @ONLY with its variables filled in.
# Readable for everybody, whatever the rights of the source are.
function(zavo_put source destination mode)
  configure_file(${source} ${destination} ${mode}
                 FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
endfunction()

# Takes away what only builds need. The path to the libraries, too: they lie where the loader looks.
# Where there are packages of what debuggers need, CPack takes that out itself.
function(zavo_strip binary)
  set(options --remove-section=.comment --remove-section=.note)
  if(NOT CPACK_DEBIAN_DEBUGINFO_PACKAGE)
    list(APPEND options --strip-unneeded)
  endif()
  zavo_run(${CPACK_ZAVO_OBJCOPY} ${options} ${binary})
  file(RPATH_REMOVE FILE ${binary})
endfunction()

function(zavo_prepare root package)
  set(sources ${CPACK_ZAVO_SOURCE_DIR}/packaging/debian)
  set(documents ${root}/usr/share/doc/${package})
  zavo_put(${sources}/copyright.in ${documents}/copyright @ONLY)
  zavo_put(${sources}/changelog.in ${documents}/changelog.Debian @ONLY)
  zavo_put(${CPACK_ZAVO_SOURCE_DIR}/CHANGELOG.md ${documents}/changelog COPYONLY)
  file(GLOB manual_pages ${root}/usr/share/man/man*/*)
  zavo_compress(${documents}/changelog.Debian ${documents}/changelog ${manual_pages})

  file(GLOB binaries ${root}/usr/bin/* ${root}/usr/lib/*.so.* ${root}/usr/lib/*/*.so.*)
  foreach(binary IN LISTS binaries)
    if(NOT IS_SYMLINK ${binary})
      zavo_strip(${binary})
    endif()
  endforeach()

  # Names of files stay the same when that of the library gets another number.
  string(REGEX REPLACE "[0-9.]+$" "" name ${package})
  if(EXISTS ${sources}/${name}.lintian-overrides)
    zavo_put(${sources}/${name}.lintian-overrides
             ${root}/usr/share/lintian/overrides/${package} COPYONLY)
  endif()
  if(EXISTS ${sources}/${name}.doc-base)
    zavo_put(${sources}/${name}.doc-base ${root}/usr/share/doc-base/${package} COPYONLY)
  endif()
endfunction()

zavo_date_for_changelog(ZAVO_VERSION_DATE_RFC)
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
  string(TOUPPER ${component} upper)
  zavo_prepare(${CPACK_TEMPORARY_DIRECTORY}/${component} ${CPACK_DEBIAN_${upper}_PACKAGE_NAME})
endforeach()
