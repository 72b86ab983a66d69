// Where the speech engines report what they survived.
#pragma once

#include <functional>
#include <string_view>

namespace duskmarch {

// Gets an error's description, fit for the log as an error of `sayit`. It is called on any thread,
// the engine's own mostly; it must return soon, must not throw, and must not call the engine. It is
// never called once the engine is destroyed.
using SpeechLog = std::function<void(std::string_view)>;

}  // namespace duskmarch
