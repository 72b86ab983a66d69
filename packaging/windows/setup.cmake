# Run by CPack: makes the installer of the folder that it has staged.
find_program(makensis makensis REQUIRED)
set(setup ${CPACK_PACKAGE_DIRECTORY}/${CPACK_PACKAGE_NAME}-${CPACK_PACKAGE_VERSION}-setup.exe)

# What is removed is what was brought, file by file: all else is the player's.
set(removal "")
file(GLOB_RECURSE entries LIST_DIRECTORIES true RELATIVE ${CPACK_TEMPORARY_DIRECTORY}
  ${CPACK_TEMPORARY_DIRECTORY}/*)
list(SORT entries ORDER DESCENDING)  # what lies in a folder before the folder
foreach(entry ${entries})
  string(REPLACE "/" "\\" path ${entry})
  if(IS_DIRECTORY ${CPACK_TEMPORARY_DIRECTORY}/${entry})
    string(APPEND removal "RMDir \"$INSTDIR\\${path}\"\n")
  else()
    string(APPEND removal "Delete \"$INSTDIR\\${path}\"\n")
  endif()
endforeach()
file(WRITE ${CPACK_TOPLEVEL_DIRECTORY}/removal.nsh "${removal}")

execute_process(
  COMMAND ${makensis} -V2 -WX -INPUTCHARSET UTF8
    -DVERSION=${CPACK_PACKAGE_VERSION} -DFOLDER=${CPACK_TEMPORARY_DIRECTORY}
    -DREMOVAL=${CPACK_TOPLEVEL_DIRECTORY}/removal.nsh
    -DICON=${CMAKE_CURRENT_LIST_DIR}/../duskmarch.ico -DOUTPUT=${setup}
    ${CMAKE_CURRENT_LIST_DIR}/duskmarch.nsi
  COMMAND_ERROR_IS_FATAL ANY)
set(CPACK_EXTERNAL_BUILT_PACKAGES ${setup})
