// The game's own files, as the system keeps them: regular files alone, so that no pipe, device or
// endless file makes the game wait, and no link leads it to write over something else.
//
// Each call throws FileError, with words fit for the log, when it cannot do what it promises.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace duskmarch {

class FileError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Another program has the file open, and the system minds; a moment later it may not any more.
class FileBusy : public FileError {
 public:
  using FileError::FileError;
};

// All of a regular file of at most largesttextfile bytes.
std::string readtextfile(const std::filesystem::path& file);

// A file that is being written.
class FileWriter {
 public:
  enum class Start { anew, atend };
  // Creates the file where there is none. A link is not followed; it and whatever else is no
  // regular file stays as it is.
  FileWriter(const std::filesystem::path& file, Start start);
  // Closes it if that is not done yet; what goes wrong then is not told.
  ~FileWriter();
  FileWriter(const FileWriter&) = delete;
  FileWriter& operator=(const FileWriter&) = delete;

  // Bytes in the file.
  std::size_t size() const { return size_; }
  // Adds `text`; after an error, as much of it as could be written.
  void write(std::string_view text);
  // Returns when what was written has reached the disk.
  void synchronize();
  void close();

 private:
  std::filesystem::path file_;
  std::intptr_t handle_;  // the system's own
  std::size_t size_ = 0;
};

// Replaces what is called `to`, if that is no folder, in one step. A link is renamed itself.
void renamefile(const std::filesystem::path& from, const std::filesystem::path& to);

// What changes with a file's content.
struct FileStamp {
  std::uintmax_t size = 0;
  std::int64_t modified = 0;  // in the system's own units
  bool operator==(const FileStamp&) const = default;
};
// Nothing when there is no such regular file; throws nothing.
std::optional<FileStamp> stampof(const std::filesystem::path& file);

}  // namespace duskmarch
