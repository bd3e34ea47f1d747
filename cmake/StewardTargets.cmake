# Helpers that keep every target's sources found by folder, so that adding a file
# to a subsystem needs no edit here.

# Sources of the standard-library-only core: every .cpp under src/ outside the Qt folders.
function(steward_core_sources out)
    file(GLOB_RECURSE all CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/*.cpp)
    list(FILTER all EXCLUDE REGEX "/qt/")
    set(${out} ${all} PARENT_SCOPE)
endfunction()

# Sources of the Qt layer: every file under a subsystem's qt/ folder (src/qt/ holds main alone).
function(steward_ui_sources out)
    file(GLOB_RECURSE all CONFIGURE_DEPENDS
        ${PROJECT_SOURCE_DIR}/src/*/qt/*.cpp ${PROJECT_SOURCE_DIR}/src/*/qt/*.h)
    set(${out} ${all} PARENT_SCOPE)
endfunction()

# One GoogleTest executable per test folder; tests are registered one case each.
function(steward_add_test_folder name folder)
    cmake_parse_arguments(ARG "" "" "LIBS" ${ARGN})
    file(GLOB sources CONFIGURE_DEPENDS ${folder}/*.cpp)
    if(NOT sources)
        return()
    endif()
    add_executable(${name} ${sources})
    target_link_libraries(${name} PRIVATE ${ARG_LIBS})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60
        PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
endfunction()
