#pragma once

namespace klarvik {

/// An opaque colour in sRGB. Each part runs from 0 to 1.
struct RgbColor {
  double red = 0;
  double green = 0;
  double blue = 0;

  bool operator==(const RgbColor&) const = default;
};

}  // namespace klarvik
