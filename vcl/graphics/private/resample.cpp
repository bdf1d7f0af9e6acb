// Resampling by a cubic filter, along the rows and then along the columns.
#include "vcl/graphics/private/resample.h"

#include <algorithm>
#include <cmath>

namespace vcl {
namespace {

/// How much of which pixels, from the first on, makes one of the new ones.
struct TMix {
  int First;
  std::vector<float> Parts;
};

/// The cubic that goes through the pixels (Catmull and Rom's).
double Cubic(double x) {
  x = std::abs(x);
  if (x < 1) return (1.5 * x - 2.5) * x * x + 1;
  return x < 2 ? ((-0.5 * x + 2.5) * x - 4) * x + 2 : 0;
}

TMix MixFor(int place, int from, int to) {
  const double ratio = double(from) / to;
  const double spread = std::max(ratio, 1.0);
  const double middle = (place + 0.5) * ratio - 0.5;
  const int first = std::max(0, static_cast<int>(std::ceil(middle - 2 * spread)));
  const int last = std::min(from - 1, static_cast<int>(std::floor(middle + 2 * spread)));
  TMix mix{first, {}};
  double sum = 0;
  for (int i = first; i <= last; ++i) {
    mix.Parts.push_back(static_cast<float>(Cubic((i - middle) / spread)));
    sum += mix.Parts.back();
  }
  for (float& part : mix.Parts) part = static_cast<float>(part / sum);
  return mix;
}

std::vector<TMix> MixesFor(int from, int to) {
  std::vector<TMix> mixes;
  for (int i = 0; i < to; ++i) mixes.push_back(MixFor(i, from, to));
  return mixes;
}

TAlphaPicture WithWidth(const TAlphaPicture& picture, int width) {
  TAlphaPicture wide(width, picture.Height);
  const std::vector<TMix> mixes = MixesFor(picture.Width, width);
  for (int y = 0; y < picture.Height; ++y) {
    for (int x = 0; x < width; ++x) {
      const TMix& mix = mixes[static_cast<std::size_t>(x)];
      const float* from = picture.Pixel(mix.First, y);
      float* to = wide.Pixel(x, y);
      for (const float part : mix.Parts) {
        for (int i = 0; i < 4; ++i) to[i] += part * *from++;
      }
    }
  }
  return wide;
}

TAlphaPicture Turned(const TAlphaPicture& picture) {
  TAlphaPicture turned(picture.Height, picture.Width);
  for (int y = 0; y < picture.Height; ++y) {
    for (int x = 0; x < picture.Width; ++x) {
      std::copy_n(picture.Pixel(x, y), 4, turned.Pixel(y, x));
    }
  }
  return turned;
}

}  // namespace

TAlphaPicture Resampled(const TAlphaPicture& picture, int width, int height) {
  TAlphaPicture result = Turned(WithWidth(Turned(WithWidth(picture, width)), height));
  for (std::size_t i = 0; i < result.Channels.size(); i += 4) {
    // The cubic swings a little beyond what is there.
    float& alpha = result.Channels[i + 3];
    alpha = std::clamp(alpha, 0.0F, 255.0F);
    for (std::size_t color = i; color < i + 3; ++color) {
      result.Channels[color] = std::clamp(result.Channels[color], 0.0F, alpha);
    }
  }
  return result;
}

}  // namespace vcl
