// What is heard of a fight: which cue, where, and when.
#include "audio/cues.h"

#include <functional>

#include "audio/soundlist.h"
#include "draws.h"
#include "ground.h"
#include "harness.h"
#include "heroturn/dooption.h"
#include "missions/missions.h"
#include "resolution/endturn.h"
#include "resolution/enemies.h"
#include "resolution/tags.h"
#include "values/textfile.h"

namespace duskmarch {
namespace {

// "step -26 100; dive 80 0": each cue with its pan and pitch. Cues that do not follow one another
// by `gap` milliseconds from the first moment on have their delay behind them.
std::string cuesof(const Player::Events& events, int gap = 120) {
  std::string text;
  int delay = 0;
  for (const std::string& event : events) {
    std::istringstream words(event);
    std::string kind, name, pan, pitch;
    int wait = 0;
    if (!(words >> kind) || kind != "cue") continue;
    words >> name >> pan >> pitch >> wait;
    text += (text.empty() ? "" : "; ") + name + " " + pan + " " + pitch;
    if (wait != delay) text += " after " + std::to_string(wait);
    delay = wait + gap;
  }
  return text;
}

struct Scene {
  std::string what;  // an option, an enemy's entry such as "[Kick North]", or "" for an end of turn
  std::string ground;
  std::string heard;
  std::function<void(Game&)> before = [](Game&) {};
};

// On 4 columns pan is -80, -26, 26 and 80; on 3 rows pitch is 100, 0 and -100.
std::string heardof(const Scene& scene) {
  Player player;
  Game& game = player.game();
  const auto [option, answer] = readorder(scene.what);
  arrangefor(game, scene.ground, option);
  scene.before(game);
  player.answer(answer);
  if (scene.what.empty()) return cuesof(player.during([&] { endturn(game); }), 150);
  if (scene.what.front() != '[') return cuesof(player.during([&] { dooption(game, option); }));
  return cuesof(player.during([&] {
    doenemyoption(game, game.mobcount, scene.what);
    playendofturn(game);
  }),
                150);
}

void armed(Game& game) {
  game.mob(2).gun = 4;
}
void loadingbystep(Game& game) {
  willdraw(game, {{7, 2}});
}
void loadingwithout(Game& game) {
  willdraw(game, {{7, 6}});
}
void comingnow(Game& game) {
  game.mob(2).spawntime = 1;
}
std::function<void(Game&)> tagged(int x, int y, std::string_view tag) {
  return [=](Game& game) { addtiletag(game, x, y, tag, 1); };
}

const std::vector<Scene>& scenes() {
  static const std::vector<Scene> all = {
      // Orders.
      {"Move (n)", "Vesper 2,2 20 4", "step -26 100"},
      {"Move (n)", "Vesper 2,1 20 4", ""},
      {"Dive (w)", "Vesper 2,2 20 4", "dive -80 0"},
      {"Hook (s)", "Vesper 2,1 20 4 | Tony 2,2 16 3", "hook -26 100; dazed -26 -100"},
      {"Target Tony", "Vesper 2,2 20 4 | Tony 2,2 16 3", "target-chosen -26 0"},
      {"Combo Tony", "Vesper 2,2 20 4 | Tony 2,2 99 3", "combo -26 0; hit-enemy -26 0"},
      {"Combo Tony", "Vesper 2,2 20 4 | Tony 2,2 99 8", "combo -26 0; blow-blocked -26 0"},
      {"Headbutt Tony", "Vesper 2,2 2 4 | Tony 2,2 16 3",
       "headbutt -26 0; hit-enemy -26 0; dazed -26 0; hit-hero -26 0; hero-down -26 0"},
      {"Kick Tony", "Vesper 2,2 20 4 | Tony 3,2 16 3", "kick 26 0; hit-enemy 80 0; dazed 80 0"},
      {"Kick Tony", "Vesper 2,2 20 0 | Tony 3,2 16 3", "kick 26 0; blow-blocked 80 0; dazed 80 0"},
      {"Dust Tony", "Vesper 2,2 20 4 | Tony 2,2 16 3", "dust -26 0"},
      {"Pin Tony", "Vesper 2,1 20 4 | Tony 2,1 16 3", "pin -26 100"},
      {"Blast Tony", "Vesper 2,2 20 4 | Tony 4,2 5 3",
       "blast 80 0; hit-enemy 80 0; enemy-down 80 0"},
      {"Bolas Tony", "Vesper 2,2 20 4 | Tony 4,2 16 3", "bolas 80 0"},
      {"Net Tony", "Vesper 2,2 20 4 | Tony 4,2 16 3", "net 80 0"},
      {"Grapnel Tony", "Vesper 2,2 20 4 | Tony 4,2 16 3",
       "grapnel 80 0; hit-enemy -26 0; dazed -26 0"},
      {"Heal Nora", "Vesper 2,2 20 4 | Nora 2,2 9 4", "heal -26 0"},
      {"Heal Nora", "Vesper 2,2 20 4 | Nora 2,2 20 4", ""},
      {"Shield", "Vesper 2,2 20 4 | Nora 2,2 9 4", "shield -26 0"},
      {"Smoke bombs", "Vesper 2,2 20 4 | Tony 2,2 16 3", "smoke-bombs -26 0"},
      {"Second wind", "Vesper 2,2 20 4", "second-wind -26 0"},
      {"Flip table", "Vesper 2,2 20 4 | Table 2,2 1", "table-flipped -26 0"},
      {"Throw table (e)", "Vesper 2,2 20 4 | Tony 3,2 6 3 | Moe 3,2 16 3 | Table 2,2 1",
       "table-thrown -26 0; table-landed 26 0; hit-enemy 26 0; enemy-down 26 0; hit-enemy 26 0; "
       "dazed 26 0"},
      {"Throw chair (e)", "Vesper 2,2 20 4 | Tony 4,2 16 3 | Chair 2,2 1",
       "chair-thrown -26 0; chair-landed 80 0; hit-enemy 80 0; dazed 80 0"},
      {"Throw chair (w)", "Vesper 2,2 20 4 | Chair 2,2 1", "chair-thrown -26 0"},
      {"Throw Tony (e)", "Vesper 2,2 20 4 | Tony 2,2 16 3 | Moe 3,2 16 3",
       "person-thrown -26 0; person-landed 26 0; dazed 26 0; dazed 26 0"},
      // What enemies do.
      {"[Kick North]", "Vesper 2,2 20 4 | Tony 2,3 16 3",
       "kick -26 0; hit-hero -26 100; dazed -26 100"},
      {"[Kick North]", "Vesper 4,1 20 4 | Tony 2,3 16 3", "kick -26 0; blow-blocked -26 0"},
      {"[Throw Vesper East]", "Vesper 2,2 20 4 | Nora 3,2 20 4 | Tony 2,2 16 3",
       "person-thrown -26 0; person-landed 26 0; dazed 26 0; dazed 26 0"},
      {"[Throw table East]", "Vesper 3,2 6 4 | Tony 2,2 16 3 | Table 2,2 1",
       "table-thrown -26 0; table-landed 26 0; hit-hero 26 0; hero-down 26 0"},
      {"[Throw table East]", "Vesper 3,2 6 4 | Tony 2,2 16 3", ""},
      {"[Throw chair East]", "Vesper 4,2 20 4 | Tony 2,2 16 3 | Chair 2,2 1",
       "chair-thrown -26 0; chair-landed 80 0; hit-hero 80 0; dazed 80 0"},
      // Ends of turn.
      {"", "Vesper 1,1 20 4 | Tony 1,3 16 3", "step -80 0; heroes-turn 0 0"},
      {"", "Vesper 1,1 20 4 | Tony 1,2 16 3",
       "step -80 100; target-chosen -80 100; heroes-turn 0 0"},
      {"", "Vesper 2,2 20 4 t2 plans[Fight] | Tony 2,2 16 3", "hit-enemy -26 0; heroes-turn 0 0"},
      {"", "Vesper 2,2 20 4 t2 plans[Fight] | Tony 2,2 16 4",
       "blow-blocked -26 0; heroes-turn 0 0"},
      {"", "Vesper 2,2 20 0 t2 plans[Fight] | Tony 2,2 16 0", "heroes-turn 0 0"},
      {"", "Vesper 2,2 20 4 t2 plans[Fight] | Tony 2,2 4 3",
       "hit-enemy -26 0; enemy-down -26 0; heroes-turn 0 0"},
      {"", "Vesper 2,2 4 4 | Tony 2,2 16 5 plans[Fight]", "hit-hero -26 0; hero-down -26 0"},
      {"", "Vesper 1,1 20 4 | Tony 4,3 16 3 [Dazed]", "free-again 80 -100; heroes-turn 0 0"},
      {"", "Vesper 1,1 20 4 | Tony 4,3 16 3 [Netted]", "free-again 80 -100; heroes-turn 0 0"},
      {"", "Vesper 1,1 20 4 | Tony 4,3 16 3 [Pinned]", "free-again 80 -100; heroes-turn 0 0"},
      {"", "Vesper 1,1 20 4 | Tony 4,3 16 3 [Pinned][Pinned]", "heroes-turn 0 0"},
      {"", "Vesper 1,1 20 4 | Tito 4,3 0 3 [Pinned]", "newcomer 80 -100; heroes-turn 0 0",
       comingnow},
      {"", "Vesper 1,1 20 4 | Tito 4,3 16 3 gun plans[Reload]",
       "step 80 0; gun-loaded 80 0; heroes-turn 0 0", loadingbystep},
      {"", "Vesper 1,1 20 4 | Tito 4,3 16 3 gun plans[Reload]",
       "gun-loaded 80 -100; heroes-turn 0 0", loadingwithout},
      {"", "Vesper 1,1 20 4 | Tito 4,3 16 3 gun plans[Loaded]",
       "gun-aimed 80 -100; heroes-turn 0 0"},
      {"", "Vesper 1,1 20 4 | Tito 4,3 16 3 gun plans[Shoot,1,1]",
       "gun-fired 80 -100; gun-hit-person -80 100; hit-hero -80 100; heroes-turn 0 0", armed},
      {"", "Vesper 1,1 20 4 plans[Shield] | Tito 4,3 16 3 gun plans[Shoot,1,1]",
       "gun-fired 80 -100; gun-hit-cover -80 100; heroes-turn 0 0", armed},
      {"", "Vesper 1,1 20 4 | Tito 4,3 16 3 gun plans[Shoot,1,1]",
       "gun-fired 80 -100; gun-hit-cover -80 100; heroes-turn 0 0", tagged(1, 1, tag::table)},
      {"", "Vesper 1,1 20 4 | Tito 4,3 16 3 gun plans[Shoot,1,1]",
       "gun-fired 80 -100; gun-missed -80 100; smoke-gone -80 100; heroes-turn 0 0",
       tagged(1, 1, tag::smoke)},
      {"", "Vesper 1,1 20 4 | Tito 4,3 16 3 gun plans[Shoot,3,-99]",
       "gun-fired 80 -100; gun-missed 26 100; heroes-turn 0 0"},
  };
  return all;
}

TEST(CuesOfAFight, AreThoseOfWhatHappensWhereItHappens) {
  for (const Scene& scene : scenes()) {
    EXPECT_EQ(heardof(scene), scene.heard) << scene.what << ": " << scene.ground;
  }
}

// People before smoke before furniture, and the edge.
struct CursorScene {
  std::string ground;
  std::string_view tag;
  std::string heard;
};
const std::vector<CursorScene> cursorscenes = {
    {"Vesper 2,2 20 4 | Table 2,2 1", "[Smoke]", "tile-hero -26 0"},
    {"Tony 2,2 16 3 | Table 2,2 1", "[Smoke]", "tile-enemy -26 0"},
    {"Tony 2,2 16 3 | Vesper 2,2 20 4", "", "tile-both -26 0"},
    {"Tony 2,2 0 3 | Chair 2,2 1", "[Table][Smoke]", "tile-smoke -26 0"},
    {"Chair 2,2 1", "", "tile-furniture -26 0"},
    {"Chair 2,2 0", "[Table]", "tile-furniture -26 0"},
    {"Chair 2,2 0", "", "tile-empty -26 0"},
};

TEST(CuesOfTheMap, ToneComesUnderTheWordsAndABumpAtTheEdge) {
  for (const auto& [ground, tag, heard] : cursorscenes) {
    Player player;
    Game& game = player.game();
    arrange(game, ground);
    addtiletag(game, 2, 2, tag, 1);
    game.menuname = screen::map;
    game.cursormode = 1;
    game.cursorx = 1;
    game.cursory = 2;
    const auto events = player.press(key::right);
    EXPECT_EQ(cuesof(events), heard) << ground;
    EXPECT_TRUE(events.at(0).starts_with("cue\t") && events.at(1).starts_with("voice\t")) << ground;
    player.press(key::left);
    EXPECT_EQ(player.press(key::left), Player::Events{"cue\tmap-edge\t-80\t0\t0"});
    EXPECT_EQ(cuesof(player.press(key::m)), "") << "other keys have none";
  }
}

TEST(CuesOfAFight, AreCentredInTheMiddleOfTheMapAndNeverQuiteAtOneSide) {
  struct Place {
    int width, height, x, y, pan, pitch;
  };
  const Place places[] = {{15, 15, 8, 8, 0, 0},       {15, 15, 1, 1, -80, 300},
                          {15, 15, 15, 15, 80, -300}, {5, 3, 3, 1, 0, 100},
                          {2, 2, 1, 2, -80, -50},     {1, 1, 1, 1, 0, 0},
                          {0, 0, 7, 7, 0, 0},         {4, 3, -1000000000, 1000000000, -80, -100}};
  for (const auto& [width, height, x, y, pan, pitch] : places) {
    Player player;
    player.game().mapwidth = width;
    player.game().mapheight = height;
    EXPECT_EQ(
        player.during([&, x = x, y = y] { playcue(player.game(), cue::step, x, y); }),
        Player::Events{"cue\tstep\t" + std::to_string(pan) + "\t" + std::to_string(pitch) + "\t0"});
  }
}

// The cues of an end of turn at which all of these happened.
Player::Events endwith(const std::vector<std::pair<cue::Id, int>>& happened) {
  Player player;
  for (const auto& [cue, times] : happened) {
    for (int n = 0; n < times; ++n) heard(player.game(), cue);
  }
  return player.during([&] { playendofturn(player.game()); });
}
int countof(const Player::Events& events, const std::string& name) {
  return static_cast<int>(std::ranges::count_if(
      events, [&](const std::string& event) { return event.starts_with("cue\t" + name + "\t"); }));
}
int lastdelay(const Player::Events& events) {
  return std::stoi(events.back().substr(events.back().rfind('\t') + 1));
}

TEST(CuesOfAnEndOfTurn, MoveTogetherWhereThereAreManyAndStepsGoFirst) {
  EXPECT_EQ(lastdelay(endwith({{cue::step, 4}})), 450);
  EXPECT_EQ(lastdelay(endwith({{cue::step, 13}})), 1800);
  EXPECT_EQ(lastdelay(endwith({{cue::step, 31}})), 1800);
  auto events = endwith({{cue::step, 50}, {cue::hithero, 3}, {cue::heroesturn, 1}});
  EXPECT_EQ(events.size(), 41U);
  EXPECT_EQ(countof(events, "step"), 37);
  EXPECT_EQ(countof(events, "hit-hero"), 3);
  EXPECT_TRUE(events.back().starts_with("cue\theroes-turn\t"));
  EXPECT_EQ(lastdelay(events), 1800);
  events = endwith({{cue::hitenemy, 30}, {cue::step, 30}});
  EXPECT_EQ(countof(events, "hit-enemy"), 30);
  EXPECT_EQ(countof(events, "step"), 11);
  events =
      endwith({{cue::hitenemy, 60}, {cue::step, 9}, {cue::enemydown, 20}, {cue::herodown, 30}});
  EXPECT_EQ(countof(events, "step") + countof(events, "hit-enemy"), 0);
  EXPECT_EQ(countof(events, "enemy-down"), 11);
  EXPECT_EQ(countof(events, "hero-down"), 30);
  events = endwith({{cue::hithero, 200}, {cue::victory, 1}});
  EXPECT_EQ(countof(events, "hit-hero"), 200);
  EXPECT_LE(lastdelay(events), 1800);
}

TEST(SoundPage, StandsInTheManual) {
  std::istringstream lines(soundlist());
  std::string listed;
  for (std::string line; std::getline(lines, line);)
    listed += line.substr(0, line.find('\r')) + "\n";
  EXPECT_TRUE(
      filetext(SOURCE_FOLDER "/readme.txt").ends_with("This is what it holds:\n\n" + listed));
}

TEST(Ambience, IsNamedByEveryMissionAndThereIsNoneWithoutASetUp) {
  const std::pair<int, std::string> places[] = {
      {0, "pool-hall"}, {1, "tattoo-parlor"}, {2, "pool-hall"}, {3, "dock"}, {4, ""}};
  for (const auto& [number, name] : places) {
    Player player;
    Game& game = player.game();
    game.missionnumber = number;
    game.menuname = screen::map;
    startusout(game);
    EXPECT_EQ(ambienceof(game), name);
    EXPECT_TRUE(name.empty() || findambience(name) != nullptr) << name;
  }
}

}  // namespace
}  // namespace duskmarch
