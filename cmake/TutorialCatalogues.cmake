# tutorial_add_catalogues(RESULT bundle prefix "locales" [options of rcc...])
#
# Compiles translations/<locale>.ts below the present folder and puts the catalogues into the resource bundle of this
# name, as :<prefix>/<locale>.qm. RESULT is the source file of the bundle, to add to a target.
function(tutorial_add_catalogues result bundle prefix locales)
    set(catalogues)
    set(entries)
    foreach(locale IN LISTS locales)
        set(source "${CMAKE_CURRENT_SOURCE_DIR}/translations/${locale}.ts")
        set(catalogue "${CMAKE_CURRENT_BINARY_DIR}/${locale}.qm")
        add_custom_command(OUTPUT "${catalogue}"
            COMMAND Qt${QT_VERSION_MAJOR}::lrelease -silent "${source}" -qm "${catalogue}"
            DEPENDS "${source}" VERBATIM)
        list(APPEND catalogues "${catalogue}")
        string(APPEND entries "    <file>${locale}.qm</file>\n")
    endforeach()
    file(CONFIGURE OUTPUT "${CMAKE_CURRENT_BINARY_DIR}/${bundle}.qrc"
        CONTENT "<RCC>\n  <qresource prefix=\"${prefix}\">\n${entries}  </qresource>\n</RCC>\n")
    tutorial_add_resources(bundle_source "${CMAKE_CURRENT_BINARY_DIR}/${bundle}.qrc" OPTIONS ${ARGN})
    set_property(SOURCE ${bundle_source} APPEND PROPERTY OBJECT_DEPENDS "${catalogues}")
    set(${result} ${bundle_source} PARENT_SCOPE)
endfunction()
