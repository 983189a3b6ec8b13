# lumenkit_type_library(TARGET IDL file OUTPUT file [USES target...])
# Adds a target that compiles the interface definitions IDL into the type library OUTPUT. USES: the
# targets of the type libraries that the definitions import; their files must be in the folder of
# OUTPUT. The result depends only on the definitions, not on the time or folder of the build.
find_program(LUMENKIT_WIDL ${CMAKE_SYSTEM_PROCESSOR}-w64-mingw32-widl REQUIRED)
# The definitions of the standard types, and the type library compiled from them.
find_path(LUMENKIT_IDL_FOLDER oaidl.idl PATHS /usr/include/wine/wine/windows
    REQUIRED NO_CMAKE_FIND_ROOT_PATH)
# The type library of any processor will do: only its identifiers are used.
file(GLOB lumenkit_wine_folders /usr/lib/*/wine/*-windows)
find_path(LUMENKIT_STDOLE_FOLDER stdole2.tlb PATHS ${lumenkit_wine_folders}
    REQUIRED NO_CMAKE_FIND_ROOT_PATH)

function(lumenkit_type_library target)
    cmake_parse_arguments(ARG "" "IDL;OUTPUT" "USES" ${ARGN})
    cmake_path(GET ARG_OUTPUT PARENT_PATH folder)
    cmake_path(GET ARG_IDL PARENT_PATH definitions)
    set(used)
    foreach(library IN LISTS ARG_USES)
        get_target_property(file ${library} LUMENKIT_TYPE_LIBRARY)
        list(APPEND used "${file}")
    endforeach()
    file(GLOB all_definitions CONFIGURE_DEPENDS "${definitions}/*.idl")
    add_custom_command(OUTPUT "${ARG_OUTPUT}"
        # The compiler writes the build time into the library, so it gets a fixed one.
        COMMAND ${CMAKE_COMMAND} -E env TZ=UTC WIDL_TIME_OVERRIDE=946684800
            "${LUMENKIT_WIDL}" -t $<IF:$<EQUAL:${CMAKE_SIZEOF_VOID_P},8>,-m64,-m32> "-I${LUMENKIT_IDL_FOLDER}"
            "-I${definitions}" "-L${LUMENKIT_STDOLE_FOLDER}" "-L${folder}"
            -o "${ARG_OUTPUT}" "${ARG_IDL}"
        DEPENDS ${all_definitions} ${used}
        VERBATIM)
    add_custom_target(${target} DEPENDS "${ARG_OUTPUT}")
    set_target_properties(${target} PROPERTIES LUMENKIT_TYPE_LIBRARY "${ARG_OUTPUT}")
    if(ARG_USES)
        add_dependencies(${target} ${ARG_USES})
    endif()
endfunction()
