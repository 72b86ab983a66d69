#include "platform/frontend/lettering.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "values/utf8.h"

namespace duskmarch {

namespace {

constexpr std::string_view ellipsis = "\u2026";
// Lines nearer to each other than this part of their letters' height run into each other.
constexpr double nearest = 0.75;

double naturalheight(const Text& text) {
  return text.points * 96 / 72.0;
}

bool limited(const Text& text) {
  return text.within.right > text.within.left;
}

bool sidebyside(const Text& one, const Text& other) {
  return limited(one) && limited(other) &&
         (one.within.right <= other.within.left || other.within.right <= one.within.left);
}

}  // namespace

std::string cut(std::string_view words, int room, Lettering letters, Painter& painter) {
  if (painter.width(letters, words) <= room) return std::string(words);
  std::string shown;
  for (std::size_t kept = 0;; ++kept) {
    std::string longer = std::string(codepointrange(words, 0, kept)) + std::string(ellipsis);
    if (painter.width(letters, longer) > room || kept >= codepoints(words)) return shown;
    shown = std::move(longer);
  }
}

int TextPainter::pixels(const Text& text) const {
  return std::max(view_.smallest, static_cast<int>(std::lround(naturalheight(text) * view_.scale)));
}

int TextPainter::topof(const Text& text) const {
  const int top = view_.y(text.y);
  if (!limited(text)) return top;
  const int lowest = view_.y(text.within.bottom) - pixels(text);
  return std::min(top, std::max(view_.y(text.within.top), lowest));
}

bool TextPainter::crowded(const Placed& candidate) const {
  const auto runsinto = [&](const Placed& other) {
    if (sidebyside(candidate.text, other.text)) return false;
    if (std::abs(candidate.top - other.top) >= nearest * pixels(candidate.text)) return false;
    return std::abs(candidate.text.y - other.text.y) >= nearest * naturalheight(candidate.text);
  };
  return std::ranges::any_of(placed_, runsinto);
}

const TextPainter::Placed* TextPainter::sameplace(const Text& text) const {
  const auto found = std::ranges::find_if(placed_, [&](const Placed& other) {
    return other.text.x == text.x && other.text.y == text.y;
  });
  return found == placed_.end() ? nullptr : &*found;
}

std::string TextPainter::fitted(const Text& text, std::string_view words) const {
  if (!limited(text)) return std::string(words);
  const int room = view_.x(text.within.right) - view_.x(text.within.left);
  return cut(words, room, {text.font, pixels(text)}, painter_);
}

// A beginning in another colour has to cover what is there, ellipsis included.
std::string TextPainter::recoloured(const Placed& below, std::string_view words) const {
  if (below.shown.starts_with(words)) return std::string(words);
  return below.words.starts_with(words) ? below.shown : fitted(below.text, words);
}

void TextPainter::paint(const Text& text, std::string_view words) {
  const Lettering letters = {text.font, pixels(text)};
  Placed placed = {.text = text, .words = words, .shown = {}, .top = topof(text)};
  const Placed* below = sameplace(text);
  if (below == nullptr && crowded(placed)) return;
  placed.shown = below != nullptr ? recoloured(*below, words) : fitted(text, words);
  int x = view_.x(text.x);
  if (limited(text)) {
    const int most = view_.x(text.within.right) - painter_.width(letters, placed.shown);
    x = std::min(x, std::max(view_.x(text.within.left), most));
  }
  painter_.text(x, placed.top, letters, text.colour, placed.shown);
  placed_.push_back(std::move(placed));
}

}  // namespace duskmarch
