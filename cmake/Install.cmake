# What an installed copy holds: the libraries, their headers, and how CMake and pkg-config find them.
include(CMakePackageConfigHelpers)

install(DIRECTORY engine/include/chartdraw model/include/charteditors render/include/chartrender
                  style/include/chartstyle
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(TARGETS charteditors chartdraw chartrender chartstyle EXPORT ChartEditorsTargets)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/ChartEditors)
install(EXPORT ChartEditorsTargets NAMESPACE ChartEditors:: DESTINATION ${package_dir})
configure_package_config_file(cmake/ChartEditorsConfig.cmake.in ${PROJECT_BINARY_DIR}/ChartEditorsConfig.cmake
                              INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/ChartEditorsConfigVersion.cmake
                                 COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/ChartEditorsConfig.cmake ${PROJECT_BINARY_DIR}/ChartEditorsConfigVersion.cmake
        DESTINATION ${package_dir})

# chart_pkgconfig(NAME DESCRIPTION REQUIRES): NAME.pc, which finds its files from where it stands.
function(chart_pkgconfig name description requires)
    file(RELATIVE_PATH to_prefix ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
    configure_file(cmake/package.pc.in ${PROJECT_BINARY_DIR}/${name}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/${name}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endfunction()
chart_pkgconfig(chartdraw "Charts as pictures, through flat functions" "")
chart_pkgconfig(charteditors "Ready-made property editors for charts" "chartdraw")
chart_pkgconfig(chartrender "Pictures of charts from a model and the host's data" "charteditors chartdraw")
chart_pkgconfig(chartstyle "The look of charts as texts" "charteditors")
