// The keys that the manual names are those that the game knows, by the names and codes that
// docs/replay.md gives them.
#include <map>
#include <set>

#include "campaignkeys.h"

namespace duskmarch {
namespace {

using Keys = std::set<int>;

// Rows such as "| 33 | Page Up |".
std::map<std::string, int> keynames() {
  std::map<std::string, int> names;
  const std::string text = filetext(SOURCE_FOLDER "/docs/replay.md");
  std::istringstream lines(text.substr(text.find("## Key codes")));
  for (std::string line; std::getline(lines, line) && !line.starts_with("Any other");) {
    int code = 0;
    char bar = 0;
    std::istringstream row(line);
    if (!(row >> bar >> code >> bar)) continue;
    const std::size_t name = line.rfind("| ", line.size() - 2) + 2;
    names[line.substr(name, line.size() - 2 - name)] = code;
  }
  return names;
}

// What the manual writes otherwise than the table.
std::string asinthetable(std::string entry) {
  const std::vector<std::pair<std::string, std::string>> ways = {
      {"The arrows", "Up, Down, Left, Right"},
      {"While you explore, the four arrows", "Up, Down, Left, Right"},
      {"plus and minus of the numeric keypad", "Keypad plus, Keypad minus"},
      {"period", "Period"},
      {"comma", "Comma"},
      {"minus", "Minus"},
      {"equals", "Equals"}};
  for (const auto& [manual, table] : ways) {
    if (const auto at = entry.find(manual); at < 60) entry.replace(at, manual.size(), table);
  }
  return entry;
}

// Takes the name of a key off the beginning: its code, 0 when there is none, -1 when it looks like
// one ("H tells", "F1 opens") that the table does not have.
int takekey(std::string& entry, const std::map<std::string, int>& names) {
  const auto begins = [&](std::size_t length) {
    return entry.size() == length || std::isalnum(static_cast<unsigned char>(entry[length])) == 0;
  };
  std::string longest;
  for (const auto& [name, code] : names) {
    if (entry.starts_with(name) && begins(name.size()) && name.size() > longest.size()) {
      longest = name;
    }
  }
  entry.erase(0, longest.size());
  if (!longest.empty()) return names.at(longest);
  std::size_t length = entry.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ");
  if (entry.starts_with('F')) length = entry.find_first_not_of("0123456789", 1);
  const bool unknown = length != 0 && !entry.empty() && !entry.starts_with("A ") && begins(length);
  return unknown ? -1 : 0;
}

// The keys that a sentence names before it says what they do: "Page Up and Page Down change".
Keys keysnamedby(std::string sentence, const std::map<std::string, int>& names) {
  Keys keys;
  for (int code = 1; code > 0;) {
    for (const std::string filler : {"Shift+", ", ", " ", "and ", "or ", "the "}) {
      if (sentence.starts_with(filler)) sentence.erase(0, filler.size());
    }
    code = takekey(sentence, names);
    if (code != 0) keys.insert(code);
  }
  return keys;
}

// The part of the manual's section 3 that begins with `heading`, sentence by sentence.
std::vector<std::string> sentences(const std::string& heading) {
  const std::string manual = filetext(SOURCE_FOLDER "/readme.txt");
  const std::size_t begin = manual.find("\n" + heading, manual.rfind("Section 3: "));
  EXPECT_NE(begin, std::string::npos) << heading;
  std::istringstream lines(manual.substr(begin, manual.find("\nKeys ", begin + 1) - begin));
  std::vector<std::string> all(1);
  for (std::string line; std::getline(lines, line);) {
    for (auto end = line.find(". "); end != std::string::npos; end = line.find(". ")) {
      all.back() += line.substr(0, end + 1);
      all.emplace_back();
      line.erase(0, end + 2);
    }
    all.back() += line + " ";
    if (line.empty() || line.ends_with('.')) all.emplace_back();
  }
  return all;
}

Keys keysofthemanual(const std::string& heading, const std::map<std::string, int>& names) {
  Keys keys;
  for (const std::string& sentence : sentences(heading)) {
    const Keys named = keysnamedby(asinthetable(sentence), names);
    EXPECT_FALSE(named.contains(-1)) << "docs/replay.md does not have a key of: " << sentence;
    keys.insert(named.begin(), named.end());
  }
  return keys;
}

// Ways to each screen, for somebody without a screen reader.
void tothemap(Player& player) {
  perform(player, 2);
  player.press(key::escape);
  for (const int code : {key::up, key::up, key::right}) player.press(code);
}
void tothehideout(Player& player) {
  perform(player, 1);
  recruit(player, 1, "Owl");
}
struct Screen {
  std::string name;
  void (*go)(Player& player);
};
const std::vector<Screen> menus = {{"main menu", [](Player& player) { player.press(key::down); }},
                                   {"creation",
                                    [](Player& player) {
                                      perform(player, 1);
                                      perform(player, 1);
                                    }},
                                   {"hideout", tothehideout},
                                   {"upgrades",
                                    [](Player& player) {
                                      tothehideout(player);
                                      player.game().mob(1).upgradepoints = 9;
                                      perform(player, 1);
                                    }},
                                   {"orders", [](Player& player) {
                                      tothemap(player);
                                      player.press(key::space);
                                    }}};
const Screen map = {"map", tothemap};
const std::vector<Screen> pages = {{"story", [](Player& player) { perform(player, 2); }},
                                   {"summary",
                                    [](Player& player) {
                                      tothemap(player);
                                      player.press(key::e, modifier::shift);
                                    }},
                                   {"help", [](Player& player) { player.press(key::f1); }}};

// The keys that do something on a screen, alone or with Shift.
Keys keysofthegame(const Screen& screen) {
  Keys acting;
  const ProgramFolder folder;
  std::unique_ptr<Player> player;
  for (int code = 1; code < 256; ++code) {
    for (const int shift : {modifier::none, modifier::shift}) {
      if (!player) {
        std::filesystem::remove(folder.path / "progress.ini");
        player = std::make_unique<Player>(ReplayOptions{.folder = folder.path, .reader = false});
        screen.go(*player);
      }
      if (player->press(code, shift).empty()) continue;
      acting.insert(code);
      player.reset();
    }
  }
  return acting;
}

std::string listed(const Keys& keys) {
  std::string text;
  for (const int code : keys) text += std::to_string(code) + " ";
  return text;
}

bool holds(const Keys& all, const Keys& some) {
  return std::ranges::includes(all, some);
}

TEST(ManualKeys, AreThoseOfTheGame) {
  const auto names = keynames();
  const Keys everywhere = keysofthemanual("Keys that work on every screen", names);
  const Keys inmenus = keysofthemanual("Keys in menus", names);
  const Keys inmissions = keysofthemanual("Keys in a mission", names);
  const Keys onpages =
      keysofthemanual("Keys in the turn summary, on story pages and on help pages", names);

  const Keys onthemap = keysofthegame(map);
  EXPECT_TRUE(holds(onthemap, everywhere)) << listed(onthemap);
  EXPECT_TRUE(holds(onthemap, inmissions)) << listed(onthemap);
  Keys inthewindow = onthemap;
  for (const Screen& menu : menus) {
    const Keys acting = keysofthegame(menu);
    Keys usual = inmenus;
    usual.erase(key::f9);  // here and there only
    EXPECT_TRUE(holds(acting, everywhere)) << menu.name << " " << listed(acting);
    EXPECT_TRUE(holds(acting, usual)) << menu.name << " " << listed(acting);
    inthewindow.insert(acting.begin(), acting.end());
  }
  Keys named = everywhere;
  named.insert(inmenus.begin(), inmenus.end());
  named.insert(inmissions.begin(), inmissions.end());
  EXPECT_EQ(listed(inthewindow), listed(named));

  Keys actingonpages;
  for (const Screen& page : pages) actingonpages.merge(keysofthegame(page));
  EXPECT_EQ(listed(actingonpages), listed(onpages));
  Player player;
  player.press(key::f1);
  const std::string help = player.game().helplabel;
  std::istringstream lines(help.substr(help.find('\n', help.find("Keys on pages"))));
  Keys told = {key::enter};  // told of with Escape
  for (std::string line; std::getline(lines, line);) {
    told.merge(keysnamedby(line.substr(0, line.find(':')), names));
  }
  EXPECT_EQ(listed(told), listed(actingonpages)) << "the end of every help page";

  named.insert(onpages.begin(), onpages.end());
  Keys tabled;
  for (const auto& [name, code] : names) tabled.insert(code);
  EXPECT_EQ(listed(tabled), listed(named));
}

// What the help page of a screen names before each colon.
Keys keysofthehelp(const Screen& screen, const std::map<std::string, int>& names) {
  Player player({.reader = false});
  screen.go(player);
  player.press(key::f1);
  const std::string page = player.game().helplabel;
  Keys keys;
  std::istringstream lines(page.substr(0, page.find("Keys on pages")));
  for (std::string line; std::getline(lines, line);) {
    const auto colon = line.find(": ");
    if (colon == std::string::npos) continue;
    Keys named = keysnamedby(line.substr(0, colon), names);
    EXPECT_FALSE(named.empty() || named.contains(-1)) << line;
    keys.merge(named);
  }
  return keys;
}

// The letters about a mission answer in menus too, but help tells of them where they help.
TEST(HelpPages, NameTheKeysOfTheirScreen) {
  const auto names = keynames();
  std::vector<Screen> screens = menus;
  screens.push_back(map);
  for (const Screen& screen : screens) {
    const Keys acting = keysofthegame(screen);
    const Keys told = keysofthehelp(screen, names);
    EXPECT_TRUE(holds(acting, told)) << screen.name << " " << listed(told);
    const bool mission = screen.name == "map" || screen.name == "orders";
    const Keys elsewhere = {key::b, key::c, key::d, key::e, key::g, key::h,      key::i,  key::l,
                            key::m, key::n, key::t, key::v, key::x, key::escape, key::f8, key::z};
    for (const int code : acting) {
      if (!told.contains(code)) {
        EXPECT_TRUE(elsewhere.contains(code)) << screen.name << " does not tell of " << code;
        EXPECT_TRUE(!mission || code == key::f8) << screen.name << " " << code;
      }
    }
  }
}

}  // namespace
}  // namespace duskmarch
