# The number in the names of the libraries that a program asks for. Before version 1.0 each minor
# version may break what was built against another.
if(PROJECT_VERSION_MAJOR EQUAL 0)
  set(ZAVO_ABI_VERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
else()
  set(ZAVO_ABI_VERSION ${PROJECT_VERSION_MAJOR})
endif()

# What all targets of the tree share: language level, warnings, sanitizers, hidden visibility.

function(zavo_configure_target target)
  target_compile_features(${target} PUBLIC cxx_std_17)
  set_target_properties(
    ${target}
    PROPERTIES CXX_EXTENSIONS OFF
               CXX_VISIBILITY_PRESET hidden
               VISIBILITY_INLINES_HIDDEN ON
               POSITION_INDEPENDENT_CODE ON
               AUTOMOC ON
               AUTORCC ON)
  target_compile_definitions(
    ${target} PRIVATE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS
                      QT_DEPRECATED_WARNINGS QT_DISABLE_DEPRECATED_BEFORE=0x050F00)
  target_compile_options(
    ${target} PRIVATE -Wall -Wextra -Wshadow -Wconversion -Woverloaded-virtual
                      -Wnon-virtual-dtor)
  if(ZAVO_WARNINGS_AS_ERRORS)
    target_compile_options(${target} PRIVATE -Werror)
  endif()
  if(ZAVO_SANITIZE)
    target_compile_options(${target} PRIVATE -fsanitize=address,undefined
                                             -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_compile_definitions(${target} PRIVATE ZAVO_SANITIZE)
    target_link_options(${target} PRIVATE -fsanitize=address,undefined)
    if(ZAVO_BUILD_FUZZERS)
      target_compile_options(${target} PRIVATE -fsanitize=fuzzer-no-link)
    endif()
  else()
    target_link_options(${target} PRIVATE -Wl,--no-undefined)
  endif()
endfunction()

# A shared library of the suite with a generated export header <name>Export.h beside the build.
function(zavo_configure_library target)
  include(GenerateExportHeader)
  zavo_configure_target(${target})
  string(TOUPPER ${target} upper)
  generate_export_header(
    ${target}
    BASE_NAME ${target}
    EXPORT_MACRO_NAME ${upper}_EXPORT
    EXPORT_FILE_NAME ${CMAKE_CURRENT_BINARY_DIR}/${target}Export.h)
  target_include_directories(
    ${target} PUBLIC $<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}>
                     $<BUILD_INTERFACE:${CMAKE_CURRENT_BINARY_DIR}>
                     $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/zavo>)
  set_target_properties(${target} PROPERTIES VERSION ${PROJECT_VERSION}
                                             SOVERSION ${ZAVO_ABI_VERSION})
  add_library(Zavo::${target} ALIAS ${target})
endfunction()
