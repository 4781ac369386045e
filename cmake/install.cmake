# What `cmake --install` puts where. Programs that use the library find it by find_package(sorvik).
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)
set(SORVIK_ZSH_COMPLETIONS ${CMAKE_INSTALL_DATADIR}/zsh/site-functions
    CACHE STRING "Where zsh looks for completions")

install(TARGETS sorvikPre)
foreach(program IN ITEMS sorvikCheck sorvikView)
  if(TARGET ${program})
    install(TARGETS ${program})
  endif()
endforeach()
install(TARGETS sorvik EXPORT sorvik INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/sorvik)
foreach(header IN LISTS SORVIK_PUBLIC_HEADERS)
  get_filename_component(folder ${header} DIRECTORY)
  install(FILES src/${header} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/sorvik/${folder})
endforeach()

set(configFolder ${CMAKE_INSTALL_LIBDIR}/cmake/sorvik)
install(EXPORT sorvik FILE sorvikConfig.cmake NAMESPACE sorvik:: DESTINATION ${configFolder})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/sorvikConfigVersion.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/sorvikConfigVersion.cmake DESTINATION ${configFolder})

foreach(command IN ITEMS sorvik-run sorvik-plot)
  # They have the version, and work beside the program in the build folder as well.
  configure_file(tools/${command} ${command} @ONLY USE_SOURCE_PERMISSIONS)
  install(PROGRAMS ${PROJECT_BINARY_DIR}/${command} TYPE BIN)
  configure_file(tools/${command}.1.in ${command}.1 @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/${command}.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endforeach()
if(WIN32)
  configure_file(tools/sorvik-run.cmd sorvik-run.cmd @ONLY NEWLINE_STYLE CRLF) # cmd loses labels otherwise
  install(PROGRAMS ${PROJECT_BINARY_DIR}/sorvik-run.cmd TYPE BIN)
endif()
include(cmake/installDocuments.cmake)
install(DIRECTORY share/plots DESTINATION ${CMAKE_INSTALL_DATADIR}/sorvikPre USE_SOURCE_PERMISSIONS)

# Shells load a completion by the name of the command; a file may complete several commands.
set(completions share/completions)
set(completed sorvikPre:sorvikPre sorvik-run:sorvikPre sorvik-plot:sorvik-plot sorvikCheck:sorvikCheck
  sorvikView:sorvikCheck)
foreach(pair IN LISTS completed)
  string(REPLACE ":" ";" pair ${pair})
  list(POP_FRONT pair command file)
  install(FILES ${completions}/${file}.bash RENAME ${command}
    DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
  if(EXISTS ${PROJECT_SOURCE_DIR}/${completions}/${command}.fish)
    set(file ${command})
  endif()
  install(FILES ${completions}/${file}.fish RENAME ${command}.fish
    DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d)
endforeach()
install(FILES ${completions}/_sorvikPre ${completions}/_sorvik-plot ${completions}/_sorvikCheck
  DESTINATION ${SORVIK_ZSH_COMPLETIONS})
