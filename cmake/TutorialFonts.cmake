# The two fonts that the program looks for in "fonts" beside itself, made from M PLUS 1 of Debian's fonts-mplus:
# its regular face whole, and its Latin part for the locales whose own script comes from a system font.
# Without the packages the build goes on, and the program falls back to the system's fonts.
set(fonts_dir "${CMAKE_BINARY_DIR}/fonts")
find_file(MPLUS_FONT Mplus1-Regular.otf PATHS /usr/share/fonts/opentype/mplus /usr/local/share/fonts/opentype/mplus)
execute_process(COMMAND "${TUTORIAL_PYTHON}" -c "import fontTools.subset"
    RESULT_VARIABLE fonttools_missing OUTPUT_QUIET ERROR_QUIET)

if(NOT MPLUS_FONT OR fonttools_missing)
    message(STATUS "Fonts: not made. They need Mplus1-Regular.otf (package fonts-mplus) and fontTools for "
        "${TUTORIAL_PYTHON} (package python3-fonttools). The program runs with the system's fonts.")
else()
    set(whole "${fonts_dir}/mplus-1c-regular.ttf")
    set(latin "${fonts_dir}/mplusmini-1c-regular.ttf")
    set(script "${CMAKE_SOURCE_DIR}/scripts/make-latin-font")
    add_custom_command(OUTPUT "${whole}"
        COMMAND "${CMAKE_COMMAND}" -E make_directory "${fonts_dir}"
        COMMAND "${CMAKE_COMMAND}" -E copy "${MPLUS_FONT}" "${whole}"
        DEPENDS "${MPLUS_FONT}" COMMENT "Making mplus-1c-regular.ttf" VERBATIM)
    add_custom_command(OUTPUT "${latin}"
        COMMAND "${CMAKE_COMMAND}" -E make_directory "${fonts_dir}"
        COMMAND "${TUTORIAL_PYTHON}" "${script}" "${MPLUS_FONT}" "${latin}" "M PLUS 1 Mini"
        DEPENDS "${MPLUS_FONT}" "${script}" COMMENT "Making mplusmini-1c-regular.ttf" VERBATIM)
    add_custom_target(tutorial_fonts DEPENDS "${whole}" "${latin}")
    add_dependencies(Tutorial tutorial_fonts)
    install(FILES "${whole}" "${latin}" DESTINATION "${TUTORIAL_INSTALL_DIR}/fonts")
endif()
