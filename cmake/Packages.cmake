# The packages that cpack builds: one Debian package per component, or one archive for Windows with
# the x64 and x86 builds, which scripts/package.sh combines.
set(CPACK_PACKAGE_NAME lumenkit)
set(CPACK_PACKAGE_VENDOR "the lumenkit authors")
set(CPACK_PACKAGE_CONTACT "the lumenkit authors")
# Each package sets its own summary below.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_PACKAGE_CHECKSUM SHA256)
set(CPACK_VERBATIM_VARIABLES ON)

if(WIN32)
    set(CPACK_GENERATOR ZIP)
    set(CPACK_PACKAGE_FILE_NAME "lumenkit-${PROJECT_VERSION}-windows")
    set(CPACK_ARCHIVE_COMPONENT_INSTALL OFF)
    include(CPack)
    return()
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_PRE_BUILD_SCRIPTS "${PROJECT_SOURCE_DIR}/cmake/CompressManual.cmake")

# debian_package(COMPONENT PACKAGE section copyright "summary" "description")
macro(debian_package component package section copyright summary description)
    string(TOUPPER "${component}" upper)
    list(APPEND CPACK_COMPONENTS_ALL ${component})
    set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${package})
    set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION ${section})
    set(CPACK_COMPONENT_${upper}_DESCRIPTION "${summary}\n${description}")
    install(FILES ${copyright} RENAME copyright COMPONENT ${component}
        DESTINATION "${CMAKE_INSTALL_DATAROOTDIR}/doc/${package}")
endmacro()

set(CPACK_COMPONENTS_ALL)
if(TARGET lumenkit)
    debian_package(lumenkit lumenkit utils LICENSE
        "command line for captions and forms of lumenkit's controls"
        "Compiles and checks captions, checks whole forms, and drives the controls without a screen.")
endif()
if(TARGET lumenform)
    debian_package(lumenform lumenform devel packaging/linux/copyright
        "designs, runs and draws form files with lumenkit's controls"
        "A designer for form files (.frm, .ctl, .pag, .dob) that runs them with their controls and draws them into pictures.")
    # Substitutes for the fonts that forms name, such as Arial; Qt's own texts in other languages; and
    # Wayland sessions.
    set(CPACK_DEBIAN_LUMENFORM_PACKAGE_RECOMMENDS
        "fonts-liberation2, qt6-translations-l10n, qt6-wayland")
endif()
debian_package(development liblumenkit-dev libdevel LICENSE
    "lumenkit's controls without a screen, for programs in C++"
    "The library of the controls, the windowless runtime and form files, with its headers.")
# Programs that are linked with the widgets need the package of this library, in this version or later.
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
if(TARGET lumenkit_widgets_shared)
    set(widgets_package "liblumenkit-widgets${PROJECT_VERSION_MAJOR}")
    set(same_widgets "${widgets_package} (= ${PROJECT_VERSION})")
    debian_package(widgets ${widgets_package} libs LICENSE
        "lumenkit's controls as Qt widgets"
        "The shared library of a label with markup, a limited text box and a list of option buttons.")
    debian_package(widgets-development liblumenkit-widgets-dev libdevel LICENSE
        "lumenkit's controls as Qt widgets, for programs in C++"
        "The headers, the static library and what CMake and pkg-config read.")
    set(CPACK_DEBIAN_WIDGETS-DEVELOPMENT_PACKAGE_DEPENDS
        "${same_widgets}, liblumenkit-dev (= ${PROJECT_VERSION}), qt6-base-dev (>= 6.4)")
endif()
if(TARGET lumenkit_designer)
    debian_package(designer lumenkit-designer devel LICENSE
        "lumenkit's controls in Qt Designer"
        "A plugin with which Qt Designer edits forms with the controls, and programs load them.")
    set(CPACK_DEBIAN_DESIGNER_PACKAGE_DEPENDS "${same_widgets}")
    set(CPACK_DEBIAN_DESIGNER_PACKAGE_RECOMMENDS designer-qt6)
    # Its package is made beside this one.
    set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${PROJECT_BINARY_DIR}/widgets")
endif()
include(CPack)
