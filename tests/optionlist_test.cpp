// What a hero is offered, and what an enemy makes of the same options.
#include "heroturn/optionlist.h"

#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "ground.h"
#include "harness.h"
#include "resolution/enemies.h"

namespace duskmarch {
namespace {

void arrangefor(Game& game, const std::string& ground, int slot, const std::string& abilities) {
  arrange(game, ground);
  std::istringstream names(abilities);
  for (std::string name; std::getline(names, name, ',');) give(game, slot, name, 1);
}

const std::string crowd =
    "Vesper 2,2 20 4 moved | Nora 2,1 9 4 | Al 2,2 9 3 | Bo 2,1 9 3 | Cy 3,2 9 3 | Di 3,1 9 3 | "
    "Ed 4,2 9 3 | Flo 4,3 9 3 | Gus 2,1 0 3 | Bly 2,2 0 4";
const std::string housed =
    "Vesper 2,2 20 4 | Al 2,2 9 3 | Table 2,2 1 | Chair 2,2 1 | Table 2,2 1 | Table 2,2 0 | "
    "Chair 2,1 1";

struct Case {
  std::string ground;
  std::string abilities;  // one use each
  std::string options;
};

const std::vector<Case> herocases{
    {"Vesper 2,2 20 4", "", "Move"},
    {"Vesper 2,2 20 4 [Netted][Pinned]", "", "Move"},
    {"Vesper 2,2 20 4 moved", "", ""},
    {"Vesper 2,2 20 4 engaged", "Dive", "Dive"},
    {"Vesper 2,2 20 4 [Netted][Dazed] | Al 2,2 9 3", "Dive", ""},
    {"Vesper 2,2 0 4 | Al 2,2 9 3", "Dive", ""},
    {"Vesper 2,2 20 4 acted t2 plans[Fight] | Al 2,2 9 3 | Table 2,2 1", "Dive",
     "Move|Target Al|Don't target anyone"},
    // Whom she fights already is offered again only while he has no plans.
    {"Vesper 2,2 20 4 t2 | Al 2,2 9 3 plans[Fight] | Bo 2,2 9 3 plans[Fight] | Cy 1,2 9 3", "",
     "Move|Target Bo"},
    // Held, and without a way out of her own: the foe on her tile is offered whatever he plans.
    {"Vesper 2,2 20 4 engaged t2 | Al 2,2 9 3 plans[Fight]", "Kick,Pin,Shield", "Target Al|Shield"},
    {"Vesper 2,2 2 4 engaged t2 | Al 2,2 9 3 plans[Fight]", "Headbutt", "Target Al"},
    {"Vesper 2,2 20 4 engaged t2 | Al 2,2 9 3 plans[Fight]", "Dive", "Dive"},
    {"Vesper 2,2 20 4 engaged acted t2 | Al 2,2 9 3 plans[Fight]", "Combo", ""},
    {"Vesper 2,1 20 4 engaged t2 | Al 2,1 9 3 plans[Fight]", "Pin", "Pin Al"},
    {"Vesper 2,2 20 4 engaged t2 plans[Fight] | Al 2,2 9 3 plans[Fight]", "",
     "Don't target anyone"},
    // In the order of her abilities; names count to the letter.
    {"Vesper 2,2 20 4", "Second wind,Hook,Smoke bombs,dive,Flight,Dive,Shield",
     "Move|Second wind|Hook|Smoke bombs|Dive|Shield"},
    {housed, "Throw",
     "Move|Target Al|Throw Al|Throw table|Throw chair|Throw table|Flip table|Flip table"},
    {crowd, "Throw", "Target Al|Throw Al"},
    {crowd, "Headbutt,Combo,Dust", "Target Al|Headbutt Al|Combo Al|Dust Al"},
    {"Vesper 2,2 2 4 | Al 2,2 9 3", "Headbutt", "Move|Target Al"},
    {crowd, "Kick", "Target Al|Kick Bo|Kick Cy"},
    {crowd, "Pin", "Target Al|Pin Bo|Pin Di|Pin Ed|Pin Flo"},
    {crowd, "Blast", "Target Al|Blast Bo|Blast Cy|Blast Di|Blast Ed"},
    {crowd, "Bolas", "Target Al|Bolas Bo|Bolas Cy|Bolas Di|Bolas Ed"},
    {crowd, "Net", "Target Al|Net Bo|Net Cy|Net Di|Net Ed|Net Flo"},
    {"Vesper 1,1 20 4 | Al 4,1 9 3 | Bo 4,2 9 3", "Net", "Move|Net Al"},
    {crowd, "Grapnel", "Target Al|Grapnel Bo|Grapnel Cy|Grapnel Ed"},
    {crowd, "Heal", "Target Al|Heal Vesper|Heal Nora"}};

TEST(HeroOptions, AreWhatTheHeroCanDoNow) {
  for (const auto& [ground, abilities, options] : herocases) {
    Player player;
    arrangefor(player.game(), ground, 1, abilities);
    listoptions(player.game(), 0);
    EXPECT_EQ(joined(player.game().list2), options) << abilities << " with " << ground;
  }
}

const std::vector<Case> enemycases{
    // Each kick may go wherever heroes stand.
    {"Al 2,2 9 3 | Vesper 1,2 20 4 | Nora 2,1 9 4 | Bly 2,3 0 4", "Kick",
     "[Kick West]|[Kick North]|[Kick West]|[Kick North]"},
    // By the edge of the map first, then once more towards whom it would hit.
    {"Al 1,1 9 3 | Vesper 1,1 20 4 | Nora 2,1 9 4", "Throw",
     "[Throw Vesper East]|[Throw Vesper South]|[Throw Vesper East]"},
    {"Al 2,2 9 3 | Vesper 2,1 20 4 | Nora 4,2 9 4 | Bly 1,2 9 4 | Table 2,2 1", "Throw",
     "[Throw table North]|[Throw table West]"},
    {"Al 2,2 9 3 | Vesper 4,2 20 4 | Nora 2,3 9 4 | Bly 2,1 0 4 | Chair 2,2 1", "Throw",
     "[Throw chair East]|[Throw chair South]"},
    {"Al 2,2 9 3 | Vesper 2,2 20 4 | Nora 2,3 9 4 | Table 2,2 1",
     "Dive,Shield,Smoke bombs,Hook,Second wind,Headbutt,Combo,Dust,Pin,Blast,Grapnel,"
     "Bolas,Heal,Net",
     ""},
    {"Al 2,2 9 3 [Dazed] | Vesper 1,2 20 4", "Kick", ""}};

TEST(EnemyEntries, AreTheOptionsByDirection) {
  for (const auto& [ground, abilities, options] : enemycases) {
    Player player;
    arrangefor(player.game(), ground, 1, abilities);
    listentries(player.game(), 1);
    EXPECT_EQ(joined(player.game().list3), options) << abilities << " with " << ground;
  }
}

}  // namespace
}  // namespace duskmarch
