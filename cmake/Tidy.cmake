# The target `tidy`: clang-tidy over every source in two passes (tidy.mjs), each again when a source
# or a header has changed. Paths are analysed source by source, the rest is checked some together.
file(GLOB_RECURSE tidy_headers CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/*.h)
set(tidy_program ${CMAKE_SOURCE_DIR}/cmake/tidy.mjs)
set(tidy_together 16)

# One pass over the sources that follow; adds its stamp to tidy_stamps.
function(tarnloft_tidy pass name)
  set(stamp ${CMAKE_BINARY_DIR}/tidy/${pass}/${name}.ok)
  get_filename_component(folder ${stamp} DIRECTORY)
  set(label "")
  if(pass STREQUAL rest)
    set(label ${name})
  endif()
  add_custom_command(
    OUTPUT ${stamp}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${folder}
    COMMAND node ${tidy_program} ${pass} ${CMAKE_BINARY_DIR} ${label} ${ARGN}
    COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
    DEPENDS ${ARGN} ${tidy_headers} ${CMAKE_SOURCE_DIR}/.clang-tidy ${tidy_program}
    COMMENT "Checking ${name}"
    VERBATIM)
  set(tidy_stamps ${tidy_stamps} ${stamp} PARENT_SCOPE)
endfunction()

file(GLOB layers RELATIVE ${CMAKE_SOURCE_DIR}/src ${CMAKE_SOURCE_DIR}/src/*)
foreach(layer IN LISTS layers)
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/${layer}/*.cpp)
  foreach(source IN LISTS sources)
    file(RELATIVE_PATH name ${CMAKE_SOURCE_DIR}/src ${source})
    tarnloft_tidy(paths ${name} ${source})
  endforeach()
  set(part 0)
  while(sources)
    math(EXPR part "${part} + 1")
    list(SUBLIST sources 0 ${tidy_together} together)
    list(REMOVE_ITEM sources ${together})
    tarnloft_tidy(rest ${layer}-${part} ${together})
  endwhile()
endforeach()

add_custom_target(tidy DEPENDS ${tidy_stamps})
