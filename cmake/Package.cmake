# What lies in a hub's `scripts` folder: the program itself, which takes its own folder for the hub's scripts, and a
# folder of what is to be read. `cpack` makes an archive of both, to unpack there.
install(TARGETS quillfen RUNTIME DESTINATION .)
install(FILES LICENSE docs/guide.md DESTINATION quillfen-docs)
install(DIRECTORY docs/pictures DESTINATION quillfen-docs)
if(WIN32) # where no system package brings Qt along
  install(CODE "set(QT_DEPLOY_BIN_DIR .)")
  qt_generate_deploy_app_script(TARGET quillfen FILENAME_VARIABLE deploy_qt NO_UNSUPPORTED_PLATFORM_ERROR)
  install(SCRIPT ${deploy_qt})
  set(CPACK_GENERATOR ZIP)
else()
  set(CPACK_GENERATOR TGZ)
endif()
set(CPACK_INCLUDE_TOPLEVEL_DIRECTORY OFF)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
include(CPack)
