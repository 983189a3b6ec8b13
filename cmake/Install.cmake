# The components of an installation:
#   development  the core for programs in C++: one library, its headers, CMake and pkg-config files
#   lumenkit     the command line
#   lumenform    the form designer, with its desktop entry, MIME type and icon
#   widgets      the shared library of the controls as Qt widgets
#   widgets-development  what programs with these widgets are made of; needs development and widgets
#   designer     the plugin for Qt Designer; needs widgets
#   server       the component server for Windows, from one build
#   server_more  files for the server that do not depend on the build
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# Where the build leaves the core out, so does an installation that does not ask for it.
set(header_folder "${CMAKE_INSTALL_INCLUDEDIR}/lumenkit")
target_include_directories(lumenkit_core INTERFACE "$<INSTALL_INTERFACE:${header_folder}>")
install(TARGETS lumenkit_core EXPORT lumenkit
    ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT development ${where_needed})
foreach(path IN LISTS public_folders)
    cmake_path(GET path PARENT_PATH folder)
    install(DIRECTORY ${path} DESTINATION "${header_folder}/${folder}"
        COMPONENT development ${where_needed}
        FILES_MATCHING PATTERN "*.h")
endforeach()
foreach(path IN LISTS public_headers)
    cmake_path(GET path PARENT_PATH folder)
    install(FILES ${path} DESTINATION "${header_folder}/${folder}"
        COMPONENT development ${where_needed})
endforeach()

set(package_folder "${CMAKE_INSTALL_LIBDIR}/cmake/lumenkit")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/lumenkitConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion)
install(EXPORT lumenkit NAMESPACE lumenkit:: FILE lumenkitTargets.cmake
    DESTINATION "${package_folder}" COMPONENT development ${where_needed})
install(FILES cmake/lumenkitConfig.cmake "${PROJECT_BINARY_DIR}/lumenkitConfigVersion.cmake"
    DESTINATION "${package_folder}" COMPONENT development ${where_needed})

# What pkg-config tells holds wherever the installation is moved: the prefix is found from the file
# itself. Folders that are given from the root stay where they are.
cmake_path(IS_ABSOLUTE CMAKE_INSTALL_LIBDIR libraries_stay)
if(libraries_stay)
    set(pc_prefix "${CMAKE_INSTALL_PREFIX}")
else()
    cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX
        BASE_DIRECTORY "${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig" OUTPUT_VARIABLE up)
    set(pc_prefix "\${pcfiledir}/${up}")
endif()
cmake_path(APPEND pc_libdir "\${prefix}" "${CMAKE_INSTALL_LIBDIR}")
cmake_path(APPEND pc_includedir "\${prefix}" "${CMAKE_INSTALL_INCLUDEDIR}" lumenkit)
cmake_path(APPEND pc_widgets_includedir "\${prefix}" "${CMAKE_INSTALL_INCLUDEDIR}")
# install_pc(NAME COMPONENT)
function(install_pc name component)
    configure_file("${PROJECT_SOURCE_DIR}/cmake/${name}.pc.in" "${PROJECT_BINARY_DIR}/${name}.pc" @ONLY)
    install(FILES "${PROJECT_BINARY_DIR}/${name}.pc"
        DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig" COMPONENT ${component} ${where_needed})
endfunction()
install_pc(lumenkit development)

if(TARGET lumenkit_widgets_shared)
    foreach(library lumenkit_widgets_shared lumenkit_widgets_static)
        target_include_directories(${library} INTERFACE
            "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>")
    endforeach()
    install(TARGETS lumenkit_widgets_shared lumenkit_widgets_static EXPORT lumenkit_widgets
        LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
            COMPONENT widgets NAMELINK_COMPONENT widgets-development
        ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT widgets-development)
    install(DIRECTORY widgets/include/lumenkit DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}"
        COMPONENT widgets-development
        FILES_MATCHING PATTERN "*.h")
    install(EXPORT lumenkit_widgets NAMESPACE lumenkit:: FILE lumenkitWidgetsTargets.cmake
        DESTINATION "${package_folder}" COMPONENT widgets-development)
    install_pc(lumenkit-widgets widgets-development)
endif()
if(TARGET lumenkit_designer)
    # Where Qt has its plugins, below the same prefix.
    install(TARGETS lumenkit_designer
        LIBRARY DESTINATION "${QT6_INSTALL_PLUGINS}/designer" COMPONENT designer)
endif()

# install_manual(PROGRAM): the manual pages and completions that the program wrote when it was built.
# zsh looks for the completions of packages in another folder than for those below /usr/local.
set(LUMENKIT_ZSH_FOLDER "${CMAKE_INSTALL_DATAROOTDIR}/zsh/vendor-completions"
    CACHE STRING "Where completions for zsh are installed")
function(install_manual program)
    set(written "${PROJECT_BINARY_DIR}/manual/${program}")
    install(DIRECTORY "${written}/man1"
        DESTINATION "${CMAKE_INSTALL_MANDIR}" COMPONENT ${program})
    install(DIRECTORY "${written}/bash/"
        DESTINATION "${CMAKE_INSTALL_DATAROOTDIR}/bash-completion/completions" COMPONENT ${program})
    install(DIRECTORY "${written}/zsh/"
        DESTINATION "${LUMENKIT_ZSH_FOLDER}" COMPONENT ${program})
    install(DIRECTORY "${written}/fish/"
        DESTINATION "${CMAKE_INSTALL_DATAROOTDIR}/fish/vendor_completions.d" COMPONENT ${program})
endfunction()

if(TARGET lumenkit)
    install(TARGETS lumenkit RUNTIME COMPONENT lumenkit)
    install_manual(lumenkit)
endif()
if(TARGET lumenform)
    install(TARGETS lumenform RUNTIME COMPONENT lumenform)
    install_manual(lumenform)
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
