// The one window: the picture for onlookers, and the keys of the player.
#pragma once

#include <functional>
#include <mutex>
#include <vector>

#include "game.h"
#include "platform/desktop.h"
#include "platform/frontend/picture.h"
#include "platform/win32/fonts.h"
#include "platform/win32/keywatch.h"
#include "platform/win32/painter.h"

namespace duskmarch {

class Win32Window : public Window {
 public:
  Win32Window();
  Win32Window(const Win32Window&) = delete;
  Win32Window& operator=(const Win32Window&) = delete;
  ~Win32Window() override;

  // The game that the window serves; keys and repaints before this call reach nobody.
  void attach(Game& game) { game_ = &game; }
  Game* game() { return game_; }
  HWND handle() const { return handle_; }
  // Shows the window, in the way that whoever started the program asks for (SW_SHOWNORMAL ...), and
  // returns when the program ends.
  void run(int how);
  // Ends the program once the handler at work has returned; no key acts any more.
  void end();
  // Has `call` made on the window's thread. For whatever thread; calls that are still waiting when
  // the window goes are dropped.
  void post(std::function<void()> call);

  // `page`, a child, covers the window's inner area from now on, whatever its size.
  void cover(HWND page);
  // What lay under a page or a box shows again.
  void uncovered();
  // Gives the focus to a page, or with nullptr back to the window, now and whenever the window
  // becomes active again.
  void givefocus(HWND page);
  // The page is hidden: the window gets the focus that it has, or would have.
  void takefocusfrom(HWND page);
  // A key pressed in the window or in one of its pages: the game gets it. False if it is the
  // system's.
  bool takekey(WPARAM key, LPARAM details);
  // Runs `box`, which returns when the player has closed the box that it opens. Each key in it is
  // told to `pressed`, as a virtual key code or 0, before it acts.
  void runmodal(const std::function<void(int keycode)>& pressed, const std::function<void()>& box);

  void settitle(std::string_view title) override;
  Canvas* spokenline() override;
  Canvas* map(int right, int bottom) override;
  void processevents() override;
  void wait(std::chrono::milliseconds duration) override;
  void sendkey(int keycode, bool down) override;

 private:
  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM first, LPARAM second);
  LRESULT handle(UINT message, WPARAM first, LPARAM second);
  void takecharacter(WPARAM character);
  void takepress(KeyPress press);
  bool drops(const MSG& message);
  void makepostedcalls();
  void lookforreader();
  void keepallfiles();
  void keepbusyfiles();
  void paint();
  void resized();
  void rescaled(const RECT& area);
  void activated();
  void fitpicture();
  void placepages();

  HWND handle_ = nullptr;
  Game* game_ = nullptr;
  Picture picture_;
  FontShelf fonts_;
  BackBuffer buffer_;
  std::vector<HWND> pages_;
  HWND focus_ = nullptr;  // the page that has the focus while the window is active
  std::function<void(int keycode)> boxkeypressed_;
  std::string title_;    // as the game set it
  bool longer_ = false;  // by the space after it
  bool readerseen_ = false;
  bool stale_ = true;  // the game must draw again before the picture is shown
  std::mutex postmutex_;
  std::vector<std::function<void()>> posted_;
  KeyWatch keywatch_;
};

}  // namespace duskmarch
