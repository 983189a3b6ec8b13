# The core in one archive: the controls, the class table, the windowless runtime and form files.
# lumenkit::lumenkit is its name, for projects that have this one in them as for those that find it
# installed.
set(core_parts frame vlabel vmemo voptlist vlabelcaption project shared memory forms)
add_library(lumenkit_core STATIC ${where_needed})
add_library(lumenkit::lumenkit ALIAS lumenkit_core)
foreach(part IN LISTS core_parts)
    target_sources(lumenkit_core PRIVATE $<TARGET_OBJECTS:lumenkit_${part}>)
endforeach()
set_target_properties(lumenkit_core PROPERTIES
    OUTPUT_NAME lumenkit
    EXPORT_NAME lumenkit
    LINKER_LANGUAGE CXX)
target_compile_features(lumenkit_core INTERFACE cxx_std_20)

# Headers name each other from the top of the tree. A folder of their own keeps "frame/text.h" and
# its like out of everybody's sight who did not ask for them, and the tree's other folders out of
# everybody's sight. Controls are made through the class table and used late-bound; their own headers
# stay at home.
set(public_folders frame forms runtime/memory runtime/shared)
set(public_headers project/lumenkit_classes.h)
set(build_headers "${PROJECT_BINARY_DIR}/include/lumenkit")
foreach(path IN LISTS public_folders public_headers)
    cmake_path(GET path PARENT_PATH folder)
    file(MAKE_DIRECTORY "${build_headers}/${folder}")
    file(CREATE_LINK "${PROJECT_SOURCE_DIR}/${path}" "${build_headers}/${path}" SYMBOLIC)
endforeach()
target_include_directories(lumenkit_core INTERFACE "$<BUILD_INTERFACE:${build_headers}>")
# As those of an installation: warnings about them are not the user's business.
set_target_properties(lumenkit_core PROPERTIES SYSTEM ON)
