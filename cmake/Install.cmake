include(CMakePackageConfigHelpers)

set(PLUREXDATA_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/PlurexData)

install(TARGETS PlurexData EXPORT PlurexDataTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/PlurexData/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/PlurexData
    FILES_MATCHING PATTERN "*.h"
    PATTERN "detail" EXCLUDE)
install(FILES ${PROJECT_BINARY_DIR}/include/PlurexData/Export.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/PlurexData)

install(EXPORT PlurexDataTargets NAMESPACE Korv:: DESTINATION ${PLUREXDATA_CMAKE_DIR})
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/PlurexDataConfig.cmake.in
    ${PROJECT_BINARY_DIR}/PlurexDataConfig.cmake
    INSTALL_DESTINATION ${PLUREXDATA_CMAKE_DIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/PlurexDataConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/PlurexDataConfig.cmake ${PROJECT_BINARY_DIR}/PlurexDataConfigVersion.cmake
    DESTINATION ${PLUREXDATA_CMAKE_DIR})

# The .pc file finds its prefix from its own place, so an install moved with --prefix still works.
file(RELATIVE_PATH PLUREXDATA_PC_TO_PREFIX /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
configure_file(${CMAKE_CURRENT_LIST_DIR}/plurexdata.pc.in ${PROJECT_BINARY_DIR}/plurexdata.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/plurexdata.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

if(PLUREXDATA_BUILD_TOOLS)
    install(TARGETS plurex RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()
