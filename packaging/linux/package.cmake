# Run by CPack: makes the packages for Linux of the folder that it has staged.
find_program(bash bash REQUIRED)
file(REMOVE_RECURSE ${CPACK_TOPLEVEL_DIRECTORY}/packing)
set(made)
foreach(kind bundle deb)
  execute_process(
    COMMAND ${bash} ${CMAKE_CURRENT_LIST_DIR}/${kind} ${CPACK_TEMPORARY_DIRECTORY}
      ${CPACK_TOPLEVEL_DIRECTORY}/packing/${kind} ${CPACK_PACKAGE_VERSION} ${CPACK_PACKAGE_DIRECTORY}
    OUTPUT_VARIABLE file
    OUTPUT_STRIP_TRAILING_WHITESPACE
    COMMAND_ERROR_IS_FATAL ANY)
  list(APPEND made ${file})
endforeach()
file(REMOVE_RECURSE ${CPACK_TOPLEVEL_DIRECTORY}/packing)
set(CPACK_EXTERNAL_BUILT_PACKAGES ${made})
