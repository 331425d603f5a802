# What `cmake --install` lays down: the plug-in, the programs, and for hosts that link the module
# the libraries with their headers and a package (find_package(qvzj)). docs/HOSTING.md tells how a
# host uses it.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(QV_INSTALL_LIBDIR ${CMAKE_INSTALL_LIBDIR}/qvzj)
set(QV_INSTALL_HEADERS ${CMAKE_INSTALL_INCLUDEDIR}/qvzj)
set(QV_INSTALL_PACKAGE ${CMAKE_INSTALL_LIBDIR}/cmake/qvzj)

# qv_closure(OUT ROOTS...): the module's own libraries that ROOTS need, themselves included.
function(qv_closure out)
  set(open ${ARGN})
  set(found)
  while(open)
    list(POP_FRONT open target)
    if(target IN_LIST found)
      continue()
    endif()
    list(APPEND found ${target})
    get_target_property(links ${target} INTERFACE_LINK_LIBRARIES)
    foreach(link IN LISTS links)
      if(TARGET ${link} AND link MATCHES "^qv_")
        list(APPEND open ${link})
      endif()
    endforeach()
  endwhile()
  set(${out} ${found} PARENT_SCOPE)
endfunction()

# qv_install_library(TARGET): the library and its headers; hosts know it as qvzj::NAME.
function(qv_install_library target)
  string(REGEX REPLACE "^qv_" "" name ${target})
  set_target_properties(${target} PROPERTIES EXPORT_NAME ${name})
  install(TARGETS ${target} EXPORT qvzj ARCHIVE DESTINATION ${QV_INSTALL_LIBDIR}
          LIBRARY DESTINATION ${QV_INSTALL_LIBDIR}/plugins/designer)
  get_target_property(sources ${target} SOURCES)
  get_target_property(folder ${target} SOURCE_DIR)
  foreach(header IN LISTS sources)
    if(header MATCHES "\\.h$")
      cmake_path(ABSOLUTE_PATH header BASE_DIRECTORY ${folder})
      cmake_path(RELATIVE_PATH header BASE_DIRECTORY ${PROJECT_SOURCE_DIR} OUTPUT_VARIABLE place)
      cmake_path(GET place PARENT_PATH place)
      install(FILES ${header} DESTINATION ${QV_INSTALL_HEADERS}/${place})
    endif()
  endforeach()
endfunction()

set(roots qv_control qv_headless)
if(QV_QT)
  list(APPEND roots qv_component qv_control_widget qv_factory qv_Zj_Ocx)
endif()
qv_closure(libraries ${roots})
foreach(library ${libraries})
  qv_install_library(${library})
endforeach()

foreach(program qvdb qvzj-script qvzj-demo)
  if(TARGET ${program})
    install(TARGETS ${program} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
  endif()
endforeach()

install(EXPORT qvzj NAMESPACE qvzj:: FILE qvzjTargets.cmake DESTINATION ${QV_INSTALL_PACKAGE})
set(QV_PACKAGE_PLUGINS ${QV_INSTALL_LIBDIR}/plugins)
configure_package_config_file(cmake/qvzjConfig.cmake.in ${PROJECT_BINARY_DIR}/qvzjConfig.cmake
  INSTALL_DESTINATION ${QV_INSTALL_PACKAGE} PATH_VARS QV_PACKAGE_PLUGINS)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/qvzjConfigVersion.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/qvzjConfig.cmake ${PROJECT_BINARY_DIR}/qvzjConfigVersion.cmake
        DESTINATION ${QV_INSTALL_PACKAGE})
