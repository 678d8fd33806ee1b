# Installation of the program as a desktop application, and its Debian package.

include(GNUInstallDirs)

# xn_install_app_icons(<app> <directory>)
#
# Installs the application's icon into the hicolor theme: every PNG below
# <directory> whose name starts with <app> goes to hicolor/<n>x<n>/apps/<app>.png,
# <n> read from the file's own header, so the drawings may be named and
# arranged as their script likes; a square size found twice takes the first in
# name order. An SVG named after <app> goes to hicolor/scalable/apps.
function(xn_install_app_icons app directory)
  file(GLOB_RECURSE pngs CONFIGURE_DEPENDS ${directory}/${app}*.png)
  list(SORT pngs)
  set(sizes)
  foreach(png IN LISTS pngs)
    # Bytes 16 to 23 of a PNG are the width and the height, big-endian.
    file(READ ${png} header OFFSET 16 LIMIT 8 HEX)
    string(SUBSTRING "${header}" 0 8 width)
    string(SUBSTRING "${header}" 8 8 height)
    math(EXPR width "0x${width}")
    math(EXPR height "0x${height}")
    if(NOT width EQUAL height OR width IN_LIST sizes)
      continue()
    endif()
    list(APPEND sizes ${width})
    install(FILES ${png} DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${width}x${width}/apps
            RENAME ${app}.png)
  endforeach()
  file(GLOB_RECURSE svgs CONFIGURE_DEPENDS ${directory}/${app}*.svg)
  list(SORT svgs)
  if(svgs)
    list(GET svgs 0 svg)
    install(FILES ${svg} DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps
            RENAME ${app}.svg)
  endif()
  set_property(GLOBAL PROPERTY XN_APP_ICON_SIZES ${sizes})
endfunction()

# The Debian package of what `cmake --install` puts in place. The shared
# libraries it needs become its dependencies (dpkg-shlibdeps).
function(xn_debian_package)
  set(CPACK_GENERATOR DEB)
  set(CPACK_PACKAGE_NAME ${PROJECT_NAME})
  set(CPACK_PACKAGE_VENDOR Ostrand)
  set(CPACK_PACKAGE_CONTACT "Ostrand <support@ostrand.example>")
  set(CPACK_PACKAGE_DESCRIPTION_SUMMARY
      "Builds the Permissions parameter of a remote-access server")
  set(CPACK_PACKAGE_DESCRIPTION
      "A desktop dialog for administrators of a remote-access server: it builds the server's \
Permissions parameter (which users, groups or identity groups may use which features) in a \
form, and reads such a text back into the form.")
  set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
  set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
  set(CPACK_DEBIAN_PACKAGE_SECTION net)
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
  # Qt's own texts (the standard buttons of its message boxes) in the user's language.
  set(CPACK_DEBIAN_PACKAGE_RECOMMENDS qt6-translations-l10n)
  set(CPACK_STRIP_FILES ON)
  include(CPack)
endfunction()
