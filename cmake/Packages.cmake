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
include(CPack)
