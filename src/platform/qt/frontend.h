// All of the window that players use, put together.
#pragma once

#include "game.h"
#include "platform/desktop.h"
#include "platform/gamefolders.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/page.h"
#include "platform/qt/system.h"
#include "platform/qt/window.h"

namespace duskmarch {

class FrontEnd {
 public:
  // `folders` must outlive it.
  explicit FrontEnd(const GameFolders& folders);

  Desktop& desktop() { return desktop_; }
  // From the game's start-up to its end; false when it could not start.
  bool run(Game& game);

 private:
  QtWindow window_;
  QtPage summarylabel_;
  QtPage storylabel_;
  QtPage helplabel_;
  QtDialogs dialogs_;
  QtSystem system_;
  Desktop desktop_;
};

}  // namespace duskmarch
