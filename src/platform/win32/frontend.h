// All of the window that players use, put together.
#pragma once

#include "game.h"
#include "platform/desktop.h"
#include "platform/gamefolders.h"
#include "platform/win32/dialogs.h"
#include "platform/win32/page.h"
#include "platform/win32/system.h"
#include "platform/win32/window.h"

namespace duskmarch {

class FrontEnd {
 public:
  // `folders` must outlive it.
  explicit FrontEnd(const GameFolders& folders);

  Desktop& desktop() { return desktop_; }
  // From the game's start-up to its end; `how` the window is shown first (SW_SHOWNORMAL ...).
  // The program's exit status: 1 when the game could not start.
  int run(Game& game, int how);

 private:
  Win32Window window_;
  Win32Page summarylabel_;
  Win32Page storylabel_;
  Win32Page helplabel_;
  Win32Dialogs dialogs_;
  Win32System system_;
  Desktop desktop_;
};

}  // namespace duskmarch
