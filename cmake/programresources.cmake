# Gives a program for Windows its icon, its version and its manifest.
enable_language(RC)
function(program_resources program description)
  set(file ${CMAKE_CURRENT_BINARY_DIR}/${program}.rc)
  configure_file(${CMAKE_SOURCE_DIR}/src/platform/win32/program.rc.in ${file} @ONLY)
  set_source_files_properties(${file} PROPERTIES
    INCLUDE_DIRECTORIES ${CMAKE_SOURCE_DIR}/src
    OBJECT_DEPENDS "${CMAKE_SOURCE_DIR}/packaging/duskmarch.ico;${CMAKE_SOURCE_DIR}/src/platform/win32/program.manifest")
  target_sources(${program} PRIVATE ${file})
endfunction()
