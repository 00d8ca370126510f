# Installation: the three libraries, their headers, kzmutil, and the files that find_package and pkg-config look for.
include(CMakePackageConfigHelpers)

set(KZM_PACKAGE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/KZMUtilities)

install(TARGETS KZMUtilities KZMSettings KZMLocalization EXPORT KZMUtilitiesTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(TARGETS kzmutil RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(DIRECTORY include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})

install(EXPORT KZMUtilitiesTargets NAMESPACE KZMUtilities:: DESTINATION ${KZM_PACKAGE_DIR})
configure_package_config_file(cmake/KZMUtilitiesConfig.cmake.in KZMUtilitiesConfig.cmake
  INSTALL_DESTINATION ${KZM_PACKAGE_DIR})
write_basic_package_version_file(KZMUtilitiesConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES
  ${CMAKE_CURRENT_BINARY_DIR}/KZMUtilitiesConfig.cmake
  ${CMAKE_CURRENT_BINARY_DIR}/KZMUtilitiesConfigVersion.cmake
  DESTINATION ${KZM_PACKAGE_DIR})

# The prefix as seen from where the .pc files lie, so that an installed tree can be moved.
file(RELATIVE_PATH KZM_PREFIX_FROM_PKGCONFIG /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)

# kzm_pkg_config(NAME "what it is" "the libraries that its headers or its users need")
function(kzm_pkg_config name description requires)
  configure_file(cmake/library.pc.in ${CMAKE_CURRENT_BINARY_DIR}/${name}.pc @ONLY)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${name}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endfunction()
kzm_pkg_config(KZMUtilities "Raw measurements as short localized text" "KZMSettings KZMLocalization")
kzm_pkg_config(KZMSettings "The user's settings by key path" "")
kzm_pkg_config(KZMLocalization "Texts in the user's language" "")
