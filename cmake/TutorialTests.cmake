# What every test runs in: nothing of it depends on who runs it, and where.
set(runtime_dir "${CMAKE_BINARY_DIR}/runtime") # Qt complains when there is none, or when others may look into it
file(MAKE_DIRECTORY "${runtime_dir}")
file(CHMOD "${runtime_dir}" PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
set(TUTORIAL_TEST_ENVIRONMENT
    "LC_ALL=C.UTF-8"
    "XDG_DATA_HOME=${runtime_dir}/data"
    "LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/tests/support/lsan.supp:print_suppressions=0"
    "UBSAN_OPTIONS=print_stacktrace=1")

if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    set(linkers lld)
else()
    set(linkers gold lld)
endif()
foreach(linker IN LISTS linkers)
    find_program(TUTORIAL_LD_${linker} ld.${linker})
    if(TUTORIAL_LD_${linker} AND NOT TUTORIAL_TEST_LINKER)
        set(TUTORIAL_TEST_LINKER ${linker})
    endif()
endforeach()

# What moc makes of those of a target's sources that have a Q_OBJECT. For hundreds of programs AUTOMOC takes too long: it
# starts itself for each, and gives it one more file to compile.
function(tutorial_run_moc target)
    set_target_properties(${target} PROPERTIES AUTOMOC OFF)
    set(folder "${CMAKE_CURRENT_BINARY_DIR}/${target}_moc")
    file(MAKE_DIRECTORY "${folder}")
    target_include_directories(${target} PRIVATE "${folder}")
    foreach(source IN LISTS ARGN)
        get_filename_component(source "${source}" ABSOLUTE)
        if(NOT EXISTS "${source}")
            continue() # it is made, too
        endif()
        file(STRINGS "${source}" marks REGEX "^ *Q_OBJECT")
        get_filename_component(name "${source}" NAME_WE)
        get_filename_component(ending "${source}" EXT)
        if(ending STREQUAL ".h")
            set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${source}")
            set(made "${folder}/moc_${name}.cpp")
        else()
            set(made "${folder}/${name}.moc")
        endif()
        if(marks)
            cmake_language(CALL qt${QT_VERSION_MAJOR}_generate_moc "${source}" "${made}")
            target_sources(${target} PRIVATE "${made}")
        endif()
    endforeach()
endfunction()

# tutorial_add_test(NAME label SOURCES ... [LIBRARIES ...] [ENVIRONMENT ...] [TIMEOUT seconds] [WINDOW_MANAGERS ...])
#
# One QtTest program, registered with CTest under the label unit, system or desktop. Unit and system tests
# run on Qt's offscreen platform; desktop tests run in a virtual display of their own that scripts/xrun makes,
# once under each of WINDOW_MANAGERS (xfwm4 when none is named): NAME under the first, NAME_<other> under the others.
function(tutorial_add_test name label)
    cmake_parse_arguments(arg "" "TIMEOUT" "SOURCES;LIBRARIES;ENVIRONMENT;WINDOW_MANAGERS" ${ARGN})
    if(NOT arg_TIMEOUT)
        set(arg_TIMEOUT 300)
    endif()
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE tutorial_options tutorial_test_support Qt${QT_VERSION_MAJOR}::Test ${arg_LIBRARIES})
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests" TUTORIAL_TEST ON)
    tutorial_run_moc(${name} ${arg_SOURCES})
    # A hundred programs are linked, and GNU's usual linker takes five times as long.
    if(TUTORIAL_TEST_LINKER)
        target_link_options(${name} PRIVATE "-fuse-ld=${TUTORIAL_TEST_LINKER}")
    endif()
    # What a test does itself needs little speed, and a third of the time to compile it is the optimiser's.
    target_compile_options(${name} PRIVATE $<$<CONFIG:Release>:-O1>)
    target_compile_definitions(${name} PRIVATE
        TUTORIAL_PROGRAM="$<TARGET_FILE:Tutorial>" TUTORIAL_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
    if(label STREQUAL "system" OR label STREQUAL "desktop")
        add_dependencies(${name} Tutorial)
    endif()

    if(label STREQUAL "desktop")
        tutorial_add_desktop_run(${name} "${arg_WINDOW_MANAGERS}" ${arg_TIMEOUT} "${arg_ENVIRONMENT}" $<TARGET_FILE:${name}>)
    else()
        add_test(NAME ${name} COMMAND ${name})
        set_tests_properties(${name} PROPERTIES LABELS ${label} TIMEOUT ${arg_TIMEOUT}
            ENVIRONMENT "${TUTORIAL_TEST_ENVIRONMENT};QT_QPA_PLATFORM=offscreen;XDG_RUNTIME_DIR=${runtime_dir};${arg_ENVIRONMENT}")
    endif()
endfunction()

# tutorial_add_desktop_run(NAME "window managers" timeout "environment" COMMAND...)
#
# Registers a command as desktop tests, one under each window manager. tutorial_add_test uses it for test programs.
function(tutorial_add_desktop_run name window_managers timeout environment)
    # The display ends before ctest loses patience, so that nothing of it stays behind, however long it took to begin.
    math(EXPR limit "${timeout} - 60")
    if(NOT window_managers)
        set(window_managers xfwm4)
    endif()
    list(GET window_managers 0 first)
    foreach(manager IN LISTS window_managers)
        set(test ${name})
        if(NOT manager STREQUAL first)
            string(APPEND test "_${manager}")
        endif()
        add_test(NAME ${test} COMMAND "${CMAKE_SOURCE_DIR}/scripts/xrun" ${ARGN})
        # The cost lets ctest begin with the longest, before it has measured any.
        set_tests_properties(${test} PROPERTIES LABELS desktop TIMEOUT ${timeout} COST ${timeout}
            ENVIRONMENT "${TUTORIAL_TEST_ENVIRONMENT};WM=${manager};LIMIT=${limit};${environment}")
    endforeach()
endfunction()

# tutorial_add_plays(NAME timeout ARGUMENTS...)
#
# Lets the pilot play lessons, as a desktop test: scripts/play-all with these arguments.
function(tutorial_add_plays name timeout)
    # The fast clock is a library that is loaded ahead of all others, as that of the sanitizers wants to be.
    find_program(TUTORIAL_FAKETIME faketime)
    if(NOT TUTORIAL_DESKTOP_TESTS OR NOT TUTORIAL_FAKETIME OR TUTORIAL_SANITIZE)
        return()
    endif()
    add_test(NAME ${name} COMMAND "${TUTORIAL_PYTHON}" "${CMAKE_SOURCE_DIR}/scripts/play-all"
        --build "${CMAKE_BINARY_DIR}" --pictures "${CMAKE_BINARY_DIR}/pilot/${name}" ${ARGN})
    # It makes displays of its own, and as many plays side by side as the machine has room for.
    set_tests_properties(${name} PROPERTIES LABELS desktop TIMEOUT ${timeout} COST ${timeout}
        RUN_SERIAL ON ENVIRONMENT "${TUTORIAL_TEST_ENVIRONMENT}")
endfunction()
