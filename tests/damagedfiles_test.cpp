// Whatever a saved game or the settings file hold, the program goes on.
#include <random>

#include "campaign/savegame.h"
#include "campaignkeys.h"
#include "invariants.h"
#include "shell/speech/progress.h"

namespace duskmarch {
namespace {

class Damage {
 public:
  // A file with one to four faults.
  std::string inflict(std::string text) {
    for (int faults = 1 + draw(4); faults > 0; --faults) fault(text);
    return text;
  }

 private:
  void fault(std::string& text) {
    const std::size_t line = text.find('\n', at(text)) + 1;  // the start of a line, or of all
    const std::size_t end = std::min(text.find('\r', line), text.size());
    switch (draw(6)) {
      case 0: text.resize(at(text)); break;
      case 1: text.erase(line, end + 2 - line); break;
      case 2: text.insert(line, text.substr(at(text), at(text))); break;
      case 3: text.insert(at(text), 1, static_cast<char>(draw(256))); break;
      default: text.replace(line, end - line, values.at(static_cast<std::size_t>(draw(12))));
    }
  }
  std::size_t at(const std::string& text) {
    return text.empty() ? 0 : static_cast<std::size_t>(draw(static_cast<int>(text.size())));
  }
  int draw(int n) { return static_cast<int>(random_() % static_cast<unsigned>(n)); }

  static constexpr std::array<std::string_view, 12> values = {
      "-1",         "0",        "2",        "15",      "99",   "1000000000",
      "-999999999", "[Loaded]", "[Shoot,x", "[Fight]", "Dive", ""};
  std::mt19937 random_{1};
};

using Keys = std::vector<KeyPress>;

void play(Player& player, const Keys& keys) {
  for (const KeyPress& press : keys) player.session().presskey(press);
}

// Loads files and plays on a little after each.
class Survivor {
 public:
  Survivor() {
    perform(player_, 1);
    recruit(player_, 1, "Owl");
    perform(player_, 4, modifier::shift);
    savegame(player_.game(), "game.sav");
    whole = player_.folder().read("game.sav");
  }
  // Whether the file was taken for a saved game.
  bool load(const std::string& file) {
    play(player_, {{key::escape}, {key::escape, modifier::shift}});  // to the main menu
    player_.folder().write("game.sav", file);
    const bool loaded = player_.spokenby(key::f9) == Spoken{"Game loaded."};
    if (loaded) {  // to an upgrade, to the next mission, and to its options
      play(player_, {{key::enter}, {key::enter}, {key::enter, 1}, {key::escape}, {key::enter}});
      play(player_, {{key::up}, {key::enter, 1}, {key::escape}, {key::space}});
    } else {
      play(player_, {{key::l}, {key::enter}});  // back to the mission
    }
    play(player_, {{key::m}, {key::v}, {key::z}, {key::n}});
    play(player_, {{key::down}, {key::enter}, {key::e, 1}, {key::enter}});
    player_.session().replay.transcript.clear();
    return loaded;
  }
  std::string brokeninvariant() { return duskmarch::brokeninvariant(player_.game()); }

  std::string whole;

 private:
  Player player_;
};

TEST(DamagedFiles, NoPartOfASavedGameStopsTheGame) {
  Survivor survivor;
  for (std::size_t size = 0; size < survivor.whole.size(); ++size) {
    const bool complete = size + 1 == survivor.whole.size();  // only its last line feed is gone
    ASSERT_EQ(survivor.load(survivor.whole.substr(0, size)), complete) << size;
    ASSERT_EQ(survivor.brokeninvariant(), "") << size;
  }
}

TEST(DamagedFiles, NoDamagedSavedGameStopsTheGame) {
  Survivor survivor;
  Damage damage;
  int loads = 0;
  for (int n = 0; n < 2'500; ++n) {
    if (survivor.load(damage.inflict(survivor.whole))) ++loads;
    ASSERT_EQ(survivor.brokeninvariant(), "") << n;
  }
  EXPECT_GT(loads, 250);
}

TEST(DamagedFiles, NoDamagedSettingsAreTakenOver) {
  Player player;
  Damage damage;
  for (int n = 0; n < 2'500; ++n) {
    player.folder().write("progress.ini", damage.inflict(" 1 \r\n 5 \r\nspare\r\n"));
    readprogress(player.game());
    ASSERT_EQ(brokeninvariant(player.game()), "") << player.folder().read("progress.ini");
    saveprogress(player.game());
    const std::string kept = player.folder().read("progress.ini");
    readprogress(player.game());
    saveprogress(player.game());
    ASSERT_EQ(player.folder().read("progress.ini"), kept);
  }
}

}  // namespace
}  // namespace duskmarch
