option(LUMBRA_PCH "The large headers that all tests include are compiled once" ON)
set(LUMBRA_TEST_TIMEOUT 600 CACHE STRING "Seconds after which an entry of CTest counts as hanging")

# floor(name SOURCES ... LINKS ...): one folder, one static library. An include says its folder; a
# test in tests/rules makes sure that none runs upward.
function(floor name)
    cmake_parse_arguments(P "" "" "SOURCES;LINKS" ${ARGN})
    add_library(${name} STATIC ${P_SOURCES})
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
    target_link_libraries(${name} PUBLIC ${P_LINKS} PRIVATE warnings)
endfunction()

# suite(name SOURCES ... LINKS ... [SHARDS n] [WAITING filter SHARDS_WAITING n] [MAY_SKIP filter]):
# a test program. It is one entry of CTest, since a process takes longer to start than most tests to
# run. The filters are GoogleTest's.
#   SHARDS          n entries instead, each with every n-th test, which run side by side
#   WAITING         tests that wait for seconds and need no processor meanwhile: entries of their
#                   own, SHARDS_WAITING of them, which run beside the others
#   MAY_SKIP        tests that not every user or system can run: an entry each, so that CTest's
#                   summary names those that were skipped. If any other test is skipped, that is a
#                   failure.
function(suite name)
    cmake_parse_arguments(P "" "SHARDS;WAITING;SHARDS_WAITING;MAY_SKIP" "SOURCES;LINKS" ${ARGN})
    add_executable(${name} ${P_SOURCES})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
    target_link_libraries(${name} PRIVATE ${P_LINKS} test_main warnings)
    if(LUMBRA_PCH)
        target_precompile_headers(${name} REUSE_FROM test_main)
    endif()
    if(CMAKE_CROSSCOMPILING)
        add_test(NAME ${name} COMMAND ${name})
        set_tests_properties(${name} PROPERTIES TIMEOUT 1200)
        return()
    endif()

    set(others ${P_WAITING} ${P_MAY_SKIP})
    if(others)
        list(JOIN others : others)
        set(others -${others})
    endif()
    if(P_WAITING)
        entries(${name} ${name}.waiting "${P_WAITING}" "${P_SHARDS_WAITING}")
    endif()
    if(P_MAY_SKIP)
        gtest_discover_tests(${name} TEST_FILTER ${P_MAY_SKIP} TEST_PREFIX ${name}.
            DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT ${LUMBRA_TEST_TIMEOUT})
    endif()
    entries(${name} ${name} "*${others}" "${P_SHARDS}" PROCESSORS 3)
endfunction()

# enlarged(name): the looks of a test program's windows once more, on finer screens.
function(enlarged name)
    foreach(scale IN ITEMS 1.5 2)
        entries(${name} ${name}.Spazio.${scale} Spazio.* "" PROCESSORS 3
            ENVIRONMENT QT_SCALE_FACTOR=${scale})
    endforeach()
endfunction()

# entries(program name filter shards PROPERTY VALUE ...): the entries of CTest for the tests that a
# filter finds; shards is a number or empty. A filter that finds nothing is a failure.
# PROCESSORS counts quarters of a processor: scripts/test gives CTest four times as many as the
# machine has. Tests that compute take three, so that others which wait run beside them.
function(entries program name filter shards)
    if(NOT shards)
        set(shards 1)
    endif()
    cmake_parse_arguments(E "" "ENVIRONMENT" "" ${ARGN})
    foreach(shard RANGE 1 ${shards})
        set(entry ${name})
        if(shards GREATER 1)
            set(entry ${name}.${shard})
        endif()
        math(EXPR index "${shard} - 1")
        set(environment GTEST_TOTAL_SHARDS=${shards} GTEST_SHARD_INDEX=${index} ${E_ENVIRONMENT})
        add_test(NAME ${entry} COMMAND ${program} --gtest_filter=${filter})
        set_tests_properties(${entry} PROPERTIES
            TIMEOUT ${LUMBRA_TEST_TIMEOUT}
            ENVIRONMENT "${environment}"
            FAIL_REGULAR_EXPRESSION "\\[  SKIPPED \\];Running 0 tests"
            ${E_UNPARSED_ARGUMENTS})
    endforeach()
endfunction()
