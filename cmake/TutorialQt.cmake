# The Qt that everything is built with: 5, from 5.12 on, or 6, as Debian 12 has it.
set(TUTORIAL_QT 5 CACHE STRING "Qt's major version, 5 or 6")
set_property(CACHE TUTORIAL_QT PROPERTY STRINGS 5 6)
set(oldest_qt_5 5.12)
set(oldest_qt_6 6.4)
if(NOT DEFINED oldest_qt_${TUTORIAL_QT})
    message(FATAL_ERROR "TUTORIAL_QT is ${TUTORIAL_QT}, and only Qt 5 and Qt 6 are known here. "
        "Configure with -DTUTORIAL_QT=5 or -DTUTORIAL_QT=6.")
endif()
# Qt's libraries are Qt${QT_VERSION_MAJOR}::Core and so on: Qt before 5.15 has no names without the number.
set(QT_VERSION_MAJOR ${TUTORIAL_QT})

find_package(Qt${QT_VERSION_MAJOR} ${oldest_qt_${QT_VERSION_MAJOR}} REQUIRED
    COMPONENTS Core Gui Widgets Network Xml Test LinguistTools)
# In Qt 6 this is part of Gui.
if(QT_VERSION_MAJOR EQUAL 5 AND UNIX AND NOT APPLE)
    find_package(Qt5 ${oldest_qt_5} REQUIRED COMPONENTS X11Extras)
endif()

# tutorial_add_resources(<variable> file.qrc [OPTIONS ...]): the sources that hold the files, as Qt's own function has it.
macro(tutorial_add_resources)
    cmake_language(CALL qt${QT_VERSION_MAJOR}_add_resources ${ARGV})
endmacro()
