// The transcript: one event a line, its fields parted by tabs.
#pragma once

#include <string>
#include <string_view>

namespace duskmarch {

class Transcript {
 public:
  // Adds one event; the fields are texts or whole numbers.
  template <typename... Fields>
  void event(std::string_view name, const Fields&... fields) {
    if (closed_) return;
    text_ += name;
    (addfield(fields), ...);
    text_ += '\n';
  }
  // Adds a line as it stands.
  void line(std::string_view line);
  // Nothing is added after the end of the program.
  void close() { closed_ = true; }

  const std::string& text() const { return text_; }
  void clear() { text_.clear(); }

 private:
  void addfield(std::string_view text);
  void addfield(int number);

  std::string text_;
  bool closed_ = false;
};

}  // namespace duskmarch
