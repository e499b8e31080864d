# Our icons are SVG files, drawn as the program is built: in the sizes of toolbars and trees at every usual scale, and the
# program's own as large as its box and the desktop show it.
find_program(RSVG_CONVERT rsvg-convert REQUIRED)

set(drawn_sides 16 20 24 30 32 36 40 48 60 64 72)
set(large_sides 96 128 192 256)
set(drawn_icons ${CMAKE_BINARY_DIR}/icons)

# Adds the pictures of ICON.svg... to a target's resources as :/icons/ICON-SIDE.png.
function(add_drawn_icons target)
  foreach(icon IN LISTS ARGN)
    get_filename_component(name ${icon} NAME_WE)
    set(sides ${drawn_sides})
    if(name STREQUAL PROJECT_NAME)
      list(APPEND sides ${large_sides})
    endif()
    set(pictures)
    set(drawing)
    foreach(side IN LISTS sides)
      list(APPEND pictures ${drawn_icons}/${name}-${side}.png)
      list(APPEND drawing COMMAND ${RSVG_CONVERT} -w ${side} -h ${side} -o ${name}-${side}.png ${icon})
      string(APPEND entries "<file>${name}-${side}.png</file>\n")
    endforeach()
    add_custom_command(OUTPUT ${pictures} ${drawing} DEPENDS ${icon}
      WORKING_DIRECTORY ${drawn_icons} COMMENT "Drawing icon ${name}" VERBATIM)
    list(APPEND all_pictures ${pictures})
  endforeach()

  file(CONFIGURE OUTPUT ${drawn_icons}/icons.qrc
    CONTENT "<RCC><qresource prefix=\"/icons\">\n${entries}</qresource></RCC>\n")
  add_custom_command(OUTPUT ${drawn_icons}/icons_resource.cpp
    COMMAND Qt6::rcc --name icons --no-compress -o icons_resource.cpp icons.qrc
    DEPENDS ${drawn_icons}/icons.qrc ${all_pictures}
    WORKING_DIRECTORY ${drawn_icons} VERBATIM)
  set_source_files_properties(${drawn_icons}/icons_resource.cpp PROPERTIES SKIP_AUTOGEN ON)
  target_sources(${target} PRIVATE ${drawn_icons}/icons_resource.cpp)

  set(sides ${drawn_sides} ${large_sides})
  list(JOIN sides "," sides)
  set_source_files_properties(shell/icons/icons.cpp PROPERTIES COMPILE_DEFINITIONS QUILLFEN_DRAWN_SIDES=${sides})
endfunction()
