# Finds what the chosen parts need from elsewhere. Whatever is missing is reported together, with
# the option that builds without it.
set(missing "")

# lumenkit_needs(OPTION "Debian packages" package [as find_package goes on...])
# A macro, because the folders below need what find_package sets.
macro(lumenkit_needs option debian package)
    find_package(${package} ${ARGN} QUIET)
    if(NOT ${package}_FOUND)
        string(APPEND missing
            "  ${package}: install ${debian}, or configure with -D${option}=OFF\n")
    endif()
endmacro()

if(LUMENKIT_APPS)
    find_path(LUMENKIT_DTL dtl/dtl.hpp)
    mark_as_advanced(LUMENKIT_DTL)
    if(NOT LUMENKIT_DTL)
        string(APPEND missing
            "  dtl: install libdtl-dev, or configure with -DLUMENKIT_APPS=OFF\n")
    endif()
    lumenkit_needs(LUMENKIT_APPS libcli11-dev CLI11)
    lumenkit_needs(LUMENKIT_APPS nlohmann-json3-dev nlohmann_json)
endif()
if(LUMENKIT_QT)
    lumenkit_needs(LUMENKIT_QT "qt6-base-dev (6.4 or newer)" Qt6 6.4 COMPONENTS Widgets)
endif()
if(LUMENKIT_QT AND LUMENKIT_APPS AND Qt6_FOUND)
    lumenkit_needs(LUMENKIT_QT "qt6-tools-dev and qt6-l10n-tools" Qt6LinguistTools)
    lumenkit_needs(LUMENKIT_QT "qt6-svg-dev (6.4 or newer)" Qt6Svg 6.4)
    find_path(LUMENKIT_BREEZE actions/22/edit-undo.svg
        HINTS ${CMAKE_SYSTEM_PREFIX_PATH} PATH_SUFFIXES share/icons/breeze
        DOC "The folder of the icon theme Breeze")
    mark_as_advanced(LUMENKIT_BREEZE)
    if(NOT LUMENKIT_BREEZE)
        string(APPEND missing
            "  breeze: install breeze-icon-theme, set LUMENKIT_BREEZE to its folder, or configure with -DLUMENKIT_QT=OFF\n")
    endif()
endif()
if(LUMENKIT_DESIGNER AND Qt6_FOUND)
    lumenkit_needs(LUMENKIT_DESIGNER "qt6-tools-dev (6.4 or newer)" Qt6Designer 6.4)
    lumenkit_needs(LUMENKIT_DESIGNER "qt6-tools-dev (6.4 or newer)" Qt6UiPlugin 6.4)
    if(LUMENKIT_TESTS)
        lumenkit_needs(LUMENKIT_DESIGNER "qt6-tools-dev (6.4 or newer)" Qt6UiTools 6.4)
    endif()
endif()
if(LUMENKIT_TESTS AND NOT WIN32)
    lumenkit_needs(LUMENKIT_TESTS "libgtest-dev and libgmock-dev" GTest)
endif()
if(LUMENKIT_BENCH AND NOT WIN32)
    lumenkit_needs(LUMENKIT_BENCH libbenchmark-dev benchmark)
    lumenkit_needs(LUMENKIT_BENCH pkg-config PkgConfig)
endif()

if(missing)
    message(FATAL_ERROR "lumenkit needs packages that are not here (by their names on Debian):\n${missing}")
endif()
