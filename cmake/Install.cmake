include(CMakePackageConfigHelpers)

set(PLUREXDATA_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/PlurexData)
# Debian names a library's runtime package after its SONAME (libKorv.PlurexData.so.0.2).
set(PLUREXDATA_RUNTIME_PACKAGE libkorv-plurexdata${PLUREXDATA_SOVERSION})
set(PLUREXDATA_DEVELOPMENT_PACKAGE libkorv-plurexdata-dev)
set(PLUREXDATA_TOOL_PACKAGE plurex)
set(PLUREXDATA_PYTHON_PACKAGE python3-plurexdata)

# A component per package: the shared object and its SONAME link; what a program is built with; the
# command-line tool; the Python module (installed by python/CMakeLists.txt).
install(TARGETS PlurexData EXPORT PlurexDataTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/PlurexData/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/PlurexData
    COMPONENT development
    FILES_MATCHING PATTERN "*.h"
    PATTERN "detail" EXCLUDE)
install(FILES ${PROJECT_BINARY_DIR}/include/PlurexData/Export.h ${PROJECT_BINARY_DIR}/include/PlurexData/Version.h
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/PlurexData COMPONENT development)

install(EXPORT PlurexDataTargets NAMESPACE Korv:: DESTINATION ${PLUREXDATA_CMAKE_DIR} COMPONENT development)
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/PlurexDataConfig.cmake.in
    ${PROJECT_BINARY_DIR}/PlurexDataConfig.cmake
    INSTALL_DESTINATION ${PLUREXDATA_CMAKE_DIR})
# 0.x releases may break the ABI with every minor version, so only the same minor is accepted.
if(PROJECT_VERSION_MAJOR EQUAL 0)
    set(compatibility SameMinorVersion)
else()
    set(compatibility SameMajorVersion)
endif()
write_basic_package_version_file(${PROJECT_BINARY_DIR}/PlurexDataConfigVersion.cmake
    COMPATIBILITY ${compatibility})
install(FILES ${PROJECT_BINARY_DIR}/PlurexDataConfig.cmake ${PROJECT_BINARY_DIR}/PlurexDataConfigVersion.cmake
    DESTINATION ${PLUREXDATA_CMAKE_DIR} COMPONENT development)

# The .pc file finds its prefix from its own place, so an install moved with --prefix still works.
file(RELATIVE_PATH PLUREXDATA_PC_TO_PREFIX /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
configure_file(${CMAKE_CURRENT_LIST_DIR}/plurexdata.pc.in ${PROJECT_BINARY_DIR}/plurexdata.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/plurexdata.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
    COMPONENT development)

# Every package carries the licence where Debian looks for it, in Debian's machine-readable form: the
# MIT text after its title and copyright line, each line indented, blank lines as " .".
file(READ ${PROJECT_SOURCE_DIR}/LICENSE license_text)
string(REGEX REPLACE "^[^\n]*\n\n[^\n]*\n\n" "" license_text "${license_text}")
string(REGEX REPLACE "\n+$" "" license_text "${license_text}")
string(REPLACE "\n\n" "\n.\n" license_text "${license_text}")
string(REPLACE "\n" "\n " PLUREXDATA_LICENSE_BODY " ${license_text}")
configure_file(${CMAKE_CURRENT_LIST_DIR}/copyright.in ${PROJECT_BINARY_DIR}/copyright @ONLY)
set(PLUREXDATA_COMPONENTS runtime development)
if(PLUREXDATA_BUILD_TOOLS)
    list(APPEND PLUREXDATA_COMPONENTS tool)
endif()
if(PLUREXDATA_PYTHON)
    list(APPEND PLUREXDATA_COMPONENTS python)
endif()
foreach(component IN LISTS PLUREXDATA_COMPONENTS)
    string(TOUPPER ${component} upper)
    install(FILES ${PROJECT_BINARY_DIR}/copyright
        DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/${PLUREXDATA_${upper}_PACKAGE} COMPONENT ${component})
endforeach()

if(PLUREXDATA_BUILD_TOOLS)
    install(TARGETS plurex RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT tool)
endif()
