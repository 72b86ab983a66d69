// How much the abilities do: each number once, for the rule that works by it, the words that tell
// of it and the description that promises it. What thrown furniture does is in world/furniture.h,
// since enemies throw it too.
#pragma once

namespace duskmarch::number {

inline constexpr int headbuttcost = 2;  // health of whoever gives one
inline constexpr int grapneldamage = 6;
inline constexpr int healing = 10;       // health at most
inline constexpr int blastgun = 8;       // the gun of whoever learns to blast
inline constexpr int dustskilllost = 3;  // of who gets it in the eyes
inline constexpr int dustskillwon = 1;   // of who blew it there
inline constexpr int bolasdivisor = 5;   // a fifth of the skill is left
inline constexpr int comboskill = 2;     // times the skill

// In quiet ends of turn, of which each copy of a condition is one.
inline constexpr int netturns = 2;
inline constexpr int pinturns = 2;
inline constexpr int throwndaze = 2;  // of who is thrown

// In tiles.
inline constexpr int blastreach = 2;
inline constexpr int bolasreach = 2;
inline constexpr int netreach = 3;
inline constexpr int smokereach = 2;
inline constexpr int thicksmokereach = 1;

// In ends of turn.
inline constexpr int smoketurns = 2;
inline constexpr int thicksmoketurns = 4;

}  // namespace duskmarch::number
