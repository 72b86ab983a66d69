// The game driven by a script, one command a line.
#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>

#include "game.h"
#include "platform/replay/replaydesktop.h"

namespace duskmarch {

// A line of a script that is no command.
class BadCommand : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

class ReplaySession {
 public:
  // Starts the game; what that says and shows stands in the transcript.
  explicit ReplaySession(const ReplayOptions& options);

  // Echoes and performs one line; throws BadCommand, with nothing done, when it is no command.
  // Comments and empty lines do nothing.
  void perform(std::string_view line);
  // One key press, delivered as a window toolkit would.
  void presskey(KeyPress key);

  ReplayDesktop replay;
  Game game;

 private:
  using Command = std::function<void()>;
  Command parse(std::string_view name, std::string_view rest);
  Command parsekey(std::string_view rest);
  Command parseseeding(std::string_view rest);
  ReplayPage& focusedpage();
  void draw();
};

}  // namespace duskmarch
