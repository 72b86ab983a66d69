// Where the texts of a drawing go on the screen, and how much of each is seen.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "platform/desktop.h"
#include "platform/frontend/painter.h"

namespace duskmarch {

// `words`, or as much of them as fits into `room` device pixels, with an ellipsis; nothing where
// not even that does.
std::string cut(std::string_view words, int room, Lettering letters, Painter& painter);

// Letters grow smaller with a drawing only down to a size that can be read, so in a small window
// texts need more room than they were given. One that would come to lie over another for that
// reason is left out; those that lie over each other at any size stay.
class TextPainter {
 public:
  TextPainter(const View& view, Painter& painter) : view_(view), painter_(painter) {}

  void paint(const Text& text, std::string_view words);

 private:
  struct Placed {
    Text text;
    std::string_view words;
    std::string shown;
    int top = 0;  // device pixel
  };

  int pixels(const Text& text) const;
  int topof(const Text& text) const;
  bool crowded(const Placed& candidate) const;
  const Placed* sameplace(const Text& text) const;
  std::string fitted(const Text& text, std::string_view words) const;
  std::string recoloured(const Placed& below, std::string_view words) const;

  View view_;
  Painter& painter_;
  std::vector<Placed> placed_;
};

}  // namespace duskmarch
