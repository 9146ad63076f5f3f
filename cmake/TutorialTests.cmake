# tutorial_add_test(NAME label SOURCES ... [LIBRARIES ...] [ENVIRONMENT ...] [TIMEOUT seconds])
#
# One QtTest program, registered with CTest under the label unit, system or desktop. Unit and system tests
# run on Qt's offscreen platform; desktop tests run in a virtual display of their own that scripts/xrun makes.
function(tutorial_add_test name label)
    cmake_parse_arguments(arg "" "TIMEOUT" "SOURCES;LIBRARIES;ENVIRONMENT" ${ARGN})
    if(NOT arg_TIMEOUT)
        set(arg_TIMEOUT 120)
    endif()
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE tutorial_options tutorial_test_support Qt5::Test ${arg_LIBRARIES})
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests")
    target_compile_definitions(${name} PRIVATE
        TUTORIAL_PROGRAM="$<TARGET_FILE:Tutorial>" TUTORIAL_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
    if(label STREQUAL "desktop")
        add_test(NAME ${name} COMMAND "${CMAKE_SOURCE_DIR}/scripts/xrun" $<TARGET_FILE:${name}>)
        set(environment "QT_QPA_PLATFORM=xcb")
    else()
        add_test(NAME ${name} COMMAND ${name})
        set(environment "QT_QPA_PLATFORM=offscreen")
    endif()
    if(label STREQUAL "system" OR label STREQUAL "desktop")
        add_dependencies(${name} Tutorial)
    endif()
    list(APPEND environment "LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/tests/support/lsan.supp:print_suppressions=0"
         "UBSAN_OPTIONS=print_stacktrace=1" ${arg_ENVIRONMENT})
    set_tests_properties(${name} PROPERTIES LABELS ${label} TIMEOUT ${arg_TIMEOUT} ENVIRONMENT "${environment}")
endfunction()
