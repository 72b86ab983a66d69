# On Windows: everything but the resampler is the system's own.
find_package(SampleRate REQUIRED)
target_link_libraries(sound PRIVATE SampleRate::samplerate ole32 avrt strmiids)

file(GLOB window_sources CONFIGURE_DEPENDS win32/*.cpp)
list(FILTER window_sources EXCLUDE REGEX "/(main|console|text|openfile|files)\\.cpp$")
file(GLOB voice_sources CONFIGURE_DEPENDS win32/voice/*.cpp)
add_library(win32_desktop STATIC ${window_sources} ${voice_sources} ${shared_sources}
  voice/plaintext.cpp voice/steadyspeech.cpp)
target_link_libraries(win32_desktop PUBLIC frontend sound win32_text
  comctl32 gdi32 imm32 ole32 oleacc oleaut32)

add_executable(duskmarch WIN32 win32/main.cpp)
target_link_options(duskmarch PRIVATE -municode)
target_link_libraries(duskmarch PRIVATE win32_desktop commandline)
program_resources(duskmarch "Duskmarch")
add_dependencies(duskmarch sounds)
install(TARGETS duskmarch DESTINATION .)
