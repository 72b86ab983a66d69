// The cues of a fight and of the map, and the loops of places: one row a sound.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace duskmarch {

namespace cue {

// By row of the table.
enum Id : std::uint8_t {
  step,
  targetchosen,
  dive,
  hook,
  kick,
  combo,
  headbutt,
  dust,
  pin,
  blast,
  bolas,
  net,
  grapnel,
  smokebombs,
  smokegone,
  shield,
  heal,
  secondwind,
  tableflipped,
  tablethrown,
  tablelanded,
  chairthrown,
  chairlanded,
  personthrown,
  personlanded,
  gunloaded,
  gunaimed,
  gunfired,
  gunhitperson,
  gunhitcover,
  gunmissed,
  hithero,
  hitenemy,
  blowblocked,
  herodown,
  enemydown,
  dazed,
  freeagain,
  newcomer,
  heroesturn,
  victory,
  defeat,
  tilehero,
  tileenemy,
  tileboth,
  tilefurniture,
  tilesmoke,
  tileempty,
  mapedge,
  count
};

}  // namespace cue

// The files of a kind are equally loud; `loudness` below tells them apart.
enum class CueKind { fight, map };

// What must stay when there are too many cues at once: the higher, the longer it is kept.
enum class CueWeight { footstep, event, outcome, herohurt };

struct CueRow {
  cue::Id id;
  std::string_view name;  // as transcripts tell it; also that of its file
  CueKind kind;
  int loudness;  // hundredths of a decibel, 0 or less
  CueWeight weight;
  std::string_view meaning;  // for the page that lists the sounds
};

struct AmbienceRow {
  std::string_view name;
  int loudness;
  std::string_view meaning;
};

// In the order in which the page lists them.
std::span<const CueRow> cuetable();
std::span<const AmbienceRow> ambiencetable();
const CueRow& cuerow(cue::Id id);
// The row of that name, or null.
const CueRow* findcue(std::string_view name);
const AmbienceRow* findambience(std::string_view name);

// The file, relative to the program folder.
std::string fileof(const CueRow& cue);
std::string fileof(const AmbienceRow& ambience);

}  // namespace duskmarch
