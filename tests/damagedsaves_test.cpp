// Whatever a saved game holds, the program goes on.
#include <random>

#include "campaign/savegame.h"
#include "campaignkeys.h"
#include "invariants.h"

namespace duskmarch {
namespace {

class Damage {
 public:
  // A saved game with one to four faults.
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

TEST(DamagedSaves, NoneStopsTheGame) {
  const Keys tomainmenu = {{key::escape}, {key::escape, modifier::shift}};
  const Keys upgrade = {{key::enter}, {key::enter}, {key::enter, 1}, {key::escape}, {key::enter}};
  const Keys nextmission = {{key::up}, {key::enter, 1}, {key::escape}, {key::space}};
  const Keys backtomission = {{key::l}, {key::enter}};
  const Keys turn = {{key::m},    {key::v},     {key::z},    {key::n},
                     {key::down}, {key::enter}, {key::e, 1}, {key::enter}};
  Player player;
  perform(player, 1);
  recruit(player, 1, "Owl");
  perform(player, 4, modifier::shift);
  savegame(player.game(), "game.sav");
  const std::string whole = player.folder().read("game.sav");
  Damage damage;
  int loads = 0;
  for (int n = 0; n < 2000; ++n) {
    play(player, tomainmenu);
    player.folder().write("game.sav", damage.inflict(whole));
    if (player.spokenby(key::f9) == Spoken{"Game loaded."}) {
      ++loads;
      play(player, upgrade);
      play(player, nextmission);
    } else {
      play(player, backtomission);
    }
    play(player, turn);
    ASSERT_EQ(brokeninvariant(player.game()), "") << n;
  }
  EXPECT_GT(loads, 200);
}

}  // namespace
}  // namespace duskmarch
