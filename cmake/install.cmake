# Installation, in components: the libraries, what is needed to build against them, the program, and what other
# languages load.
include(CMakePackageConfigHelpers)

set(KZM_PACKAGE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/KZMUtilities)

set(KZM_LIBRARIES KZMUtilities KZMSettings KZMLocalization)
if(KZM_BUILD_C)
  list(APPEND KZM_LIBRARIES KZMUtilities-c)
  install(FILES c/kzm.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)
endif()
install(TARGETS ${KZM_LIBRARIES} EXPORT KZMUtilitiesTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT libraries NAMELINK_COMPONENT development
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
if(BUILD_SHARED_LIBS)
  install(TARGETS KZMCanvas LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/KZMUtilities COMPONENT libraries)
endif()
install(DIRECTORY include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development FILES_MATCHING PATTERN *.h)
install(EXPORT KZMUtilitiesTargets NAMESPACE KZMUtilities:: DESTINATION ${KZM_PACKAGE_DIR} COMPONENT development)

configure_package_config_file(cmake/KZMUtilitiesConfig.cmake.in KZMUtilitiesConfig.cmake
  INSTALL_DESTINATION ${KZM_PACKAGE_DIR})
write_basic_package_version_file(KZMUtilitiesConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES
  ${CMAKE_CURRENT_BINARY_DIR}/KZMUtilitiesConfig.cmake
  ${CMAKE_CURRENT_BINARY_DIR}/KZMUtilitiesConfigVersion.cmake
  DESTINATION ${KZM_PACKAGE_DIR} COMPONENT development)
if(NOT BUILD_SHARED_LIBS)
  install(FILES cmake/dependencies.cmake cmake/FindCCTZ.cmake DESTINATION ${KZM_PACKAGE_DIR} COMPONENT development)
endif()

# An installed tree can be moved: the .pc files find their prefix from where they are. Where a folder is an absolute
# path, it is named as such.
set(KZM_PC_PREFIX ${CMAKE_INSTALL_PREFIX})
set(KZM_PC_LIBDIR ${CMAKE_INSTALL_FULL_LIBDIR})
set(KZM_PC_INCLUDEDIR ${CMAKE_INSTALL_FULL_INCLUDEDIR})
if(NOT IS_ABSOLUTE ${CMAKE_INSTALL_LIBDIR})
  cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX
    BASE_DIRECTORY ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig OUTPUT_VARIABLE KZM_PREFIX_FROM_PKGCONFIG)
  set(KZM_PC_PREFIX "\${pcfiledir}/${KZM_PREFIX_FROM_PKGCONFIG}")
  set(KZM_PC_LIBDIR "\${prefix}/${CMAKE_INSTALL_LIBDIR}")
endif()
if(NOT IS_ABSOLUTE ${CMAKE_INSTALL_INCLUDEDIR})
  set(KZM_PC_INCLUDEDIR "\${prefix}/${CMAKE_INSTALL_INCLUDEDIR}")
endif()

# kzm_pkg_config(NAME "what it is" [REQUIRES "..."] [PRIVATE "what its code calls"] [LIBS "libraries without a .pc"])
function(kzm_pkg_config name description)
  cmake_parse_arguments(ARG "" "REQUIRES;PRIVATE;LIBS" "" ${ARGN})
  configure_file(cmake/library.pc.in ${CMAKE_CURRENT_BINARY_DIR}/${name}.pc @ONLY)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${name}.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)
endfunction()
kzm_pkg_config(KZMUtilities "Raw measurements as short localized text" REQUIRES "KZMSettings KZMLocalization"
  PRIVATE "icu-i18n icu-uc glib-2.0 cairo" LIBS "-lcctz -pthread")
if(KZM_BUILD_C)
  kzm_pkg_config(KZMUtilities-c "Raw measurements as short localized text, for C"
    PRIVATE "KZMUtilities" LIBS "-lstdc++")
endif()
kzm_pkg_config(KZMSettings "The user's settings by key path" LIBS "-pthread")
kzm_pkg_config(KZMLocalization "Texts in the user's language" PRIVATE "icu-uc")

if(KZM_BUILD_PROGRAM)
  install(TARGETS kzmutil RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT program)
endif()
