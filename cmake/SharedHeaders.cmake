# Precompiled headers that all libraries share. The builds for Windows use them only for the Windows
# runtimes. Their portable sources are compiled without precompiled headers, which proves that each
# source includes the headers that it needs.
option(LUMENKIT_PRECOMPILE "Compile common headers once for all libraries" OFF)

# lumenkit_watch(TARGET)
# Instruments a library for the fuzzers, so that they see which code an input reaches.
function(lumenkit_watch target)
    if(LUMENKIT_FUZZ)
        target_compile_options(${target} PRIVATE -fsanitize=fuzzer-no-link)
    endif()
endfunction()

# lumenkit_shared_headers(NAME LINKS target... HEADERS header...)
# Adds a target that compiles the headers, from which other targets reuse them.
function(lumenkit_shared_headers name)
    cmake_parse_arguments(ARG "" "" "LINKS;HEADERS" ${ARGN})
    file(CONFIGURE OUTPUT ${name}.cpp CONTENT "")
    add_library(${name} OBJECT "${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp")
    target_link_libraries(${name} PRIVATE lumenkit_settings ${ARG_LINKS})
    target_precompile_headers(${name} PRIVATE ${ARG_HEADERS})
    lumenkit_watch(${name})
endfunction()

if(LUMENKIT_PRECOMPILE)
    # With precompiled headers g++ 12 also reports false warnings about its own standard library.
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
        target_compile_options(lumenkit_settings INTERFACE
            -Wno-array-bounds -Wno-stringop-overflow -Wno-stringop-overread)
    endif()
    set(standard <algorithm> <array> <cstdint> <functional> <map> <memory> <optional> <span>
        <string> <string_view> <utility> <variant> <vector>)
    if(WIN32)
        set(runtime "${PROJECT_SOURCE_DIR}/runtime")
        lumenkit_shared_headers(lumenkit_precompiled_win32
            HEADERS ${standard} "${runtime}/win32/windows_header.h")
        lumenkit_shared_headers(lumenkit_precompiled_ole
            HEADERS ${standard} "${runtime}/ole/ole_header.h")
    else()
        lumenkit_shared_headers(lumenkit_precompiled HEADERS ${standard})
    endif()
    if(LUMENKIT_QT)
        find_package(Qt6 6.4 REQUIRED COMPONENTS Widgets)
        lumenkit_shared_headers(lumenkit_precompiled_qt
            LINKS Qt6::Widgets HEADERS ${standard} <QtWidgets>)
        target_compile_definitions(lumenkit_precompiled_qt PRIVATE QT_NO_KEYWORDS)
    endif()
endif()

# lumenkit_reuse_headers(TARGET)
# Makes a library of the current source folder reuse the precompiled headers of that folder.
function(lumenkit_reuse_headers target)
    lumenkit_watch(${target})
    if(NOT LUMENKIT_PRECOMPILE)
        return()
    endif()
    if(CMAKE_CURRENT_SOURCE_DIR MATCHES "/(runtime/qt|widgets|apps/lumenform)(/|$)")
        target_precompile_headers(${target} REUSE_FROM lumenkit_precompiled_qt)
    elseif(CMAKE_CURRENT_SOURCE_DIR MATCHES "/runtime/(win32|ole)$")
        target_precompile_headers(${target} REUSE_FROM lumenkit_precompiled_${CMAKE_MATCH_1})
    elseif(NOT WIN32)
        target_precompile_headers(${target} REUSE_FROM lumenkit_precompiled)
    endif()
endfunction()
