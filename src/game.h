// All state of a run of the game, in one object that every procedure takes as `Game&`.
#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <deque>
#include <filesystem>
#include <memory>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "platform/desktop.h"
#include "values/crashtrace.h"
#include "values/filelookup.h"
#include "values/number.h"
#include "values/saidlines.h"
#include "values/speechrate.h"

namespace duskmarch {

// `menuname`: the screen that the keys act on.
namespace screen {
inline constexpr int map = 0;  // the mission's map cursor; the only one that is no menu
inline constexpr int mainmenu = 1;
inline constexpr int creation = 2;
inline constexpr int options = 3;  // the mission's option list
inline constexpr int upgrades = 4;
inline constexpr int hideout = 5;
}  // namespace screen

namespace aliance {
inline constexpr int none = 0;
inline constexpr int heroes = 1;
inline constexpr int enemies = 2;
}  // namespace aliance

namespace mobtype {
inline constexpr int hero = 1;
inline constexpr int ordinary = 2;
inline constexpr int gunman = 3;
inline constexpr int gifted = 4;  // an enemy with abilities of its own
inline constexpr int last = gifted;
}  // namespace mobtype

namespace gender {
inline constexpr int male = 1;
inline constexpr int female = 2;
inline constexpr int genderless = 3;
}  // namespace gender

// `speechmode`: which engine speaks. What each does stands in shell/speech/speechengines.cpp.
namespace speechmode {
inline constexpr int sapi = 0;        // the game's own voice
inline constexpr int nvda = 1;        // a screen reader that reads the window's title
inline constexpr int windoweyes = 2;  // one that is asked by keys to read it
inline constexpr int jaws = 3;        // JAWS, or the system's speech service
inline constexpr int count = 4;
}  // namespace speechmode

struct Ability {
  std::string abilityname;
  Number abilityuses;   // left now
  Number abilityextra;  // held when the mission began; a victory gives them back
};

// One combatant. A slot's fields are kept as the saved game keeps them.
struct Mob {
  std::string mobname;
  Number gender;
  Number aliance;
  Number mobtype;
  Number health;  // above 0: conscious, and taking part
  Number maxhealth;
  Number mobx;    // column, 1 at the west edge
  Number moby;    // row, 1 at the north edge
  Number startx;  // where the last move began; saved, never read
  Number starty;
  std::string action;  // planned-action tags
  Number abilitycount;
  std::vector<Ability> abilities;  // slot k at index k; 0 unused; may hold more than are counted
  std::string status;              // condition tags
  Number reserve;                  // the three reserves are saved, never read
  Number maxreserve;
  Number fight;  // current fighting skill
  Number maxfight;
  Number gun;  // damage of one shot; 0 for no gun
  Number reserve2;
  Number engaged;       // 1: held in a hand-to-hand fight
  Number target;        // slot of the mob it fights; 0 for none
  Number earnedpoints;  // upgrade points earned in missions, paid out again at each victory
  Number rested;        // 1: no blows exchanged during this end of turn
  Number hasmoved;      // 1: the move of this turn is taken
  Number hasacted;      // 1: the ability action of this turn is taken
  Number spawntime;     // the end of turn on which it arrives; 0: there from the start
  std::string spawntext;
  Number upgradepoints;  // a hero's unspent points
};

// One piece of furniture, on the map while its `itemhealth` is above 0.
struct Item {
  std::string itemname;  // "Table" or "Chair"
  int itemx = 0;
  int itemy = 0;
  int itemhealth = 0;
  int itemmaxhealth = 0;
};

// The text of the turn summary. Its lines are kept oldest first and put together when somebody
// looks, so that a text whose newest line stands on top grows in constant time.
struct SummaryText {
  std::vector<std::string> lines = {"Text1"};
  // The lines, newest first, parted by CR LF.
  std::string text() const;
};

namespace cue {
enum Id : std::uint8_t;  // see audio/cuetable.h
}

// Something that sounds, and where on the map; see heard().
struct Sounding {
  cue::Id cue;
  bool placed = false;  // else everywhere
  int x = 0;
  int y = 0;
};

inline constexpr int musicplayers = 2;

// What the music players hold: two of them, numbered 0 and 1.
struct Music {
  std::array<std::unique_ptr<MusicGraph>, musicplayers> players;  // null until a file is loaded
  std::array<std::string, musicplayers> mp3files;                 // what was last loaded
  std::array<int, musicplayers> mp3volumes{};                     // and at which percentage
  int musicoff = 0;     // 1: nothing is loaded, and player 0 does not start
  int musicvolume = 0;  // the percentage where none is given
};

struct Game;

// How files of one kind are written, and what follows.
struct FileKind {
  void (*write)(const std::filesystem::path& file, std::string_view text);  // throws FileError
  void (*written)(Game& game);
  void (*failedlate)(Game& game);  // after waiting for another program in vain
};
// A file of the game's own that is to be written.
struct OwnFile {
  std::string name;
  std::string text;
  const FileKind* kind;
};
// One that another program had open then; see shell/speech/busyfiles.h.
struct BusyFile {
  OwnFile file;
  std::chrono::steady_clock::time_point until;
};

// Where key presses go.
enum class Focus { window, summarylabel, storylabel, helplabel };

struct KeyPress {
  int keycode = 0;  // a virtual key code, see shell/speech/keycodes.h
  int shift = 0;    // 1 Shift, 2 Ctrl, 4 Alt, summed
};

inline constexpr int lastslot = 99;  // of the mob and item tables and of a mob's abilities
inline constexpr int heroslots = 3;  // slots 1 to 3 are the campaign's heroes
inline constexpr int gridsize = 16;  // `tilefx` runs from 0 to 15 both ways

// There is one: its fields stand by subject, not by size.
struct Game {  // NOLINT(clang-analyzer-optin.performance.Padding)
  explicit Game(Desktop& outside) : desktop(outside) {}
  Game(const Game&) = delete;
  Game& operator=(const Game&) = delete;

