# A folder in a ZIP file, and the same folder in an installer. Texts end their lines as the system's
# own programs expect it.
foreach(text readme.txt COPYING sounds/LICENSE.txt)
  cmake_path(GET text PARENT_PATH folder)
  cmake_path(GET text STEM name)
  set(copy ${CMAKE_CURRENT_BINARY_DIR}/texts/${folder}/${name}.txt)
  configure_file(${CMAKE_SOURCE_DIR}/${text} ${copy} @ONLY NEWLINE_STYLE CRLF)
  install(FILES ${copy} DESTINATION ./${folder})
endforeach()
install(DIRECTORY ${CMAKE_SOURCE_DIR}/sounds DESTINATION . PATTERN LICENSE.txt EXCLUDE)

set(CPACK_GENERATOR ZIP External)
set(CPACK_PACKAGE_FILE_NAME ${PROJECT_NAME}-${PROJECT_VERSION}-windows-x86_64)
set(CPACK_EXTERNAL_ENABLE_STAGING ON)
set(CPACK_EXTERNAL_PACKAGE_SCRIPT ${CMAKE_CURRENT_LIST_DIR}/setup.cmake)
