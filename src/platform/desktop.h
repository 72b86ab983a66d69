// What the game asks of a desktop. Every class here is implemented once per front end (the Qt
// window, the one for Windows, the scripted stand-in); the rules see nothing else of the outside
// world but files.
//
// Unless a call says otherwise it returns at once: no speech or sound call may wait for an engine,
// a service or a device. A call that fails throws PlatformError with words fit for the log.
#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace duskmarch {

class PlatformError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// In pixels, and in units of the map, from the window's top: where the spoken line ends.
inline constexpr int mapstop = 101;

struct Colour {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  bool operator==(const Colour&) const = default;
};

// In units of the surface that it is drawn on; right and bottom lie outside.
struct Rect {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;
};

// A line of words on a surface.
struct Text {
  int x = 0;  // the top left corner
  int y = 0;
  std::string_view font;  // a missing one falls back to a similar one
  int points = 0;         // 72 to 96 units
  Colour colour;
  std::string_view words;
  Rect within = {};  // words that reach out of it move up or left in it, and are cut; empty: never
};

// A surface to draw on. What is drawn stays until it is painted over.
class Canvas {
 public:
  virtual ~Canvas() = default;
  virtual int width() const = 0;
  virtual int height() const = 0;
  virtual void fill(const Rect& area, Colour colour) = 0;
  // Both corners are part of it.
  virtual void outline(const Rect& area, Colour colour) = 0;
  virtual void text(const Text& text) = 0;
};

// The one window. Key presses reach the game through keypress() in shell/keyboard.h.
class Window {
 public:
  virtual ~Window() = default;
  // Sets the title and announces the change to a screen reader, also when it is the same text.
  virtual void settitle(std::string_view title) = 0;
  // What is to be seen of the spoken line: a clean surface in pixels of the window's inner area,
  // origin top left. It lies over the map. Null while nobody could see it (no inner area, a
  // script).
  virtual Canvas* spokenline() = 0;
  // A clean surface in units of the map, of which all from `mapstop` down to `bottom` and from 0 to
  // `right` is seen below the spoken line, whatever the window's size. Null as above.
  virtual Canvas* map(int right, int bottom) = 0;
  // Handles the pending events: paints and timers run before it returns, key presses are passed to
  // keypress(), which keeps them until the handler at work is done.
  virtual void processevents() = 0;
  // Hands over the keys that are waiting, by handlewaitingkeys() (shell/keyboard.h), and returns
  // after `duration`; paints, timers and key presses are handled meanwhile.
  virtual void wait(std::chrono::milliseconds duration) = 0;
  // A key event as if typed, where the system has a screen reader that listens for one.
  virtual void sendkey(int keycode, bool down) = 0;
};

// A read-only text view that covers the window while it is shown, readable line by line by a
// screen reader. Key presses in it reach the game through keypress() too; it keeps the ordinary
// caret keys for itself, and tells the game by caretmoved() (shell/speech/selfreading.h) where they
// led: the line for keys that go by lines, the character for the others; the line as well where the
// caret could not move, or came to the end of a line by End.
class Page {
 public:
  virtual ~Page() = default;
  // Becomes visible with `text` (lines parted by CR LF), the caret at its start.
  virtual void show(std::string_view text) = 0;
  virtual void hide() = 0;
  virtual void focus() = 0;
  // What a screen reader calls the page, where one object serves for several.
  virtual void setname(std::string_view name) = 0;
};

// What the arrow keys answer in a box that asks for a direction.
struct ArrowAnswers {
  std::string_view left;
  std::string_view up;
  std::string_view right;
  std::string_view down;
};

// Modal: all return when the player has closed the box, and the window works on meanwhile. Every
// key in them is handed to boxkey(), and what it typed or came to then to echotyped() (both
// shell/speech/selfreading.h); what Tab comes back to is told again.
class Dialogs {
 public:
  virtual ~Dialogs() = default;
  // What the player typed, or nothing when the box was cancelled.
  virtual std::string input(std::string_view title, std::string_view prompt) = 0;
  // The same, but while nothing is typed an arrow key, whatever the layout, closes the box and is
  // answered for the player.
  virtual std::string choosedirection(std::string_view title, std::string_view prompt,
                                      const ArrowAnswers& arrows) = 0;
  // An empty title means the program's own.
  virtual void message(std::string_view title, std::string_view text) = 0;
};

// The voice that the game drives itself.
class Voice {
 public:
  virtual ~Voice() = default;
  // speechrate::slowest to speechrate::fastest; holds from the next text on.
  virtual void setrate(int rate) = 0;
  // Cuts off what is being said and starts `text`; an empty text only cuts off.
  virtual void speak(std::string_view text) = 0;
  // Says `text` after what is being said; the next speak() cuts it off like anything else.
  virtual void speakafter(std::string_view text) = 0;
  // Cuts off what is being said: another engine speaks from now on.
  virtual void hush() = 0;
  // What it can sound like, by names fit for speaking, the default first. An engine that has but
  // one way to sound names none. May take a while, when it is first asked.
  virtual std::vector<std::string> voicenames() { return {}; }
  // The voice of that name speaks from the next text on; an empty name means the default. False,
  // with nothing changed, where there is none of that name. May take as long as voicenames().
  virtual bool setvoice(std::string_view name) { return name.empty(); }
};