  Desktop& desktop;
  std::filesystem::path programfolder;
  std::filesystem::path filesfolder;  // where its own files are written; see ownfiles.h
  std::mt19937 random;                // drawn from by draw() in world/chance.h alone

  // The shell.
  std::string version;
  std::string caption = "Duskmarch";  // the window title
  Focus focus = Focus::window;
  std::deque<KeyPress> waitingkeys;  // pressed while a key's handler was at work
  bool keyhandlerbusy = false;
  bool sendingkeys = false;  // the synthetic keys of mode 2 are on their way
  CrashTrace trace;
  bool leaving = false;           // the player has chosen to end the program
  bool ended = false;             // the program is ending; no key acts any more
  bool writefailuretold = false;  // the player knows that settings are not saved
  bool firststart = false;        // no settings were found, and no key has been pressed since
  std::vector<BusyFile> busyfiles;

  // What the player likes, kept in comfort.ini.
  bool fulldescriptions = true;  // orders and upgrades are said with their descriptions
  int cuevolume = 7;             // 0 to 10
  int ambiencevolume = 4;
  std::string voicename;            // of the own voice; empty for the default
  bool comfortfailuretold = false;  // the player knows that these are not saved

  // Speech.
  int speechmode = speechmode::sapi;
  int sapirate = speechrate::usual;
  std::unique_ptr<Voice> sapivoice;
  int sapiready = 0;
  std::unique_ptr<JawsApi> jawsapi;
  int jawsready = 0;
  std::string progressspare;  // the third line of progress.ini, carried from file to file
  SaidLines saidlines;
  int reviewpos = 0;           // 0: not reviewing; else the history line being reviewed
  std::string spokenline;      // what onlookers see of it
  int printedlines = 0;        // index of its last line that was painted
  bool mapuncovered = false;   // a key came since, so it covers the map no more
  std::string addedsentences;  // of the game's own, to go with the next text; see addsentence()
  bool storyshown = false;
  std::string pageread;  // what was last read of the page that has the focus

  // Sound.
  std::unique_ptr<SoundDevice> dsound;
  int maxbuffer = 0;   // the highest buffer
  int nextbuffer = 0;  // the rotation: 2 to maxbuffer
  FileFinder soundfinder;
  std::array<std::string, soundbuffercount> bufferfile;  // what each buffer holds
  std::array<double, 630> sintable{};
  std::array<double, 630> costable{};
  Music music;
  std::vector<Sounding> soundings;  // what happened and is not told yet, in its order
  std::vector<Cue> cues;            // the same, made ready to be played
  std::string_view ambience;        // the loop that is heard
  int soundlisted = -1;             // where one is on the page of sounds; -1 while it is closed

  // Menus and the campaign.
  int menuname = 0;
  int menupos = 0;  // the current entry, from 1; 0: none reached yet
  int bonus1 = 0;   // the bonuses of the vigilante being created
  int bonus2 = 0;
  int bonus3 = 0;
  std::string storyword;
  bool testheroes = false;           // they stand in the places of the campaign's
  bool missionunwon = false;         // a campaign mission was begun and not won
  bool waybackkept = false;          // autosave.sav holds what was before it
  bool autosavefailuretold = false;  // the player knows that progress is not kept

  // The mission.
  Number missionnumber;
  bool missionunderway = false;
  std::string objective;
  int turnnumber = 0;
  SummaryText summarylabel;
  std::string storylabel = "Text1";  // text of the story page
  std::string helplabel;             // text of the help page
  std::string turnsummary;           // this turn's narration, each line after two spaces
  std::deque<std::string> list1;     // message log, newest line first
  std::vector<std::string> list2;    // the option list
  std::vector<std::string> list3;    // what the enemy being planned may do
  std::string command3;              // caption of the button that selects the next hero

  // The world.
  int mobcount = 0;
  // Slot 0 is nobody: never conscious, never written; whoever has no target looks there.
  std::array<Mob, lastslot + 1> mobs;
  int itemcount = 0;
  std::array<Item, lastslot + 1> items;  // slot 0 is no furniture
  int mapwidth = 0;
  int mapheight = 0;
  std::array<std::array<std::string, gridsize>, gridsize> tilefx;  // [x][y]; see tiletags()
  int cursorx = 0;
  int cursory = 0;
  int cursormode = 0;   // 1: the arrows move the map cursor
  int selected = 0;     // the hero that acts, is created or upgraded
  int reportedmob = 0;  // the enemy last described

  Mob& mob(int slot) { return mobs[static_cast<std::size_t>(slot)]; }
  const Mob& mob(int slot) const { return mobs[static_cast<std::size_t>(slot)]; }
  Item& item(int slot) { return items[static_cast<std::size_t>(slot)]; }
  const Item& item(int slot) const { return items[static_cast<std::size_t>(slot)]; }
};

}  // namespace duskmarch
