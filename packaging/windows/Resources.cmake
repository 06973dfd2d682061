# What makes lumbra.exe a program of Windows: no console window, icon, version, manifest.
enable_language(RC)
find_program(ICOTOOL icotool)
if(NOT ICOTOOL)
    message(FATAL_ERROR "icotool makes the icon and is not here (Debian: icoutils)")
endif()

set(RISORSE_WINDOWS ${PROJECT_BINARY_DIR}/windows)
file(MAKE_DIRECTORY ${RISORSE_WINDOWS})
set(ICONA ${RISORSE_WINDOWS}/lumbra.ico)
set(MANIFESTO ${RISORSE_WINDOWS}/lumbra.manifest)

set(IMMAGINI ${PROJECT_BINARY_DIR}/art/png)
set(PICCOLE ${IMMAGINI}/lumbra-16.png ${IMMAGINI}/lumbra-32.png ${IMMAGINI}/lumbra-48.png)
set(GRANDE ${IMMAGINI}/lumbra-256.png)
add_custom_command(
    OUTPUT ${ICONA}
    COMMAND ${ICOTOOL} -c -o ${ICONA} ${PICCOLE} --raw=${GRANDE}
    DEPENDS ${PICCOLE} ${GRANDE}
    COMMENT "Making the icon"
    VERBATIM)

configure_file(packaging/windows/lumbra.manifest.in ${MANIFESTO} @ONLY)
configure_file(packaging/windows/lumbra.rc.in ${RISORSE_WINDOWS}/lumbra.rc @ONLY)
set_source_files_properties(${RISORSE_WINDOWS}/lumbra.rc PROPERTIES
    OBJECT_DEPENDS "${ICONA};${MANIFESTO}")
target_sources(lumbra PRIVATE ${RISORSE_WINDOWS}/lumbra.rc)
set_target_properties(lumbra PROPERTIES WIN32_EXECUTABLE ON)
