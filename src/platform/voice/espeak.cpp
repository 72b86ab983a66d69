#include "platform/voice/espeak.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <exception>
#include <span>
#include <string_view>
#include <utility>

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

bool isspokenas(const espeak_VOICE& voice, std::string_view language) {
  // Entries of a priority byte and a name; an empty one ends them.
  for (const char* entry = voice.languages; entry != nullptr && *entry != '\0';) {
    const std::string_view name = entry + 1;
    if (name == language || name.starts_with(std::string(language) + "-")) return true;
    entry += name.size() + 2;
  }
  return false;
}

// "de" of "de_DE.UTF-8".
std::string systemlanguage() {
  for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    const char* const value = std::getenv(variable);
    if (value == nullptr || *value == '\0') continue;
    const std::string_view locale = value;
    return std::string(locale.substr(0, locale.find_first_of("_.@-")));
  }
  return {};
}

// What the synthesizer calls the language of its variants, and where it has them.
constexpr std::string_view variants = "variant";
constexpr std::string_view variantfolder = "!v/";

// Those of a language, or the variants.
std::vector<NamedVoice> listed(const std::string& language) {
  espeak_VOICE wanted{};
  wanted.languages = language.c_str();
  std::vector<NamedVoice> voices;
  for (const espeak_VOICE** voice = espeak_ListVoices(&wanted); *voice != nullptr; ++voice) {
    const std::string file = (*voice)->identifier;
    if (file.starts_with("mb/")) continue;  // needs another synthesizer, and its samples
    if (!isspokenas(**voice, language)) continue;
    if (file.starts_with(variantfolder) != (language == variants)) continue;
    voices.push_back({(*voice)->name, file});
  }
  std::ranges::sort(voices, {}, &NamedVoice::name);
  return voices;
}

void add(std::vector<NamedVoice>& voices, NamedVoice voice) {
  const auto same = [&](const NamedVoice& known) {
    return known.name == voice.name || known.file == voice.file;
  };
  if (std::ranges::none_of(voices, same)) voices.push_back(std::move(voice));
}

std::vector<NamedVoice> allvoices() {
  std::vector<NamedVoice> voices = {{"English", voicefile}};
  if (const std::string language = systemlanguage(); !language.empty()) {
    for (NamedVoice& voice : listed(language)) add(voices, std::move(voice));
  }
  for (const NamedVoice& variant : listed(std::string(variants))) {
    const std::string file = variant.file.substr(variantfolder.size());
    add(voices, {"English, " + variant.name, std::string(voicefile) + "+" + file});
  }
  return voices;
}

}  // namespace

Espeak& Espeak::instance(const std::filesystem::path& data) {
  // Never taken down: a thread may still be speaking when the program ends.
  static Espeak only(data);
  return only;
}

Espeak::Espeak(const std::filesystem::path& data) {
  espeak_ng_InitializePath(data.empty() ? nullptr : data.c_str());
  check(espeak_ng_Initialize(nullptr));
  check(espeak_ng_InitializeOutput(ENOUTPUT_MODE_SYNCHRONOUS, stretch, nullptr));
  usevoice(voicefile);
  espeak_SetSynthCallback(deliver);
  samplerate_ = espeak_ng_GetSampleRate();
}

const std::vector<NamedVoice>& Espeak::voices() {
  const std::lock_guard guard(saying_);
  if (voices_.empty()) voices_ = allvoices();
  return voices_;
}

void Espeak::usevoice(const std::string& file) {
  if (file == voice_) return;
  if (espeak_ng_SetVoiceByName(file.c_str()) != ENS_OK &&
      espeak_ng_SetVoiceByName(voicefile) != ENS_OK) {
    check(espeak_ng_SetVoiceByName(voicelanguage));
  }
  voice_ = file;
}

void Espeak::say(const std::string& text, int wordsaminute, const std::string& voice,
                 const SampleSink<std::int16_t>& sink) {
  const std::lock_guard guard(saying_);
  usevoice(voice.empty() ? voicefile : voice);
  check(espeak_ng_SetParameter(espeakRATE, wordsaminute, 0));
  Delivery delivery{sink, nullptr};
  check(espeak_ng_Synthesize(text.c_str(), text.size() + 1, 0, POS_CHARACTER, 0, espeakCHARS_UTF8,
                             nullptr, &delivery));
  if (delivery.failure) std::rethrow_exception(delivery.failure);
}

}  // namespace duskmarch
