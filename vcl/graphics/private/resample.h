// Pictures at another size, with soft edges kept soft.
#pragma once

#include <vector>

namespace vcl {

/// A picture with an alpha channel: for each pixel blue, green, red and alpha from 0 to 255, row by
/// row from the top. The colours are multiplied by the alpha channel already, so that what is
/// see-through gives no colour to its neighbours.
struct TAlphaPicture {
  TAlphaPicture(int width, int height)
      : Width(width), Height(height), Channels(std::size_t{4} * width * height) {}
  float* Pixel(int x, int y) { return &Channels[(std::size_t{4} * y * Width) + 4 * x]; }
  const float* Pixel(int x, int y) const { return &Channels[(std::size_t{4} * y * Width) + 4 * x]; }

  int Width;
  int Height;
  std::vector<float> Channels;
};

/// The picture at the size, by a cubic filter that takes in more pixels where it shrinks.
TAlphaPicture Resampled(const TAlphaPicture& picture, int width, int height);

}  // namespace vcl
