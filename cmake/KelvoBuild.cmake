# How every library of the project is built. A library exports its own folder
# only, so that a file can include just what its library links: includes go
# down the layers, never up, or the build fails.

add_library(kelvo_options INTERFACE)
target_compile_options(
  kelvo_options
  INTERFACE -Wall
            -Wextra
            -Wpedantic
            -Wshadow
            -Wconversion
            -Wno-sign-conversion
            -Wno-missing-field-initializers # records have defaults
            -Wnon-virtual-dtor
            -Woverloaded-virtual
            -Werror)
target_compile_definitions(
  kelvo_options INTERFACE QT_NO_CAST_FROM_BYTEARRAY QT_NO_FOREACH
                          QT_DISABLE_DEPRECATED_BEFORE=0x060400)
if(KELVO_SANITIZE)
  target_compile_options(kelvo_options INTERFACE -fsanitize=address,undefined -fno-omit-frame-pointer
                                                 -fno-sanitize-recover=undefined)
  target_link_options(kelvo_options INTERFACE -fsanitize=address,undefined)
endif()
if(KELVO_SANITIZE_THREADS)
  target_compile_options(kelvo_options INTERFACE -fsanitize=thread -fno-omit-frame-pointer)
  target_link_options(kelvo_options INTERFACE -fsanitize=thread)
endif()

# What users run: code that nothing refers to is left out, and the rest is small, because most of it
# runs once, and what is read and mapped before the first frame counts. What works on many values
# (FAST, below) is optimized for time.
set(for_users $<NOT:$<CONFIG:Debug>>)
target_compile_options(kelvo_options INTERFACE $<${for_users}:-ffunction-sections>
                                               $<${for_users}:-fdata-sections>)
target_link_options(kelvo_options INTERFACE $<${for_users}:-Wl,--gc-sections> $<${for_users}:-Wl,-O1>)

# kelvo_library(NAME [SHARED] [FAST] SOURCES ... LINK ...)
function(kelvo_library name)
  cmake_parse_arguments(ARG "SHARED;FAST" "" "SOURCES;LINK;PRIVATE_LINK" ${ARGN})
  if(ARG_SHARED)
    add_library(${name} SHARED ${ARG_SOURCES})
    install(TARGETS ${name} LIBRARY DESTINATION lib/kelvo)
    set_target_properties(${name} PROPERTIES INSTALL_RPATH "$ORIGIN" BUILD_WITH_INSTALL_RPATH ON)
  else()
    add_library(${name} STATIC ${ARG_SOURCES})
  endif()
  if(NOT ARG_FAST)
    target_compile_options(${name} PRIVATE $<${for_users}:-Os>)
  endif()
  target_include_directories(${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
  target_link_libraries(${name} PUBLIC ${ARG_LINK} PRIVATE kelvo_options ${ARG_PRIVATE_LINK})
endfunction()

# The tests about background work, which the thread sanitizer runs too.
add_custom_target(background_tests)

# kelvo_test(NAME [BACKGROUND] SOURCES ... LINK ...): one Qt Test program, run
# offscreen with a home folder of its own; a skipped test counts as failed.
function(kelvo_test name)
  cmake_parse_arguments(ARG "BACKGROUND" "" "SOURCES;LINK" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests/support)
  target_link_libraries(${name} PRIVATE kelvo_options Qt6::Test ${ARG_LINK})
  target_compile_definitions(${name} PRIVATE KELVO_TEST_DATA="${CMAKE_SOURCE_DIR}/tests/data"
                                             KELVO_SOURCE_DIR="${CMAKE_SOURCE_DIR}"
                                             KELVO_BUILD_DIR="${CMAKE_BINARY_DIR}")
  add_test(NAME ${name} COMMAND ${CMAKE_SOURCE_DIR}/tests/run-isolated $<TARGET_FILE:${name}>)
  set_tests_properties(${name} PROPERTIES TIMEOUT 300 FAIL_REGULAR_EXPRESSION "SKIP   :")
  if(KELVO_SANITIZE_THREADS)
    target_sources(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests/support/clone_for_tsan.cpp)
  endif()
  if(ARG_BACKGROUND)
    add_dependencies(background_tests ${name})
    set_tests_properties(${name} PROPERTIES LABELS background)
  endif()
endfunction()
