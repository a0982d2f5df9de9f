# `cmake --install` puts libraries, headers and the CMake package in place, so that a host says
# find_package(quill) and links quill::quill, or quill::quill-qt for the renderer.
include(CMakePackageConfigHelpers)

set(QUILL_INSTALLED_TARGETS quill)
if(QUILL_QT)
  list(APPEND QUILL_INSTALLED_TARGETS quill-qt)
endif()
install(TARGETS ${QUILL_INSTALLED_TARGETS} EXPORT quill-targets
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})

set(QUILL_HEADER_FOLDERS platform framework editors status records graphs liveviews actions testhistory)
if(QUILL_QT)
  list(APPEND QUILL_HEADER_FOLDERS qt)
endif()
foreach(folder IN LISTS QUILL_HEADER_FOLDERS)
  if(IS_DIRECTORY ${PROJECT_SOURCE_DIR}/src/${folder})
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/src/${folder}
      DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/quill
      FILES_MATCHING PATTERN "*.h" PATTERN "libxml2" EXCLUDE)
  endif()
endforeach()

set(QUILL_PACKAGE_FOLDER ${CMAKE_INSTALL_LIBDIR}/cmake/quill)
install(EXPORT quill-targets NAMESPACE quill:: DESTINATION ${QUILL_PACKAGE_FOLDER})
configure_package_config_file(cmake/quillConfig.cmake.in quillConfig.cmake
  INSTALL_DESTINATION ${QUILL_PACKAGE_FOLDER})
write_basic_package_version_file(quillConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/quillConfig.cmake
  ${CMAKE_CURRENT_BINARY_DIR}/quillConfigVersion.cmake DESTINATION ${QUILL_PACKAGE_FOLDER})
