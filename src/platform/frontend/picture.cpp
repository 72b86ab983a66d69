#include "platform/frontend/picture.h"

#include <algorithm>
#include <cmath>

namespace duskmarch {

namespace {

constexpr int smallestletters = 9;  // pixels
constexpr Colour black{0, 0, 0};

int devicepixels(double pixels, double ratio) {
  return static_cast<int>(std::lround(pixels * ratio));
}

// All of `pixels`, in units of the map.
int units(int pixels, double scale) {
  return static_cast<int>(std::ceil(pixels / scale));
}

}  // namespace

void Picture::fit(int width, int height, double ratio) {
  width_ = width;
  height_ = height;
  ratio_ = ratio;
}

double Picture::mapscale() const {
  const double across = static_cast<double>(width_) / right_;
  const double down = static_cast<double>(std::max(height_ - mapstop, 1)) / (bottom_ - mapstop);
  return ratio_ * std::min(across, down);
}

Canvas* Picture::spokenline() {
  if (empty()) return nullptr;
  spokenline_.begin(width_, height_);
  return &spokenline_;
}

Canvas* Picture::map(int right, int bottom) {
  right_ = right;
  bottom_ = bottom;
  if (empty()) return nullptr;
  const double scale = mapscale() / ratio_;
  map_.begin(units(width_, scale), mapstop + units(std::max(height_ - mapstop, 0), scale));
  return &map_;
}

void Picture::paint(Painter& painter) const {
  painter.fill({0, 0, devicepixels(width_, ratio_), devicepixels(height_, ratio_)}, black);
  if (empty()) return;
  map_.paint({.scale = mapscale(),
              .topunit = mapstop,
              .top = devicepixels(mapstop, ratio_),
              .smallest = devicepixels(smallestletters, ratio_)},
             painter);
  spokenline_.paint({.scale = ratio_}, painter);
}

}  // namespace duskmarch
