# Finds expat in its 16-bit form (XML_UNICODE, library expatw), for which neither
# CMake nor pkg-config knows a name. Defines the target ExpatW::ExpatW.
find_path(ExpatW_INCLUDE_DIR NAMES expat.h)
find_library(ExpatW_LIBRARY NAMES expatw)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(ExpatW REQUIRED_VARS ExpatW_LIBRARY ExpatW_INCLUDE_DIR)
mark_as_advanced(ExpatW_INCLUDE_DIR ExpatW_LIBRARY)

if(ExpatW_FOUND AND NOT TARGET ExpatW::ExpatW)
    add_library(ExpatW::ExpatW UNKNOWN IMPORTED)
    set_target_properties(ExpatW::ExpatW PROPERTIES
        IMPORTED_LOCATION "${ExpatW_LIBRARY}"
        INTERFACE_INCLUDE_DIRECTORIES "${ExpatW_INCLUDE_DIR}"
        INTERFACE_COMPILE_DEFINITIONS XML_UNICODE)
endif()
