#include "campaign/savegame.h"

#include <array>
#include <exception>
#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "audio/sounds.h"
#include "ownfiles.h"
#include "platform/files.h"
#include "shell/speech/busyfiles.h"
#include "shell/speech/speech.h"
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
  void text(const std::string& text) { lines.append(text).append("\r\n"); }
  void number(Number number, Range /*allowed*/ = anynumber) { text(numberline(number)); }

  std::string lines;
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
  file.number(mob.mobtype, {0, mobtype::last});
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

template <typename File, typename Campaign>
void campaignlines(File& file, Campaign& campaign) {
  file.number(campaign.missionnumber);
  file.text(campaign.storyword);
  for (int slot = 1; slot <= heroslots; ++slot) moblines(file, campaign.mob(slot));
}

// What a saved game holds, for a look at one that is not loaded.
struct Campaign {
  Number missionnumber;
  std::string storyword;
  std::array<Mob, heroslots + 1> mobs;
  Mob& mob(int slot) { return mobs.at(static_cast<std::size_t>(slot)); }
};

bool iswhole(const fs::path& file) {
  try {
    const std::string text = readtextfile(file);
    LineReader lines(splitlines(text));
    Campaign campaign;
    campaignlines(lines, campaign);
    return text.ends_with('\n');
  } catch (const FileBusy&) {
    throw;  // who knows
  } catch (const std::exception&) {
    return false;
  }
}

bool holdsmore(const fs::path& one, const fs::path& other) {
  std::error_code missing;
  const auto size = fs::file_size(one, missing);
  if (missing) return true;  // no regular file: nothing that could be written over
  const auto othersize = fs::file_size(other, missing);
  return missing || size > othersize;
}

fs::path named(fs::path file, std::string_view ending) {
  file += ending;
  return file;
}

// Keeps the file that is about to be written anew: of what was cut short not in the place of the
// last whole one, but where a hand may still repair it. Save after save may be cut short, so the
// one with most in it is kept.
void setaside(const fs::path& file) {
  const fs::file_status status = fs::symlink_status(file);
  if (!fs::exists(status) || fs::is_directory(status)) return;
  if (iswhole(file)) return renamefile(file, named(file, ".bak"));
  const fs::path damaged = named(file, ".damaged");
  if (holdsmore(file, damaged)) renamefile(file, damaged);
}

void write(const fs::path& path, std::string_view text) {
  setaside(path);
  FileWriter file(path, FileWriter::Start::anew);
  file.write(text);
  file.synchronize();
  file.close();
}

constexpr std::string_view saveerror = "Error saving game.";

constexpr FileKind savedgame = {
    .write = write,
    .written = [](Game& game) { playeffect(game, R"(\sounds\game\saved.wav)"); },
    .failedlate = [](Game& game) { addsentence(game, saveerror); }};

void tellunkept(Game& game) {
  game.waybackkept = false;
  if (std::exchange(game.autosavefailuretold, true)) return;
  addsentence(game, "Your progress cannot be kept.");
}

constexpr FileKind autosave = {.write = write, .written = [](Game&) {}, .failedlate = tellunkept};

bool savecampaign(Game& game, std::string_view name, const FileKind& kind) {
  LineWriter writer;
  campaignlines(writer, game);
  if (keepfile(game, {std::string(name), writer.lines, &kind}) == Keeping::failed) return false;
  game.trace.saved(name, writer.lines);
  return true;
}

// What was saved, though the file may wait for another program yet.
std::optional<std::string> savedtext(const Game& game, std::string_view name) {
  if (const std::string* const waiting = waitingtext(game, name)) return *waiting;
  const std::optional<fs::path> path = ownfile(game, name);
  if (!path) return std::nullopt;
  return readtextfile(*path);
}

}  // namespace

void savegame(Game& game, std::string_view name) {
  if (!savecampaign(game, name, savedgame)) sayit(game, saveerror);
}

bool keepprogress(Game& game) {
  if (game.testheroes) return false;
  const bool kept = savecampaign(game, autosavefile, autosave);
  if (!kept) tellunkept(game);
  return kept;
}

void keepchoices(Game& game) {
  if (!game.missionunwon) keepprogress(game);
}

void loadgame(Game& game, std::string_view name) {
  try {
    const std::optional<std::string> text = savedtext(game, name);
    game.trace.loaded(name, text);
    if (!text) return sayit(game, "File not found.");
    LineReader lines(splitlines(*text));
    campaignlines(lines, game);
    game.missionunderway = false;
    game.missionunwon = false;
    game.testheroes = false;
    sayit(game, "Game loaded.");
    game.menuname = screen::hideout;
    game.menupos = 0;
  } catch (const std::exception&) {
    sayit(game, "Error loading game.");
  }
}

}  // namespace duskmarch
