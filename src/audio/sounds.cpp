#include "audio/sounds.h"

#include <cmath>
#include <exception>
#include <filesystem>
#include <optional>
#include <stdexcept>

#include "debuglog.h"
#include "values/filelookup.h"
#include "values/pathtext.h"
#include "values/textfile.h"

namespace duskmarch {
namespace {

constexpr double fullturn = 6.283186;  // to the tables' precision

std::string& fileof(Game& game, int buffer) {
  if (buffer < 0 || buffer >= soundbuffercount) {
    throw std::out_of_range("there is no sound buffer " + std::to_string(buffer));
  }
  return game.bufferfile[static_cast<std::size_t>(buffer)];
}

bool holdssound(Game& game, int buffer) {
  return game.dsound && !fileof(game, buffer).empty();
}

// An error of a sound is worth a line in the log, never more.
template <class Work>
void logged(const Game& game, std::string_view procedure, Work work) {
  try {
    work();
  } catch (const std::exception& error) {
    logerror(game, procedure, error.what());
  }
}

int nextinrotation(Game& game) {
  if (++game.nextbuffer > game.maxbuffer) game.nextbuffer = 1;
  if (game.nextbuffer < 2) game.nextbuffer = 2;
  return game.nextbuffer;
}

void start(Game& game, int buffer, bool loop) {
  try {
    if (holdssound(game, buffer)) game.dsound->play(buffer, loop);
  } catch (const std::exception&) {
    // A sound that cannot start is silence; the reason was logged when it was loaded.
  }
}

// The nearest hundredth, halves to even.
double hundredth(double value) {
  return std::nearbyint(value * 100) / 100;
}

std::size_t tableindex(double angle) {
  // Far out, steps would take for ever.
  if (std::abs(angle) > 1000 * fullturn) angle = std::fmod(angle, fullturn);
  while (angle < 0) angle += fullturn;
  while (angle > fullturn) angle -= fullturn;
  if (!std::isfinite(angle)) throw std::domain_error("the angle is no number");
  return static_cast<std::size_t>(std::nearbyint(angle * 100));
}

}  // namespace

void makesound(Game& game, std::string_view name, double volume, double pan, bool loop,
               int buffer) {
  if (buffer == -1) buffer = nextinrotation(game);
  setsound(game, buffer, name);
  setvol(game, buffer, volume);
  setpan(game, buffer, pan);
  start(game, buffer, loop);
}

void playeffect(Game& game, std::string_view name) {
  makesound(game, name, 0, 0, false, -1);
}

void setsound(Game& game, int buffer, std::string_view name) {
  logged(game, "setsound", [&] {
    name = trim(name);
    if (name.empty()) return;
    const std::filesystem::path* file = game.soundfinder.find(game.programfolder, name);
    if (file == nullptr) {
      logline(game.filesfolder,
              "File is missing: " + textof(game.programfolder) + std::string(name));
      return;
    }
    std::string& held = fileof(game, buffer);
    if (!game.dsound) return;
    game.dsound->load(buffer, name, *file);
    held = name;
  });
}

double setvol(Game& game, int buffer, double volume) {
  volume = hundredth(volume);
  logged(game, "setvol", [&] {
    if (volume < -5000 || volume > 0 || !holdssound(game, buffer)) return;
    game.dsound->setvolume(buffer, static_cast<int>(volume));
  });
  return volume;
}

double setpan(Game& game, int buffer, double pan) {
  pan = hundredth(pan);
  logged(game, "setpan", [&] {
    if (pan < -10000 || pan > 10000 || !holdssound(game, buffer)) return;
    game.dsound->setpan(buffer, static_cast<int>(pan));
  });
  return pan;
}

double quicksin(Game& game, double angle) {
  double result = 0;
  logged(game, "quicksin", [&] { result = game.sintable[tableindex(angle)]; });
  return result;
}

double quickcos(Game& game, double angle) {
  double result = 0;
  logged(game, "quickcos", [&] { result = game.costable[tableindex(angle)]; });
  return result;
}

void buildtables(Game& game) {
  for (std::size_t i = 0; i < game.sintable.size(); ++i) {
    game.sintable[i] = std::sin(static_cast<double>(i) / 100);
    game.costable[i] = std::cos(static_cast<double>(i) / 100);
  }
}

}  // namespace duskmarch
