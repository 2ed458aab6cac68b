# One QtTest executable a class or a flow. Each runs without a display, with data and settings
# folders of its own. A warning that a test did not announce by QTest::ignoreMessage fails it.

function(zavo_add_test name)
  cmake_parse_arguments(ARG "" "TIMEOUT" "SOURCES;LIBRARIES" ${ARGN})
  if(NOT ARG_SOURCES)
    set(ARG_SOURCES ${name}.cpp)
  endif()
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 120)
  endif()
  add_executable(${name} ${ARG_SOURCES})
  zavo_configure_target(${name})
  target_link_libraries(${name} PRIVATE ZavoTestSupport ${ARG_LIBRARIES})
  add_test(NAME ${name} COMMAND ${name})
  set(home ${CMAKE_CURRENT_BINARY_DIR}/home/${name})
  set_tests_properties(
    ${name}
    PROPERTIES
      TIMEOUT ${ARG_TIMEOUT}
      FAIL_REGULAR_EXPRESSION "QWARN  :;QCRITICAL:;QSYSTEM :"
      ENVIRONMENT
      "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;HOME=${home};XDG_CONFIG_HOME=${home}/config;XDG_DATA_HOME=${home}/data;XDG_RUNTIME_DIR=${home}/run;ZAVO_DATA_DIR=${home}/zavo"
  )
  file(MAKE_DIRECTORY ${home}/config ${home}/data ${home}/zavo)
  file(MAKE_DIRECTORY ${home}/run)
  file(CHMOD ${home}/run DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
endfunction()
