// Bitmaps saved as PNG: the file's structure, its pixels at every depth, and what is refused.
#include <gmock/gmock.h>

#include <filesystem>

#include "tests/support/pngpicture.h"
#include "vcl/graphics/png.h"
#include "vcl/vcl.h"

namespace vcl {
namespace {

using testing_support::FileBytes;
using testing_support::PngChunks;
using testing_support::TPicture;

std::string InTemp(const std::string& name) {
  return (std::filesystem::temp_directory_path() / name).string();
}

/// A red picture with a blue pixel at the top left and a lime one at the bottom right.
void Draw(TBitmap& bitmap, int width, int height) {
  bitmap.SetSize(width, height);
  bitmap.Canvas()->Brush()->SetColor(clRed);
  bitmap.Canvas()->FillRect(Rect(0, 0, width, height));
  bitmap.Canvas()->SetPixel(0, 0, clBlue);
  bitmap.Canvas()->SetPixel(width - 1, height - 1, clLime);
}

TEST(Png, KeepsThePixelsOfEveryDepthAndWidth) {
  const std::string fileName = InTemp("depths.png");
  for (const TPixelFormat format : {pfDevice, pf4bit, pf8bit, pf15bit, pf16bit, pf24bit, pf32bit}) {
    for (const int width : {2, 3, 5, 320}) {
      SCOPED_TRACE(testing::Message() << "format " << format << ", width " << width);
      TBitmap bitmap;
      bitmap.SetPixelFormat(format);
      Draw(bitmap, width, 7);
      SavePng(bitmap, fileName);
      const auto bytes = FileBytes(fileName);
      const std::string chunks = PngChunks(bytes);
      EXPECT_EQ(chunks.substr(0, 4), "IHDR");
      EXPECT_EQ(chunks.substr(chunks.size() - 9), "IDAT IEND");
      EXPECT_EQ(bytes[24], 8) << "bits a channel";
      EXPECT_EQ(bytes[25], 2) << "colour without transparency";
      const TPicture picture(fileName);
      ASSERT_EQ(picture.Width, width);
      ASSERT_EQ(picture.Height, 7);
      EXPECT_EQ(picture.At(0, 0), clBlue);
      EXPECT_EQ(picture.At(1, 0), clRed);
      EXPECT_EQ(picture.At(width - 1, 5), clRed);
      EXPECT_EQ(picture.At(width - 1, 6), clLime);
    }
  }
}

TEST(Png, SavesASinglePixelAndLeavesTheBitmapAlone) {
  TBitmap bitmap;
  bitmap.SetPixelFormat(pf8bit);
  Draw(bitmap, 1, 1);
  const std::string fileName = InTemp("one.png");
  SavePng(bitmap, fileName);
  EXPECT_EQ(TPicture(fileName).At(0, 0), clLime);
  TStringStream stream("before");
  stream.SetPosition(6);
  SavePng(bitmap, stream);
  const auto bytes = FileBytes(fileName);
  EXPECT_EQ(stream.DataString(), "before" + std::string(bytes.begin(), bytes.end()));
  EXPECT_EQ(bitmap.PixelFormat(), pf8bit);
  EXPECT_EQ(bitmap.Canvas()->Pixels(0, 0), clLime);
}

TEST(Png, RefusesWhatCannotBeSavedAndKeepsTheOldFile) {
  const std::string fileName = InTemp("kept.png");
  TBitmap bitmap;
  Draw(bitmap, 4, 4);
  SavePng(bitmap, fileName);
  const auto before = FileBytes(fileName);
  EXPECT_THROW(SavePng(TBitmap(), fileName), EInvalidGraphic);
  EXPECT_EQ(FileBytes(fileName), before);
  EXPECT_THROW(SavePng(bitmap, InTemp("no such folder/picture.png")), EFCreateError);
}

}  // namespace
}  // namespace vcl
