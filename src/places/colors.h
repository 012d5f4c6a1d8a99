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

/// The colours of the kinds of things in the charts of Storage and System Data.
namespace klarvik::storage_palette {

inline constexpr RgbColor teal{0.098, 0.62, 0.439};
inline constexpr RgbColor violet{0.565, 0.522, 0.914};
inline constexpr RgbColor orange{0.851, 0.349, 0.149};
inline constexpr RgbColor blue{0.224, 0.529, 0.898};
inline constexpr RgbColor amber{0.788, 0.522, 0.0};
inline constexpr RgbColor coral{0.902, 0.404, 0.404};
inline constexpr RgbColor pink{0.835, 0.318, 0.506};
inline constexpr RgbColor green{0.0, 0.514, 0.0};
/// Many small kinds share it.
inline constexpr RgbColor lightGray{0.443, 0.443, 0.463};
/// What the system keeps for itself.
inline constexpr RgbColor darkGray{0.298, 0.298, 0.318};

constexpr RgbColor white(double level) {
  return {level, level, level};
}

}  // namespace klarvik::storage_palette
