#include "platform/win32/voice/sapivoice.h"

#include <algorithm>
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
// How long the start waits for the names of the voices.
constexpr std::chrono::seconds listing{1};
// How often a voice that speaks is asked whether it still does.
constexpr milliseconds betweenlooks{50};
constexpr milliseconds farewell{300};
// More texts than anyone would wait for; of longer queues the oldest are dropped.
constexpr std::size_t longestqueue = 200;

struct Utterance {
  std::string text;
  long flags = 0;
  std::optional<int> rate;
  std::string voice;  // by name; empty for the default
};

// One of the voices that the system's can have.
struct NamedVoice {
  std::string name;
  Variant token;
};

bool isamong(const std::vector<std::string>& names, std::string_view name) {
  return std::ranges::find(names, name) != names.end();
}

ComPtr<IDispatch> makevoice() {
  return makeobject(voicename);
}

std::string nameof(IDispatch& token) {
  return plaintext(utf8(callmethod(token, L"GetDescription").text()));
}

// The object is there on every Windows, the voices are not. One that lists none may speak.
bool hasnovoice(IDispatch& object) {
  const Variant all = callmethod(object, L"GetVoices");
  return getproperty(all.someobject(), L"Count").number(-1) == 0;
}

// The default first.
std::vector<NamedVoice> voicesof(IDispatch& object) {
  std::vector<NamedVoice> voices;
  const auto add = [&](Variant token) {
    std::string name = nameof(token.someobject());
    if (name.empty() || std::ranges::find(voices, name, &NamedVoice::name) != voices.end()) return;
    voices.push_back({std::move(name), std::move(token)});
  };
  add(getproperty(object, L"Voice"));
  const Variant all = callmethod(object, L"GetVoices");
  const long count = getproperty(all.someobject(), L"Count").number(0);
  for (long n = 0; n < count; ++n) add(callmethod(all.someobject(), L"Item", n));
  return voices;
}

}  // namespace

struct SapiVoice::Orders : Desk {
  Orders(std::shared_ptr<Mixer> mixer, SpeechLog speechlog, Make makeone)
      : sounds(std::move(mixer)), log(std::move(speechlog)), make(std::move(makeone)) {}

  const std::shared_ptr<Mixer> sounds;
  const SpeechLog log;
  const Make make;
  std::deque<Utterance> waiting;
  std::optional<int> rate;
  std::string voice;
  std::vector<std::string> names;
  bool listed = false;   // or found out that there is no list
  bool novoice = false;  // is what the list says
};

// The thread's side.
class SapiVoice::Clerk {
 public:
  explicit Clerk(Orders& orders) : orders_(orders) {}
  Clerk(const Clerk&) = delete;
  Clerk& operator=(const Clerk&) = delete;
  ~Clerk() { orders_.sounds->setspeaking(false); }

  void work() {
    listvoices();
    while (const auto next = await()) saywhole(*next);
  }

 private:
  std::optional<Utterance> await();
  void listvoices();
  void change(const std::string& voice);
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
  unsigned devices_ = 0;     // that had taken another's place when it spoke last
  std::optional<int> rate_;  // that the voice was given
  std::string name_;         // that it was given; empty: it has its own voice still
  std::vector<NamedVoice> voices_;
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

// A voice that names none has but one way to sound.
void SapiVoice::Clerk::listvoices() {
  bool novoice = false;
  try {
    voice_ = orders_.make();
    novoice = hasnovoice(*voice_.get());
    voices_ = voicesof(*voice_.get());
  } catch (const PlatformError&) {
    voices_.clear();
  }
  const std::lock_guard guard(orders_.mutex);
  orders_.novoice = novoice;
  for (const NamedVoice& voice : voices_) orders_.names.push_back(voice.name);
  orders_.listed = true;
  orders_.wake.notify_all();
}

// One that has gone is not worth an error: the voice speaks as it did.
void SapiVoice::Clerk::change(const std::string& voice) {
  name_ = voice;
  auto found = std::ranges::find(voices_, voice, &NamedVoice::name);
  if (voice.empty()) found = voices_.begin();
  if (found == voices_.end()) return;
  try {
    setproperty(*voice_.get(), L"Voice", found->token.someobject());
  } catch (const PlatformError& error) {
    report(error.what());
  }
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

// A voice speaks to its end through the device that it began with, heard or not.
void SapiVoice::Clerk::say(const Utterance& utterance) {
  const unsigned devices = orders_.sounds->newdevices();
  if (std::exchange(devices_, devices) != devices) voice_.reset();
  if (!voice_) {
    voice_ = orders_.make();
    rate_.reset();
    name_.clear();
  }
  if (utterance.voice != name_) change(utterance.voice);
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
    : SapiVoice(
          std::move(mixer), std::move(log),
          objectknown(voicename) ? makevoice : throw PlatformError("the system has no voice")) {}

SapiVoice::SapiVoice(std::shared_ptr<Mixer> mixer, SpeechLog log, Make make)
    : orders_(std::make_shared<Orders>(std::move(mixer), std::move(log), std::move(make))),
      thread_(
          orders_, [](const std::shared_ptr<Orders>& orders) { Clerk(*orders).work(); }, farewell) {
  if (knownmute()) throw PlatformError("the system has no voice");
}

bool SapiVoice::knownmute() {
  std::unique_lock lock(orders_->mutex);
  orders_->wake.wait_for(lock, listing, [this] { return orders_->listed; });
  return orders_->novoice;
}

SapiVoice::~SapiVoice() = default;

void SapiVoice::setrate(int rate) {
  thread_.order([&](Orders& orders) { orders.rate = rate; });
}

void SapiVoice::speak(std::string_view text) {
  thread_.order([&](Orders& orders) {
    orders.waiting.clear();
    orders.waiting.push_back(
        {sayabletext(text), meanwhile | purging | notmarkup, orders.rate, orders.voice});
  });
}

void SapiVoice::speakafter(std::string_view text) {
  thread_.order([&](Orders& orders) {
    if (orders.waiting.size() == longestqueue) orders.waiting.pop_front();
    orders.waiting.push_back({sayabletext(text), meanwhile | notmarkup, orders.rate, orders.voice});
  });
}

std::vector<std::string> SapiVoice::voicenames() {
  const std::lock_guard guard(orders_->mutex);
  return orders_->names;
}

bool SapiVoice::setvoice(std::string_view name) {
  const std::lock_guard guard(orders_->mutex);
  if (orders_->listed && !name.empty() && !isamong(orders_->names, name)) return false;
  orders_->voice = name;
  return true;
}

}  // namespace duskmarch
