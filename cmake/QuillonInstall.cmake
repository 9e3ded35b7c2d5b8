# Installs the library, its headers, the CMake package `Quillon` and the pkg-config module `quillon`.
# All files are found relative to each other, so that an installed tree can be moved.
include(CMakePackageConfigHelpers)

set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/Quillon")

install(TARGETS quillon EXPORT QuillonTargets
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
    FILE_SET HEADERS DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}"
    INCLUDES DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}") # for users whose CMake knows no file sets
install(EXPORT QuillonTargets NAMESPACE Quillon:: DESTINATION "${package_dir}")
if(QUILLON_BUILD_STATIC)
    install(TARGETS quillon_static EXPORT QuillonStaticTargets ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}")
    install(EXPORT QuillonStaticTargets NAMESPACE Quillon:: DESTINATION "${package_dir}")
endif()

configure_package_config_file(
    "${CMAKE_CURRENT_LIST_DIR}/QuillonConfig.cmake.in" "${PROJECT_BINARY_DIR}/QuillonConfig.cmake"
    INSTALL_DESTINATION "${package_dir}"
    NO_SET_AND_CHECK_MACRO)
# Generated code says which major and minor version it is for, and no other one runs it.
write_basic_package_version_file("${PROJECT_BINARY_DIR}/QuillonConfigVersion.cmake" COMPATIBILITY SameMinorVersion)
install(FILES
    "${PROJECT_BINARY_DIR}/QuillonConfig.cmake" "${PROJECT_BINARY_DIR}/QuillonConfigVersion.cmake"
    DESTINATION "${package_dir}")

cmake_path(SET pkgconfig_dir "${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig")
cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX BASE_DIRECTORY "${pkgconfig_dir}" OUTPUT_VARIABLE prefix_from_pkgconfig)
configure_file("${CMAKE_CURRENT_LIST_DIR}/quillon.pc.in" "${PROJECT_BINARY_DIR}/quillon.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/quillon.pc" DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig")

# gdb looks for a file of this name under the folder of the library. The prefix is that of `cmake --install`.
install(FILES "${PROJECT_SOURCE_DIR}/tools/gdb/libquillon-gdb.py"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/gdb/auto-load\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_LIBDIR}"
    RENAME libquillon.so.1-gdb.py)

install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" "${PROJECT_SOURCE_DIR}/CHANGELOG.md" DESTINATION "${CMAKE_INSTALL_DOCDIR}")
