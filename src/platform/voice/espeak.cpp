#include "platform/voice/espeak.h"

#include <array>
#include <exception>
#include <span>

#include <espeak-ng/espeak_ng.h>
#include <espeak-ng/speak_lib.h>

#include "platform/desktop.h"

// Even where it plays nothing itself, the synthesizer asks its sound library for a device, and that
// waits for ever on a frozen sound server. This definition comes before the library's.
extern "C" struct audio_object* create_audio_device_object(const char*, const char*, const char*) {
  return nullptr;
}

namespace duskmarch {
namespace {

// Found at once by its file; the language alone is looked for among all voices.
constexpr const char* voicefile = "gmw/en";
constexpr const char* voicelanguage = "en";
// Length in milliseconds of the stretches that the synthesizer hands out, about.
constexpr int stretch = 20;

// What a text's samples are for, handed through the library.
struct Delivery {
  const SampleSink<std::int16_t>& sink;
  std::exception_ptr failure;
};

int deliver(short* samples, int count, espeak_EVENT* events) noexcept {
  if (samples == nullptr || count <= 0) return 0;
  auto& delivery = *static_cast<Delivery*>(events->user_data);
  try {
    return delivery.sink(std::span(samples, static_cast<std::size_t>(count))) ? 0 : 1;
  } catch (...) {
    delivery.failure = std::current_exception();
    return 1;
  }
}

void check(espeak_ng_STATUS status) {
  if (status == ENS_OK || status == ENS_SPEECH_STOPPED) return;
  std::array<char, 256> words{};
  espeak_ng_GetStatusCodeMessage(status, words.data(), words.size());
  throw PlatformError(std::string("the voice fails: ") + words.data());
}

}  // namespace

Espeak& Espeak::instance() {
  // Never taken down: a thread may still be speaking when the program ends.
  static Espeak only;
  return only;
}

Espeak::Espeak() {
  espeak_ng_InitializePath(nullptr);
  check(espeak_ng_Initialize(nullptr));
  check(espeak_ng_InitializeOutput(ENOUTPUT_MODE_SYNCHRONOUS, stretch, nullptr));
  if (espeak_ng_SetVoiceByName(voicefile) != ENS_OK) check(espeak_ng_SetVoiceByName(voicelanguage));
  espeak_SetSynthCallback(deliver);
  samplerate_ = espeak_ng_GetSampleRate();
}

void Espeak::say(const std::string& text, int wordsaminute, const SampleSink<std::int16_t>& sink) {
  const std::lock_guard guard(saying_);
  check(espeak_ng_SetParameter(espeakRATE, wordsaminute, 0));
  Delivery delivery{sink, nullptr};
  check(espeak_ng_Synthesize(text.c_str(), text.size() + 1, 0, POS_CHARACTER, 0, espeakCHARS_UTF8,
                             nullptr, &delivery));
  if (delivery.failure) std::rethrow_exception(delivery.failure);
}

}  // namespace duskmarch
