// Bitmaps: size and depth, files, form files.
#include <cstring>

#include "tests/support/texts.h"
#include "tests/vcl/graphics_pixels.h"
#include "vcl/rtl/win32.h"
#include "vcl/stdctrls/buttons.h"

namespace vcl::test {
namespace {

TEST(Bitmap, KeepsItsPixelsWhenTheSizeChangesAndFillsTheRestWithTheBrush) {
  TBitmap bitmap;
  EXPECT_TRUE(bitmap.Empty());
  EXPECT_GT(bitmap.Canvas()->TextWidth("width"), 10) << "an empty one measures texts";
  bitmap.SetWidth(2);
  EXPECT_TRUE(bitmap.Empty());
  bitmap.SetHeight(2);
  EXPECT_EQ(Letters(bitmap), (Rows{"..", ".."}));
  Paint(bitmap, {"RG", "BK"});
  bitmap.Canvas()->Brush()->SetColor(clYellow);
  bitmap.SetSize(3, 3);
  EXPECT_EQ(Letters(bitmap), (Rows{"RGY", "BKY", "YYY"}));
  int changes = 0;
  bitmap.OnChange = [&](TObject* sender) { changes += sender == &bitmap; };
  bitmap.SetSize(1, 2);
  EXPECT_EQ(Letters(bitmap), (Rows{"R", "B"}));
  EXPECT_EQ(changes, 1);
  bitmap.Canvas()->FillRect(Rect(0, 1, 1, 2));
  EXPECT_EQ(changes, 2);
  EXPECT_THROW(bitmap.SetWidth(-1), EInvalidGraphic);
  EXPECT_THROW(bitmap.SetSize(1 << 20, 1 << 20), EInvalidGraphic);
  EXPECT_EQ(Letters(bitmap), (Rows{"R", "Y"})) << "what is refused changes nothing";
  bitmap.SetHeight(0);
  EXPECT_TRUE(bitmap.Empty());
  EXPECT_EQ(bitmap.Width(), 1);
}

TEST(Bitmap, ConvertsBetweenDepthsToTheNearestColors) {
  const Rows picture = {"RGBKYF.", ".FYKBGR"};
  for (const TPixelFormat format : {pf4bit, pf8bit, pf15bit, pf16bit, pf24bit, pf32bit, pfDevice}) {
    TBitmap bitmap;
    Paint(bitmap, picture);
    bitmap.SetPixelFormat(format);
    EXPECT_EQ(bitmap.PixelFormat(), format);
    EXPECT_EQ(Letters(bitmap), picture) << format;
    bitmap.SetPixelFormat(pf24bit);
    EXPECT_EQ(Letters(bitmap), picture) << format;
  }
  TBitmap two;
  Paint(two, picture);
  two.SetPixelFormat(pf1bit);
  EXPECT_EQ(Letters(two), (Rows{"KKKK...", "...KKKK"}));
  EXPECT_THROW(two.SetPixelFormat(pfCustom), EInvalidGraphic);
}

TEST(Bitmap, RowsLieInMemoryFromTheTop) {
  TBitmap bitmap;
  bitmap.SetPixelFormat(pf24bit);
  Paint(bitmap, {"R.", "KB"});
  const auto* top = static_cast<const unsigned char*>(bitmap.ScanLine(0));
  const auto* bottom = static_cast<const unsigned char*>(bitmap.ScanLine(1));
  EXPECT_EQ(std::memcmp(top, "\x00\x00\xFF\xFF\xFF\xFF", 6), 0);
  EXPECT_EQ(std::memcmp(bottom, "\x00\x00\x00\xFF\x00\x00", 6), 0);
  EXPECT_THROW(bitmap.ScanLine(2), EInvalidOperation);
  EXPECT_THROW(bitmap.ScanLine(-1), EInvalidOperation);
}

TEST(Bitmap, TheColourThatIsNotDrawnFollowsACornerOrIsFixed) {
  TBitmap bitmap;
  Paint(bitmap, {"GB", "RG"});
  EXPECT_EQ(bitmap.TransparentColor(), clRed);
  bitmap.SetTransparentMode(tmFixed);
  bitmap.Canvas()->SetPixel(0, 1, clBlue);
  EXPECT_EQ(bitmap.TransparentColor(), clRed);
  bitmap.SetTransparentMode(tmAuto);
  EXPECT_EQ(bitmap.TransparentColor(), RGBToColor(0, 0, 255));
}

TEST(Bitmap, CopiesAreTheirOwnAndHandlesChangeHands) {
  TBitmap a;
  Paint(a, {"RG"});
  TBitmap b;
  b.Assign(&a);
  b.Canvas()->SetPixel(0, 0, clBlue);
  EXPECT_EQ(Letters(a), Rows{"RG"});
  EXPECT_EQ(Letters(b), Rows{"BG"});
  a.SetHandle(b.ReleaseHandle());
  EXPECT_TRUE(b.Empty());
  EXPECT_EQ(Letters(a), Rows{"BG"});

  const TWindowDC screen(nullptr);
  TOwnedBitmap device(::CreateCompatibleBitmap(screen.Get(), 2, 1));
  {
    const TMemoryDC dc;
    const TSelection selection(dc.Get(), device.Get());
    ::PatBlt(dc.Get(), 0, 0, 2, 1, WHITENESS);
    ::SetPixel(dc.Get(), 0, 0, 0x00FF00);
  }
  a.SetHandle(device.Release());
  EXPECT_EQ(Letters(a), Rows{"G."});
  a.Assign(nullptr);
  EXPECT_TRUE(a.Empty());
}

// ---- Files ----

std::string Number(std::int64_t value, int size) {
  std::string bytes;
  for (int i = 0; i < size; ++i) bytes += static_cast<char>(value >> 8 * i);
  return bytes;
}

std::string Bytes(std::initializer_list<int> values) {
  return std::string(values.begin(), values.end());
}
std::string Zeros(int count) { return std::string(static_cast<std::size_t>(count), '\0'); }
/// Each of the values in as many bytes.
std::string Numbers(int size, std::initializer_list<std::int64_t> values) {
  std::string bytes;
  for (const std::int64_t value : values) bytes += Number(value, size);
  return bytes;
}

/// Black, red, lime and blue, of three or four bytes each, filled up to `count`.
std::string Palette(int size, int count) {
  std::string bytes = Numbers(size, {0x000000, 0xFF0000, 0x00FF00, 0x0000FF});
  bytes.resize(static_cast<std::size_t>(size * count));
  return bytes;
}

/// The picture of most files below: its bottom row stands first in them. Then its pixels in 24
/// bits; in 16 and 32 with the values of red, lime and blue.
const Rows ThreeByTwo = {"RGB", "KRG"};
std::string Pixels24() {
  return Numbers(3, {0, 0xFF0000, 0x00FF00}) + Zeros(3) + Numbers(3, {0xFF0000, 0x00FF00, 0xFF}) +
         Zeros(3);
}
std::string Pixels16(int r, int g, int b) { return Numbers(2, {0, r, g, 0, r, g, b, 0}); }
std::string Pixels32(int r, int g, int b) { return Numbers(4, {0, r, g, r, g, b}); }

/// A BMP file in its parts, so that each can be spoilt.
struct BmpFile {
  std::string Magic = "BM";
  int HeaderSize = 40;
  std::int64_t Width = 3;
  std::int64_t Height = 2;
  int Planes = 1;
  int BitCount = 24;
  int Compression = 0;
  std::int64_t ImageSize = 0;
  std::int64_t Used = 0;
  std::string Behind = {};  ///< Masks behind, or inside, the header, and colours.
  std::string Bits = Pixels24();
  std::int64_t Offset = -1;

