#include "platform/win32/voice/sapivoice.h"

#include <chrono>
#include <deque>
#include <optional>
#include <string>
#include <utility>

#include "platform/voice/plaintext.h"
#include "platform/win32/automation.h"
#include "platform/win32/text.h"

namespace duskmarch {
namespace {

using std::chrono::milliseconds;

constexpr auto voicename = L"SAPI.SpVoice";

// How a text is to be spoken. What it holds is never an order to the voice.
enum SpeakFlags : long { meanwhile = 1, purging = 2, notmarkup = 16 };

// "RunningState" when all has been spoken.
constexpr long allspoken = 1;
// How often a voice that speaks is asked whether it still does.
constexpr milliseconds betweenlooks{50};
constexpr milliseconds farewell{300};
// More texts than anyone would wait for; of longer queues the oldest are dropped.
constexpr std::size_t longestqueue = 200;

struct Utterance {
  std::string text;
  long flags = 0;
  std::optional<int> rate;
};

// Throws PlatformError where there is none to be made.
std::shared_ptr<Mixer> withvoice(std::shared_ptr<Mixer> mixer) {
  if (!objectknown(voicename)) throw PlatformError("the system has no voice");
  return mixer;
}

}  // namespace

struct SapiVoice::Orders : Desk {
  Orders(std::shared_ptr<Mixer> mixer, SpeechLog speechlog)
      : sounds(std::move(mixer)), log(std::move(speechlog)) {}

  const std::shared_ptr<Mixer> sounds;
  const SpeechLog log;
  std::deque<Utterance> waiting;
  std::optional<int> rate;
};

// The thread's side.
class SapiVoice::Clerk {
 public:
  explicit Clerk(Orders& orders) : orders_(orders) {}
  Clerk(const Clerk&) = delete;
  Clerk& operator=(const Clerk&) = delete;
  ~Clerk() { orders_.sounds->setspeaking(false); }

  void work() {
    while (const auto next = await()) saywhole(*next);
  }

 private:
  std::optional<Utterance> await();
  void saywhole(const Utterance& utterance);
  void say(const Utterance& utterance);
  void look();
  void heard(bool speaking) {
    speaking_ = speaking;
    orders_.sounds->setspeaking(speaking);
  }
  void report(const char* trouble) {
    const std::lock_guard guard(orders_.mutex);
    if (!orders_.ending) orders_.log(trouble);
  }

  Orders& orders_;
  ComPtr<IDispatch> voice_;
  std::optional<int> rate_;  // that the voice was given
  bool speaking_ = false;
};

// Nothing at the end.
std::optional<Utterance> SapiVoice::Clerk::await() {
  const auto wanted = [this] { return orders_.ending || !orders_.waiting.empty(); };
  std::unique_lock lock(orders_.mutex);
  while (speaking_ && !orders_.wake.wait_for(lock, betweenlooks, wanted)) {
    lock.unlock();
    look();
    lock.lock();
  }
  orders_.wake.wait(lock, wanted);
  if (orders_.ending) return std::nullopt;
  Utterance next = std::move(orders_.waiting.front());
  orders_.waiting.pop_front();
  return next;
}

void SapiVoice::Clerk::saywhole(const Utterance& utterance) {
  const bool worked = static_cast<bool>(voice_);
  try {
    try {
      say(utterance);
    } catch (const PlatformError&) {
      voice_.reset();
      if (!worked) throw;
      say(utterance);  // by a new one: the old one may have gone
    }
  } catch (const PlatformError& error) {
    voice_.reset();
    heard(false);
    report(error.what());
  }
}

void SapiVoice::Clerk::say(const Utterance& utterance) {
  if (!voice_) {
    voice_ = makeobject(voicename);
    rate_.reset();
  }
  if (utterance.rate && utterance.rate != rate_) {
    setproperty(*voice_.get(), L"Rate", *utterance.rate);
    rate_ = utterance.rate;
  }
  if (!utterance.text.empty()) heard(true);
  callmethod(*voice_.get(), L"Speak", utf16(utterance.text), utterance.flags);
}

// A voice that does not tell is taken to have finished: sounds are not to stay soft for it.
void SapiVoice::Clerk::look() {
  try {
    const Variant status = getproperty(*voice_.get(), L"Status");
    heard(status.object() != nullptr &&
          getproperty(*status.object(), L"RunningState").number(allspoken) != allspoken);
  } catch (const PlatformError&) {
    heard(false);
  }
}

SapiVoice::SapiVoice(std::shared_ptr<Mixer> mixer, SpeechLog log)
    : thread_(
          std::make_shared<Orders>(withvoice(std::move(mixer)), std::move(log)),
          [](const std::shared_ptr<Orders>& orders) { Clerk(*orders).work(); }, farewell) {}

SapiVoice::~SapiVoice() = default;

void SapiVoice::setrate(int rate) {
  thread_.order([&](Orders& orders) { orders.rate = rate; });
}

void SapiVoice::speak(std::string_view text) {
  thread_.order([&](Orders& orders) {
    orders.waiting.clear();
    orders.waiting.push_back({plaintext(text), meanwhile | purging | notmarkup, orders.rate});
  });
}

void SapiVoice::speakafter(std::string_view text) {
  thread_.order([&](Orders& orders) {
    if (orders.waiting.size() == longestqueue) orders.waiting.pop_front();
    orders.waiting.push_back({plaintext(text), meanwhile | notmarkup, orders.rate});
  });
}

}  // namespace duskmarch