// The speech engine of mode 3: JAWS on Windows, the system's speech service on Linux.
class JawsApi {
 public:
  virtual ~JawsApi() = default;
  // Says `text` after what it is saying already.
  virtual void saystring(std::string_view text) = 0;
  // The player pressed a key: like any screen reader, stop what is being said. An engine that sees
  // to that itself, as JAWS does, does nothing here.
  virtual void interrupt() = 0;
  // Whether the engine is there. A front end that has another one stand in for it creates this one
  // in any case.
  virtual bool there() { return true; }
};

// A sound of a fight or of the map.
struct Cue {
  std::string_view name = {};  // in the table of cues
  int pan = 0;                 // -100 (left) to 100 (right)
  int pitch = 0;               // hundredths of a semitone, -2400 to 2400
  int delay = 0;               // milliseconds from the call
  int loudness = 0;            // hundredths of a decibel, 0 or less
  int weight = 0;              // of too many at once the lightest go first
};

// Where the WAV file of a cue or of a loop should be, whichever of them is named.
using FileOf = std::function<std::filesystem::path(std::string_view name)>;

// Cues, sixteen at once, and one loop for the place where one is. Both have voices of their own
// beside the numbered buffers and the music; cues are softer while the game's own voice speaks.
// `fileof` is asked once for each, maybe long before it is wanted; what the file holds is kept.
class CueDevice {
 public:
  virtual ~CueDevice() = default;
  // All delays count from one moment. A missing or bad file is silence: it is reported, after the
  // others have been started, the first time that it is asked for.
  virtual void playcues(std::span<const Cue> cues, const FileOf& fileof) = 0;
  // What has not begun never will; what sounds fades at once.
  virtual void stopcues() = 0;
  // Fades from what is heard to the loop of that name; an empty one means none. The loop that is
  // heard already goes on. A bad file means none, and is reported once.
  virtual void setambience(std::string_view name, int loudness, const FileOf& fileof) = 0;
  // 0 (silent) to 10 (as loud as the files are), two decibels a step. 10 until it is set.
  virtual void setcuevolume(int volume) = 0;
  virtual void setambiencevolume(int volume) = 0;
};

inline constexpr int soundbuffercount = 50;

// A sound device with numbered buffers for effects, 0 to soundbuffercount - 1.
class SoundDevice {
 public:
  virtual ~SoundDevice() = default;
  // Replaces what `buffer` holds by the sound in `file` (a regular file, nothing that could make
  // the game wait), stopped, at full volume and centred.
  // `name` is what the game calls it. On an error the buffer keeps what it held.
  virtual void load(int buffer, std::string_view name, const std::filesystem::path& file) = 0;
  // Hundredths of a decibel, -5000 to 0.
  virtual void setvolume(int buffer, int volume) = 0;
  // -10000 (left) to 10000 (right): the far side is attenuated by |pan| hundredths of a decibel.
  virtual void setpan(int buffer, int pan) = 0;
  // From the start; `loop` repeats it until it is replaced. A buffer never loaded stays silent.
  virtual void play(int buffer, bool loop) = 0;
  // The same device's cues and ambience, as long as it is there.
  virtual CueDevice& cues() = 0;
};

// One music file being played. Destroying it ends the music.
class MusicGraph {
 public:
  virtual ~MusicGraph() = default;
  // Hundredths of a decibel, -5000 to 0.
  virtual void setvolume(int volume) = 0;
  virtual void setbalance(int balance) = 0;
  // Seconds from the start.
  virtual void setposition(double seconds) = 0;
  // Starts playing, or goes on.
  virtual void run() = 0;
};

// The program, its folder, and the engines it can start.
class System {
 public:
  virtual ~System() = default;
  // The folder that holds the program, its sounds and, where it can be written, its files.
  virtual std::filesystem::path programfolder() const = 0;
  // The folder in which the game's own files are written.
  virtual std::filesystem::path filesfolder() const { return programfolder(); }
  // Whether another game that runs writes its files there.
  virtual bool alreadyrunning() const { return false; }
  // What the random generator is seeded with: seconds since midnight.
  virtual std::uint32_t secondssincemidnight() const = 0;
  // Each throws PlatformError when there is no such engine; createmusic() also when `file` is no
  // MP3 that can be played. Only opensound() may take a while.
  virtual std::unique_ptr<Voice> createvoice() = 0;
  virtual std::unique_ptr<JawsApi> createjaws() = 0;
  virtual std::unique_ptr<SoundDevice> opensound() = 0;
  virtual std::unique_ptr<MusicGraph> createmusic(const std::filesystem::path& file) = 0;
  // Whether a screen reader reads the window, its pages and its dialogs.
  virtual bool readerattached() const = 0;
  // Ends the program once the handler at work has returned.
  virtual void end() = 0;
};

struct Desktop {
  System& system;
  Window& window;
  Page& summarylabel;
  Page& storylabel;
  Page& helplabel;
  Dialogs& dialogs;
};

}  // namespace duskmarch
