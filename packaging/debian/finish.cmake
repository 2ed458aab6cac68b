# Run by CPack once it has made the packages: puts right what it cannot be told otherwise in the
# package of the libraries. The cache of the loader is brought up to date by dpkg's own trigger
# instead of scripts that call ldconfig, and where libraries lie in the folder of their
# architecture, those of two architectures may be installed side by side.

function(zavo_repack package)
  set(folder ${CPACK_TEMPORARY_DIRECTORY}/repacked)
  execute_process(COMMAND dpkg-deb --raw-extract ${package} ${folder} COMMAND_ERROR_IS_FATAL ANY)
  file(REMOVE ${folder}/DEBIAN/postinst ${folder}/DEBIAN/postrm)
  file(WRITE ${folder}/DEBIAN/triggers "activate-noawait ldconfig\n")
  if(CPACK_ZAVO_IS_MULTIARCH)
    file(READ ${folder}/DEBIAN/control control)
    string(REGEX REPLACE "(^|\n)(Architecture: [^\n]*\n)" "\\1\\2Multi-Arch: same\n" control
                         "${control}")
    file(WRITE ${folder}/DEBIAN/control "${control}")
  endif()
  execute_process(COMMAND dpkg-deb --root-owner-group --build ${folder} ${package}
                  OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
  file(REMOVE_RECURSE ${folder})
endfunction()

foreach(package IN LISTS CPACK_PACKAGE_FILES)
  if(package MATCHES "/${CPACK_DEBIAN_RUNTIME_PACKAGE_NAME}_")
    zavo_repack(${package})
  endif()
endforeach()
