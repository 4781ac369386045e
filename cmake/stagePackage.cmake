# CPack runs this between installation and packing.
function(addDebianFiles)
  set(share ${CPACK_TEMPORARY_DIRECTORY}/usr/share)
  set(documents ${share}/doc/${CPACK_DEBIAN_PACKAGE_NAME})
  string(TIMESTAMP now "%a, %d %b %Y %H:%M:%S +0000" UTC)
  string(TIMESTAMP year "%Y" UTC)
  set(version ${CPACK_PACKAGE_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})
  file(WRITE ${documents}/copyright "Copyright (C) ${year} ${CPACK_PACKAGE_VENDOR}\n")
  file(WRITE ${documents}/changelog.Debian
"${CPACK_DEBIAN_PACKAGE_NAME} (${version}) unstable; urgency=medium

  * Version ${CPACK_PACKAGE_VERSION}; see changelog.gz.

 -- ${CPACK_PACKAGE_CONTACT}  ${now}
")
  file(RENAME ${documents}/CHANGELOG.md ${documents}/changelog)
  file(GLOB pages ${share}/man/man1/*.1)
  execute_process(COMMAND gzip -9n ${documents}/changelog ${documents}/changelog.Debian ${pages}
    COMMAND_ERROR_IS_FATAL ANY)
  execute_process(COMMAND ${CPACK_SORVIK_STRIP} --strip-unneeded --remove-section=.comment --remove-section=.note
    ${CPACK_TEMPORARY_DIRECTORY}/usr/lib/libsorvik.a COMMAND_ERROR_IS_FATAL ANY)
endfunction()

if(CPACK_GENERATOR STREQUAL DEB)
  addDebianFiles()
endif()
