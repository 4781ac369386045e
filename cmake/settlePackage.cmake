# CPack runs this after packing. It removes from the package what depends on the folder and its disk, and sets
# all times to SOURCE_DATE_EPOCH.

# An archive lists names in the order of the disk, and their owners.
function(settleArchive archive)
  get_filename_component(parent ${CPACK_TEMPORARY_DIRECTORY} DIRECTORY)
  get_filename_component(name ${CPACK_TEMPORARY_DIRECTORY} NAME)
  execute_process(
    COMMAND tar --create --directory ${parent} --sort=name --mtime=@$ENV{SOURCE_DATE_EPOCH}
      --owner=0 --group=0 --numeric-owner ${name}
    COMMAND gzip -9n OUTPUT_FILE ${archive} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# A .deb counts folders in its installed size, and their size depends on the disk.
function(settleDeb archive)
  set(tree ${CPACK_TOPLEVEL_DIRECTORY}/deb)
  file(REMOVE_RECURSE ${tree})
  execute_process(COMMAND dpkg-deb --raw-extract ${archive} ${tree} COMMAND_ERROR_IS_FATAL ANY)
  file(GLOB_RECURSE files ${tree}/usr/*)
  set(total 0)
  foreach(file IN LISTS files)
    file(SIZE ${file} size)
    math(EXPR total "${total} + (${size} + 1023) / 1024")
  endforeach()
  file(READ ${tree}/DEBIAN/control control)
  string(REGEX REPLACE "Installed-Size: [0-9]+" "Installed-Size: ${total}" control "${control}")
  file(WRITE ${tree}/DEBIAN/control "${control}")
  execute_process(COMMAND find ${tree} -exec touch -hd @$ENV{SOURCE_DATE_EPOCH} {} +
    COMMAND_ERROR_IS_FATAL ANY)
  execute_process(COMMAND dpkg-deb --root-owner-group -Zxz --build ${tree} ${archive}
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
endfunction()

if(DEFINED ENV{SOURCE_DATE_EPOCH})
  foreach(archive IN LISTS CPACK_PACKAGE_FILES)
    if(CPACK_GENERATOR STREQUAL DEB)
      settleDeb(${archive})
    else()
      settleArchive(${archive})
    endif()
  endforeach()
endif()
