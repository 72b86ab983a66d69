#include "platform/win32/voice/jawsspeech.h"

#include <chrono>
#include <deque>
#include <utility>

#include "platform/voice/plaintext.h"
#include "platform/win32/automation.h"
#include "platform/win32/text.h"

namespace duskmarch {
namespace {

using std::chrono::milliseconds;

constexpr auto jawsname = L"FreedomSci.JawsApi";

// Said after what JAWS is saying already.
constexpr long withoutflush = 0;
// Between two tries to reach JAWS when it is away.
constexpr milliseconds retry{500};
constexpr milliseconds farewell{300};
// More texts than anyone would wait for; of longer queues the oldest are dropped.
constexpr std::size_t longestqueue = 200;

}  // namespace

struct JawsSpeech::Orders : Desk {
  explicit Orders(SpeechLog speechlog) : log(std::move(speechlog)) {
    if (!objectknown(jawsname)) throw PlatformError("there is no JAWS");
  }

  const SpeechLog log;
  std::deque<std::string> texts;  // the one in hand is the first
  unsigned round = 0;             // goes up when they are taken back
  std::optional<Clock::time_point> stucksince;
  bool away = false;     // JAWS was not there when it was last tried
  bool givenup = false;  // and since then it has not been back
  bool reported = false;

  void said(unsigned inround);
  void failed(const char* trouble);
};

void JawsSpeech::Orders::said(unsigned inround) {
  if (inround == round && !texts.empty()) texts.pop_front();
  away = givenup = reported = false;
  stucksince.reset();
  if (!texts.empty()) stucksince = Clock::now();
}

void JawsSpeech::Orders::failed(const char* trouble) {
  away = true;
  if (!ending && !std::exchange(reported, true)) log(trouble);
}

// The thread's side.
class JawsSpeech::Clerk {
 public:
  explicit Clerk(Orders& orders) : orders_(orders), lock_(orders.mutex) {}

  void work() {
    while (waitforwork()) saynext();
  }

 private:
  bool waitforwork();
  void saynext();
  void saywhole(const std::wstring& text);
  void say(const std::wstring& text);

  Orders& orders_;
  std::unique_lock<std::mutex> lock_;
  ComPtr<IDispatch> jaws_;
};

bool JawsSpeech::Clerk::waitforwork() {
  orders_.wake.wait(lock_,
                    [this] { return orders_.ending || orders_.away || !orders_.texts.empty(); });
  if (orders_.away) orders_.wake.wait_for(lock_, retry, [this] { return orders_.ending; });
  return !orders_.ending;
}

// Without a text it finds out whether JAWS is back: an interface may well be there without it.
void JawsSpeech::Clerk::saynext() {
  const std::wstring text = orders_.texts.empty() ? L"" : utf16(orders_.texts.front());
  const unsigned round = orders_.round;
  lock_.unlock();
  std::string trouble;
  try {
    saywhole(text);
  } catch (const PlatformError& error) {
    trouble = error.what();
  }
  lock_.lock();
  if (trouble.empty()) {
    orders_.said(round);
  } else {
    orders_.failed(trouble.c_str());
  }
}

void JawsSpeech::Clerk::saywhole(const std::wstring& text) {
  const bool worked = static_cast<bool>(jaws_);
  try {
    say(text);
  } catch (const PlatformError&) {
    jaws_.reset();
    if (!worked) throw;
    say(text);  // to a new one: JAWS may have been started anew
  }
}

void JawsSpeech::Clerk::say(const std::wstring& text) {
  if (!jaws_) jaws_ = makeobject(jawsname);
  const Variant answer = callmethod(*jaws_.get(), L"SayString", text, withoutflush);
  if (!answer.isno()) return;
  jaws_.reset();
  throw PlatformError("JAWS does not answer");
}

JawsSpeech::JawsSpeech(SpeechLog log)
    : orders_(std::make_shared<Orders>(std::move(log))),
      thread_(
          orders_, [](const std::shared_ptr<Orders>& orders) { Clerk(*orders).work(); }, farewell) {
}

JawsSpeech::~JawsSpeech() = default;

void JawsSpeech::saystring(std::string_view text) {
  std::string plain = sayabletext(text);
  if (plain.find_first_not_of(' ') == std::string::npos) return;
  thread_.order([&](Orders& orders) {
    if (orders.texts.size() == longestqueue) orders.texts.erase(orders.texts.begin() + 1);
    orders.texts.push_back(std::move(plain));
    if (!orders.stucksince) orders.stucksince = Clock::now();
  });
}

std::optional<LosableSpeech::Clock::time_point> JawsSpeech::stucksince() {
  const std::lock_guard guard(orders_->mutex);
  return orders_->stucksince;
}

std::vector<std::string> JawsSpeech::giveup() {
  const std::lock_guard guard(orders_->mutex);
  if (!orders_->stucksince) return {};
  orders_->givenup = true;
  ++orders_->round;
  orders_->stucksince.reset();
  const std::deque<std::string> unsaid = std::exchange(orders_->texts, {});
  return {unsaid.begin(), unsaid.end()};
}

bool JawsSpeech::lost() {
  const std::lock_guard guard(orders_->mutex);
  return orders_->givenup;
}

}  // namespace duskmarch
