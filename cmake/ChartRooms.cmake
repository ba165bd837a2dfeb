# A room is one folder and one static library. chart_room(NAME DEPS...) makes the library `NAME` from the
# sources of the current folder; the shared libraries and the tests are linked from rooms.

add_library(chart_flags INTERFACE)
target_include_directories(chart_flags INTERFACE ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/engine/include
                           ${PROJECT_SOURCE_DIR}/model/include ${PROJECT_SOURCE_DIR}/render/include
                           ${PROJECT_SOURCE_DIR}/style/include)
if(MSVC)
    target_compile_options(chart_flags INTERFACE /W4 $<$<BOOL:${CHART_WARNINGS_AS_ERRORS}>:/WX>)
else()
    target_compile_options(chart_flags INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow
        $<$<BOOL:${CHART_WARNINGS_AS_ERRORS}>:-Werror>)
    if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
        # This compiler sees an overlap in the standard library's own string + string when it optimises fully.
        target_compile_options(chart_flags INTERFACE -Wno-restrict)
    endif()
endif()
# Installed libraries are hard to turn against their host: checks of the stack and of copies, tables that are
# bound at once and then read only.
if(CMAKE_SYSTEM_NAME STREQUAL Linux AND CMAKE_BUILD_TYPE STREQUAL Release)
    target_compile_options(chart_flags INTERFACE -fstack-protector-strong -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
    target_link_options(chart_flags INTERFACE -Wl,-z,relro,-z,now)
endif()
if(WIN32)
    # A room is linked into the library that exports a name as well as into others.
    target_compile_definitions(chart_flags INTERFACE CHARTDRAW_ROOM CHARTEDITORS_ROOM)
endif()
if(CHART_SANITIZE)
    target_compile_options(chart_flags INTERFACE -fsanitize=${CHART_SANITIZE} -fno-omit-frame-pointer)
    if(CHART_SANITIZE STREQUAL "thread")
        target_compile_options(chart_flags INTERFACE -Wno-tsan)
    endif()
    if(CHART_SANITIZE MATCHES "undefined")
        target_compile_options(chart_flags INTERFACE -fno-sanitize-recover=undefined)
    endif()
    target_link_options(chart_flags INTERFACE -fsanitize=${CHART_SANITIZE})
endif()

function(chart_room name)
    file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
    if(sources)
        add_library(${name} STATIC ${sources})
        target_link_libraries(${name} PUBLIC chart_flags ${ARGN})
    else()
        add_library(${name} INTERFACE)
        target_link_libraries(${name} INTERFACE chart_flags ${ARGN})
    endif()
endfunction()

# Where windows are that nobody looks at. The off-screen platform knows no fonts of Windows.
set(chart_screen $<IF:$<PLATFORM_ID:Windows>,windows,offscreen>)
# What a path of this system begins with where such tests run.
set(chart_drive $<$<PLATFORM_ID:Windows>:Z:>)

# chart_test(NAME DEPS...): one GoogleTest program from the *.cpp files of the current folder.
function(chart_test name)
    file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
    if(NOT sources)
        return()
    endif()
    add_executable(${name} ${sources})
    target_link_libraries(${name} PRIVATE chart_flags ${ARGN} chart_test_main)
    add_test(NAME ${name} COMMAND ${name})
    # No test looks at a clock: what never ends is ended here, on the slowest machine and under the sanitizers too.
    set_tests_properties(${name} PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=${chart_screen};LC_ALL=C.UTF-8" TIMEOUT 900)
endfunction()

# chart_bench(NAME DEPS...): one Google Benchmark program from NAME.cpp; CTest runs it once, briefly, so
# that it keeps working. Figures come from running the program of the release build by hand.
function(chart_bench name)
    add_executable(${name} ${name}.cpp)
    target_link_libraries(${name} PRIVATE chart_flags ${ARGN} benchmark::benchmark)
    if(CHART_BUILD_TESTS)
        add_test(NAME ${name} COMMAND ${name} --benchmark_min_time=0.001)
        set_tests_properties(${name} PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
    endif()
endfunction()
