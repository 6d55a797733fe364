# The target `tidy`: clang-tidy over every source in two passes (tidy.mjs). Most checks run over some
# sources together, again when a source or a header has changed. The analyzer of paths takes longer
# than all else here: it runs over each source once a change of it, and over some of those that include a
# header without a source once a change of that; what it found clean is recorded in analysed.txt, which
# is committed.
file(GLOB_RECURSE tidy_headers CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/*.h)
set(tidy_program ${CMAKE_SOURCE_DIR}/cmake/tidy.mjs)
set(tidy_together 16)

file(GLOB layers RELATIVE ${CMAKE_SOURCE_DIR}/src ${CMAKE_SOURCE_DIR}/src/*)
foreach(layer IN LISTS layers)
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/${layer}/*.cpp)
  list(APPEND tidy_sources ${sources})
  set(part 0)
  while(sources)
    math(EXPR part "${part} + 1")
    list(SUBLIST sources 0 ${tidy_together} together)
    list(REMOVE_ITEM sources ${together})
    set(stamp ${CMAKE_BINARY_DIR}/tidy/rest/${layer}-${part}.ok)
    add_custom_command(
      OUTPUT ${stamp}
      COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/tidy/rest
      COMMAND node ${tidy_program} rest ${CMAKE_BINARY_DIR} ${layer}-${part} ${together}
      COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
      DEPENDS ${together} ${tidy_headers} ${CMAKE_SOURCE_DIR}/.clang-tidy ${tidy_program}
      COMMENT "Checking ${layer}-${part}"
      VERBATIM)
    list(APPEND tidy_stamps ${stamp})
  endwhile()
endforeach()

add_custom_target(tidy_paths
  COMMAND node ${tidy_program} paths ${CMAKE_BINARY_DIR} cmake/analysed.txt ${tidy_sources}
  WORKING_DIRECTORY ${CMAKE_SOURCE_DIR}
  DEPENDS ${tidy_stamps}
  COMMENT "Analysing paths"
  USES_TERMINAL
  VERBATIM)
add_custom_target(tidy DEPENDS tidy_paths)
