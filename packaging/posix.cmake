install(DIRECTORY ${CMAKE_SOURCE_DIR}/sounds DESTINATION .)
install(FILES ${CMAKE_SOURCE_DIR}/readme.txt ${CMAKE_SOURCE_DIR}/COPYING DESTINATION .)
install(PROGRAMS add-to-menu DESTINATION .)
install(FILES duskmarch.desktop DESTINATION share/applications)
install(FILES duskmarch.svg DESTINATION share/icons/hicolor/scalable/apps)
install(FILES duskmarch.metainfo.xml DESTINATION share/metainfo)

# The bundle, which brings what it needs, and the package for Debian and its like.
set(CPACK_GENERATOR External)
set(CPACK_EXTERNAL_ENABLE_STAGING ON)
set(CPACK_EXTERNAL_PACKAGE_SCRIPT ${CMAKE_CURRENT_LIST_DIR}/linux/package.cmake)
