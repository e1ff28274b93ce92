# Debian packages, one per install component (the package preset runs CPack):
#   libkorv-plurexdata0.2   the shared object; its Depends computed by dpkg-shlibdeps
#   libkorv-plurexdata-dev  headers, CMake package, pkg-config file; needs exactly that runtime
#   plurex                  the command-line tool
#   python3-plurexdata      the Python module, for the Python version it was built with
set(PLUREXDATA_MAINTAINER "PlurexData contributors <plurexdata@example.org>"
    CACHE STRING "Maintainer named in the Debian packages")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME plurexdata)
set(CPACK_PACKAGE_VENDOR "PlurexData contributors")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_COMPONENTS_ALL ${PLUREXDATA_COMPONENTS})

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
# Each package's summary is the first line of its own description, then the long text, which CPack
# indents as Debian wants. An empty common summary keeps CPack from putting the project's above them.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${PLUREXDATA_MAINTAINER}")
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
# The tool's link to the library is resolved from the build tree: the runtime package is not
# installed while the packages are made. Its dependency on that package comes from the component.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/PlurexData)

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${PLUREXDATA_RUNTIME_PACKAGE})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
# Patch releases keep the ABI of their minor version, which the SONAME names.
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "data model of a networked broadcast video-server installation
PlurexData holds the data model of a networked broadcast video-server
installation: servers and their record and play channels, clips with their
essences, timecodes, timelines, cue points and change notifications. It
converts that model to and from the forms devices exchange: GUID text, a
packed 290-byte clip record in either byte order, and text in seven
character sets.

This package contains the shared library.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME ${PLUREXDATA_DEVELOPMENT_PACKAGE})
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_COMPONENT_DEVELOPMENT_DEPENDS runtime)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS libboost-dev)
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "data model of a broadcast video-server installation (development files)
PlurexData holds the data model of a networked broadcast video-server
installation and converts it to and from the forms devices exchange.

This package contains the C++17 headers, the CMake package
(find_package(PlurexData)) and the pkg-config file (plurexdata).")

set(CPACK_DEBIAN_TOOL_PACKAGE_NAME ${PLUREXDATA_TOOL_PACKAGE})
set(CPACK_DEBIAN_TOOL_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_TOOL_PACKAGE_SHLIBDEPS ON)
set(CPACK_COMPONENT_TOOL_DEPENDS runtime)
set(CPACK_COMPONENT_TOOL_DESCRIPTION "inspect broadcast video-server identifiers, clip records and text
plurex decodes and encodes the packed 290-byte clip records of a networked
broadcast video-server installation, makes and reads its GUIDs, server and
clip identifiers, checks timecodes, names enumeration values and converts
text between the character sets the servers use.")

set(CPACK_DEBIAN_PYTHON_PACKAGE_NAME ${PLUREXDATA_PYTHON_PACKAGE})
set(CPACK_DEBIAN_PYTHON_PACKAGE_SECTION python)
set(CPACK_DEBIAN_PYTHON_PACKAGE_SHLIBDEPS ON)
set(CPACK_COMPONENT_PYTHON_DEPENDS runtime)
# An extension module is built for one Python version's ABI.
if(PLUREXDATA_PYTHON_VERSION)
    math(EXPR next_minor "${PLUREXDATA_PYTHON_VERSION_MINOR} + 1")
    set(CPACK_DEBIAN_PYTHON_PACKAGE_DEPENDS
        "python3 (>= ${PLUREXDATA_PYTHON_VERSION}), python3 (<< ${PLUREXDATA_PYTHON_VERSION_MAJOR}.${next_minor})")
endif()
set(CPACK_COMPONENT_PYTHON_DESCRIPTION "data model of a broadcast video-server installation (Python module)
The plurexdata module gives Python scripts the PlurexData library: GUIDs and
identifiers, clip records in either byte order with their texts,
enumerations and timecodes, and text conversion between the character sets
the servers use.")

include(CPack)
