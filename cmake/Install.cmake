# Installs the module where CEGUI looks for window sets (lib/cegui-0.8 under the prefix;
# with the prefix /usr that is CEGUI's own module folder), its data under share/MoxieLook,
# its headers, a CMake package (MoxieLook::CEGUIMoxieLook) and a pkg-config file.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(MOXIE_INSTALL_MODULEDIR ${CMAKE_INSTALL_LIBDIR}/cegui-0.8)
set(MOXIE_INSTALL_DATADIR ${CMAKE_INSTALL_DATADIR}/MoxieLook)
set(MOXIE_INSTALL_CMAKEDIR ${CMAKE_INSTALL_LIBDIR}/cmake/MoxieLook)

target_include_directories(CEGUIMoxieLook PUBLIC
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/MoxieLook>)
install(TARGETS CEGUIMoxieLook EXPORT MoxieLookTargets
        LIBRARY DESTINATION ${MOXIE_INSTALL_MODULEDIR})
foreach(folder module widgets looks draw)
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/${folder}/
            DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/MoxieLook/${folder}
            FILES_MATCHING PATTERN "*.h")
endforeach()
install(FILES ${MOXIE_DATA_DIR}/MoxieLook.scheme ${MOXIE_DATA_DIR}/MoxieLook.imageset
              ${MOXIE_DATA_DIR}/MoxieLook.png ${MOXIE_DATA_DIR}/MoxieLook.font
              ${MOXIE_DATA_DIR}/DejaVuSans.ttf
              ${MOXIE_DATA_DIR}/MoxieLookAsTaharezLook.scheme
              ${MOXIE_DATA_DIR}/MoxieLookAsWindowsLook.scheme
              ${MOXIE_DATA_DIR}/MoxieLookAsVanilla.scheme
        DESTINATION ${MOXIE_INSTALL_DATADIR})

install(EXPORT MoxieLookTargets NAMESPACE MoxieLook:: DESTINATION ${MOXIE_INSTALL_CMAKEDIR})
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/MoxieLookConfig.cmake.in
    ${PROJECT_BINARY_DIR}/MoxieLookConfig.cmake
    INSTALL_DESTINATION ${MOXIE_INSTALL_CMAKEDIR}
    PATH_VARS MOXIE_INSTALL_DATADIR MOXIE_INSTALL_MODULEDIR)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/MoxieLookConfigVersion.cmake
    COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/MoxieLookConfig.cmake
              ${PROJECT_BINARY_DIR}/MoxieLookConfigVersion.cmake
        DESTINATION ${MOXIE_INSTALL_CMAKEDIR})

file(RELATIVE_PATH MOXIE_PC_TO_PREFIX /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
configure_file(${PROJECT_SOURCE_DIR}/cmake/moxielook.pc.in ${PROJECT_BINARY_DIR}/moxielook.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/moxielook.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
