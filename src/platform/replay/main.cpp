// duskmarch-replay: the game played from a script, written out as a transcript.
#include <cstdio>
#include <filesystem>
#include <iostream>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/commandline.h"
#include "platform/console.h"
#include "platform/replay/replaysession.h"
#include "platform/replay/seednumber.h"
#include "values/pathtext.h"

namespace {

using namespace duskmarch;

constexpr std::string_view name = "duskmarch-replay";
constexpr std::string_view help =
    R"(usage: duskmarch-replay --folder DIR [ARGUMENT...] < script > transcript

Plays Duskmarch by a script of keys and writes what a player would hear and see.

  --folder DIR  the folder with the game's sounds and files
  --seed N      the seed of chance, a whole number; 1 if not given
  --no-voice    the game's own voice cannot be made
  --jaws        the JAWS interface can be made
  --no-reader   no screen reader is attached
  --version     tells the version and ends
  --help        tells this and ends)";
constexpr int failure = badarguments;
// As much as fits, with what one more key writes, into 60 KiB.
constexpr std::size_t flushsize = 48 << 10;

struct BadArguments : std::runtime_error {
  using std::runtime_error::runtime_error;
};

ReplayOptions parsearguments(std::span<const std::string> arguments) {
  ReplayOptions options;
  std::size_t next = 1;
  const auto value = [&](std::string_view option) -> std::string_view {
    if (next >= arguments.size()) throw BadArguments(std::string(option) + " needs a value.");
    return arguments[next++];
  };
  while (next < arguments.size()) {
    const std::string_view option = arguments[next++];
    if (option == "--folder") {
      options.folder = pathof(value(option));
    } else if (option == "--seed") {
      const auto seed = parseseed(value(option));
      if (!seed) throw BadArguments("--seed needs a whole number.");
      options.seed = *seed;
    } else if (option == "--no-voice") {
      options.voice = false;
    } else if (option == "--jaws") {
      options.jaws = true;
    } else if (option == "--no-reader") {
      options.reader = false;
    } else {
      throw BadArguments(unknownargument(option));
    }
  }
  if (options.folder.empty()) throw BadArguments("It needs --folder, and --help tells more.");
  if (std::error_code error; !std::filesystem::is_directory(options.folder, error)) {
    throw BadArguments("There is no folder \"" + textof(options.folder) + "\".");
  }
  return options;
}

void flush(Transcript& transcript) {
  const std::string& text = transcript.text();
  std::fwrite(text.data(), 1, text.size(), stdout);
  transcript.clear();
}

int play(const ReplayOptions& options) {
  ReplaySession session(options);
  Transcript& transcript = session.replay.transcript;
  std::string line;
  for (int number = 1; !session.game.ended && std::getline(std::cin, line); ++number) {
    try {
      session.perform(line);
    } catch (const BadCommand& error) {
      flush(transcript);
      std::fflush(stdout);
      std::cerr << "duskmarch-replay: line " << number << ": " << error.what() << '\n';
      return failure;
    }
    if (transcript.text().size() >= flushsize) flush(transcript);
  }
  flush(transcript);
  const bool written = std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
  if (!written) std::cerr << "duskmarch-replay: the transcript cannot be written\n";
  return written ? 0 : failure;
}

}  // namespace

int main(int count, char** arguments) {
  usebinarystreams();
  std::ios::sync_with_stdio(false);
  const std::vector<std::string> words = commandline(count, arguments);
  for (const std::string& word : words) {
    if (const auto information = informationfor(word, name, help)) {
      tellcaller(*information, Stream::output);
      return 0;
    }
  }
  try {
    return play(parsearguments(words));
  } catch (const BadArguments& error) {
    tellcaller("duskmarch-replay: " + std::string(error.what()), Stream::errors);
    return failure;
  }
}
