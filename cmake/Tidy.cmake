# The target `tidy`: clang-tidy over every source, each again only when it or a header has changed.
file(GLOB_RECURSE tidy_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/*.cpp)
file(GLOB_RECURSE tidy_headers CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/*.h)

foreach(source IN LISTS tidy_sources)
  file(RELATIVE_PATH name ${CMAKE_SOURCE_DIR} ${source})
  set(stamp ${CMAKE_BINARY_DIR}/tidy/${name}.ok)
  get_filename_component(folder ${stamp} DIRECTORY)
  add_custom_command(
    OUTPUT ${stamp}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${folder}
    COMMAND ${CMAKE_SOURCE_DIR}/cmake/quiet-tidy -p ${CMAKE_BINARY_DIR} --quiet ${source}
    COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
    DEPENDS ${source} ${tidy_headers} ${CMAKE_SOURCE_DIR}/.clang-tidy
    COMMENT "Checking ${name}"
    VERBATIM)
  list(APPEND tidy_stamps ${stamp})
endforeach()

add_custom_target(tidy DEPENDS ${tidy_stamps})
