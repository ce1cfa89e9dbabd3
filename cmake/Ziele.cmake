# One function for each kind of target. Includes are written from the root of the tree: "archive/logic/ZiehungsArchiv.h".
#
#   tombrix_logik(archive_logic SOURCES ... LINKS ...)          plain C++; Qt in its link closure stops the configure run
#   tombrix_bildschirme(statistics_screens SOURCES ... LINKS ...)   elements and screens, on Qt Widgets
#   tombrix_test(archive_tests LABEL logic SOURCES ... LINKS ...)   a GoogleTest program, one ctest entry a test
#   tombrix_bench(bench_archive SOURCES ... LINKS ...)          a Google Benchmark program

set_property(GLOBAL PROPERTY TOMBRIX_LOGIK "")

function(tombrix_logik name)
    cmake_parse_arguments(ziel "" "" "SOURCES;LINKS" ${ARGN})
    add_library(${name} STATIC ${ziel_SOURCES})
    target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR})
    target_link_libraries(${name} PUBLIC ${ziel_LINKS})
    set_property(GLOBAL APPEND PROPERTY TOMBRIX_LOGIK ${name})
endfunction()

function(tombrix_bildschirme name)
    cmake_parse_arguments(ziel "" "" "SOURCES;LINKS" ${ARGN})
    add_library(${name} STATIC ${ziel_SOURCES})
    target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR})
    target_compile_definitions(${name} PUBLIC QT_NO_CAST_TO_ASCII QT_NO_FOREACH)
    target_link_libraries(${name} PUBLIC ${ziel_LINKS} Qt6::Widgets)
    # The first one compiles Qt's headers for all.
    if(TARGET shell_elements AND NOT name STREQUAL "shell_elements")
        target_precompile_headers(${name} REUSE_FROM shell_elements)
    else()
        target_precompile_headers(${name} PRIVATE <QtWidgets>)
    endif()
endfunction()

# Tests are compiled without optimisation, which halves their compile time, and share a precompiled header for each of
# their two kinds. A program with plain loops over millions of combinations asks for optimisation with OPTIMIERT.
function(tombrix_uebersetze_test name art)
    target_compile_options(${name} PRIVATE -O0)
    set(traeger testkopf_${art})
    if(NOT TARGET ${traeger})
        add_executable(${traeger} EXCLUDE_FROM_ALL ${CMAKE_SOURCE_DIR}/cmake/testkopf.cpp)
        target_compile_options(${traeger} PRIVATE -O0)
        target_link_libraries(${traeger} PRIVATE GTest::gmock GTest::gtest)
        set(kopf <algorithm> <array> <chrono> <filesystem> <fstream> <functional> <map> <random> <sstream> <string>
            <vector> <gmock/gmock.h> <gtest/gtest.h>)
        if(art STREQUAL "gui")
            target_link_libraries(${traeger} PRIVATE Qt6::Widgets)
            target_compile_definitions(${traeger} PRIVATE QT_NO_CAST_TO_ASCII QT_NO_FOREACH)
            list(APPEND kopf <QtWidgets>)
        endif()
        target_precompile_headers(${traeger} PRIVATE ${kopf})
    endif()
    target_precompile_headers(${name} REUSE_FROM ${traeger})
endfunction()

# LABEL is one of logic, gui, architektur, real, long. A `gui` program stands on the stage of testhilfen/, which brings
# its main(). The target tests-<label> builds all programs of a label.
function(tombrix_test name)
    cmake_parse_arguments(ziel "OPTIMIERT" "LABEL" "SOURCES;LINKS" ${ARGN})
    add_executable(${name} ${ziel_SOURCES})
    target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR})
    target_link_libraries(${name} PRIVATE ${ziel_LINKS} GTest::gmock GTest::gtest)
    if(ziel_LABEL STREQUAL "gui")
        target_link_libraries(${name} PRIVATE buehnentest)
        set(art gui)
    else()
        target_link_libraries(${name} PRIVATE GTest::gtest_main)
        set(art logik)
    endif()
    if(NOT ziel_OPTIMIERT)
        tombrix_uebersetze_test(${name} ${art})
    endif()
    if(NOT TARGET tests-${ziel_LABEL})
        add_custom_target(tests-${ziel_LABEL})
    endif()
    add_dependencies(tests-${ziel_LABEL} ${name})
    include(GoogleTest)
    gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST WORKING_DIRECTORY ${CMAKE_SOURCE_DIR}
        PROPERTIES LABELS ${ziel_LABEL} ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
endfunction()

# Benchmarks are built by the target `benchmarks` only.
function(tombrix_bench name)
    cmake_parse_arguments(ziel "" "" "SOURCES;LINKS" ${ARGN})
    add_executable(${name} EXCLUDE_FROM_ALL ${ziel_SOURCES})
    target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR})
    target_link_libraries(${name} PRIVATE ${ziel_LINKS} musterordner benchmark::benchmark)
    if(NOT TARGET benchmarks)
        add_custom_target(benchmarks)
    endif()
    add_dependencies(benchmarks ${name})
endfunction()

# Everything that `ziel` links, directly or through another target.
function(tombrix_linkhuelle ziel ergebnis)
    set(offen ${ziel})
    set(gesehen "")
    while(offen)
        list(POP_FRONT offen naechstes)
        if(naechstes IN_LIST gesehen)
            continue()
        endif()
        list(APPEND gesehen ${naechstes})
        if(TARGET ${naechstes})
            foreach(art LINK_LIBRARIES INTERFACE_LINK_LIBRARIES)
                get_target_property(mehr ${naechstes} ${art})
                if(mehr)
                    list(APPEND offen ${mehr})
                endif()
            endforeach()
        endif()
    endwhile()
    set(${ergebnis} "${gesehen}" PARENT_SCOPE)
endfunction()

# Stops the configure run if a logic library links Qt.
function(tombrix_pruefe_stockwerke)
    get_property(alle GLOBAL PROPERTY TOMBRIX_LOGIK)
    foreach(ziel ${alle})
        tombrix_linkhuelle(${ziel} huelle)
        foreach(teil ${huelle})
            if(teil MATCHES "Qt6|^Qt::|_screens$|_elements$")
                message(FATAL_ERROR "${ziel} is logic and must stand without a screen, but it links ${teil}.")
            endif()
        endforeach()
    endforeach()
endfunction()
