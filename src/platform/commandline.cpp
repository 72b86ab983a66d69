#include "platform/commandline.h"

#include "platform/console.h"

namespace duskmarch {

namespace {

constexpr std::string_view windowname = "duskmarch";
constexpr std::string_view windowhelp = R"(usage: duskmarch

A turn-based tactical game played by ear. Its manual is the file readme.txt.

  --version  tells the version and ends
  --help     tells this and ends)";

}  // namespace

std::optional<std::string> informationfor(std::string_view argument, std::string_view name,
                                          std::string_view help) {
  if (argument == "--version") return std::string(name) + " " DUSKMARCH_VERSION;
  if (argument == "--help") return std::string(help);
  return std::nullopt;
}

std::string unknownargument(std::string_view argument) {
  return "There is no argument \"" + std::string(argument) + "\"; --help tells which there are.";
}

std::optional<int> answerarguments(const std::vector<std::string>& words) {
  if (words.size() < 2) return std::nullopt;
  if (const auto information = informationfor(words[1], windowname, windowhelp)) {
    tellcaller(*information, Stream::output);
    return 0;
  }
  tellcaller("duskmarch: " + unknownargument(words[1]), Stream::errors);
  return badarguments;
}

}  // namespace duskmarch
