# What every target of ours is compiled with. Link a target to tutorial_options to get it.

# The program looks for its fonts and patches beside itself, so everything that is run installs into one folder. Only a
# choice is kept: the default follows the prefix.
set(TUTORIAL_INSTALL_DIR "" CACHE STRING
    "Folder of the program and what it looks for beside itself; empty: tutorial in CMAKE_INSTALL_LIBDIR")
if(NOT TUTORIAL_INSTALL_DIR)
    set(TUTORIAL_INSTALL_DIR "${CMAKE_INSTALL_LIBDIR}/tutorial")
endif()

# The system's python3 first: it is the one that Debian's packages for Python serve.
find_program(TUTORIAL_PYTHON python3 PATHS /usr/bin NO_DEFAULT_PATH)
find_program(TUTORIAL_PYTHON python3 REQUIRED)

add_library(tutorial_options INTERFACE)
target_compile_options(tutorial_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Werror)
# With Qt 6, whose sizes are wider than an int, it would be about little else.
if(QT_VERSION_MAJOR EQUAL 5)
    target_compile_options(tutorial_options INTERFACE -Wconversion)
endif()
# Qt 6 has QTEST_APPLESS_MAIN leave out the last argument of a macro.
if(QT_VERSION_MAJOR EQUAL 6 AND CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    target_compile_options(tutorial_options INTERFACE
        $<$<BOOL:$<TARGET_PROPERTY:TUTORIAL_TEST>>:-Wno-gnu-zero-variadic-macro-arguments>)
endif()
target_compile_definitions(tutorial_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_FOREACH QT_NO_KEYWORDS
    QT_DEPRECATED_WARNINGS QT_DISABLE_DEPRECATED_BEFORE=0x050C00)

if(TUTORIAL_SANITIZE)
    set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    target_compile_options(tutorial_options INTERFACE ${sanitizers})
    target_link_options(tutorial_options INTERFACE ${sanitizers})
endif()
# tutorial_core counts its lines, and whoever links it writes the counts.
if(TUTORIAL_COVERAGE)
    target_link_options(tutorial_options INTERFACE --coverage)
endif()

# clazy rides along in clang as a plugin, so that the build that checks its findings is one that is needed anyway.
# It takes as long as the compiler itself, and looks at what is shipped only. Of level 1 two checks do not know Qt 6, where
# erase() takes a const_iterator and a signal is found otherwise: what they say there is not so.
if(TUTORIAL_CLAZY)
    find_file(CLAZY_PLUGIN ClazyPlugin.so PATHS "/usr/lib/${CMAKE_LIBRARY_ARCHITECTURE}" /usr/lib64)
    if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang" OR NOT CLAZY_PLUGIN)
        message(FATAL_ERROR "TUTORIAL_CLAZY needs clang++ as the compiler and ClazyPlugin.so from the package clazy. "
            "Install clazy, or configure with -DTUTORIAL_CLAZY=OFF to go without its findings.")
    endif()
    set(clazy_checks level1)
    if(QT_VERSION_MAJOR EQUAL 6)
        string(APPEND clazy_checks ",no-strict-iterators,no-connect-non-signal")
    endif()
    set(is_shipped $<NOT:$<BOOL:$<TARGET_PROPERTY:TUTORIAL_TEST>>>)
    target_compile_options(tutorial_options INTERFACE
        "$<${is_shipped}:SHELL:-Xclang -load -Xclang ${CLAZY_PLUGIN}>"
        "$<${is_shipped}:SHELL:-Xclang -add-plugin -Xclang clazy>"
        "$<${is_shipped}:SHELL:-Xclang -plugin-arg-clazy -Xclang ${clazy_checks}>")
endif()

# AUTOMOC looks for Q_OBJECT again when the target's own CMakeLists.txt changes, but not when a folder below adds sources
# to the target. This makes it look. Call it when all sources are there.
function(tutorial_watch_sources target)
    get_target_property(sources ${target} SOURCES)
    if(NOT sources STREQUAL "${${target}_WATCHED_SOURCES}")
        set(${target}_WATCHED_SOURCES "${sources}" CACHE INTERNAL "The sources that AUTOMOC has seen")
        file(REMOVE "${CMAKE_CURRENT_BINARY_DIR}/${target}_autogen/timestamp")
    endif()
endfunction()

# Whether a target links a library, itself or through others.
function(tutorial_links result target library)
    set(open ${target})
    set(seen ${target})
    while(open)
        list(POP_FRONT open next)
        if(next STREQUAL library)
            set(${result} TRUE PARENT_SCOPE)
            return()
        endif()
        if(TARGET ${next})
            get_target_property(own ${next} LINK_LIBRARIES)
            get_target_property(passed_on ${next} INTERFACE_LINK_LIBRARIES)
            foreach(below IN LISTS own passed_on)
                if(below AND NOT below IN_LIST seen)
                    list(APPEND open "${below}")
                    list(APPEND seen "${below}")
                endif()
            endforeach()
        endif()
    endwhile()
    set(${result} FALSE PARENT_SCOPE)
endfunction()

# Qt's headers, compiled once for every target of ours that uses widgets (without them the macros differ, and the
# compiler refuses). For whole builds: with it a file that lacks an include still compiles; clang-tidy, which goes
# without, finds it. Call it when all targets are there.
function(tutorial_precompile_headers)
    file(CONFIGURE OUTPUT "${CMAKE_BINARY_DIR}/precompiled.cpp" CONTENT "")
    add_library(tutorial_precompiled OBJECT "${CMAKE_BINARY_DIR}/precompiled.cpp")
    set_target_properties(tutorial_precompiled PROPERTIES AUTOMOC OFF)
    target_link_libraries(tutorial_precompiled PRIVATE tutorial_options Qt${QT_VERSION_MAJOR}::Widgets)
    target_precompile_headers(tutorial_precompiled PRIVATE <QtWidgets>)

    set(folders "${CMAKE_SOURCE_DIR}")
    while(folders)
        list(POP_FRONT folders folder)
        get_property(below DIRECTORY "${folder}" PROPERTY SUBDIRECTORIES)
        list(APPEND folders ${below})
        get_property(targets DIRECTORY "${folder}" PROPERTY BUILDSYSTEM_TARGETS)
        foreach(target IN LISTS targets)
            get_target_property(type ${target} TYPE)
            if(target STREQUAL "tutorial_precompiled" OR NOT type MATCHES "EXECUTABLE|STATIC_LIBRARY|OBJECT_LIBRARY")
                continue()
            endif()
            tutorial_links(is_ours ${target} tutorial_options)
            tutorial_links(has_widgets ${target} Qt${QT_VERSION_MAJOR}::Widgets)
            if(is_ours AND has_widgets)
                target_precompile_headers(${target} REUSE_FROM tutorial_precompiled)
            endif()
        endforeach()
    endwhile()
endfunction()
