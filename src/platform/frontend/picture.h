// All that onlookers see in a window: the map, and over it the spoken line.
#pragma once

#include "platform/desktop.h"
#include "platform/frontend/drawing.h"

namespace duskmarch {

class Picture {
 public:
  // The window's inner area is so many pixels now, each `ratio` device pixels both ways. What was
  // drawn for another size has to be drawn anew.
  void fit(int width, int height, double ratio);
  // The surfaces of class Window in desktop.h.
  Canvas* spokenline();
  Canvas* map(int right, int bottom);
  // Paints the whole of the window's inner area.
  void paint(Painter& painter) const;

 private:
  bool empty() const { return width_ <= 0 || height_ <= 0; }
  // Device pixels of a unit of the map, so that `right_` and `bottom_` are just seen.
  double mapscale() const;

  int width_ = 0;
  int height_ = 0;
  double ratio_ = 1;
  int right_ = 1;
  int bottom_ = mapstop + 1;
  Drawing map_;
  Drawing spokenline_;
};

}  // namespace duskmarch
