// What docs/asheard.md tells and no other test holds: each looks like a mistake and is meant.
#include "campaignkeys.h"
#include "ground.h"
#include "heroturn/optionlist.h"
#include "resolution/endturn.h"
#include "resolution/enemies.h"
#include "shell/startup.h"

namespace duskmarch {
namespace {

// From the main menu: recruits Owl, and begins the campaign's next mission.
void beginmission(Player& player) {
  perform(player, 1);
  recruit(player, 1, "Owl");
  perform(player, 4, modifier::shift);
}

void knockout(Player& player, int side) {
  Game& game = player.game();
  for (Mob& mob : game.mobs) {
    if (mob.aliance == side) mob.health = 0;
  }
  game.turnnumber = 99;  // nobody is still to come
}

// Ends the turn and closes the summary, then the page that may follow.
std::string decide(Player& player) {
  player.press(key::e, modifier::shift);
  const Player::Events events = player.press(key::enter);
  const auto box = std::ranges::find_if(
      events, [](const std::string& event) { return event.starts_with("message\t"); });
  if (player.game().focus == Focus::storylabel) player.press(key::escape);
  return box == events.end() ? "" : box->substr(box->rfind('\t') + 1);
}

std::string win(Player& player) {
  knockout(player, aliance::enemies);
  return decide(player);
}

std::string lose(Player& player) {
  knockout(player, aliance::heroes);
  return decide(player);
}

// The stand-in's system, but for its sound device, which cannot be opened.
class SilentSystem : public System {
 public:
  explicit SilentSystem(System& other) : other_(other) {}
  std::filesystem::path programfolder() const override { return other_.programfolder(); }
  std::uint32_t secondssincemidnight() const override { return 1; }
  std::unique_ptr<Voice> createvoice() override { return other_.createvoice(); }
  std::unique_ptr<JawsApi> createjaws() override { return other_.createjaws(); }
  std::unique_ptr<SoundDevice> opensound() override { throw PlatformError("no device"); }
  std::unique_ptr<MusicGraph> createmusic(const std::filesystem::path&) override { return nullptr; }
  bool readerattached() const override { return true; }
  void end() override { other_.end(); }

