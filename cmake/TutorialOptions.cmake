# What every target of ours is compiled with. Link a target to tutorial_options to get it.

# The program looks for its fonts and patches beside itself, so everything installs into one folder.
set(TUTORIAL_INSTALL_DIR "${CMAKE_INSTALL_LIBDIR}/tutorial" CACHE STRING "Folder of the program and what it looks for beside itself")

# The system's python3 first: it is the one that Debian's packages for Python serve.
find_program(TUTORIAL_PYTHON python3 PATHS /usr/bin NO_DEFAULT_PATH)
find_program(TUTORIAL_PYTHON python3 REQUIRED)

add_library(tutorial_options INTERFACE)
target_compile_options(tutorial_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
target_compile_definitions(tutorial_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_FOREACH QT_NO_KEYWORDS
    QT_DEPRECATED_WARNINGS QT_DISABLE_DEPRECATED_BEFORE=0x050C00)

if(TUTORIAL_SANITIZE)
    set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    target_compile_options(tutorial_options INTERFACE ${sanitizers})
    target_link_options(tutorial_options INTERFACE ${sanitizers})
endif()
if(TUTORIAL_COVERAGE)
    target_compile_options(tutorial_options INTERFACE --coverage -fprofile-abs-path -O0)
    target_link_options(tutorial_options INTERFACE --coverage)
endif()

# clazy rides along in clang as a plugin, so that the build that checks its findings is one that is needed anyway.
if(TUTORIAL_CLAZY)
    find_file(CLAZY_PLUGIN ClazyPlugin.so PATHS "/usr/lib/${CMAKE_LIBRARY_ARCHITECTURE}" /usr/lib64)
    if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang" OR NOT CLAZY_PLUGIN)
        message(FATAL_ERROR "TUTORIAL_CLAZY needs clang++ as the compiler and ClazyPlugin.so from the package clazy. "
            "Install clazy, or configure with -DTUTORIAL_CLAZY=OFF to go without its findings.")
    endif()
    target_compile_options(tutorial_options INTERFACE
        "SHELL:-Xclang -load -Xclang ${CLAZY_PLUGIN}" "SHELL:-Xclang -add-plugin -Xclang clazy"
        "SHELL:-Xclang -plugin-arg-clazy -Xclang level1")
endif()

# Qt's headers, compiled once for every target of ours. For whole builds: with it a file that lacks an include still
# compiles, so the release build goes without.
function(tutorial_precompile_headers)
    file(CONFIGURE OUTPUT "${CMAKE_BINARY_DIR}/precompiled.cpp" CONTENT "")
    add_library(tutorial_precompiled OBJECT "${CMAKE_BINARY_DIR}/precompiled.cpp")
    set_target_properties(tutorial_precompiled PROPERTIES AUTOMOC OFF)
    target_link_libraries(tutorial_precompiled PRIVATE
        tutorial_options Qt5::Core Qt5::Gui Qt5::Widgets Qt5::Network Qt5::Xml)
    target_precompile_headers(tutorial_precompiled PRIVATE <QtWidgets> <QtNetwork> <QtXml>)

    set(folders "${CMAKE_SOURCE_DIR}")
    while(folders)
        list(POP_FRONT folders folder)
        get_property(below DIRECTORY "${folder}" PROPERTY SUBDIRECTORIES)
        list(APPEND folders ${below})
        get_property(targets DIRECTORY "${folder}" PROPERTY BUILDSYSTEM_TARGETS)
        foreach(target IN LISTS targets)
            get_target_property(type ${target} TYPE)
            get_target_property(libraries ${target} LINK_LIBRARIES)
            if(type MATCHES "EXECUTABLE|STATIC_LIBRARY|OBJECT_LIBRARY" AND libraries MATCHES "tutorial_|Qt5::"
                    AND NOT target STREQUAL "tutorial_precompiled")
                target_precompile_headers(${target} REUSE_FROM tutorial_precompiled)
            endif()
        endforeach()
    endwhile()
endfunction()
