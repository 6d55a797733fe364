# Settings that every target shares, and the functions by which targets are made.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_AUTOMOC ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
endif()
find_program(MOLD_PROGRAM mold)
if(MOLD_PROGRAM)
  add_link_options(-fuse-ld=mold)
endif()

option(TARNLOFT_WERROR "Treat warnings as errors" OFF)
set(TARNLOFT_SANITIZERS "" CACHE STRING "Sanitizers to build with, such as address,undefined")

add_compile_options(
  -Wall -Wextra -Wshadow
  "$<$<COMPILE_LANGUAGE:CXX>:-Wnon-virtual-dtor;-Woverloaded-virtual;-Wold-style-cast>")
if(TARNLOFT_WERROR)
  add_compile_options(-Werror)
endif()
if(TARNLOFT_SANITIZERS)
  add_compile_options(-fsanitize=${TARNLOFT_SANITIZERS} -fno-sanitize-recover=all
                      -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${TARNLOFT_SANITIZERS})
endif()

if(TARNLOFT_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)  # coverage, which steers the fuzzers
endif()

# One library per source folder. LINKS names the folders below it (and only those) that it may use;
# PRIVATE_LINKS the libraries that its sources use and its headers don't show. A folder that holds no
# C++ yet is an interface target, so that its place among the layers is told from the start.
function(tarnloft_layer name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS;PRIVATE_LINKS")
  set(target tarnloft_${name})
  list(TRANSFORM arg_LINKS PREPEND tarnloft_)
  if(arg_SOURCES)
    add_library(${target} STATIC ${arg_SOURCES})
    target_include_directories(${target} PUBLIC ${CMAKE_SOURCE_DIR}/src)
    target_link_libraries(${target} PUBLIC Qt6::Core ${arg_LINKS} PRIVATE ${arg_PRIVATE_LINKS})
  else()
    add_library(${target} INTERFACE)
    target_include_directories(${target} INTERFACE ${CMAKE_SOURCE_DIR}/src)
    target_link_libraries(${target} INTERFACE Qt6::Core ${arg_LINKS})
  endif()
endfunction()

# A library that is loaded while a program runs, of which only the entry is seen.
function(tarnloft_module name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS")
  list(TRANSFORM arg_LINKS PREPEND tarnloft_)
  add_library(${name} MODULE ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE ${arg_LINKS})
  # Only the entries are seen from outside; each other symbol would be looked up at every start.
  target_link_options(${name} PRIVATE -Wl,--exclude-libs,ALL)
  set_target_properties(${name} PROPERTIES
    LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}
    CXX_VISIBILITY_PRESET hidden
    BUILD_RPATH "$ORIGIN"
    INSTALL_RPATH "$ORIGIN")
  install(TARGETS ${name} LIBRARY DESTINATION ${TARNLOFT_MODULES})
endfunction()

# Compiles generated sources of a target some together, as nearly all of their time goes to the
# toolkit's headers. CMake would leave out those with options of their own.
function(tarnloft_together target)
  set(pragmas "")
  foreach(warning shadow old-style-cast unused-variable unused-but-set-variable)
    string(APPEND pragmas "#pragma GCC diagnostic ignored \"-W${warning}\"\n")
  endforeach()
  set_target_properties(${target} PROPERTIES
    UNITY_BUILD ON
    UNITY_BUILD_MODE GROUP
    UNITY_BUILD_CODE_BEFORE_INCLUDE "${pragmas}")
  set(count 0)
  foreach(source IN LISTS ARGN)
    math(EXPR group "${count} / 8")
    math(EXPR count "${count} + 1")
    set_source_files_properties(${source} PROPERTIES UNITY_GROUP together_${group})
  endforeach()
endfunction()

get_target_property(view_compiler Qt6::qmlcachegen LOCATION)
find_package(Perl REQUIRED)
configure_file(${CMAKE_CURRENT_LIST_DIR}/compile-view.in ${CMAKE_BINARY_DIR}/compile-view @ONLY)

# The QML module TarnLoft.NAME of a library, which it makes: SOURCES and QML_FILES as for
# qt_add_qml_module, LINKS as above, IMPORTS the modules whose types its C++ shows. A program that
# uses the module links TARGET and TARGETplugin and says Q_IMPORT_QML_PLUGIN(TarnLoft_NAMEPlugin).
# Qt 6.4 looks for modules in programs under this prefix alone. Files may stand in folders beneath
# that of the module, which is flat.
function(tarnloft_qml_module target name)
  cmake_parse_arguments(PARSE_ARGV 2 arg "" "" "SOURCES;QML_FILES;LINKS;PRIVATE_LINKS;IMPORTS")
  list(TRANSFORM arg_LINKS PREPEND tarnloft_)
  set(rooms ${CMAKE_CURRENT_SOURCE_DIR})
  foreach(source IN LISTS arg_SOURCES)
    get_filename_component(room ${CMAKE_CURRENT_SOURCE_DIR}/${source} DIRECTORY)
    list(APPEND rooms ${room})
  endforeach()
  list(REMOVE_DUPLICATES rooms)
  foreach(view IN LISTS arg_QML_FILES)
    get_filename_component(name_alone ${view} NAME)
    set_source_files_properties(${view} PROPERTIES QT_RESOURCE_ALIAS ${name_alone})
  endforeach()
  qt_add_library(${target} STATIC)
  set_target_properties(${target} PROPERTIES
    QT_QMLCACHEGEN_EXECUTABLE ${CMAKE_BINARY_DIR}/compile-view)
  qt_add_qml_module(${target}
    URI TarnLoft.${name}
    VERSION 1.0
    RESOURCE_PREFIX /qt-project.org/imports
    OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/qml/TarnLoft/${name}
    IMPORT_PATH ${CMAKE_BINARY_DIR}/qml
    DEPENDENCIES QtQuick ${arg_IMPORTS}
    SOURCES ${arg_SOURCES}
    QML_FILES ${arg_QML_FILES})
  # The registration of types includes headers by their bare names.
  target_include_directories(${target} PUBLIC ${CMAKE_SOURCE_DIR}/src PRIVATE ${rooms})
  target_link_libraries(${target} PUBLIC Qt6::Quick ${arg_LINKS} PRIVATE ${arg_PRIVATE_LINKS})
  get_target_property(generated ${target} SOURCES)
  list(FILTER generated INCLUDE REGEX "/qmlcache/.*\\.cpp$")
  tarnloft_together(${target} ${generated})
endfunction()

# One test program: NAME.cpp, the layers that it tests, and the shared helpers. With DISPLAY it runs
# with an X server and a session bus of its own, with BUS with the latter alone.
function(tarnloft_test name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "BUS;DISPLAY" "" "LINKS;DEFINITIONS")
  list(TRANSFORM arg_LINKS PREPEND tarnloft_)
  add_executable(${name} ${name}.cpp)
  target_link_libraries(${name} PRIVATE Qt6::Test tarnloft_testing ${arg_LINKS})
  target_compile_definitions(${name} PRIVATE ${arg_DEFINITIONS})
  set(launcher "")
  if(arg_BUS)
    set(launcher ${CMAKE_SOURCE_DIR}/tests/testing/with-session)
  endif()
  if(arg_DISPLAY)
    set(launcher ${CMAKE_SOURCE_DIR}/tests/testing/with-display)
  endif()
  add_test(NAME ${name} COMMAND ${launcher} $<TARGET_FILE:${name}>)
  set_tests_properties(${name} PROPERTIES TIMEOUT 300 ENVIRONMENT
    "QTEST_DISABLE_STACK_DUMP=1;LC_ALL=C.UTF-8")
endfunction()
