# One QtTest executable a class or a flow. Each runs without a display, with data and settings
# folders of its own. A warning that a test did not announce by QTest::ignoreMessage fails it.

# The one warning that passes: Qt's offscreen platform says "This plugin does not support ..." for
# what only a real window system has. Regular expressions of CMake cannot negate a word, so the one
# for any other warning lists where a text can depart from these words.
function(zavo_warning_expression result)
  set(expected "This plugin does not support ")
  string(LENGTH "${expected}" length)
  math(EXPR last "${length} - 1")
  foreach(position RANGE ${last})
    string(SUBSTRING "${expected}" 0 ${position} same)
    string(SUBSTRING "${expected}" ${position} 1 character)
    list(APPEND departures "${same}[^${character}]")
  endforeach()
  list(JOIN departures "|" departure)
  set(where "[A-Za-z0-9_]+::[A-Za-z0-9_]+[(]([^()\n]|[(][^()\n]*[)])*[)]")
  set(${result} "QWARN  : ${where} (${departure})" PARENT_SCOPE)
endfunction()
zavo_warning_expression(ZAVO_WARNING_EXPRESSION)

# The environment of the test of that name, whose folders are made. ZAVO_TEST_LOCALE and
# ZAVO_TEST_ZONE set all tests to a language and a time zone.
function(zavo_test_environment result name)
  set(home ${CMAKE_CURRENT_BINARY_DIR}/home/${name})
  set(sanitizers "")
  set(surroundings "")
  if(ZAVO_SANITIZE)
    set(suppressions ${PROJECT_SOURCE_DIR}/cmake/leaks.supp)
    set(sanitizers "LSAN_OPTIONS=suppressions=${suppressions}:print_suppressions=0"
                   "UBSAN_OPTIONS=print_stacktrace=1")
  endif()
  file(MAKE_DIRECTORY ${home}/config ${home}/data ${home}/zavo)
  file(MAKE_DIRECTORY ${home}/run)
  file(CHMOD ${home}/run DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
  set(locale C.UTF-8)
  if(ZAVO_TEST_LOCALE)
    set(locale ${ZAVO_TEST_LOCALE})
  endif()
  if(ZAVO_TEST_ZONE)
    list(APPEND surroundings TZ=${ZAVO_TEST_ZONE})
  endif()
  set(${result}
      QT_QPA_PLATFORM=offscreen
      LC_ALL=${locale}
      HOME=${home}
      XDG_CONFIG_HOME=${home}/config
      XDG_DATA_HOME=${home}/data
      XDG_RUNTIME_DIR=${home}/run
      ZAVO_DATA_DIR=${home}/zavo
      ${sanitizers}
      ${surroundings}
      PARENT_SCOPE)
endfunction()

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
  # A test is one source; joined with its helpers it would only share their private names.
  set_target_properties(${name} PROPERTIES UNITY_BUILD OFF)
  target_link_libraries(${name} PRIVATE ZavoTestSupport ${ARG_LIBRARIES})
  if(ZAVO_PRECOMPILE_HEADERS)
    target_precompile_headers(${name} REUSE_FROM ZavoTestSupport)
  endif()
  add_test(NAME ${name} COMMAND ${name})
  zavo_test_environment(environment ${name})
  set_tests_properties(
    ${name}
    PROPERTIES
      TIMEOUT ${ARG_TIMEOUT}
      FAIL_REGULAR_EXPRESSION "${ZAVO_WARNING_EXPRESSION};QSYSTEM:"
      ENVIRONMENT "${environment}")
endfunction()

# Runs a test that is there already once more, on a machine set to that language and time zone.
function(zavo_repeat_test name language zone)
  set(repeated ${name}_${language})
  add_test(NAME ${repeated} COMMAND ${name})
  zavo_test_environment(environment ${repeated})
  list(TRANSFORM environment REPLACE "^LC_ALL=.*" "LC_ALL=${language}.UTF-8")
  set_tests_properties(
    ${repeated}
    PROPERTIES
      TIMEOUT 120
      FAIL_REGULAR_EXPRESSION "${ZAVO_WARNING_EXPRESSION};QSYSTEM:"
      ENVIRONMENT "${environment};TZ=${zone}")
endfunction()
