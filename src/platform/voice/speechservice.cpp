#include "platform/voice/speechservice.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <csignal>
#include <deque>
#include <mutex>
#include <optional>
#include <string>
#include <system_error>
#include <thread>
#include <utility>

#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

#include "platform/voice/engines.h"
#include "platform/voice/plaintext.h"
#include "platform/voice/serviceconnection.h"

namespace duskmarch {
namespace {

using Clock = LosableSpeech::Clock;
using std::chrono::milliseconds;

// How long a call may take before that is reported, and before the service counts as hung.
constexpr milliseconds slow{1000};
constexpr milliseconds patience{2000};
// Between two tries to reach a service that is away.
constexpr milliseconds retry{500};
// Between two tries to start it: one that has just died may keep the next from starting, and one
// that cannot run is not to be started all the time.
constexpr milliseconds firstpause{1000};
constexpr milliseconds longestpause{60000};
// How long the end of the program waits for the thread, and once more when it has been cut short.
constexpr milliseconds farewell{300};
// More texts than anyone would wait for; of longer queues the oldest are dropped.
constexpr std::size_t longestqueue = 200;
constexpr const char* unheard = " ";

}  // namespace

// What the callers and the thread in charge share. Guarded by its mutex, all of it.
struct SpeechService::Desk {
  std::mutex mutex;
  std::condition_variable wake;
  SpeechLog log;

  std::deque<std::string> texts;
  std::optional<std::string> inhand;  // the text in the library's hands, while it is wanted
  bool cut = false;                   // what is being said is not wanted any more
  std::optional<Clock::time_point> stucksince;
  bool away = false;     // when last tried the service was not there, or took no text
  bool givenup = false;  // and since then it has not been back

  // The number of the thread in charge, and of the last that has left. Threads that are not in
  // charge touch nothing here and leave as soon as the library lets them.
  unsigned incharge = 0;
  unsigned departed = 0;
  std::optional<Clock::time_point> callbegan;  // while the thread in charge is in the library
  int line = -1;  // a duplicate of the connection's socket, which the library closes when it likes
  milliseconds limit = patience;
  bool reported = false;  // that the service is away, once until it is back

  void forget();
  void progress();
  void rested();
  void report(const std::string& trouble);
  void appoint(const std::shared_ptr<Desk>& self);
  void checkhung(const std::shared_ptr<Desk>& self);
};

// The thread's side.
class SpeechService::Clerk {
 public:
  Clerk(std::shared_ptr<Desk> desk, unsigned number)
      : desk_(std::move(desk)), number_(number), lock_(desk_->mutex, std::defer_lock) {}

  void work();

 private:
  bool incharge() const { return desk_->incharge == number_; }
  bool waitforwork();
  void rest();
  // Runs `call` without the lock. Afterwards this thread may not be in charge any more.
  template <class Call>
  auto call(Call call);
  void open();
  void hangup();
  void lose();
  void cancel();
  std::string takenext();
  void saynext();
  void refused();

