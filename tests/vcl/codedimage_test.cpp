// Pictures of the formats PNG, JPEG and GIF: their pixels, files and form files, and what is
// refused.
#include <gmock/gmock.h>

#include <filesystem>

#include "tests/support/program.h"
#include "tests/support/texts.h"
#include "vcl/forms/standardclasses.h"
#include "vcl/vcl.h"

namespace vcl {
namespace {

/// A red pixel and one of green that covers half.
const std::vector<unsigned char> Png = {
    0x89, 0x50, 0x4E, 0x47, 0x0D, 0x0A, 0x1A, 0x0A, 0x00, 0x00, 0x00, 0x0D, 0x49, 0x48, 0x44,
    0x52, 0x00, 0x00, 0x00, 0x02, 0x00, 0x00, 0x00, 0x01, 0x08, 0x06, 0x00, 0x00, 0x00, 0xF4,
    0x22, 0x7F, 0x8A, 0x00, 0x00, 0x00, 0x0F, 0x49, 0x44, 0x41, 0x54, 0x78, 0xDA, 0x63, 0xF8,
    0xCF, 0xC0, 0xF0, 0x1F, 0x08, 0x1B, 0x00, 0x10, 0x79, 0x03, 0x7E, 0xC4, 0x18, 0x72, 0x90,
    0x00, 0x00, 0x00, 0x00, 0x49, 0x45, 0x4E, 0x44, 0xAE, 0x42, 0x60, 0x82};

/// A red pixel and one that covers nothing.
const std::vector<unsigned char> Gif = {
    0x47, 0x49, 0x46, 0x38, 0x39, 0x61, 0x02, 0x00, 0x01, 0x00, 0x80, 0x00, 0x00, 0xFF, 0x00,
    0x00, 0x00, 0x00, 0xFF, 0x21, 0xF9, 0x04, 0x01, 0x00, 0x00, 0x01, 0x00, 0x2C, 0x00, 0x00,
    0x00, 0x00, 0x02, 0x00, 0x01, 0x00, 0x00, 0x02, 0x02, 0x44, 0x0A, 0x00, 0x3B};

/// Says that it has 10,000 by 10,000 pixels.
const std::vector<unsigned char> HugePng = {
    0x89, 0x50, 0x4E, 0x47, 0x0D, 0x0A, 0x1A, 0x0A, 0x00, 0x00, 0x00, 0x0D, 0x49, 0x48,
    0x44, 0x52, 0x00, 0x00, 0x27, 0x10, 0x00, 0x00, 0x27, 0x10, 0x08, 0x06, 0x00, 0x00,
    0x00, 0xBA, 0x4E, 0x62, 0x27, 0x00, 0x00, 0x00, 0x0C, 0x49, 0x44, 0x41, 0x54, 0x78,
    0xDA, 0x63, 0x60, 0x20, 0x15, 0x00, 0x00, 0x00, 0x32, 0x00, 0x01, 0x7F, 0xC1, 0x4F,
    0xBA, 0x00, 0x00, 0x00, 0x00, 0x49, 0x45, 0x4E, 0x44, 0xAE, 0x42, 0x60, 0x82};

template <class T>
std::unique_ptr<T> Read(const std::vector<unsigned char>& data) {
  TMemoryStream stream;
  stream.WriteBuffer(data.data(), static_cast<std::int64_t>(data.size()));
  stream.SetPosition(0);
  auto image = std::make_unique<T>();
  image->LoadFromStream(stream);
  return image;
}

/// The first two pixels as they look on blue.
std::pair<TColor, TColor> OnBlue(TGraphic& graphic) {
  TBitmap bitmap(4, 1);
  bitmap.SetPixelFormat(pf24bit);
  bitmap.Canvas()->Brush()->SetColor(clBlue);
  bitmap.Canvas()->FillRect(TRect(0, 0, 4, 1));
  graphic.Draw(bitmap.Canvas(), TRect(0, 0, graphic.Width(), graphic.Height()));
  return {bitmap.Canvas()->Pixels(0, 0), bitmap.Canvas()->Pixels(1, 0)};
}

TEST(CodedImage, IsDrawnWithWhatItCoversInPart) {
  const auto png = Read<TPngImage>(Png);
  EXPECT_EQ(png->Width(), 2);
  EXPECT_EQ(png->Height(), 1);
  EXPECT_TRUE(png->HasAlpha());
  const auto [red, mixed] = OnBlue(*png);
  EXPECT_EQ(red, clRed);
  EXPECT_NEAR((mixed >> 8) & 0xFF, 128, 1);
  EXPECT_NEAR((mixed >> 16) & 0xFF, 127, 1);
  const auto gif = Read<TGifImage>(Gif);
  EXPECT_EQ(OnBlue(*gif), (std::pair<TColor, TColor>(clRed, clBlue)));
  TBitmap bitmap;
  bitmap.Assign(gif.get());
  EXPECT_EQ(bitmap.Canvas()->Pixels(1, 0), clWhite) << "a bitmap has it on white";
}

TEST(CodedImage, IsMadeOfABitmapAndOfAnotherFormat) {
  TBitmap bitmap(40, 30);
  bitmap.Canvas()->Brush()->SetColor(static_cast<TColor>(0x2060C0));
  bitmap.Canvas()->FillRect(TRect(0, 0, 40, 30));
  TJpegImage jpeg;
  jpeg.Assign(&bitmap);
  EXPECT_EQ(jpeg.Width(), 40);
  EXPECT_FALSE(jpeg.HasAlpha());
  TBitmap again;
  again.Assign(&jpeg);
  const auto color = static_cast<unsigned>(again.Canvas()->Pixels(20, 15));
  EXPECT_NEAR(color & 0xFF, 0xC0, 3);
  EXPECT_NEAR((color >> 8) & 0xFF, 0x60, 3);
  EXPECT_NEAR((color >> 16) & 0xFF, 0x20, 3);
  TPngImage png;
  png.Assign(&jpeg);
  EXPECT_EQ(png.Pixels().Width(), 40);
  png.Assign(nullptr);
  EXPECT_TRUE(png.Empty());
  EXPECT_EQ(png.Width(), 0);
}

TEST(CodedImage, RefusesWhatItCannotShowAndStaysAsItWas) {
  const auto png = Read<TPngImage>(Png);
  std::vector<unsigned char> cut(Png.begin(), Png.begin() + 30);
  std::vector<unsigned char> damaged = Png;
  damaged[18] ^= 0xFF;
  for (const auto& refused : {HugePng, Gif, cut, damaged, std::vector<unsigned char>()}) {
    TMemoryStream stream;
    stream.WriteBuffer(refused.data(), static_cast<std::int64_t>(refused.size()));
    stream.SetPosition(0);
    EXPECT_THROW(png->LoadFromStream(stream), EInvalidGraphic) << refused.size();
    EXPECT_EQ(png->Width(), 2);
  }
  try {
    Read<TPngImage>(HugePng);
  } catch (const EInvalidGraphic& error) {
    EXPECT_THAT(error.what(), testing::HasSubstr("10000 by 10000"));
  }
}

TEST(CodedImage, IsKeptByFilesAndFormFilesAsItIs) {
  const testing_support::TFolder folder;
  const std::string name = (folder.Path / "picture.GIF").string();
  Read<TGifImage>(Gif)->SaveToFile(name);
  EXPECT_EQ(std::filesystem::file_size(name), Gif.size());
  RegisterStandardClasses();
  TImage image(nullptr);
  image.SetName("Image");
  image.Picture()->LoadFromFile(name);
  ASSERT_EQ(image.Picture()->Graphic()->ClassName(), "TGifImage");
  TImage read(nullptr);
  ReadForm(FormText(&image), &read);
  EXPECT_EQ(OnBlue(*read.Picture()->Graphic()).second, clBlue);
  TPicture copy;
  copy.Assign(read.Picture());
  TMemoryStream written;
  copy.Graphic()->SaveToStream(written);
  EXPECT_EQ(written.Size(), static_cast<std::int64_t>(Gif.size()));
}

}  // namespace
}  // namespace vcl
