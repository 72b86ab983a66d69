# On Windows: everything but the resampler is the system's own.
find_package(SampleRate REQUIRED)
target_link_libraries(sound PRIVATE SampleRate::samplerate ole32 avrt)
