# On Linux and its like: the window is Qt's.
find_package(PkgConfig REQUIRED)
find_package(Qt6 6.2 REQUIRED COMPONENTS Widgets DBus)
pkg_check_modules(sdl2 REQUIRED IMPORTED_TARGET sdl2)
pkg_check_modules(sndfile REQUIRED IMPORTED_TARGET sndfile)
pkg_check_modules(samplerate REQUIRED IMPORTED_TARGET samplerate)
pkg_check_modules(speechd REQUIRED IMPORTED_TARGET speech-dispatcher)
find_path(espeak_ng_include espeak-ng/speak_lib.h REQUIRED)
find_library(espeak_ng_library espeak-ng REQUIRED)

target_link_libraries(sound PRIVATE PkgConfig::sdl2 PkgConfig::sndfile PkgConfig::samplerate)
if(sndfile_VERSION VERSION_LESS 1.1)
  # It knows no MP3, as on Ubuntu 22.04: these are the names it lacks, and music is refused.
  target_compile_definitions(sound PUBLIC SF_FORMAT_MPEG=0x230000 SF_FORMAT_MPEG_LAYER_III=0x82)
endif()

file(GLOB voice_sources CONFIGURE_DEPENDS voice/*.cpp)
add_library(voice STATIC ${voice_sources})
target_include_directories(voice PUBLIC ${CMAKE_SOURCE_DIR}/src PRIVATE ${espeak_ng_include})
target_link_libraries(voice PUBLIC Threads::Threads
  PRIVATE values ${espeak_ng_library} PkgConfig::speechd PkgConfig::samplerate)

file(GLOB qt_sources CONFIGURE_DEPENDS qt/*.cpp posix/*.cpp)
list(FILTER qt_sources EXCLUDE REGEX "/(main|console|files)\\.cpp$")
add_library(qt_desktop STATIC ${qt_sources} ${shared_sources})
target_compile_definitions(qt_desktop PUBLIC QT_NO_KEYWORDS)  # "signals" is a word like any other
target_link_libraries(qt_desktop PUBLIC frontend sound voice Qt6::Widgets Qt6::DBus)
qt_add_resources(icon_sources ${CMAKE_SOURCE_DIR}/packaging/duskmarch.qrc
  OPTIONS --format-version 1)  # without the times of the files
add_executable(duskmarch qt/main.cpp ${icon_sources})
target_link_libraries(duskmarch PRIVATE qt_desktop commandline)
add_dependencies(duskmarch sounds)
install(TARGETS duskmarch DESTINATION .)
