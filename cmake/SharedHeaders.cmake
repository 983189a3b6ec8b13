# Headers that nearly every source includes, compiled once for all libraries; in the builds for
# Windows the platform's alone, for what exists nowhere else, which so prove that the portable
# sources include what they need.
option(LUMENKIT_PRECOMPILE "Compile common headers once for all libraries" OFF)

# The fuzzers see which ways through the libraries an input takes.
function(lumenkit_watch target)
    if(LUMENKIT_FUZZ)
        target_compile_options(${target} PRIVATE -fsanitize=fuzzer-no-link)
    endif()
endfunction()

# lumenkit_shared_headers(NAME LINKS target... HEADERS header...)
# A target to reuse the compiled headers from.
function(lumenkit_shared_headers name)
    cmake_parse_arguments(ARG "" "" "LINKS;HEADERS" ${ARGN})
    file(CONFIGURE OUTPUT ${name}.cpp CONTENT "")
    add_library(${name} OBJECT "${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp")
    target_link_libraries(${name} PRIVATE lumenkit_settings ${ARG_LINKS})
    target_precompile_headers(${name} PRIVATE ${ARG_HEADERS})
    lumenkit_watch(${name})
endfunction()

if(LUMENKIT_PRECOMPILE)
    # In compiled headers g++ 12 also tells what it believes to see inside its own library.
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

# For the libraries of the folder that is being read.
function(lumenkit_reuse_headers target)
    lumenkit_watch(${target})
    if(NOT LUMENKIT_PRECOMPILE)
        return()
    endif()
    if(CMAKE_CURRENT_SOURCE_DIR MATCHES "/(runtime/qt|apps/lumenform)(/|$)")
        target_precompile_headers(${target} REUSE_FROM lumenkit_precompiled_qt)
    elseif(CMAKE_CURRENT_SOURCE_DIR MATCHES "/runtime/(win32|ole)$")
        target_precompile_headers(${target} REUSE_FROM lumenkit_precompiled_${CMAKE_MATCH_1})
    elseif(NOT WIN32)
        target_precompile_headers(${target} REUSE_FROM lumenkit_precompiled)
    endif()
endfunction()
