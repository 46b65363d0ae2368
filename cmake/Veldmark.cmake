# Small functions for all rooms, so that a room's own CMakeLists.txt is a list of its files.

add_library(veldmark_options INTERFACE)
# Some libraries need this; a precompiled header serves only sources that are compiled with the same options.
target_compile_options(veldmark_options INTERFACE -pthread)
target_compile_options(veldmark_options INTERFACE -Wall -Wextra -Wconversion -Wshadow)
target_compile_definitions(veldmark_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_NO_KEYWORDS
    VELDMARK_VERSION="${PROJECT_VERSION}")
if(CMAKE_BUILD_TYPE STREQUAL "Release")
    # Removes the build folder's path, so that the same commit gives the same bytes in every folder.
    target_compile_options(veldmark_options INTERFACE "-ffile-prefix-map=${CMAKE_SOURCE_DIR}=.")
endif()
if(VELDMARK_STRICT)
    target_compile_options(veldmark_options INTERFACE -Werror)
endif()
if(VELDMARK_SANITIZE)
    target_compile_options(veldmark_options INTERFACE
        -fsanitize=${VELDMARK_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    target_link_options(veldmark_options INTERFACE -fsanitize=${VELDMARK_SANITIZE})
    target_compile_definitions(veldmark_options INTERFACE VELDMARK_SANITIZED)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        # The code that this check puts before each function is not compatible with coroutines.
        target_compile_options(veldmark_options INTERFACE -fno-sanitize=function)
    endif()
    target_compile_definitions(veldmark_options INTERFACE _GLIBCXX_ASSERTIONS)
endif()
if(VELDMARK_COVERAGE)
    target_compile_options(veldmark_options INTERFACE --coverage -fprofile-update=atomic)
    target_link_options(veldmark_options INTERFACE --coverage)
endif()

# Headers of Qt and of the standard library that nearly every source includes, compiled once for all rooms, and once for the
# tests. A source still includes what it uses: ./build.sh dist compiles its archive without this.
option(VELDMARK_PRECOMPILE "Compile common headers once" OFF)
set(veldmark_common_headers <algorithm> <chrono> <functional> <memory> <optional> <vector> <tl/expected.hpp> <qcorotask.h>
    <QByteArray> <QDir> <QFile> <QFileInfo> <QJsonArray> <QJsonDocument> <QJsonObject> <QObject> <QPointer> <QProcess>
    <QRegularExpression> <QSet> <QString> <QStringList> <QTimer> <QUrl> <QVariant>)
function(veldmark_precompile kind)
    if(VELDMARK_PRECOMPILE)
        cmake_parse_arguments(arg "" "" "HEADERS;LINK" ${ARGN})
        file(WRITE "${CMAKE_BINARY_DIR}/precompiled-${kind}.cpp" "// Carries the precompiled headers.\n")
        add_library(veldmark_precompiled_${kind} OBJECT "${CMAKE_BINARY_DIR}/precompiled-${kind}.cpp")
        set_target_properties(veldmark_precompiled_${kind} PROPERTIES AUTOMOC OFF)
        target_link_libraries(veldmark_precompiled_${kind} PRIVATE veldmark_options Qt6::Core QCoro6::Core tl::expected ${arg_LINK})
        target_precompile_headers(veldmark_precompiled_${kind} PRIVATE ${veldmark_common_headers} ${arg_HEADERS})
    endif()
endfunction()

# veldmark_precompiled(TARGET rooms|tests [OWN]): OWN compiles the headers for this target alone.
function(veldmark_precompiled target kind)
    if(NOT VELDMARK_PRECOMPILE)
        return()
    elseif("OWN" IN_LIST ARGN)
        get_target_property(headers veldmark_precompiled_${kind} PRECOMPILE_HEADERS)
        target_precompile_headers(${target} PRIVATE ${headers})
    else()
        target_precompile_headers(${target} REUSE_FROM veldmark_precompiled_${kind})
    endif()
endfunction()

# Compiles a room's sources ten at a time: nearly all of a source's compile time is spent on its headers. Debian's own build, the
# archive's and the sanitizers' compile each source by itself.
option(VELDMARK_UNITY "Compile a room's sources together" OFF)
function(veldmark_together target)
    if(VELDMARK_UNITY)
        set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 10)
        # An included source counts as a header, where a coroutine may use no type of an unnamed namespace.
        target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
    endif()
endfunction()

# veldmark_library(ROOM SOURCES a.cpp… ALONE a.cpp… ROOMS lower-room… LINK other-library…)
# One room: a static library whose headers are included as "room/Header.h". ALONE: sources with a name in an unnamed namespace
# that another source of the room also has, so that they are not compiled together.
function(veldmark_library room)
    cmake_parse_arguments(arg "" "" "SOURCES;ALONE;ROOMS;LINK" ${ARGN})
    set_source_files_properties(${arg_ALONE} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
    add_library(veldmark_${room} STATIC ${arg_SOURCES})
    target_include_directories(veldmark_${room} PUBLIC "${CMAKE_SOURCE_DIR}/src")
    list(TRANSFORM arg_ROOMS PREPEND veldmark_)
    target_link_libraries(veldmark_${room}
        PUBLIC veldmark_options ${arg_ROOMS} ${arg_LINK} Qt6::Core)
    veldmark_precompiled(veldmark_${room} rooms)
    veldmark_together(veldmark_${room})
endfunction()

# veldmark_translated(PROGRAM)
# Puts every translation of resources/translations into the program; base/UsersLanguage.h loads the user's.
function(veldmark_translated program)
    file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/resources/translations/*.ts")
    qt_add_lrelease(${program} TS_FILES ${sources} QM_FILES_OUTPUT_VARIABLE translations)
    qt_add_resources(${program} i18n PREFIX /i18n BASE "${CMAKE_CURRENT_BINARY_DIR}" FILES ${translations})
endfunction()

# ./build.sh test gives CTest six places for two processors: three for each. A test that computes keeps a processor busy and takes
# three (BUSY). A test of the root helper waits about half of its time, for programs and for Tor, and takes two (HALF). A lab
# test, which mostly waits for Tor, takes one. docs/performance.md has the figures.
set(VELDMARK_BUSY_PLACES 3)
set(VELDMARK_HALF_PLACES 2)

# veldmark_test(room/NameTest [ALONE] ROOMS room… LINK library… SOURCES extra.cpp…)
# The Qt Test class of tests/unit/room/NameTest.cpp, in the room's only test program test-room, known to CTest as
# unit/room/NameTest. support/TestProgram.h describes how a class gets into the program. ALONE: another test of the room has the
# same name in its unnamed namespace, so that they are not compiled together.
function(veldmark_test path)
    cmake_parse_arguments(arg "ALONE" "" "ROOMS;LINK;SOURCES" ${ARGN})
    get_filename_component(name ${path} NAME)
    get_filename_component(room ${path} DIRECTORY)
    set(program test-${room})
    if(NOT TARGET ${program})
        add_executable(${program})
        target_include_directories(${program} PRIVATE "${CMAKE_SOURCE_DIR}/tests")
        target_link_libraries(${program} PRIVATE veldmark_support veldmark_test_program veldmark_test_options Qt6::Test)
        set_target_properties(${program} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests")
        if(room MATCHES "^(ui|app)$")
            # Qt Test's headers contain more with Qt Gui.
            veldmark_precompiled(${program} tests OWN)
        else()
            veldmark_precompiled(${program} tests)
        endif()
        veldmark_together(${program})
    endif()
    if(arg_ALONE)
        set_source_files_properties("${CMAKE_SOURCE_DIR}/tests/unit/${path}.cpp" PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
    endif()
    list(TRANSFORM arg_ROOMS PREPEND veldmark_)
    target_sources(${program} PRIVATE "${CMAKE_SOURCE_DIR}/tests/unit/${path}.cpp" ${arg_SOURCES})
    target_link_libraries(${program} PRIVATE ${arg_ROOMS} ${arg_LINK})
    add_test(NAME unit/${path} COMMAND ${program} ${name})
    set_tests_properties(unit/${path} PROPERTIES TIMEOUT 120 LABELS unit PROCESSORS ${VELDMARK_BUSY_PLACES})
endfunction()

# veldmark_script_test(NAME [BUSY|HALF] [LONG] [COST seconds] [SCRIPT name] [ARGUMENTS word…])
# The folder's own test_NAME.py or SCRIPT.py, known to CTest as FOLDER/NAME; status 77 is a skip. COST: approximate duration in
# seconds, so that long tests start early. LONG: takes minutes and needs no program that the others do not, so that the short run
# on a clean Debian leaves it out. A folder sets the common properties of its tests at its end.
function(veldmark_script_test name)
    cmake_parse_arguments(arg "BUSY;HALF;LONG" "COST;SCRIPT" "ARGUMENTS" ${ARGN})
    get_filename_component(folder "${CMAKE_CURRENT_SOURCE_DIR}" NAME)
    if(NOT arg_SCRIPT)
        set(arg_SCRIPT test_${name})
    endif()
    add_test(NAME ${folder}/${name}
        COMMAND /usr/bin/python3 "${CMAKE_CURRENT_SOURCE_DIR}/${arg_SCRIPT}.py" ${arg_ARGUMENTS})
    set_tests_properties(${folder}/${name} PROPERTIES LABELS ${folder} TIMEOUT 1200 SKIP_RETURN_CODE 77)
    if(arg_BUSY)
        set_tests_properties(${folder}/${name} PROPERTIES PROCESSORS ${VELDMARK_BUSY_PLACES})
    elseif(arg_HALF)
        set_tests_properties(${folder}/${name} PROPERTIES PROCESSORS ${VELDMARK_HALF_PLACES})
    endif()
    if(arg_COST)
        set_tests_properties(${folder}/${name} PROPERTIES COST ${arg_COST})
    endif()
    if(arg_LONG)
        set_property(TEST ${folder}/${name} APPEND PROPERTY LABELS long)
    endif()
endfunction()