  const std::shared_ptr<Desk> desk_;
  const unsigned number_;
  std::unique_lock<std::mutex> lock_;
  ServiceConnection connection_;
  int line_ = -1;
  Clock::time_point nextstart_;  // of the service, if it is missing then
  milliseconds pause_ = firstpause;
  bool proven_ = false;  // this connection has said something
  bool speaking_ = false;
};

// What was given so far is not wanted any more.
void SpeechService::Desk::forget() {
  texts.clear();
  inhand.reset();
  cut = true;
}

// The service has answered.
void SpeechService::Desk::progress() {
  away = false;
  givenup = false;
  if (stucksince) stucksince = Clock::now();
  rested();
}

// Nothing is left to be said.
void SpeechService::Desk::rested() {
  if (away || !texts.empty()) return;
  stucksince.reset();
  givenup = false;
}

void SpeechService::Desk::report(const std::string& trouble) {
  if (!std::exchange(reported, true)) log(trouble);
}

void SpeechService::Desk::appoint(const std::shared_ptr<Desk>& self) {
  const unsigned number = ++incharge;
  std::thread([self, number] { Clerk(self, number).work(); }).detach();
}

void SpeechService::Desk::checkhung(const std::shared_ptr<Desk>& self) {
  if (!callbegan || Clock::now() - *callbegan < limit) return;
  report("the speech service does not answer");
  callbegan.reset();
  if (line != -1) {
    shutdown(line, SHUT_RDWR);
    return;
  }
  // It hangs while connecting, where nothing can be shut down. Each thread left behind doubles the
  // time until the next, so that there are few however long this lasts.
  limit *= 2;
  try {
    appoint(self);
  } catch (const std::system_error&) {
    // Without a thread there is no speech until a later call finds one to be had.
    callbegan = Clock::now();
  }
}

void SpeechService::Clerk::work() {
  lock_.lock();
  while (waitforwork()) {
    if (desk_->cut) {
      cancel();
    } else if (!connection_.isopen()) {
      open();
    } else if (desk_->away || !desk_->texts.empty()) {
      saynext();
    }
  }
  hangup();
  desk_->departed = std::max(desk_->departed, number_);
  desk_->wake.notify_all();
}

bool SpeechService::Clerk::waitforwork() {
  desk_->wake.wait(
      lock_, [this] { return !incharge() || desk_->cut || desk_->away || !desk_->texts.empty(); });
  return incharge();
}

void SpeechService::Clerk::rest() {
  desk_->wake.wait_for(lock_, retry, [this] { return !incharge(); });
}

template <class Call>
auto SpeechService::Clerk::call(Call call) {
  const Clock::time_point began = Clock::now();
  desk_->callbegan = began;
  lock_.unlock();
  auto result = call();
  lock_.lock();
  if (incharge()) {
    desk_->callbegan.reset();
    if (Clock::now() - began >= slow) desk_->report("the speech service did not answer");
  }
  return result;
}

void SpeechService::Clerk::open() {
  const bool start = Clock::now() >= nextstart_;
  const std::string trouble = call([&] { return connection_.open(start); });
  if (!incharge()) return;
  proven_ = false;
  if (trouble.empty()) {
    desk_->line = line_ = fcntl(connection_.socket(), F_DUPFD_CLOEXEC, 0);
    desk_->away = false;
    desk_->givenup = false;
    desk_->rested();
    return;
  }
  if (start) {
    nextstart_ = Clock::now() + pause_;
    pause_ = std::min(2 * pause_, longestpause);
  }
  desk_->away = true;
  desk_->report("the speech service cannot be reached: " + trouble);
  rest();
}

void SpeechService::Clerk::hangup() {
  connection_.close();
  if (line_ == -1) return;
  desk_->line = -1;
  ::close(std::exchange(line_, -1));
}

void SpeechService::Clerk::lose() {
  hangup();
  speaking_ = false;
  desk_->away = true;
  desk_->report("the connection to the speech service was lost");
  // A service that takes connections and drops them at once is about to start or to end.
  if (!proven_) rest();
}

void SpeechService::Clerk::cancel() {
  desk_->cut = false;
  if (!std::exchange(speaking_, false)) return desk_->rested();
  const auto outcome = call([this] { return connection_.cancel(); });
  if (!incharge()) return;
  if (outcome == ServiceConnection::Outcome::lost) return lose();
  if (!desk_->away) desk_->progress();  // to be quiet it may well agree, and yet say nothing
}

// A text that is not heard finds out whether the service takes texts again.
std::string SpeechService::Clerk::takenext() {
  if (desk_->texts.empty()) return unheard;
  desk_->inhand = std::move(desk_->texts.front());
  desk_->texts.pop_front();
  return *desk_->inhand;
}

void SpeechService::Clerk::saynext() {
  const std::string text = takenext();
  const auto outcome = call([&] { return connection_.say(text); });
  if (!incharge()) return;
  std::optional<std::string> wanted = std::exchange(desk_->inhand, std::nullopt);
  if (outcome != ServiceConnection::Outcome::done && wanted) {
    desk_->texts.push_front(std::move(*wanted));
  }
  if (outcome == ServiceConnection::Outcome::lost) return lose();
  if (outcome == ServiceConnection::Outcome::refused) return refused();
  speaking_ = proven_ = true;
  nextstart_ = {};
  pause_ = firstpause;
  desk_->limit = patience;
  desk_->reported = false;
  desk_->progress();
}

void SpeechService::Clerk::refused() {
  desk_->away = true;
  desk_->report("the speech service refused a text");
  // After a key there is another text, which it may take.
  desk_->wake.wait_for(lock_, retry, [this] { return !incharge() || desk_->cut; });
}

SpeechService::SpeechService(SpeechLog log) : desk_(std::make_shared<Desk>()) {
  desk_->log = std::move(log);
  const std::lock_guard guard(desk_->mutex);
  desk_->appoint(desk_);
}

SpeechService::~SpeechService() {
  std::unique_lock lock(desk_->mutex);
  const unsigned last = desk_->incharge++;
  desk_->wake.notify_all();
  const auto departed = [&] { return desk_->departed >= last; };
  if (desk_->wake.wait_for(lock, farewell, departed) || desk_->line == -1) return;
  shutdown(desk_->line, SHUT_RDWR);
  desk_->wake.wait_for(lock, farewell, departed);
}

void SpeechService::saystring(std::string_view text) {
  std::string plain = sayabletext(text);
  if (plain.find_first_not_of(' ') == std::string::npos) return;
  const std::lock_guard guard(desk_->mutex);
  desk_->checkhung(desk_);
  if (desk_->texts.size() == longestqueue) desk_->texts.pop_front();
  desk_->texts.push_back(std::move(plain));
  if (!desk_->stucksince) desk_->stucksince = Clock::now();
  desk_->wake.notify_all();
}

void SpeechService::interrupt() {
  const std::lock_guard guard(desk_->mutex);
  desk_->checkhung(desk_);
  desk_->forget();
  desk_->wake.notify_all();
}

std::optional<Clock::time_point> SpeechService::stucksince() {
  const std::lock_guard guard(desk_->mutex);
  return desk_->stucksince;
}

std::vector<std::string> SpeechService::giveup() {
  const std::lock_guard guard(desk_->mutex);
  if (!desk_->stucksince) return {};
  desk_->givenup = true;
  std::vector<std::string> unsaid(desk_->texts.begin(), desk_->texts.end());
  if (desk_->inhand) unsaid.insert(unsaid.begin(), *desk_->inhand);
  desk_->forget();
  desk_->wake.notify_all();
  return unsaid;
}

bool SpeechService::lost() {
  const std::lock_guard guard(desk_->mutex);
  return desk_->givenup;
}

std::unique_ptr<LosableSpeech> createspeechservice(SpeechLog log) {
  if (!servicepresent()) throw PlatformError("there is no speech service");
  struct sigaction broken {};
  sigaction(SIGPIPE, nullptr, &broken);
  if (broken.sa_handler == SIG_DFL) std::signal(SIGPIPE, SIG_IGN);
  try {
    return std::make_unique<SpeechService>(std::move(log));
  } catch (const std::system_error& error) {
    throw PlatformError(std::string("the speech service cannot be used: ") + error.what());
  }
}

}  // namespace duskmarch
