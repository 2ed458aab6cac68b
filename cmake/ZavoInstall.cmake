# What is installed and where: the three libraries with their headers and a CMake package, the
# program with its manual page, its translations and what a desktop wants to know of it. Each rule
# names the component that it belongs to, from which the packages are made.

include(CMakePackageConfigHelpers)

set(zavo_include_dir ${CMAKE_INSTALL_INCLUDEDIR}/zavo)
set(zavo_package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/ZavoScheduleEditor)

# zavo_install_library(TARGET HEADER...): the headers keep their sub-folder, the generated export
# header lies beside them.
function(zavo_install_library target)
  set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN" ZAVO_PUBLIC_HEADERS "${ARGN}")
  install(
    TARGETS ${target}
    EXPORT ZavoScheduleEditorTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Runtime
            NAMELINK_COMPONENT Development)
  get_target_property(source_dir ${target} SOURCE_DIR)
  get_target_property(binary_dir ${target} BINARY_DIR)
  foreach(header IN LISTS ARGN)
    get_filename_component(folder ${header} DIRECTORY)
    install(
      FILES ${source_dir}/${header}
      DESTINATION ${zavo_include_dir}/${folder}
      COMPONENT Development)
  endforeach()
  install(
    FILES ${binary_dir}/${target}Export.h
    DESTINATION ${zavo_include_dir}
    COMPONENT Development)
endfunction()

zavo_install_library(
  ZvCore
  Path.h
  Weekday.h
  ZvChannel.h
  ZvConfig.h
  ZvSchedule.h
  ZvStage.h
  ZvStageItem.h
  ZvSystemInfo.h
  ZvTime.h)
zavo_install_library(
  ZvEditorCommon
  ZvEditorCommon.h
  ZvEditorConfig.h
  ZvEditorUserConfig.h
  ZvFileSystemModel.h
  ZvStagePreview.h)
zavo_install_library(ZvScheduleEditor domain/ZvScheduleCommonInterface.h editor/ZvScheduleEditor.h)

configure_package_config_file(
  ${CMAKE_CURRENT_LIST_DIR}/ZavoScheduleEditorConfig.cmake.in
  ${CMAKE_CURRENT_BINARY_DIR}/ZavoScheduleEditorConfig.cmake
  INSTALL_DESTINATION ${zavo_package_dir}
  NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(
  ${CMAKE_CURRENT_BINARY_DIR}/ZavoScheduleEditorConfigVersion.cmake
  COMPATIBILITY SameMinorVersion)
install(
  FILES ${CMAKE_CURRENT_BINARY_DIR}/ZavoScheduleEditorConfig.cmake
        ${CMAKE_CURRENT_BINARY_DIR}/ZavoScheduleEditorConfigVersion.cmake
  DESTINATION ${zavo_package_dir}
  COMPONENT Development)
install(
  EXPORT ZavoScheduleEditorTargets
  NAMESPACE Zavo::
  DESTINATION ${zavo_package_dir}
  COMPONENT Development)

if(ZAVO_BUILD_HOST AND TARGET zavo-schedule-editor)
  file(RELATIVE_PATH zavo_libraries_from_program "/${CMAKE_INSTALL_BINDIR}"
       "/${CMAKE_INSTALL_LIBDIR}")
  set_target_properties(zavo-schedule-editor
                        PROPERTIES INSTALL_RPATH "$ORIGIN/${zavo_libraries_from_program}")
  install(TARGETS zavo-schedule-editor RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
                                               COMPONENT Program)
  install(
    FILES ${PROJECT_SOURCE_DIR}/packaging/zavo-schedule-editor.desktop
    DESTINATION ${CMAKE_INSTALL_DATADIR}/applications
    COMPONENT Program)
  install(
    FILES ${PROJECT_SOURCE_DIR}/resources/icons/zavo-schedule-editor.svg
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps
    COMPONENT Program)
  install(
    DIRECTORY ${PROJECT_SOURCE_DIR}/resources/icons/hicolor
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons
    COMPONENT Program)
  set(zavo_manual_page ${CMAKE_CURRENT_BINARY_DIR}/packaging/zavo-schedule-editor.1)
  configure_file(${PROJECT_SOURCE_DIR}/packaging/zavo-schedule-editor.1.in ${zavo_manual_page} @ONLY)
  install(
    FILES ${zavo_manual_page}
    DESTINATION ${CMAKE_INSTALL_MANDIR}/man1
    COMPONENT Program)
  set(zavo_metainfo
      ${CMAKE_CURRENT_BINARY_DIR}/packaging/org.example.zavo_schedule_editor.metainfo.xml)
  configure_file(${PROJECT_SOURCE_DIR}/packaging/zavo-schedule-editor.metainfo.xml.in
                 ${zavo_metainfo} @ONLY)
  install(
    FILES ${zavo_metainfo}
    DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo
    COMPONENT Program)
endif()
