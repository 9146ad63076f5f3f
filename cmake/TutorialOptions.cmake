# What every target of ours is compiled with. Link a target to tutorial_options to get it.

# The program looks for its fonts and patches beside itself, so everything installs into one folder.
set(TUTORIAL_INSTALL_DIR "${CMAKE_INSTALL_LIBDIR}/tutorial" CACHE STRING "Folder of the program and what it looks for beside itself")

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
