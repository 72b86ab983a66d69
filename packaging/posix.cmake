install(DIRECTORY ${CMAKE_SOURCE_DIR}/sounds DESTINATION .)
install(FILES ${CMAKE_SOURCE_DIR}/readme.txt ${CMAKE_SOURCE_DIR}/COPYING DESTINATION .)
install(PROGRAMS add-to-menu DESTINATION .)
install(FILES duskmarch.desktop DESTINATION share/applications)
install(FILES duskmarch.svg DESTINATION share/icons/hicolor/scalable/apps)
install(FILES duskmarch.metainfo.xml DESTINATION share/metainfo)

set(CPACK_GENERATOR TGZ)
set(CPACK_PACKAGE_FILE_NAME
  ${PROJECT_NAME}-${PROJECT_VERSION}-${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR})
