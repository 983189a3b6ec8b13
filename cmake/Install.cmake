# The components of an installation:
#   development  the core for programs in C++: one library, its headers, CMake and pkg-config files
#   lumenkit     the command line
#   lumenform    the form designer, with its desktop entry, MIME type and icon
#   server       the component server for Windows, from one build
#   server_more  files for the server that do not depend on the build
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# A package installs what was built before, not all there is.
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON)

# The core in one archive: the controls, the class table, the windowless runtime and form files.
set(core_parts frame vlabel vmemo voptlist vlabelcaption project memory forms)
add_library(lumenkit_core STATIC ${where_needed})
foreach(part IN LISTS core_parts)
    target_sources(lumenkit_core PRIVATE $<TARGET_OBJECTS:lumenkit_${part}>)
endforeach()
set_target_properties(lumenkit_core PROPERTIES
    OUTPUT_NAME lumenkit
    EXPORT_NAME lumenkit
    LINKER_LANGUAGE CXX)
target_compile_features(lumenkit_core INTERFACE cxx_std_20)

# Headers name each other from the top of the tree. A folder of their own keeps "frame/text.h" and
# its like out of everybody's sight who did not ask for them.
set(header_folder "${CMAKE_INSTALL_INCLUDEDIR}/lumenkit")
target_include_directories(lumenkit_core INTERFACE "$<INSTALL_INTERFACE:${header_folder}>")
install(TARGETS lumenkit_core EXPORT lumenkit
    ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT development)
# Controls are made through the class table and used late-bound; their own headers stay at home.
install(DIRECTORY frame forms DESTINATION "${header_folder}" COMPONENT development
    FILES_MATCHING PATTERN "*.h")
install(DIRECTORY runtime/memory DESTINATION "${header_folder}/runtime" COMPONENT development
    FILES_MATCHING PATTERN "*.h")
install(FILES project/lumenkit_classes.h DESTINATION "${header_folder}/project"
    COMPONENT development)

set(package_folder "${CMAKE_INSTALL_LIBDIR}/cmake/lumenkit")
write_basic_package_version_file(lumenkitConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(EXPORT lumenkit NAMESPACE lumenkit:: FILE lumenkitConfig.cmake
    DESTINATION "${package_folder}" COMPONENT development)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/lumenkitConfigVersion.cmake"
    DESTINATION "${package_folder}" COMPONENT development)
# From the file itself to where the installation begins, wherever it is moved.
file(RELATIVE_PATH up "${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig" "${CMAKE_INSTALL_PREFIX}")
configure_file(cmake/lumenkit.pc.in lumenkit.pc @ONLY)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/lumenkit.pc"
    DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig" COMPONENT development)

if(TARGET lumenkit)
    install(TARGETS lumenkit RUNTIME COMPONENT lumenkit)
    install(FILES packaging/linux/lumenkit.1
        DESTINATION "${CMAKE_INSTALL_MANDIR}/man1" COMPONENT lumenkit)
endif()
if(TARGET lumenform)
    install(TARGETS lumenform RUNTIME COMPONENT lumenform)
    install(FILES packaging/linux/lumenform.1
        DESTINATION "${CMAKE_INSTALL_MANDIR}/man1" COMPONENT lumenform)
    install(FILES packaging/linux/lumenform.desktop
        DESTINATION "${CMAKE_INSTALL_DATAROOTDIR}/applications" COMPONENT lumenform)
    install(FILES packaging/linux/lumenform.xml
        DESTINATION "${CMAKE_INSTALL_DATAROOTDIR}/mime/packages" COMPONENT lumenform)
    install(FILES packaging/linux/lumenform.svg
        DESTINATION "${CMAKE_INSTALL_DATAROOTDIR}/icons/hicolor/scalable/apps" COMPONENT lumenform)
endif()
if(TARGET lumenkit_ocx)
    install(TARGETS lumenkit_ocx atl_host atl_host_free RUNTIME DESTINATION . COMPONENT server)
    install(FILES
        "${PROJECT_BINARY_DIR}/lumenkit.manifest"
        "${PROJECT_BINARY_DIR}/lumenkit.tlb"
        "${PROJECT_BINARY_DIR}/lumenkit_runtime.tlb"
        DESTINATION . COMPONENT server)
    install(FILES packaging/windows/README.md LICENSE DESTINATION . COMPONENT server_more)
    install(DIRECTORY samples/atl_host samples/registration_free samples/html samples/scripts
        DESTINATION samples COMPONENT server_more
        PATTERN check.sh EXCLUDE
        PATTERN expected.txt EXCLUDE)
    # The interfaces as C++ sees them, which the samples include.
    install(FILES
        "${PROJECT_BINARY_DIR}/samples/generated/lumenkit.h"
        "${PROJECT_BINARY_DIR}/samples/generated/lumenkit_runtime.h"
        DESTINATION include COMPONENT server_more)
endif()
