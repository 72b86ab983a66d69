// The manual's first ten minutes: what it quotes is what the player hears, whatever chance does.
#include <algorithm>
#include <iterator>

#include "harness.h"

namespace duskmarch {
namespace {

// Line ends and runs of spaces become one space.
std::string flowing(const std::string& text) {
  std::istringstream words(text);
  std::string flow;
  for (std::string word; words >> word;) flow += word + ' ';
  return flow;
}

std::vector<std::string> quotesbetween(std::string_view opening, std::string_view closing) {
  const std::string manual = filetext(SOURCE_FOLDER "/readme.txt");
  const std::size_t begin = manual.rfind(opening);
  std::istringstream section(manual.substr(begin, manual.find(closing, begin) - begin));
  std::vector<std::string> quotes;
  std::string part;
  for (bool quoted = false; std::getline(section, part, '"'); quoted = !quoted) {
    if (quoted) quotes.push_back(flowing(part));
  }
  return quotes;
}

// Does as the manual says, and keeps what is heard.
class Newcomer {
 public:
  explicit Newcomer(std::uint32_t seed) : player_({.seed = seed}) { keep(player_.events()); }

  void press(std::initializer_list<int> keys, int shift = 0) {
    for (const int code : keys) keep(player_.press(code, shift));
  }
  void pressuntil(int code, std::string_view order) {
    const auto heard = [&] { return last_.starts_with(order); };
    for (int presses = 0; presses < 40 && !heard(); ++presses) press({code});
    EXPECT_TRUE(heard()) << order;
  }
  void answer(std::string text) { player_.answer(std::move(text)); }
  std::string heard() const { return flowing(heard_); }

 private:
  void keep(const Player::Events& events) {
    for (const std::string& event : events) {
      last_ = event.substr(event.rfind('\t') + 1);
      if (event.starts_with("voice") || event.starts_with("show")) heard_ += last_ + '\n';
    }
  }

  Player player_;
  std::string last_;
  std::string heard_;
};

std::string playbythemanual(std::uint32_t seed) {
  using namespace key;
  Newcomer player(seed);
  player.press({down, down, enter, escape});
  player.press({up, down, z, x, h, space, n, down, down, enter, n, up});
  player.answer("w");
  player.press({enter});
  player.pressuntil(down, "Kick Henchman Joe");
  player.press({enter, e});
  player.press({e}, modifier::shift);
  player.press({enter, d, space, right, right, up, m, i, n, b, left, enter, n, space});
  player.pressuntil(down, "Pin Henchman Albert");
  player.press({enter});
  player.press({e}, modifier::shift);
  player.press({enter, down});
  player.pressuntil(up, "Combo Biker Chick");
  player.press({enter});
  return player.heard();
}

TEST(Manual, QuotesWhatIsHeardInTheFirstTenMinutes) {
  const std::vector<std::string> quotes = quotesbetween("Section 2:", "From here on");
  ASSERT_GT(quotes.size(), 30u);
  for (std::uint32_t seed = 1; seed <= 20; ++seed) {
    const std::string heard = playbythemanual(seed);
    std::size_t at = 0;
    for (const std::string& quote : quotes) {
      // A quote may leave out the end of what was said.
      const std::size_t found = heard.find(quote.substr(0, quote.size() - 1), at);
      ASSERT_NE(found, std::string::npos) << quote << "\nwith seed " << seed << ", after\n"
                                          << heard.substr(0, at);
      at = found;
    }
  }
}

}  // namespace
}  // namespace duskmarch
