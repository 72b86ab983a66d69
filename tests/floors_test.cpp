// The floors of README.md: every include stays on its floor or goes down, and none goes round in a
// circle.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace duskmarch {
namespace {

namespace fs = std::filesystem;

const fs::path source = SOURCE_FOLDER;

// What README.md puts on each floor: folders ("values/") and files without their endings.
using Floors = std::map<std::string, int>;

// The folders and files in "  the fight    world/ heroturn/", after the floor's name, which two
// spaces or more end.
std::vector<std::string> listed(const std::string& floor) {
  const std::size_t name = std::min(floor.find_first_not_of(' '), floor.size());
  std::istringstream words(floor.substr(std::min(floor.find("  ", name), floor.size())));
  std::vector<std::string> list;
  for (std::string word; words >> word;) list.push_back(word);
  EXPECT_FALSE(list.empty()) << "nothing is on the floor of" << floor;
  return list;
}

// Lines of a number and a floor, between the two marks.
Floors readfloors() {
  Floors floors;
  std::ifstream readme(source / "README.md");
  bool inside = false;
  for (std::string line; std::getline(readme, line);) {
    if (line.find("<!-- floors") != std::string::npos) inside = !inside;
    std::istringstream words(line);
    int floor = 0;
    if (!inside || !(words >> floor) || !std::getline(words, line)) continue;
    for (const std::string& word : listed(line)) {
      const std::string file = word.ends_with('/') ? word : word + ".h";
      EXPECT_TRUE(fs::exists(source / "src" / file)) << word << " is not there";
      floors[word] = floor;
    }
  }
  return floors;
}

// "shell/speech/hold" for both its files.
std::string unitof(const fs::path& file) {
  return fs::path(file).replace_extension().generic_string();
}

// By the longest name in the list that fits.
int floorof(const Floors& floors, const std::string& unit) {
  int floor = 0;
  std::size_t longest = 0;
  for (const auto& [name, number] : floors) {
    const bool fits = name.ends_with('/') ? unit.starts_with(name) : unit == name;
    if (!fits || name.size() < longest) continue;
    longest = name.size();
    floor = number;
  }
  return floor;
}

struct Include {
  std::string from, to;
};

std::vector<Include> includes() {
  std::vector<Include> found;
  for (const auto& entry : fs::recursive_directory_iterator(source / "src")) {
    const std::string ending = entry.path().extension().string();
    if (ending != ".h" && ending != ".cpp") continue;
    const std::string unit = unitof(entry.path().lexically_relative(source / "src"));
    std::ifstream file(entry.path());
    for (std::string line; std::getline(file, line);) {
      if (!line.starts_with("#include \"")) continue;
      const std::string to = unitof(line.substr(10, line.rfind('"') - 10));
      if (to != unit) found.push_back({unit, to});
    }
  }
  return found;
}

TEST(Floors, IncludesStayOrGoDown) {
  const Floors floors = readfloors();
  ASSERT_GE(floors.size(), 6U) << "the list in README.md was not found";
  for (const auto& [from, to] : includes()) {
    ASSERT_NE(floorof(floors, from), 0) << from << " is on no floor";
    ASSERT_NE(floorof(floors, to), 0) << to << " is on no floor";
    EXPECT_GE(floorof(floors, from), floorof(floors, to)) << from << " looks up to " << to;
  }
}

TEST(Floors, OnlyFrontEndsKnowWhatIsUnderPlatform) {
  const Floors floors = readfloors();
  for (const auto& [from, to] : includes()) {
    if (from.starts_with("platform/") || !to.starts_with("platform/")) continue;
    EXPECT_EQ(floorof(floors, to), 1) << from << " knows " << to;
  }
}

using Graph = std::map<std::string, std::set<std::string>>;

// The circle that is closed by coming to `unit` again; nothing when there is none.
std::optional<std::string> circle(const Graph& graph, const std::string& unit,
                                  std::set<std::string>& done, std::set<std::string>& path) {
  if (path.contains(unit)) return unit;
  if (!done.insert(unit).second || !graph.contains(unit)) return std::nullopt;
  path.insert(unit);
  for (const std::string& next : graph.at(unit)) {
    if (const auto closed = circle(graph, next, done, path)) return unit + " <- " + *closed;
  }
  path.erase(unit);
  return std::nullopt;
}

TEST(Floors, NothingIncludesItselfInACircle) {
  Graph graph;
  for (const auto& [from, to] : includes()) graph[from].insert(to);
  std::set<std::string> done;
  for (const auto& [unit, others] : graph) {
    std::set<std::string> path;
    const auto closed = circle(graph, unit, done, path);
    EXPECT_FALSE(closed.has_value()) << closed.value_or("");
  }
}

}  // namespace
}  // namespace duskmarch
