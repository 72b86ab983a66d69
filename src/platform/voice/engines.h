// The two speech engines of the desktop, for the front end to create.
//
// The front end makes one SpeechStream and adds it to its mixer as a source; whatever voice speaks
// into it is heard from there. The speech service sounds by itself and needs no mixer.
#pragma once

#include <filesystem>
#include <memory>

#include "platform/desktop.h"
#include "platform/voice/losablespeech.h"
#include "platform/voice/speechlog.h"
#include "platform/voice/speechstream.h"

namespace duskmarch {

// The game's own voice (eSpeak NG), synthesized in the process and heard through `stream`, which
// must not be null. Takes a millisecond or two, whatever the sound server does. Sets the letter
// types (LC_CTYPE) of the process to UTF-8. Throws PlatformError when the voice or its language
// data is missing. Voices may follow each other or overlap, as they share the synthesizer, and with
// it the data that the first was given: the folder in which its folder lies; empty: the system's.
std::unique_ptr<Voice> createespeakvoice(std::shared_ptr<SpeechStream> stream, SpeechLog log,
                                         const std::filesystem::path& data);

// The system's speech service (Speech Dispatcher), with the player's own voice, rate and volume.
// Returns at once: the connection is made, and the service started if need be, when the first text
// comes. Has the process ignore SIGPIPE, unless it handles it. Throws PlatformError when the
// service neither listens nor is installed. SteadySpeech has the voice stand in for it.
std::unique_ptr<LosableSpeech> createspeechservice(SpeechLog log);

}  // namespace duskmarch
