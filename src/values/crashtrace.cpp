#include "values/crashtrace.h"

#include <algorithm>
#include <functional>

#include "values/scriptlines.h"

namespace duskmarch {

namespace {

std::size_t digest(std::string_view text) {
  return std::hash<std::string_view>()(text);
}

// What only serves a trace is not worth an error.
template <typename Work>
void asmemoryallows(Work work) {
  try {
    work();
  } catch (const std::bad_alloc&) {
    return;
  }
}

}  // namespace

CrashTrace::~CrashTrace() {
  for (Chunk* chunk = oldest_; chunk != nullptr;) {
    const std::unique_ptr<Chunk> done(chunk);
    chunk = done->next;
  }
}

void CrashTrace::begin(std::string_view version, std::uint32_t seed) {
  note("Duskmarch " + std::string(version) + ": all keys before a crash");
  append("seed " + std::to_string(seed) + "\n");
}

void CrashTrace::note(std::string_view words) {
  asmemoryallows([&] {
    append("# " + std::string(words) + "\n");
    lastkey_.clear();
  });
}

void CrashTrace::key(int keycode, int shift) {
  lastkey_.clear();
  asmemoryallows([&] {
    lastkey_ = "key " + std::to_string(keycode);
    if (shift != 0) lastkey_ += " " + std::to_string(shift);
    lastkey_ += "\n";
    if (room() < longestkey) grow();  // in one part, so that answer() can take it back
    append(lastkey_);
  });
}

void CrashTrace::answer(std::string_view typed) {
  asmemoryallows([&] {
    const std::string line = typed.empty() ? "cancel\n" : "answer " + escaped(typed) + "\n";
    newest_->size -= lastkey_.size();
    append(line);
    if (room() < longestkey) grow();
    append(lastkey_);
  });
}

void CrashTrace::grow() noexcept {
  Chunk* fresh = chunks_ < mostchunks_ ? newchunk() : nullptr;
  if (fresh == nullptr) fresh = spare_.release();
  if (fresh == nullptr) {
    forgotten_ = true;
    fresh = oldest_;
    oldest_ = fresh->next.load();
    fresh->next = nullptr;
    fresh->size = 0;
  } else {
    ++chunks_;
  }
  newest_->next = fresh;
  newest_ = fresh;
}

// The size of a part grows last: what a signal finds is whole.
void CrashTrace::append(std::string_view text) {
  while (!text.empty()) {
    if (room() == 0) grow();
    const std::size_t size = std::min(text.size(), room());
    std::copy_n(text.begin(), size, newest_->text.begin() + newest_->size.load());
    newest_->size += size;
    text.remove_prefix(size);
  }
}

CrashTrace::File* CrashTrace::known(std::string_view name) {
  for (std::size_t n = 0; n < filecount_; ++n) {
    if (files_[n].name == name) return &files_[n];
  }
  return nullptr;
}

CrashTrace::File* CrashTrace::newfile(std::string_view name) {
  if (filecount_ == files_.size()) return nullptr;
  File& file = files_[filecount_];
  file.name = name;
  file.keptas = "crash-" + file.name;
  return &file;
}

void CrashTrace::loaded(std::string_view name, std::optional<std::string_view> text) {
  asmemoryallows([&] {
    const std::size_t now = digest(text.value_or(""));
    if (File* file = known(name)) {
      if (file->now != now)
        note(file->name + " had been changed from outside; a replay goes another way from here");
      file->now = now;
      return;
    }
    File* file = newfile(name);
    if (file == nullptr) return;
    file->now = now;
    file->first = text.value_or("");
    file->wanted = text.has_value();
    ++filecount_;
    if (text) note("needs what is in " + file->keptas + " as " + file->name + " from the start");
  });
}

void CrashTrace::saved(std::string_view name, std::string_view text) {
  asmemoryallows([&] {
    File* file = known(name);
    if (file == nullptr) {
      file = newfile(name);
      if (file == nullptr) return;
      ++filecount_;
    }
    file->now = digest(text);
  });
}

}  // namespace duskmarch
