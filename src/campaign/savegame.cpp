#include "campaign/savegame.h"

#include <exception>
#include <filesystem>
#include <fstream>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "audio/sounds.h"
#include "shell/speech/speech.h"
#include "values/filelookup.h"
#include "values/textfile.h"

namespace duskmarch {
namespace {

namespace fs = std::filesystem;

struct Range {
  int least;
  int most;
};

constexpr Range anynumber = {-Number::limit, Number::limit};
constexpr Range place = {0, gridsize - 1};

class LineWriter {
 public:
  explicit LineWriter(std::ostream& file) : file_(file) {}
  void text(const std::string& text) { file_ << text << "\r\n"; }
  void number(Number number, Range /*allowed*/ = anynumber) { text(numberline(number)); }

 private:
  std::ostream& file_;
};

class LineReader {
 public:
  explicit LineReader(std::vector<std::string> lines) : lines_(std::move(lines)) {}
  void text(std::string& text) { text = nextline(); }
  void number(Number& number, Range allowed = anynumber) {
    const std::optional<Number> read = parsenumberline(nextline());
    if (!read || *read < allowed.least || *read > allowed.most) {
      throw std::runtime_error("no such number");
    }
    number = *read;
  }

 private:
  std::string nextline() {
    if (next_ == lines_.size()) throw std::runtime_error("the file ends early");
    return std::move(lines_[next_++]);
  }

  std::vector<std::string> lines_;
  std::size_t next_ = 0;
};

// The lines of the file, in their order; whether `file` reads or writes them.
template <typename File>
void abilitylines(File& file, Mob& mob) {
  file.number(mob.abilitycount, {0, lastslot});
  const auto count = static_cast<std::size_t>(mob.abilitycount);
  if (mob.abilities.size() <= count) mob.abilities.resize(count + 1);
  for (std::size_t k = 1; k <= count; ++k) {
    file.text(mob.abilities[k].abilityname);
    file.number(mob.abilities[k].abilityuses);
    file.number(mob.abilities[k].abilityextra);
  }
}

template <typename File>
void moblines(File& file, Mob& mob) {
  file.text(mob.mobname);
  file.number(mob.gender, {0, gender::genderless});
  file.number(mob.aliance, {0, aliance::enemies});
  file.number(mob.mobtype, {0, mobtype::gifted});
  file.number(mob.health);
  file.number(mob.maxhealth);
  file.number(mob.mobx, place);
  file.number(mob.moby, place);
  file.number(mob.startx, place);
  file.number(mob.starty, place);
  file.text(mob.action);
  abilitylines(file, mob);
  file.text(mob.status);
  file.number(mob.reserve);
  file.number(mob.maxreserve);
  file.number(mob.fight);
  file.number(mob.maxfight);
  file.number(mob.gun);
  file.number(mob.reserve2);
  file.number(mob.engaged);
  file.number(mob.target, {0, lastslot});
  file.number(mob.earnedpoints);
  file.number(mob.rested);
  file.number(mob.hasmoved);
  file.number(mob.hasacted);
  file.number(mob.spawntime);
  file.text(mob.spawntext);
  file.number(mob.upgradepoints);
}

template <typename File>
void campaignlines(File& file, Game& game) {
  file.number(game.missionnumber);
  file.text(game.storyword);
  for (int slot = 1; slot <= heroslots; ++slot) moblines(file, game.mob(slot));
}

// Keeps the file that is about to be written anew.
void setaside(const fs::path& file) {
  if (!fs::exists(fs::symlink_status(file)) || fs::is_directory(file)) return;
  fs::path kept = file;
  kept += ".bak";
  fs::rename(file, kept);
}

}  // namespace

void savegame(Game& game, std::string_view name) {
  try {
    const fs::path path =
        findfile(game.programfolder, name).value_or(game.programfolder / tidyname(name));
    setaside(path);
    std::ofstream file(path, std::ios::binary);
    file.exceptions(std::ios::failbit | std::ios::badbit);
    LineWriter lines(file);
    campaignlines(lines, game);
    file.flush();  // a full disk shows here
    playeffect(game, R"(\sounds\game\saved.wav)");
    file.close();
  } catch (const std::exception&) {
    sayit(game, "Error saving game.");
  }
}

void loadgame(Game& game, std::string_view name) {
  try {
    const std::optional<fs::path> path = findfile(game.programfolder, name);
    if (!path) {
      sayit(game, "File not found.");
      return;
    }
    LineReader lines(readlines(*path));
    campaignlines(lines, game);
    game.missionunderway = false;
    sayit(game, "Game loaded.");
    game.menuname = screen::hideout;
    game.menupos = 0;
  } catch (const std::exception&) {
    sayit(game, "Error loading game.");
  }
}

}  // namespace duskmarch
