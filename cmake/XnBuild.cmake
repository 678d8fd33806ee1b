# Shared rules for every target of the project: warnings, sanitizers, the
# platform directory, and the two helpers that declare a library and its tests.

if(WIN32)
  set(XN_PLATFORM_DIR win)
else()
  set(XN_PLATFORM_DIR posix)
endif()

add_library(xn_options INTERFACE)
target_compile_options(xn_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
  -Wformat=2 -Wimplicit-fallthrough)
if(XN_WARNINGS_AS_ERRORS)
  target_compile_options(xn_options INTERFACE -Werror)
endif()
if(XN_BUILD_FUZZERS)
  # Coverage instrumentation everywhere; only the fuzzer executables link the driver.
  target_compile_options(xn_options INTERFACE
    -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=undefined
    -fno-omit-frame-pointer)
  target_link_options(xn_options INTERFACE -fsanitize=address,undefined)
endif()
if(XN_SANITIZE)
  target_compile_options(xn_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(xn_options INTERFACE -fsanitize=address,undefined)
endif()
if(XN_TSAN)
  target_compile_options(xn_options INTERFACE -fsanitize=thread -fno-omit-frame-pointer)
  target_link_options(xn_options INTERFACE -fsanitize=thread)
endif()

# xn_library(<name> SOURCES ... [PLATFORM_SOURCES ...] [DEPS ...])
#
# One static library per namespace directory. The directory's parent goes on the
# include path, so users write #include "<name>/Header.h". PLATFORM_SOURCES are
# file names inside the platform directory (posix/ or win/) that the build picks.
function(xn_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;PLATFORM_SOURCES;DEPS" ${ARGN})
  set(platform_sources)
  foreach(source IN LISTS ARG_PLATFORM_SOURCES)
    list(APPEND platform_sources ${XN_PLATFORM_DIR}/${source})
  endforeach()
  add_library(${name} STATIC ${ARG_SOURCES} ${platform_sources})
  set_property(GLOBAL APPEND PROPERTY XN_LIBRARIES ${name})
  get_filename_component(parent ${CMAKE_CURRENT_SOURCE_DIR} DIRECTORY)
  target_include_directories(${name} PUBLIC ${parent})
  target_link_libraries(${name} PUBLIC ${ARG_DEPS} PRIVATE xn_options)
  if(XN_BUILD_TESTS AND EXISTS ${CMAKE_CURRENT_SOURCE_DIR}/tests/CMakeLists.txt)
    add_subdirectory(tests)
  endif()
endfunction()

# xn_test(<name> SOURCES ... DEPS ... [LABELS ...] [ORDINARY_LINK])
#
# A GoogleTest executable whose cases CTest lists one by one. Tests that cross
# threads carry the label "threads", which the tsan preset runs. ORDINARY_LINK
# links the libraries as a plain static link would, keeping only what is
# referenced, rather than whole.
function(xn_test name)
  cmake_parse_arguments(ARG "ORDINARY_LINK" "" "SOURCES;DEPS;LABELS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE ${ARG_DEPS} GTest::gtest GTest::gmock GTest::gtest_main
                                        xn_options)
  if(NOT ARG_ORDINARY_LINK)
    xn_executable(${name})
  endif()
  gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 30
                       PROPERTIES LABELS "${ARG_LABELS}")
endfunction()

# xn_executable(<target>)
#
# Parameters, log sources and catalogs register themselves from static objects
# that nothing else references, so every program links the project's libraries
# whole. xn_link_whole_archives() applies that once all libraries are known.
# A whole archive may appear only once on a link line, so DEPS lists a library
# before the libraries it builds on (as a static link line would order them).
function(xn_executable target)
  set_property(GLOBAL APPEND PROPERTY XN_EXECUTABLES ${target})
endfunction()

function(xn_link_whole_archives)
  get_property(libraries GLOBAL PROPERTY XN_LIBRARIES)
  get_property(executables GLOBAL PROPERTY XN_EXECUTABLES)
  list(JOIN libraries "," joined)
  foreach(executable IN LISTS executables)
    set_property(TARGET ${executable} PROPERTY LINK_LIBRARY_OVERRIDE "WHOLE_ARCHIVE,${joined}")
  endforeach()
endfunction()

# xn_fuzzer(<name> SOURCES ... DEPS ...)
#
# A libFuzzer executable fuzz_<name>; its seed corpus lives in corpus/<name>/.
function(xn_fuzzer name)
  cmake_parse_arguments(ARG "" "" "SOURCES;DEPS" ${ARGN})
  add_executable(fuzz_${name} ${ARG_SOURCES})
  target_link_libraries(fuzz_${name} PRIVATE ${ARG_DEPS} xn_options)
  target_link_options(fuzz_${name} PRIVATE -fsanitize=fuzzer)
  xn_executable(fuzz_${name})
  # The fuzz build makes only what the fuzzers need.
  if(NOT TARGET fuzzers)
    add_custom_target(fuzzers)
  endif()
  add_dependencies(fuzzers fuzz_${name})
endfunction()

# xn_catalog(<target> [NAME <catalog>] [PO_DIR <dir>] [KEYS_ONLY | TABLE_ONLY])
#
# The translation catalog of a library, from one .po file per language in
# PO_DIR (default: po/ beside the CMakeLists). msgfmt -c and the catalog
# generator check the files (conventions: xncore/base/loc/generator/TRANSLATORS.md),
# and the generator writes the header <library>/TextKeys.h of key constants, on the
# target's include path, and the table that registers the texts. The base
# library, which the translations build on, takes only the header
# (KEYS_ONLY), and the translations library compiles its table (TABLE_ONLY).
find_program(XN_MSGFMT msgfmt REQUIRED)
set(XN_MSGFMT_CHECK ${CMAKE_CURRENT_LIST_DIR}/XnMsgfmtCheck.cmake)

function(xn_catalog target)
  cmake_parse_arguments(ARG "KEYS_ONLY;TABLE_ONLY" "NAME;PO_DIR" "" ${ARGN})
  if(NOT ARG_NAME)
    set(ARG_NAME ${target})
  endif()
  if(NOT ARG_PO_DIR)
    set(ARG_PO_DIR ${CMAKE_CURRENT_SOURCE_DIR}/po)
  endif()
  get_filename_component(library_dir ${ARG_PO_DIR} DIRECTORY)
  get_filename_component(library_dir ${library_dir} NAME)
  file(GLOB po_files CONFIGURE_DEPENDS ${ARG_PO_DIR}/*.po)
  list(SORT po_files)
  set(out_dir ${CMAKE_CURRENT_BINARY_DIR}/catalog_${ARG_NAME})
  set(outputs)
  set(arguments --catalog ${ARG_NAME})
  if(NOT ARG_TABLE_ONLY)
    set(header ${out_dir}/include/${library_dir}/TextKeys.h)
    list(APPEND outputs ${header})
    list(APPEND arguments --keys ${header})
    if(NOT ARG_KEYS_ONLY)
      list(APPEND arguments --register)
    endif()
    target_include_directories(${target} PUBLIC ${out_dir}/include)
  endif()
  if(NOT ARG_KEYS_ONLY)
    set(table ${out_dir}/${ARG_NAME}Catalog.cpp)
    list(APPEND outputs ${table})
    list(APPEND arguments --table ${table})
  endif()
  add_custom_command(
    OUTPUT ${outputs}
    COMMAND ${CMAKE_COMMAND} -DMSGFMT=${XN_MSGFMT} -P ${XN_MSGFMT_CHECK} ${po_files}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${out_dir}/include/${library_dir}
    COMMAND $<TARGET_FILE:locgen> ${arguments} ${po_files}
    DEPENDS locgen ${XN_MSGFMT_CHECK} ${po_files}
    COMMENT "Generating the translation catalog ${ARG_NAME}"
    VERBATIM)
  target_sources(${target} PRIVATE ${outputs})
endfunction()