  std::string Bytes() const {
    const int size = HeaderSize == 12 ? 2 : 4;
    std::string header =
        Number(HeaderSize, 4) + Numbers(size, {Width, Height}) + Numbers(2, {Planes, BitCount});
    if (size == 4) header += Numbers(4, {Compression, ImageSize, 0, 0, Used, 0});
    header += Behind;
    const auto whole = static_cast<std::int64_t>(14 + header.size());
    return Magic + Numbers(4, {whole + std::ssize(Bits), 0, Offset < 0 ? whole : Offset}) + header +
           Bits;
  }
};

/// With masks for red, green and blue.
BmpFile Masked(int bitCount, int r, int g, int b, const std::string& bits) {
  return {.BitCount = bitCount, .Compression = 3, .Behind = Numbers(4, {r, g, b}), .Bits = bits};
}
/// 8 bits with four colours: as they are, or in runs with compression 1.
BmpFile Colors4(int compression, std::initializer_list<int> bits) {
  return {.BitCount = 8,
          .Compression = compression,
          .Used = 4,
          .Behind = Palette(4, 4),
          .Bits = Bytes(bits)};
}
/// 4 bits: as they are, or in runs with compression 2.
BmpFile Colors16(int compression, std::initializer_list<int> bits) {
  return {.BitCount = 4, .Compression = compression, .Behind = Palette(4, 16), .Bits = Bytes(bits)};
}

TBitmap& Loaded(TBitmap& bitmap, const std::string& file) {
  TStringStream stream(file);
  bitmap.LoadFromStream(stream);
  return bitmap;
}

struct GoodFile {
  const char* What;
  TPixelFormat Format;
  BmpFile File;
  Rows Picture = ThreeByTwo;
};

// clang-format off
const GoodFile GoodFiles[] = {
    {"24 bits", pf24bit, {}},
    {"1 bit", pf1bit,
     {.Width = 9, .BitCount = 1, .Behind = Palette(4, 2), .Bits = Bytes({0x80, 0, 0, 0, 1, 0x80, 0, 0})},
     {"KKKKKKKRR", "RKKKKKKKK"}},
    {"4 bits", pf4bit, Colors16(0, {0x01, 0x20, 0, 0, 0x12, 0x30, 0, 0})},
    {"8 bits with few colours", pf8bit, Colors4(0, {0, 1, 2, 0, 1, 2, 3, 0})},
    {"the first header, 8 bits", pf8bit,
     {.HeaderSize = 12, .BitCount = 8, .Behind = Palette(3, 256), .Bits = Bytes({0, 1, 2, 0, 1, 2, 3, 0})}},
    {"the first header, 24 bits", pf24bit, {.HeaderSize = 12}},
    {"16 bits", pf15bit, {.BitCount = 16, .Bits = Pixels16(0x7C00, 0x03E0, 0x001F)}},
    {"16 bits, 6 of green", pf16bit,
     Masked(16, 0xF800, 0x07E0, 0x1F, Pixels16(0xF800, 0x07E0, 0x1F))},
    {"16 bits, 4 a channel", pf32bit, Masked(16, 0x0F, 0xF0, 0xF00, Pixels16(0x0F, 0xF0, 0xF00))},
    {"24 bits with a table of colours", pf24bit, {.Used = 4, .Behind = Palette(4, 4)}},
    {"32 bits", pf32bit, {.BitCount = 32, .Bits = Pixels32(0xFF0000, 0x00FF00, 0x0000FF)}},
    {"32 bits, red first, version 4", pf32bit,
     {.HeaderSize = 108, .BitCount = 32, .Compression = 3,
      .Behind = Numbers(4, {0xFF, 0xFF00, 0xFF0000}) + Zeros(56), .Bits = Pixels32(0xFF, 0xFF00, 0xFF0000)}},
    {"version 5", pf24bit, {.HeaderSize = 124, .Behind = Zeros(84)}},
    {"top row first", pf24bit, {.Height = -2}, {"KRG", "RGB"}},
    {"a gap before the pixels", pf24bit, {.Bits = Zeros(10) + Pixels24(), .Offset = 64}},
    {"runs of 8 bits", pf8bit, Colors4(1, {1, 0, 1, 1, 1, 2, 0, 0, 0, 3, 1, 2, 3, 0, 0, 1})},
    {"runs of 4 bits", pf4bit, Colors16(2, {0, 3, 0x01, 0x20, 0, 0, 3, 0x12, 0, 1}), {"RGR", "KRG"}},
    {"runs that skip", pf8bit, Colors4(1, {0, 2, 1, 1, 2, 3, 0, 1}), {"KBB", "KKK"}},
};
// clang-format on

TEST(BitmapFile, ReadsEverySortAndWritesItBackPixelForPixel) {
  for (const GoodFile& good : GoodFiles) {
    SCOPED_TRACE(good.What);
    TBitmap bitmap;
    ASSERT_NO_THROW(Loaded(bitmap, good.File.Bytes()));
    EXPECT_EQ(bitmap.PixelFormat(), good.Format);
    EXPECT_EQ(Letters(bitmap), good.Picture);

    TStringStream written;
    bitmap.SaveToStream(written);
    TBitmap again;
    Loaded(again, written.DataString());
    EXPECT_EQ(again.PixelFormat(), good.Format);
    EXPECT_EQ(Letters(again), good.Picture);
    TStringStream twice;
    again.SaveToStream(twice);
    EXPECT_EQ(twice.DataString(), written.DataString());
  }
}

TEST(BitmapFile, LeavesTheStreamBehindThePixels) {
  TStringStream stream("in front" + GoodFiles[0].File.Bytes() + "behind");
  stream.SetPosition(8);
  TBitmap bitmap;
  bitmap.LoadFromStream(stream);
  EXPECT_EQ(Letters(bitmap), ThreeByTwo);
  EXPECT_EQ(stream.ReadRest(), "behind");
}

TEST(BitmapFile, SystemReadsWhatIsWritten) {
  for (const TPixelFormat format : {pf1bit, pf4bit, pf8bit, pf15bit, pf16bit, pf24bit, pf32bit}) {
    TBitmap bitmap;
    Paint(bitmap, {"K.K.K", "..KK."});
    bitmap.SetPixelFormat(format);
    const std::string name = "graphics_bitmap_test.bmp";
    bitmap.SaveToFile(name);
    TBitmap bySystem;
    bySystem.SetHandle(static_cast<HBITMAP>(::LoadImageA(nullptr, name.c_str(), IMAGE_BITMAP, 0, 0,
                                                         LR_LOADFROMFILE | LR_CREATEDIBSECTION)));
    EXPECT_EQ(Letters(bySystem), (Rows{"K.K.K", "..KK."})) << format;
    TBitmap again;
    again.LoadFromFile(name);
    EXPECT_EQ(again.PixelFormat(), format);
    ::DeleteFileA(name.c_str());
  }
  TBitmap none;
  EXPECT_THROW(none.LoadFromFile("no such file.bmp"), EFOpenError);
}

struct BadFile {
  const char* Says;  ///< Part of the message.
  BmpFile File;
};

// clang-format off
const BadFile BadFiles[] = {
    {"\"BM\"", {.Magic = "PK"}},
    {"41 bytes", {.HeaderSize = 41}},
    {"2 planes", {.Planes = 2}},
    {"23 bits", {.BitCount = 23}},
    {"compression 4", {.Compression = 4}},
    {"compression 1", {.Compression = 1}},
    {"0 by 2", {.Width = 0}},
    {"3 by 0", {.Height = 0}},
    {"-3 by 2", {.Width = -3}},
    {"2147483648", {.Width = 1, .Height = -2147483648LL}},
    {"1073741825", {.Width = 0x40000001, .Height = 4, .BitCount = 32}},
    {"65536 by 65536", {.Width = 65536, .Height = 65536, .BitCount = 1, .Behind = Palette(4, 2), .Bits = {}}},
    {"pixels takes 24 bytes, of which 23", {.Bits = Pixels24().substr(0, 23)}},
    {"257 colours", {.BitCount = 8, .Used = 257, .Behind = Palette(4, 257), .Bits = Zeros(8)}},
    {"table of colours takes 1024", {.BitCount = 8, .Behind = Palette(4, 4), .Bits = {}}},
    {"at 20, inside", {.Offset = 20}},
    {"cut off before its pixels", {.Offset = 5000}},
    {"a mask for a colour that is none", Masked(16, 0x7D00, 0x3E0, 0x1F, Zeros(16))},
    {"a mask for a colour that is none", Masked(16, 0xFF0000, 0x3E0, 0x1F, Zeros(16))},
    {"top row first",
     {.Height = -2, .BitCount = 8, .Compression = 1, .Behind = Palette(4, 256), .Bits = Bytes({0, 1})}},
    {"run-length codes end in row 0", Colors4(1, {3, 1})},
    {"lead to column 3, row 0", Colors4(1, {255, 1, 0, 1})},
    {"lead to column 0, row 2", Colors16(2, {0, 0, 0, 0, 1, 1, 0, 1})},
    {"lead to column 200, row 0", Colors4(1, {0, 2, 200, 0, 0, 1})},
    {"pixels takes 4000000000",
     {.BitCount = 8, .Compression = 1, .ImageSize = 4000000000LL, .Used = 4, .Behind = Palette(4, 4),
      .Bits = Bytes({0, 1})}},
};
// clang-format on

TEST(BitmapFile, RefusesDamagedOnesAndKeepsTheOldPicture) {
  for (const BadFile& bad : BadFiles) {
    SCOPED_TRACE(bad.Says);
    TBitmap bitmap;
    Paint(bitmap, {"RG"});
    EXPECT_THAT([&] { Loaded(bitmap, bad.File.Bytes()); },
                testing::ThrowsMessage<EInvalidGraphic>(testing::HasSubstr(bad.Says)));
    EXPECT_EQ(Letters(bitmap), Rows{"RG"});
  }
}

TEST(BitmapFile, RefusesEveryTruncation) {
  for (const GoodFile& good : GoodFiles) {
    const std::string whole = good.File.Bytes();
    TBitmap bitmap;
    for (std::size_t size = 0; size + 2 < whole.size(); ++size) {
      ASSERT_THROW(Loaded(bitmap, whole.substr(0, size)), EInvalidGraphic)
          << good.What << ", " << size;
    }
    EXPECT_TRUE(bitmap.Empty());
  }
}

// ---- Form files ----

std::string FormFile(TComponent& component) {
  TStringStream stream;
  WriteComponentBinary(stream, &component);
  return stream.DataString();
}

TEST(BitmapInFormFile, IsItsLengthAndItsFileOrNothing) {
  TBitBtn component(nullptr);
  EXPECT_EQ(FormFile(component).find("Glyph"), std::string::npos);
  Loaded(*component.Glyph(), GoodFiles[3].File.Bytes());
  TStringStream bmp;
  component.Glyph()->SaveToStream(bmp);
  const std::string form = FormFile(component);
  const std::string data = Number(bmp.Size() + 4, 4) + Number(bmp.Size(), 4) + bmp.DataString();
  EXPECT_NE(form.find("Glyph.Data\x0A" + data), std::string::npos);
  TBitBtn read(nullptr);
  ReadForm(form, &read);
  EXPECT_EQ(read.Glyph()->PixelFormat(), GoodFiles[3].Format);
  EXPECT_EQ(Letters(*read.Glyph()), GoodFiles[3].Picture);

  // A length that does not fit what follows.
  std::string spoilt = form;
  const std::size_t at = form.find("Glyph.Data") + 11 + 4;
  spoilt[at] = static_cast<char>(spoilt[at] + 1);
  TBitBtn kept(nullptr);
  EXPECT_ANY_THROW(ReadForm(spoilt, &kept));
}

}  // namespace
}  // namespace vcl::test
