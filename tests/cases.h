// Cases from a text file: "what: the ground before" (see ground.h; "what: " may be left out), what
// is told of it or "-", and the ground after. Lines that begin with # are remarks.
#pragma once

#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace duskmarch {

struct Case {
  std::string place;  // "abilities.txt line 12", for whoever looks for a case that fails
  std::string what;
  std::string before;
  std::string told;
  std::string after;
};

// In a file without the ground after, `lines` is 2.
inline std::vector<Case> readcases(const std::string& file, int lines = 3) {
  std::vector<Case> cases;
  std::ifstream text(TEST_FOLDER "/" + file);
  int number = 1;
  for (std::string first, told, after; std::getline(text, first); ++number) {
    if (first.empty() || first.starts_with('#')) continue;
    const std::string place = file + " line " + std::to_string(number);
    std::getline(text, told);
    if (lines == 3) std::getline(text, after);
    if (!told.starts_with("  ") || (lines == 3 && !after.starts_with("  "))) {
      throw std::invalid_argument(place + ": lines that begin with two spaces belong to it");
    }
    const auto colon = first.find(": ");
    const bool nothing = colon == std::string::npos;
    cases.push_back({place, nothing ? "" : first.substr(0, colon),
                     nothing ? first : first.substr(colon + 2), told == "  -" ? "" : told.substr(2),
                     lines == 3 ? after.substr(2) : ""});
    number += lines - 1;
  }
  EXPECT_FALSE(cases.empty()) << file;
  return cases;
}

}  // namespace duskmarch
