# What makes lumbra.exe a program of Windows: no console window, icon, version, manifest.
enable_language(RC)
find_program(ICOTOOL icotool)
if(NOT ICOTOOL)
    message(FATAL_ERROR "icotool makes the icon and is not here (Debian: icoutils)")
endif()

set(RESOURCES ${PROJECT_BINARY_DIR}/windows)
file(MAKE_DIRECTORY ${RESOURCES})
set(ICON ${RESOURCES}/lumbra.ico)
set(MANIFEST ${RESOURCES}/lumbra.manifest)

set(PICTURES ${PROJECT_BINARY_DIR}/art/png)
set(SMALL ${PICTURES}/lumbra-16.png ${PICTURES}/lumbra-32.png ${PICTURES}/lumbra-48.png)
set(LARGE ${PICTURES}/lumbra-256.png)
add_custom_command(
    OUTPUT ${ICON}
    COMMAND ${ICOTOOL} -c -o ${ICON} ${SMALL} --raw=${LARGE}
    DEPENDS ${SMALL} ${LARGE}
    COMMENT "Making the icon"
    VERBATIM)

configure_file(packaging/windows/lumbra.manifest.in ${MANIFEST} @ONLY)
configure_file(packaging/windows/lumbra.rc.in ${RESOURCES}/lumbra.rc @ONLY)
set_source_files_properties(${RESOURCES}/lumbra.rc PROPERTIES
    OBJECT_DEPENDS "${ICON};${MANIFEST}")
target_sources(lumbra PRIVATE ${RESOURCES}/lumbra.rc)
set_target_properties(lumbra PROPERTIES WIN32_EXECUTABLE ON)
