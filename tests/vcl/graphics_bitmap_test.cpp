// Bitmaps: size and depth, files, form files.
#include <cstring>
#include <functional>

#include "host/rtl/component.h"
#include "host/rtl/exceptions.h"
#include "host/rtl/properties.h"
#include "host/rtl/reader.h"
#include "host/rtl/streams.h"
#include "host/rtl/writer.h"
#include "tests/vcl/graphics_pixels.h"

namespace vcl::test {
namespace {

TEST(Bitmap, KeepsItsPixelsWhenTheSizeChangesAndFillsTheRestWithTheBrush) {
  TBitmap bitmap;
  EXPECT_TRUE(bitmap.Empty());
  bitmap.SetWidth(2);
  EXPECT_TRUE(bitmap.Empty());
  bitmap.SetHeight(2);
  EXPECT_EQ(Letters(bitmap), (Rows{"..", ".."}));
  Paint(bitmap, {"RG", "BK"});
  bitmap.Canvas()->Brush()->SetColor(clYellow);
  bitmap.SetSize(3, 3);
  EXPECT_EQ(Letters(bitmap), (Rows{"RGY", "BKY", "YYY"}));
  bitmap.SetSize(1, 2);
  EXPECT_EQ(Letters(bitmap), (Rows{"R", "B"}));
  EXPECT_THROW(bitmap.SetWidth(-1), EInvalidGraphic);
  EXPECT_THROW(bitmap.SetSize(1 << 20, 1 << 20), EInvalidGraphic);
  EXPECT_EQ(Letters(bitmap), (Rows{"R", "B"})) << "what is refused changes nothing";
  bitmap.SetHeight(0);
  EXPECT_TRUE(bitmap.Empty());
  EXPECT_EQ(bitmap.Width(), 1);
}

TEST(Bitmap, TellsWhenItIsDrawnOn) {
  TBitmap bitmap(2, 2);
  int changes = 0;
  bitmap.OnChange = [&](TObject* sender) { changes += sender == &bitmap; };
  bitmap.Canvas()->FillRect(Rect(0, 0, 1, 1));
  EXPECT_EQ(changes, 1);
  bitmap.Canvas()->Pixels(0, 0);
  EXPECT_EQ(changes, 1);
  bitmap.SetSize(3, 3);
  EXPECT_EQ(changes, 2);
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

TEST(Bitmap, AnEmptyOneMeasuresTexts) {
  TBitmap bitmap;
  EXPECT_GT(bitmap.Canvas()->TextWidth("width"), 10);
}

// ---- Files ----

std::string Number(std::int64_t value, int size) {
  std::string bytes;
  for (int i = 0; i < size; ++i)
    bytes += static_cast<char>(value >> 8 * i);
  return bytes;
}

/// A BMP file in its parts, so that each can be spoilt.
struct BmpFile {
  std::string Magic = "BM";
  int HeaderSize = 40;
  std::int64_t Width = 0;
  std::int64_t Height = 0;
  int Planes = 1;
  int BitCount = 24;
  int Compression = 0;
  std::int64_t ImageSize = 0;
  std::int64_t Used = 0;
  std::string Behind = {};  ///< Masks behind, or inside, the header, and colours.
  std::string Bits = {};
  std::int64_t Offset = -1;

  std::string Bytes() const {
    std::string header = Number(HeaderSize, 4);
    if (HeaderSize == 12) {
      header += Number(Width, 2) + Number(Height, 2) + Number(Planes, 2) + Number(BitCount, 2);
    } else {
      header += Number(Width, 4) + Number(Height, 4) + Number(Planes, 2) + Number(BitCount, 2) +
                Number(Compression, 4) + Number(ImageSize, 4) + Number(0, 8) + Number(Used, 4) +
                Number(0, 4);
    }
    header += Behind;
    const auto offset = Offset < 0 ? static_cast<std::int64_t>(14 + header.size()) : Offset;
    return Magic + Number(static_cast<std::int64_t>(14 + header.size() + Bits.size()), 4) +
           Number(0, 4) + Number(offset, 4) + header + Bits;
  }
};

std::string Bytes(std::initializer_list<int> values) {
  std::string bytes;
  for (const int value : values)
    bytes += static_cast<char>(value);
  return bytes;
}

/// Black, red, lime and blue, of three or four bytes each, filled up to `count`.
std::string Palette(int size, int count) {
  std::string bytes;
  for (const int color : {0x000000, 0xFF0000, 0x00FF00, 0x0000FF})
    bytes += Number(color, size);
  bytes.resize(static_cast<std::size_t>(size * count));
  return bytes;
}

/// The picture of most files below: its bottom row stands first in them.
const Rows ThreeByTwo = {"RGB", "KRG"};

std::string Pixels24() {
  return Bytes({0, 0, 0, 0, 0, 255, 0, 255, 0, 0, 0, 0}) +
         Bytes({0, 0, 255, 0, 255, 0, 255, 0, 0, 0, 0, 0});
}
std::string Pixels32() {
  std::string bytes;
  for (const int pixel : {0x000000, 0xFF0000, 0x00FF00, 0xFF0000, 0x00FF00, 0x0000FF}) {
    bytes += Number(pixel, 4);
  }
  return bytes;
}

TBitmap& Loaded(TBitmap& bitmap, const std::string& file) {
  TStringStream stream(file);
  bitmap.LoadFromStream(stream);
  return bitmap;
}

struct GoodFile {
  const char* What;
  BmpFile File;
  TPixelFormat Format;
  Rows Picture = ThreeByTwo;
};

std::string Zeros(int count) { return std::string(static_cast<std::size_t>(count), '\0'); }

const GoodFile GoodFiles[] = {
    {"1 bit",
     {.Width = 9,
      .Height = 2,
      .BitCount = 1,
      .Behind = Palette(4, 2),
      .Bits = Bytes({0x80, 0, 0, 0, 0x01, 0x80, 0, 0})},
     pf1bit,
     {"KKKKKKKRR", "RKKKKKKKK"}},
    {"4 bits",
     {.Width = 3,
      .Height = 2,
      .BitCount = 4,
      .Behind = Palette(4, 16),
      .Bits = Bytes({0x01, 0x20, 0, 0, 0x12, 0x30, 0, 0})},
     pf4bit},
    {"8 bits with few colours",
     {.Width = 3,
      .Height = 2,
      .BitCount = 8,
      .Used = 4,
      .Behind = Palette(4, 4),
      .Bits = Bytes({0, 1, 2, 0, 1, 2, 3, 0})},
     pf8bit},
    {"the first header, 8 bits",
     {.HeaderSize = 12,
      .Width = 3,
      .Height = 2,
      .BitCount = 8,
      .Behind = Palette(3, 256),
      .Bits = Bytes({0, 1, 2, 0, 1, 2, 3, 0})},
     pf8bit},
    {"the first header, 24 bits",
     {.HeaderSize = 12, .Width = 3, .Height = 2, .Bits = Pixels24()},
     pf24bit},
    {"16 bits",
     {.Width = 3,
      .Height = 2,
      .BitCount = 16,
      .Bits = Number(0, 2) + Number(0x7C00, 2) + Number(0x03E0, 4) + Number(0x7C00, 2) +
              Number(0x03E0, 2) + Number(0x001F, 4)},
     pf15bit},
    {"16 bits, 6 of green",
     {.Width = 3,
      .Height = 2,
      .BitCount = 16,
      .Compression = 3,
      .Behind = Number(0xF800, 4) + Number(0x07E0, 4) + Number(0x1F, 4),
      .Bits = Number(0, 2) + Number(0xF800, 2) + Number(0x07E0, 4) + Number(0xF800, 2) +
              Number(0x07E0, 2) + Number(0x001F, 4)},
     pf16bit},
    {"16 bits, 4 a channel",
     {.Width = 3,
      .Height = 2,
      .BitCount = 16,
      .Compression = 3,
      .Behind = Number(0x0F, 4) + Number(0xF0, 4) + Number(0xF00, 4),
      .Bits = Number(0, 2) + Number(0x0F, 2) + Number(0xF0, 4) + Number(0x0F, 2) + Number(0xF0, 2) +
              Number(0xF00, 4)},
     pf32bit},
    {"24 bits", {.Width = 3, .Height = 2, .Bits = Pixels24()}, pf24bit},
    {"24 bits with a table of colours",
     {.Width = 3, .Height = 2, .Used = 4, .Behind = Palette(4, 4), .Bits = Pixels24()},
     pf24bit},
    {"32 bits", {.Width = 3, .Height = 2, .BitCount = 32, .Bits = Pixels32()}, pf32bit},
    {"32 bits, red first, version 4",
     {.HeaderSize = 108,
      .Width = 3,
      .Height = 2,
      .BitCount = 32,
      .Compression = 3,
      .Behind = Number(0xFF, 4) + Number(0xFF00, 4) + Number(0xFF0000, 4) + Zeros(56),
      .Bits = Number(0, 4) + Number(0xFF, 4) + Number(0xFF00, 4) + Number(0xFF, 4) +
              Number(0xFF00, 4) + Number(0xFF0000, 4)},
     pf32bit},
    {"version 5",
     {.HeaderSize = 124, .Width = 3, .Height = 2, .Behind = Zeros(84), .Bits = Pixels24()},
     pf24bit},
    {"top row first", {.Width = 3, .Height = -2, .Bits = Pixels24()}, pf24bit, {"KRG", "RGB"}},
    {"a gap before the pixels",
     {.Width = 3, .Height = 2, .Bits = Zeros(10) + Pixels24(), .Offset = 64},
     pf24bit},
    {"runs of 8 bits",
     {.Width = 3,
      .Height = 2,
      .BitCount = 8,
      .Compression = 1,
      .Used = 4,
      .Behind = Palette(4, 4),
      .Bits = Bytes({1, 0, 1, 1, 1, 2, 0, 0, 0, 3, 1, 2, 3, 0, 0, 1})},
     pf8bit},
    {"runs of 4 bits",
     {.Width = 3,
      .Height = 2,
      .BitCount = 4,
      .Compression = 2,
      .Behind = Palette(4, 16),
      .Bits = Bytes({0, 3, 0x01, 0x20, 0, 0, 3, 0x12, 0, 1})},
     pf4bit,
     {"RGR", "KRG"}},
    {"runs that skip",
     {.Width = 3,
      .Height = 2,
      .BitCount = 8,
      .Compression = 1,
      .Used = 4,
      .Behind = Palette(4, 4),
      .Bits = Bytes({0, 2, 1, 1, 2, 3, 0, 1})},
     pf8bit,
     {"KBB", "KKK"}},
};

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
  TStringStream stream("in front" + GoodFiles[8].File.Bytes() + "behind");
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

const BadFile BadFiles[] = {
    {"\"BM\"", {.Magic = "PK", .Width = 3, .Height = 2, .Bits = Pixels24()}},
    {"41 bytes", {.HeaderSize = 41, .Width = 3, .Height = 2, .Bits = Pixels24()}},
    {"2 planes", {.Width = 3, .Height = 2, .Planes = 2, .Bits = Pixels24()}},
    {"23 bits", {.Width = 3, .Height = 2, .BitCount = 23, .Bits = Pixels24()}},
    {"compression 4", {.Width = 3, .Height = 2, .Compression = 4, .Bits = Pixels24()}},
    {"compression 1", {.Width = 3, .Height = 2, .Compression = 1, .Bits = Pixels24()}},
    {"0 by 2", {.Width = 0, .Height = 2, .Bits = Pixels24()}},
    {"3 by 0", {.Width = 3, .Height = 0, .Bits = Pixels24()}},
    {"-3 by 2", {.Width = -3, .Height = 2, .Bits = Pixels24()}},
    {"2147483648", {.Width = 1, .Height = -2147483648LL, .Bits = Pixels24()}},
    {"1073741825", {.Width = 0x40000001, .Height = 4, .BitCount = 32, .Bits = Pixels32()}},
    {"65536 by 65536", {.Width = 65536, .Height = 65536, .BitCount = 1, .Behind = Palette(4, 2)}},
    {"pixels takes 24 bytes, of which 23",
     {.Width = 3, .Height = 2, .Bits = Pixels24().substr(0, 23)}},
    {"257 colours",
     {.Width = 3,
      .Height = 2,
      .BitCount = 8,
      .Used = 257,
      .Behind = Palette(4, 257),
      .Bits = Zeros(8)}},
    {"table of colours takes 1024",
     {.Width = 3, .Height = 2, .BitCount = 8, .Behind = Palette(4, 4)}},
    {"at 20, inside", {.Width = 3, .Height = 2, .Bits = Pixels24(), .Offset = 20}},
    {"cut off before its pixels", {.Width = 3, .Height = 2, .Bits = Pixels24(), .Offset = 5000}},
    {"a mask for a colour that is none",
     {.Width = 3,
      .Height = 2,
      .BitCount = 16,
      .Compression = 3,
      .Behind = Number(0x7D00, 4) + Number(0x3E0, 4) + Number(0x1F, 4),
      .Bits = Zeros(16)}},
    {"a mask for a colour that is none",
     {.Width = 3,
      .Height = 2,
      .BitCount = 16,
      .Compression = 3,
      .Behind = Number(0xFF0000, 4) + Number(0x3E0, 4) + Number(0x1F, 4),
      .Bits = Zeros(16)}},
    {"top row first",
     {.Width = 3,
      .Height = -2,
      .BitCount = 8,
      .Compression = 1,
      .Behind = Palette(4, 256),
      .Bits = Bytes({0, 1})}},
    {"run-length codes end in row 0",
     {.Width = 3,
      .Height = 2,
      .BitCount = 8,
      .Compression = 1,
      .Used = 4,
      .Behind = Palette(4, 4),
      .Bits = Bytes({3, 1})}},
    {"lead to column 3, row 0",
     {.Width = 3,
      .Height = 2,
      .BitCount = 8,
      .Compression = 1,
      .Used = 4,
      .Behind = Palette(4, 4),
      .Bits = Bytes({255, 1, 0, 1})}},
    {"lead to column 0, row 2",
     {.Width = 3,
      .Height = 2,
      .BitCount = 4,
      .Compression = 2,
      .Behind = Palette(4, 16),
      .Bits = Bytes({0, 0, 0, 0, 1, 1, 0, 1})}},
    {"lead to column 200, row 0",
     {.Width = 3,
      .Height = 2,
      .BitCount = 8,
      .Compression = 1,
      .Used = 4,
      .Behind = Palette(4, 4),
      .Bits = Bytes({0, 2, 200, 0, 0, 1})}},
    {"pixels takes 4000000000",
     {.Width = 3,
      .Height = 2,
      .BitCount = 8,
      .Compression = 1,
      .ImageSize = 4000000000LL,
      .Used = 4,
      .Behind = Palette(4, 4),
      .Bits = Bytes({0, 1})}},
};

TEST(BitmapFile, RefusesDamagedOnesAndKeepsTheOldPicture) {
  for (const BadFile& bad : BadFiles) {
    SCOPED_TRACE(bad.Says);
    TBitmap bitmap;
    Paint(bitmap, {"RG"});
    try {
      Loaded(bitmap, bad.File.Bytes());
      ADD_FAILURE() << "was read";
    } catch (const EInvalidGraphic& e) {
      EXPECT_NE(e.Message().find(bad.Says), std::string::npos) << e.Message();
    }
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

class TPictured : public TComponent {
 public:
  explicit TPictured(TComponent* owner) : TComponent(owner) {}
  static const TClass& Class() {
    static const TClass info =
        Describe<TPictured, TComponent>("TPictured", "test",
                                        {Property<&TPictured::Glyph, &TPictured::SetGlyph>("Glyph"),
                                         Property<&TPictured::Font, &TPictured::SetFont>("Font")});
    return info;
  }
  const TClass& ClassType() const override { return Class(); }
  TBitmap* Glyph() const { return &FGlyph; }
  void SetGlyph(const TBitmap* glyph) { FGlyph.Assign(glyph); }
  TFont* Font() const { return &FFont; }
  void SetFont(const TFont* font) { FFont.Assign(font); }

 private:
  mutable TBitmap FGlyph;
  mutable TFont FFont;
};

std::string FormFile(TComponent& component) {
  TStringStream stream;
  TWriter(stream).WriteRootComponent(&component);
  return stream.DataString();
}

TEST(BitmapInFormFile, IsTheSamePicturePixelForPixelAtTheSameDepth) {
  for (const GoodFile& good : GoodFiles) {
    TPictured written(nullptr);
    Loaded(*written.Glyph(), good.File.Bytes());
    written.Font()->SetName("Courier New");
    written.Font()->SetStyle({fsBold, fsUnderline});
    TStringStream stream(FormFile(written));
    TPictured read(nullptr);
    TReader(stream).ReadRootComponent(&read);
    EXPECT_EQ(read.Glyph()->PixelFormat(), good.Format) << good.What;
    EXPECT_EQ(Letters(*read.Glyph()), good.Picture) << good.What;
    EXPECT_TRUE(*read.Font() == *written.Font());
  }
}

TEST(BitmapInFormFile, IsItsLengthAndItsFileOrNothing) {
  TPictured component(nullptr);
  EXPECT_EQ(FormFile(component).find("Glyph"), std::string::npos);
  Loaded(*component.Glyph(), GoodFiles[8].File.Bytes());
  TStringStream bmp;
  component.Glyph()->SaveToStream(bmp);
  const std::string length = Number(bmp.Size(), 4);
  const std::string form = FormFile(component);
  const std::string data = Number(bmp.Size() + 4, 4) + length + bmp.DataString();
  EXPECT_NE(form.find("Glyph.Data\x0A" + data), std::string::npos);

  // A length that does not fit what follows.
  std::string spoilt = form;
  const std::size_t at = form.find("Glyph.Data") + 11 + 4;
  spoilt[at] = static_cast<char>(spoilt[at] + 1);
  TStringStream stream(spoilt);
  TPictured read(nullptr);
  EXPECT_ANY_THROW(TReader(stream).ReadRootComponent(&read));
}

}  // namespace
}  // namespace vcl::test