 private:
  System& other_;
};

std::string startwithoutsound(Player& player) {
  ReplayDesktop& replay = player.session().replay;
  SilentSystem system(replay.system);
  Desktop desktop{system, replay.window, replay.summary, replay.story, replay.help, replay.dialogs};
  Game game{desktop};
  return joined(player.during([&] { startup(game); }));
}

std::string thepageofmission3(Player& player) {
  player.game().missionnumber = 2;
  beginmission(player);
  return player.game().storylabel;
}

std::string theendofthetestmission(Player& player) {
  perform(player, 2);
  player.press(key::escape);
  knockout(player, aliance::enemies);
  player.press(key::e, modifier::shift);
  player.press(key::enter);
  return player.game().storylabel;
}

std::string thetilesofthelastmission(Player& player) {
  beginmission(player);
  addtiletag(player.game(), 2, 2, "[Table]", 1);
  addtiletag(player.game(), 2, 2, "[Smoke]", 3);
  player.press(key::escape);
  win(player);
  perform(player, 4, modifier::shift);
  player.press(key::escape);
  const Spoken here = player.spokenby(key::left);
  return here.back() + joined(player.spokenby(key::down));
}

std::string pointsafterthreevictories(Player& player) {
  beginmission(player);
  player.game().mob(1).earnedpoints = 1;
  std::string points;
  for (int mission = 1; mission <= 3; ++mission) {
    player.press(key::escape);
    win(player);
    points += player.game().mob(1).upgradepoints.isset()
                  ? std::to_string(int{player.game().mob(1).upgradepoints}) + " "
                  : "none ";
    perform(player, 4, modifier::shift);
  }
  return points;
}

std::string thehideoutafterdefeats(Player& player) {
  beginmission(player);
  player.press(key::escape);
  std::string heard = lose(player);
  perform(player, 1);
  heard += "|" + joined(reach(player, 4));
  player.press(key::enter, modifier::shift);
  player.press(key::escape);
  lose(player);
  perform(player, 1);
  return heard + "|" + joined(reach(player, 2));
}

std::string amissionwithoutanybody(Player& player) {
  player.game().missionnumber = 3;
  beginmission(player);
  return joined(player.spokenby(key::x)) + "|" + decide(player);
}

std::string thecampaignafterthetestmission(Player& player) {
  player.game().missionnumber = 2;
  perform(player, 1);
  recruit(player, 1, "Owl");
  player.press(key::escape, modifier::shift);
  perform(player, 2);
  player.press(key::escape);
  win(player);
  return joined(reach(player, 1)) + "|" + joined(reach(player, 4));
}

std::string whoisselected(Player& player) {
  perform(player, 1);
  recruit(player, 1, "Owl");
  player.game().missionnumber = 2;
  recruit(player, 2, "Lynx");
  perform(player, 4, modifier::shift);
  player.press(key::escape);
  const std::string cursor = joined(player.spokenby(key::up)) + joined(player.spokenby(key::left));
  return cursor + "|" + joined(player.spokenby(key::space));
}

std::string anewcomersfight(Player& player) {
  Game& game = player.game();
  arrange(game, "Vesper 2,2 20 4 | Tony 2,2 16 3");
  game.mob(2).health = 0;
  game.mob(2).spawntime = 1;
  game.mob(2).spawntext = "$N comes.";
  endturn(game);
  return game.list1.front() + "|" + joined(game.list2) + "|" + game.mob(2).action;
}

std::string pointsafterareload(Player& player) {
  beginmission(player);
  player.game().mob(1).upgradepoints = 6;
  player.press(key::escape);
  win(player);
  perform(player, 1);
  const std::string heard = joined(perform(player, 3, modifier::shift));
  player.press(key::escape, modifier::shift);
  player.press(key::f9);
  return heard + "|" + joined(reach(player, 1));
}

std::string whoisshotinthenextmission(Player& player) {
  beginmission(player);
  Game& game = player.game();
  Mob& gunman = game.mob(newmob(game, {.name = "Moe",
                                       .gender = "M",
                                       .type = mobtype::gunman,
                                       .health = 9,
                                       .x = 5,
                                       .y = 5,
                                       .gun = 99}));
  gunman.action =
      "[Shoot," + std::to_string(game.mob(1).mobx) + "," + std::to_string(game.mob(1).moby) + "]";
  player.press(key::escape);
  player.press(key::e, modifier::shift);
  const bool shot =
      game.turnsummary.find("Owl dropped dead from the injuries.") != std::string::npos;
  player.press(key::enter);
  perform(player, 1);
  perform(player, 4, modifier::shift);
  return (shot ? "shot, " : "") + std::to_string(game.mob(1).health);
}

std::string anymodifierforenter(Player& player) {
  perform(player, 1);
  recruit(player, 1, "Owl");
  player.game().mob(1).upgradepoints = 5;
  perform(player, 1);
  std::string heard = joined(perform(player, 1, modifier::ctrl));
  player.press(key::escape);
  player.press(key::enter);
  perform(player, 4, modifier::alt);
  return heard + "|" + player.game().objective;
}

std::string smokethatlingers(Player& player) {
  Game& game = player.game();
  arrange(game, "Vesper 1,1 20 4");
  addtiletag(game, 1, 1, "[Smoke]", 2);
  addtiletag(game, 2, 2, "[Smoke]", 1);
  endturn(game);
  return game.list1.front() + "|" + tiletags(game, 1, 1);
}

TEST(AsHeard, IsMeant) {
  struct Row {
    std::string what;
    std::string (*heard)(Player& player);
    std::string meant;
  };
  const std::vector<Row> rows = {
      {"no sound device", startwithoutsound,
       "rate\t2|message\t\tUnable to start DirectSound. Check to see that your sound card is "
       "properly installed.  Try "
       "running ostrav.exe from your Klavern folder.  For some people, this can correct this "
       "issue.|end"},
      {"the page of mission 3", thepageofmission3,
       "I don't have a mission 3 yet.  For now it's just mission 2 again, and if you beat it the "
       "game probably just crashes, haha.\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n"
       ".  Press Escape to continue."},
      {"the end of the test mission", theendofthetestmission,
       "This testing mission has no exit story.\r\n\r\nUmm, to write one real quick lets just "
       "assume Nightjar and Steelwing tie up the bad guys and chat with one of the more "
       "influential ones who has woken up.\r\n\r\nYeah I guess that story works, just so there is "
       "something.  Mission complete.  Press Escape to continue.\r\n\r\n"},
      {"tables and smoke in the next mission", thetilesofthelastmission,
       "B 1, 1 here.  Muscles.  There is a Chair here.Smokey B 2, 1 here.  Mobster Tony.  There is "
       "an overturned table here providing cover.  There is a Table and Chair here."},
      {"points paid again", pointsafterthreevictories, "1 10 27 "},
      {"the hideout after defeats", thehideoutafterdefeats,
       "Mission failed!|Begin mission 2.|Press Enter to recruit your second vigilante."},
      {"mission 4", amissionwithoutanybody, "No enemies found|Mission complete!"},
      {"the campaign after the test mission", thecampaignafterthetestmission,
       "Nightjar has no upgrade points to spend.|Begin mission 1."},
      {"who is selected", whoisselected,
       "B 1, 1 here.  Muscles.  There is a Chair here.|Lynx selected at location E 3."},
      {"a newcomer's fight", anewcomersfight,
       "Tony comes. Location B, 2 and engaged Vesper in a fight.|Move|Target Tony|"},
      {"who is shot, in the next mission", whoisshotinthenextmission, "shot, 8"},
      {"Enter with any modifier", anymodifierforenter,
       "Health increased to 13.|Defeat the punks at the tattoo parlor."},
      {"smoke that lingers", smokethatlingers, "Smoke has cleared.|[Smoke]"},
      {"points after a reload", pointsafterareload,
       "Dive increased to 2 uses.|Owl has 6 upgrade points.  Press Enter to spend them."},
  };
  for (const auto& [what, heard, meant] : rows) {
    Player player;
    EXPECT_EQ(heard(player), meant) << what;
  }
}

}  // namespace
}  // namespace duskmarch
