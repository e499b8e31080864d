# The program's icon, manifest and version, as Windows reads them from its file.
enable_language(RC)
find_program(ICOTOOL icotool REQUIRED)

function(add_windows_resource target)
  set(program_icon ${CMAKE_CURRENT_BINARY_DIR}/${target}.ico)
  set(pictures)
  foreach(side 16 20 24 32 40 48 64)
    list(APPEND pictures ${drawn_icons}/${target}-${side}.png)
  endforeach()
  set(largest ${drawn_icons}/${target}-256.png)
  add_custom_command(OUTPUT ${program_icon}
    COMMAND ${ICOTOOL} --create -o ${program_icon} ${pictures} --raw=${largest}
    DEPENDS ${pictures} ${largest} VERBATIM)
  configure_file(app/quillfen.manifest.in quillfen.manifest @ONLY)
  configure_file(app/quillfen.rc.in quillfen.rc @ONLY)
  target_sources(${target} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/quillfen.rc)
  set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/quillfen.rc PROPERTIES
    OBJECT_DEPENDS "${program_icon};${CMAKE_CURRENT_BINARY_DIR}/quillfen.manifest")
endfunction()
