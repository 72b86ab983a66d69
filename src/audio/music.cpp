#include "audio/music.h"

#include <algorithm>
#include <cctype>
#include <exception>
#include <stdexcept>

#include "values/filelookup.h"

namespace duskmarch {
namespace {

bool namedmp3(std::string_view name) {
  constexpr std::string_view ending = ".MP3";
  if (name.size() < ending.size()) return false;
  return std::ranges::equal(name.substr(name.size() - ending.size()), ending, {},
                            [](char c) { return std::toupper(static_cast<unsigned char>(c)); });
}

// Throws when `z` is no player or has nothing loaded.
MusicGraph& graphof(Game& game, int z) {
  const auto& graph = game.music.players.at(static_cast<std::size_t>(z));
  if (!graph) throw std::logic_error("no music is loaded");
  return *graph;
}

// Ends at the first error; whether there was none.
template <class Work>
bool succeeds(Work work) {
  try {
    work();
    return true;
  } catch (const std::exception&) {
    return false;
  }
}

void render(Game& game, int z, std::string_view name) {
  auto& graph = game.music.players.at(static_cast<std::size_t>(z));
  graph.reset();
  const auto file = findfile(game.programfolder, name);
  if (!file || !std::filesystem::is_regular_file(*file)) {
    throw std::runtime_error("the file is missing");
  }
  graph = game.desktop.system.createmusic(*file);
  graph->setvolume(0);
}

void remember(Music& music, int z, std::string_view name, int volume) {
  music.mp3files.at(static_cast<std::size_t>(z)) = name;
  music.mp3volumes.at(static_cast<std::size_t>(z)) = volume;
}

}  // namespace

void mp3load(Game& game, int z, std::string_view name, int& volume) {
  if (volume == -1) volume = game.music.musicvolume;
  mp3open(game, z, name, volume);
}

void mp3load(Game& game, int z, std::string_view name) {
  int volume = -1;
  mp3load(game, z, name, volume);
}

bool mp3play(Game& game, int z) {
  if (game.music.musicoff == 1 && z == 0) return false;
  return mp3run(game, z);
}

bool mp3open(Game& game, int z, std::string_view name, int volume) {
  if (volume == -1) volume = game.music.musicvolume;
  if (game.music.musicoff == 1 || !namedmp3(name)) return false;
  return succeeds([&] {
    render(game, z, name);
    if (z == 0) mp3setvolume(game, 0, -5000 + 50 * std::clamp(volume, 0, 100));
    remember(game.music, z, name, volume);
    graphof(game, z).setbalance(0);
    graphof(game, z).setposition(0);
    mp3play(game, z);
  });
}

bool mp3run(Game& game, int z) {
  return succeeds([&] { graphof(game, z).run(); });
}

void mp3setvolume(Game& game, int z, int volume) {
  succeeds([&] { graphof(game, z).setvolume(std::clamp(volume, -5000, 0)); });
}

}  // namespace duskmarch
