# The documentation of the headers that are installed, as web pages by Doxygen. Whatever is not
# documented, or not as it should be, stands in the log, which a test wants to find empty.

find_package(Doxygen 1.9.4 REQUIRED)

foreach(library ZvCore ZvEditorCommon ZvScheduleEditor)
  get_target_property(folder ${library} SOURCE_DIR)
  get_target_property(headers ${library} ZAVO_PUBLIC_HEADERS)
  list(APPEND zavo_documented_folders ${folder})
  foreach(header IN LISTS headers)
    list(APPEND zavo_documented_headers ${folder}/${header})
  endforeach()
  string(TOUPPER ${library}_EXPORT macro)
  string(APPEND DOXYGEN_MACROS " ${macro}=")
endforeach()

set(DOXYGEN_OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/documentation)
list(JOIN zavo_documented_folders "\" \"" DOXYGEN_FOLDERS)
list(JOIN zavo_documented_headers "\" \"" DOXYGEN_HEADERS)
set(zavo_doxyfile ${CMAKE_CURRENT_BINARY_DIR}/Doxyfile)
configure_file(${PROJECT_SOURCE_DIR}/docs/Doxyfile.in ${zavo_doxyfile} @ONLY)

set(zavo_documentation_stamp ${DOXYGEN_OUTPUT}/html/index.html)
add_custom_command(
  OUTPUT ${zavo_documentation_stamp}
  COMMAND ${CMAKE_COMMAND} -E rm -rf ${DOXYGEN_OUTPUT}
  COMMAND ${CMAKE_COMMAND} -E make_directory ${DOXYGEN_OUTPUT}
  COMMAND Doxygen::doxygen -q ${zavo_doxyfile}
  DEPENDS ${zavo_doxyfile} ${zavo_documented_headers} ${PROJECT_SOURCE_DIR}/docs/headers.md
  COMMENT "Documenting the headers"
  VERBATIM)
add_custom_target(zavo-documentation ALL DEPENDS ${zavo_documentation_stamp})

install(
  DIRECTORY ${DOXYGEN_OUTPUT}/html
  DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/libzvscheduleeditor-dev
  COMPONENT Documentation)
