option(LUMBRA_PCH "The large headers that all tests include are compiled once" ON)

# floor(name SOURCES ... LINKS ...): one folder, one static library. An include says its folder; that
# none runs upward is a test of tests/rules.
function(floor name)
    cmake_parse_arguments(P "" "" "SOURCES;LINKS" ${ARGN})
    add_library(${name} STATIC ${P_SOURCES})
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
    target_link_libraries(${name} PUBLIC ${P_LINKS} PRIVATE warnings)
endfunction()

# suite(name SOURCES ... LINKS ...): a test program; every test in it becomes a test of CTest. What
# runs through Wine is one test whole: the start takes longer than most tests.
function(suite name)
    cmake_parse_arguments(P "" "" "SOURCES;LINKS" ${ARGN})
    add_executable(${name} ${P_SOURCES})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
    target_link_libraries(${name} PRIVATE ${P_LINKS} test_main warnings)
    if(LUMBRA_PCH)
        target_precompile_headers(${name} REUSE_FROM test_main)
    endif()
    if(CMAKE_CROSSCOMPILING)
        add_test(NAME ${name} COMMAND ${name})
        set_tests_properties(${name} PROPERTIES TIMEOUT 1200)
    else()
        gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 300)
    endif()
endfunction()

# enlarged(name): the looks of a test program's windows once more on finer screens.
function(enlarged name)
    foreach(scala IN ITEMS 1.5 2)
        add_test(NAME ${name}.Spazio.${scala} COMMAND ${name} --gtest_filter=Spazio.*)
        set_tests_properties(${name}.Spazio.${scala}
            PROPERTIES ENVIRONMENT QT_SCALE_FACTOR=${scala} TIMEOUT 300)
    endforeach()
endfunction()
