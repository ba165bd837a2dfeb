# What an installed copy holds: the libraries, their headers, and how CMake and pkg-config find them; and the
# packages that are made of it.
include(CMakePackageConfigHelpers)

install(DIRECTORY engine/include/chartdraw model/include/charteditors render/include/chartrender
                  style/include/chartstyle
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)
install(TARGETS charteditors chartdraw chartrender chartstyle EXPORT ChartEditorsTargets
        LIBRARY COMPONENT runtime NAMELINK_COMPONENT development
        ARCHIVE COMPONENT development RUNTIME COMPONENT runtime)
install(TARGETS chart-editors-demo RUNTIME COMPONENT demo)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/ChartEditors)
install(EXPORT ChartEditorsTargets NAMESPACE ChartEditors:: DESTINATION ${package_dir} COMPONENT development)
configure_package_config_file(cmake/ChartEditorsConfig.cmake.in ${PROJECT_BINARY_DIR}/ChartEditorsConfig.cmake
                              INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/ChartEditorsConfigVersion.cmake
                                 COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/ChartEditorsConfig.cmake ${PROJECT_BINARY_DIR}/ChartEditorsConfigVersion.cmake
        DESTINATION ${package_dir} COMPONENT development)

# chart_pkgconfig(NAME DESCRIPTION REQUIRES): NAME.pc, which finds its files from where it stands.
function(chart_pkgconfig name description requires)
    file(RELATIVE_PATH to_prefix ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
    configure_file(cmake/package.pc.in ${PROJECT_BINARY_DIR}/${name}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/${name}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)
endfunction()
chart_pkgconfig(chartdraw "Charts as pictures, through flat functions" "")
chart_pkgconfig(charteditors "Ready-made property editors for charts" "chartdraw")
chart_pkgconfig(chartrender "Pictures of charts from a model and the host's data" "charteditors chartdraw")
chart_pkgconfig(chartstyle "The look of charts as texts" "charteditors")

# cpack in the build folder makes three packages; what the libraries need of the system is read off them.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME charteditors)
set(CPACK_PACKAGE_CONTACT "The chart editors' makers <maintainers@users.noreply.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_COMPONENTS_ALL runtime development demo)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME libcharteditors0)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_RECOMMENDS "qt6-image-formats-plugins, fonts-liberation | fonts-dejavu-core")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libcharteditors-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "libcharteditors0 (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_DEMO_PACKAGE_NAME charteditors-demo)
set(CPACK_DEBIAN_DEMO_PACKAGE_DEPENDS "libcharteditors0 (= ${PROJECT_VERSION})")
include(CPack)
