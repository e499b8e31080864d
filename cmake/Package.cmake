# What lies in a hub's `scripts` folder: the program itself, which takes its own folder for the hub's scripts, and a
# folder of what is to be read. `cpack` makes an archive of both, to unpack there.
install(TARGETS quillfen RUNTIME DESTINATION .)
install(FILES LICENSE docs/guide.md DESTINATION quillfen-docs)
install(DIRECTORY docs/pictures DESTINATION quillfen-docs)
if(WIN32) # where no system package brings Qt along; scripts/windows makes the archive
  install(TARGETS quillfen_check RUNTIME DESTINATION .) # a program with windows can't speak on a console there
  foreach(library Core Gui Network Widgets)
    install(FILES $<TARGET_FILE:Qt6::${library}> DESTINATION .)
  endforeach()
  foreach(plugin platforms/qwindows styles/qwindowsvistastyle tls/qschannelbackend)
    get_filename_component(folder ${plugin} DIRECTORY)
    install(FILES ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_PLUGINS}/${plugin}.dll DESTINATION ${folder})
  endforeach()
  foreach(library libgcc_s_seh-1.dll libstdc++-6.dll libwinpthread-1.dll)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${library}
      OUTPUT_VARIABLE file OUTPUT_STRIP_TRAILING_WHITESPACE)
    install(FILES ${file} DESTINATION .)
  endforeach()
  return()
endif()
set(CPACK_GENERATOR TGZ)
set(CPACK_INCLUDE_TOPLEVEL_DIRECTORY OFF)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
include(CPack)
