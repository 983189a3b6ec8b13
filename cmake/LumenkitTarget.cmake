# Settings that every target of the project shares, and the functions that make its libraries.
# Others get none of them: variables end with this folder, and libraries use them privately.

if(NOT DEFINED CMAKE_CXX_STANDARD)
    set(CMAKE_CXX_STANDARD 20)
endif()
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
if(NOT DEFINED CMAKE_POSITION_INDEPENDENT_CODE)
    set(CMAKE_POSITION_INDEPENDENT_CODE ON)
endif()
if(PROJECT_IS_TOP_LEVEL)
    set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
endif()

add_library(lumenkit_settings INTERFACE)
target_include_directories(lumenkit_settings INTERFACE "${PROJECT_SOURCE_DIR}")
target_compile_features(lumenkit_settings INTERFACE cxx_std_20)
set(warnings -Wall -Wextra -Wpedantic -Wconversion)
# Where sources are compiled together, a local may shadow a name of another source. g++ does not count
# that, clang does.
if(NOT (CMAKE_UNITY_BUILD AND CMAKE_CXX_COMPILER_ID MATCHES "Clang"))
    list(APPEND warnings -Wshadow)
endif()
if(LUMENKIT_WERROR)
    target_compile_options(lumenkit_settings INTERFACE ${warnings} -Werror)
elseif(PROJECT_IS_TOP_LEVEL)
    target_compile_options(lumenkit_settings INTERFACE ${warnings})
else()
    # A parent that makes warnings errors means its own sources.
    target_compile_options(lumenkit_settings INTERFACE -Wno-error)
endif()
target_compile_options(lumenkit_settings INTERFACE
    # g++ 12 sees overlaps in its own string's operator+ that are not there (its bug 105651), and
    # does not see that a local object takes its pointer back when it is destroyed (Window::Watch).
    $<$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>>:-Wno-restrict;-Wno-dangling-pointer>
    # clang 17 and later report that the library's own stable_sort uses what the library deprecates.
    $<$<AND:$<CXX_COMPILER_ID:Clang>,$<VERSION_GREATER_EQUAL:$<CXX_COMPILER_VERSION>,17>>:-Wno-deprecated-declarations>)
if(PROJECT_IS_TOP_LEVEL)
    # Collecting its garbage takes g++ a tenth of its time. This much memory, in KiB, lasts for any
    # source; a parent may compile more of them at once than it lasts for.
    target_compile_options(lumenkit_settings INTERFACE
        $<$<CXX_COMPILER_ID:GNU>:--param=ggc-min-heapsize=1000000>)
endif()
if(CMAKE_SIZEOF_VOID_P EQUAL 4 AND CMAKE_SYSTEM_PROCESSOR MATCHES "^(i.86|x86|x86_64|AMD64)$")
    # Arithmetic of float and double that rounds each result to its type, as on all other machines.
    target_compile_options(lumenkit_settings INTERFACE -msse2 -mfpmath=sse)
endif()
if(WIN32)
    # The platform's headers: wide characters, no macros named as functions of C++, Windows 7.
    target_compile_definitions(lumenkit_settings INTERFACE UNICODE NOMINMAX _WIN32_WINNT=0x0601)
endif()
if(MINGW)
    # Link the libraries of the compiler statically, so that programs and servers do not need them.
    target_link_options(lumenkit_settings INTERFACE -static)
    # The same bytes in every build folder.
    target_compile_options(lumenkit_settings INTERFACE "-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.")
endif()
if(LUMENKIT_SANITIZE)
    target_compile_options(lumenkit_settings INTERFACE
        "-fsanitize=${LUMENKIT_SANITIZE}" -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(lumenkit_settings INTERFACE "-fsanitize=${LUMENKIT_SANITIZE}")
endif()
if(LUMENKIT_COVERAGE)
    # Branches that only exceptions take say nothing about tests; gcovr leaves them out.
    target_compile_options(lumenkit_settings INTERFACE --coverage)
    target_link_options(lumenkit_settings INTERFACE --coverage)
endif()

include("${PROJECT_SOURCE_DIR}/cmake/SharedHeaders.cmake")

# lumenkit_library(NAME SOURCES file... LINKS target...)
# Adds a static library lumenkit_NAME with the alias lumenkit::NAME. Its headers are also compiled
# alone, so that none depends on includes of another header.
function(lumenkit_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
    add_library(lumenkit_${name} STATIC ${ARG_SOURCES})
    add_library(lumenkit::${name} ALIAS lumenkit_${name})
    target_include_directories(lumenkit_${name} PUBLIC "${PROJECT_SOURCE_DIR}")
    target_compile_features(lumenkit_${name} PUBLIC cxx_std_20)
    target_link_libraries(lumenkit_${name} PRIVATE lumenkit_settings PUBLIC ${ARG_LINKS})
    lumenkit_reuse_headers(lumenkit_${name})
    lumenkit_headers_compile_alone(lumenkit_${name} ${ARG_LINKS})
endfunction()

# lumenkit_command_line(NAME)
# Links a program with CLI11 and compiles its sources with little optimisation. They run once, and
# CLI11 takes long to optimise, even more so with sanitizers. The program writes its manual pages and
# completions into manual/NAME of the build folder.
function(lumenkit_command_line name)
    target_link_libraries(${name} PRIVATE CLI11::CLI11)
    if(LUMENKIT_SANITIZE)
        target_compile_options(${name} PRIVATE -O0)
    else()
        target_compile_options(${name} PRIVATE -O1)
    endif()
    add_custom_command(TARGET ${name} POST_BUILD
        COMMAND ${name} write-manual "${PROJECT_BINARY_DIR}/manual/${name}" VERBATIM)
endfunction()

# lumenkit_headers_compile_alone(NAME target...)
# Compiles each header beside the caller's CMakeLists.txt (subfolders included) in a translation unit
# that includes nothing else. A header with a source file of the same name needs no such unit: that
# source includes it first, as scripts/check_includes.py checks.
option(LUMENKIT_HEADERS_ALONE "Check that each header compiles without others before it" OFF)
if(LUMENKIT_HEADERS_ALONE)
    add_custom_target(lumenkit_headers_alone)
endif()
function(lumenkit_headers_compile_alone name)
    # Portable headers are checked by the native build.
    if(NOT LUMENKIT_HEADERS_ALONE OR
       (WIN32 AND NOT CMAKE_CURRENT_SOURCE_DIR MATCHES "/runtime/(win32|ole)$"))
        return()
    endif()
    file(GLOB_RECURSE headers CONFIGURE_DEPENDS RELATIVE "${PROJECT_SOURCE_DIR}"
        "${CMAKE_CURRENT_SOURCE_DIR}/*.h")
    set(units)
    foreach(header IN LISTS headers)
        string(REGEX REPLACE "\\.h$" ".cpp" source "${PROJECT_SOURCE_DIR}/${header}")
        if(EXISTS "${source}")
            continue()
        endif()
        set(unit "${CMAKE_CURRENT_BINARY_DIR}/alone/${header}.cpp")
        file(CONFIGURE OUTPUT "${unit}" CONTENT "#include \"${header}\"\n")
        list(APPEND units "${unit}")
    endforeach()
    if(units)
        add_library(${name}_headers OBJECT ${units})
        set_target_properties(${name}_headers PROPERTIES UNITY_BUILD OFF)
        target_link_libraries(${name}_headers PRIVATE lumenkit_settings ${ARGN})
        target_compile_options(${name}_headers PRIVATE -O0)
        add_dependencies(lumenkit_headers_alone ${name}_headers)
    endif()
endfunction()
