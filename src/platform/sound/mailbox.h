// Hands values to the audio thread without locks: the newest wins, and what the audio thread has
// done with is freed by the others.
#pragma once

#include <atomic>
#include <memory>
#include <utility>

namespace duskmarch {

template <class Content>
class Mailbox {
 public:
  Mailbox() = default;
  Mailbox(const Mailbox&) = delete;
  Mailbox& operator=(const Mailbox&) = delete;
  ~Mailbox() {
    tidy();
    delete incoming_.load();
    delete current_;
  }

  // From any thread but the audio thread, one at a time.
  void post(Content content) {
    tidy();
    auto letter = std::make_unique<Letter>(std::move(content));
    const std::unique_ptr<Letter> unread(incoming_.exchange(letter.release()));
  }
  // Frees what the audio thread has given back. From where post() may be called.
  void tidy() {
    std::unique_ptr<Letter> letter(spent_.exchange(nullptr));
    while (letter) letter.reset(letter->next);
  }

  // The newest content, or null before the first. It stays valid until the next call. From the
  // audio thread only.
  const Content* read() noexcept {
    if (incoming_.load(std::memory_order_relaxed) != nullptr) {
      giveback(std::exchange(current_, incoming_.exchange(nullptr)));
    }
    return current_ == nullptr ? nullptr : &current_->content;
  }

 private:
  struct Letter {
    explicit Letter(Content what) : content(std::move(what)) {}
    Content content;
    Letter* next = nullptr;
  };

  void giveback(Letter* letter) noexcept {
    if (letter == nullptr) return;
    letter->next = spent_.load();
    while (!spent_.compare_exchange_weak(letter->next, letter)) {
    }
  }

  std::atomic<Letter*> incoming_ = nullptr;
  std::atomic<Letter*> spent_ = nullptr;
  Letter* current_ = nullptr;  // the audio thread's own
};

}  // namespace duskmarch
