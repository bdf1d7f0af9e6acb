// Reading BMP files (Win32: BITMAPFILEHEADER, BITMAPCOREHEADER, BITMAPINFOHEADER, BITMAPV4HEADER,
// BITMAPV5HEADER). Every number is checked before anything is done with it.
#include <algorithm>
#include <bit>
#include <string>

#include "vcl/graphics/private/dib.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/streams.h"
#include "vcl/rtl/text.h"

namespace vcl {
namespace {

constexpr std::uint32_t CoreHeaderSize = 12;
constexpr std::uint32_t InfoHeaderSize = 40;
constexpr std::uint32_t HeaderSizes[] = {CoreHeaderSize, InfoHeaderSize, 52, 56, 108, 124};

enum TCompression : std::uint32_t { cpNone, cpRle8, cpRle4, cpFields, cpAlphaFields = 6 };
struct TMethod {
  std::uint32_t Compression;
  int BitCount;
};
constexpr TMethod Methods[] = {{cpNone, 1},    {cpNone, 4},         {cpNone, 8},
                               {cpNone, 16},   {cpNone, 24},        {cpNone, 32},
                               {cpRle8, 8},    {cpRle4, 4},         {cpFields, 16},
                               {cpFields, 32}, {cpAlphaFields, 16}, {cpAlphaFields, 32}};

struct TFields {
  std::uint32_t Red, Green, Blue;
  bool operator==(const TFields&) const = default;
};
constexpr TFields Fields555{0x7C00, 0x03E0, 0x001F};
constexpr TFields Fields565{0xF800, 0x07E0, 0x001F};
constexpr TFields Fields888{0xFF0000, 0xFF00, 0xFF};

[[noreturn]] void Invalid(const std::string& what) { throw EInvalidGraphic("The bitmap " + what); }

std::uint32_t Little(std::span<const std::uint8_t> bytes, std::size_t at, std::size_t size) {
  std::uint32_t value = 0;
  for (std::size_t i = size; i-- > 0;) value = value << 8 | bytes[at + i];
  return value;
}

/// Moves a channel's value to 8 bits.
std::uint32_t Channel(std::uint32_t pixel, std::uint32_t field) {
  if (!field) return 0;
  const int shift = std::countr_zero(field);
  const std::uint64_t most = field >> shift;
  return static_cast<std::uint32_t>(((pixel & field) >> shift) * 255ULL / most);
}

class TReadBmp {
 public:
  explicit TReadBmp(TStream& stream) : FStream(stream), FStart(stream.Position()) {}

  TDib File() {
    const auto header = Read(14, "header");
    if (header[0] != 'B' || header[1] != 'M') Invalid("file does not begin with \"BM\"");
    FOffset = Little(header, 10, 4);
    return Picture();
  }

  TDib Picture() {
    ReadHeader();
    ReadFields();
    FDib.Allocate();
    ReadPalette();
    SkipToBits();
    if (FCompression == cpRle8 || FCompression == cpRle4) {
      UnpackRuns(Read(CodedSize(), "run-length coded pixels"), FDib);
    } else {
      FDib.Bits = Read(static_cast<std::int64_t>(FDib.Bits.size()), "pixels");
    }
    if (FTopDown) FlipRows();
    if (FDib.BitCount >= 16 && FDib.BitCount != 24) UseFields();
    return std::move(FDib);
  }

 private:
  /// What is read is first seen to be there, so that no header makes us ask for too much memory.
  std::vector<std::uint8_t> Read(std::int64_t count, const char* what) {
    const std::int64_t left = std::max<std::int64_t>(0, FStream.Size() - FStream.Position());
    if (count > left) {
      Invalid(Concat("is cut off: its ", what, " takes ", std::to_string(count),
                     " bytes, of which ", std::to_string(left), " are there"));
    }
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(count));
    FStream.ReadBuffer(bytes.data(), count);
    return bytes;
  }

  void ReadHeader() {
    const std::uint32_t size = Little(Read(4, "header"), 0, 4);
    if (std::ranges::find(HeaderSizes, size) == std::end(HeaderSizes)) {
      Invalid(Concat("has a header of an unknown size: ", std::to_string(size), " bytes"));
    }
    FHeader = Read(size - 4, "header");
    FHeader.insert(FHeader.begin(), 4, 0);  // Offsets then are those of the documentation.
    const bool core = size == CoreHeaderSize;
    const std::int64_t width = core ? Little(FHeader, 4, 2) : Signed(4);
    const std::int64_t height = core ? Little(FHeader, 6, 2) : Signed(8);
    const std::uint32_t planes = Little(FHeader, core ? 8 : 12, 2);
    FDib.BitCount = static_cast<int>(Little(FHeader, core ? 10 : 14, 2));
    FCompression = core ? cpNone : Little(FHeader, 16, 4);
    FTopDown = height < 0;
    CheckMethod(planes);
    CheckDibSize(width, FTopDown ? -height : height, FDib.BitCount);
    FDib.Width = static_cast<int>(width);
    FDib.Height = static_cast<int>(FTopDown ? -height : height);
  }

  std::int64_t Signed(std::size_t at) const {
    return static_cast<std::int32_t>(Little(FHeader, at, 4));
  }

  void CheckMethod(std::uint32_t planes) const {
    if (planes != 1) Invalid(Concat("has ", std::to_string(planes), " planes instead of 1"));
    const bool known = std::ranges::any_of(Methods, [this](const TMethod& method) {
      return method.Compression == FCompression && method.BitCount == FDib.BitCount;
    });
    if (!known) {
      Invalid(Concat("has ", std::to_string(FDib.BitCount), " bits a pixel and compression ",
                     std::to_string(FCompression), ", which do not go together"));
    }
    const bool packed = FCompression == cpRle8 || FCompression == cpRle4;
    if (packed && FTopDown) Invalid("is run-length coded, but has its top row first");
  }

  void ReadFields() {
    FFields = FDib.BitCount == 16 ? Fields555 : Fields888;
    if (FCompression != cpFields && FCompression != cpAlphaFields) return;
    std::vector<std::uint8_t> fields(FHeader.begin() + InfoHeaderSize, FHeader.end());
    if (FHeader.size() == InfoHeaderSize)
      fields = Read(FCompression == cpFields ? 12 : 16, "masks");
    FFields = {Little(fields, 0, 4), Little(fields, 4, 4), Little(fields, 8, 4)};
    for (const std::uint32_t field : {FFields.Red, FFields.Green, FFields.Blue}) CheckField(field);
  }

  /// A mask is one run of bits inside the pixel.
  void CheckField(std::uint32_t field) const {
    const std::uint32_t run = field ? field >> std::countr_zero(field) : 0;
    const bool inside = FDib.BitCount == 32 || field >> FDib.BitCount == 0;
    if ((run & (run + 1)) == 0 && inside) return;
    Invalid(Concat("has a mask for a colour that is none: ", std::to_string(field)));
  }

  void ReadPalette() {
    const bool core = FHeader.size() == CoreHeaderSize;
    const std::uint32_t used = core ? 0 : Little(FHeader, 32, 4);
    const std::size_t most = FDib.Palette.size();
    if (most > 0 && used > most) {
      Invalid(Concat("has ", std::to_string(used), " colours for ", std::to_string(FDib.BitCount),
                     " bits a pixel"));
    }
    const std::int64_t count = used ? used : static_cast<std::int64_t>(most);
    const std::size_t size = core ? 3 : 4;
    const auto bytes = Read(count * static_cast<std::int64_t>(size), "table of colours");
    // Pictures of more than 8 bits may have a table too, for devices with fewer colours.
    for (std::size_t i = 0; i < std::min(most, static_cast<std::size_t>(count)); ++i) {
      FDib.Palette[i] = Little(bytes, i * size, 3);
    }
  }

  void SkipToBits() {
    if (!FOffset) return;  // A resource; and some files give no offset.
    const std::int64_t here = FStream.Position() - FStart;
    if (FOffset < here) {
      Invalid(Concat("has its pixels at ", std::to_string(FOffset), ", inside the first ",
                     std::to_string(here), " bytes, which are its headers"));
    }
    if (FOffset > FStream.Size() - FStart) {
      Invalid(Concat("is cut off before its pixels, at ", std::to_string(FOffset)));
    }
    FStream.SetPosition(FStart + FOffset);
  }

  std::int64_t CodedSize() const {
    const std::uint32_t size = Little(FHeader, 20, 4);
    return size ? size : FStream.Size() - FStream.Position();
  }

  void FlipRows() {
    for (int y = 0; y < FDib.Height / 2; ++y) {
      std::ranges::swap_ranges(FDib.Row(y), FDib.Row(FDib.Height - 1 - y));
    }
  }

  /// Keeps pixels whose channels lie as usual; makes 32 bits of all others.
  void UseFields() {
    if (FDib.BitCount == 16 && (FFields == Fields555 || FFields == Fields565)) {
      FDib.SixBitGreen = FFields == Fields565;
      return;
    }
    if (FDib.BitCount == 32 && FFields == Fields888) return;
    TDib usual;
    usual.Width = FDib.Width;
    usual.Height = FDib.Height;
    usual.BitCount = 32;
    usual.Allocate();
    for (int y = 0; y < FDib.Height; ++y) UseFields(FDib.Row(y), usual.Row(y));
    FDib = std::move(usual);
  }

  void UseFields(std::span<const std::uint8_t> from, std::span<std::uint8_t> to) const {
    const auto size = static_cast<std::size_t>(FDib.BitCount) / 8;
    for (std::size_t x = 0; x < static_cast<std::size_t>(FDib.Width); ++x) {
      const std::uint32_t pixel = Little(from, x * size, size);
      to[x * 4] = static_cast<std::uint8_t>(Channel(pixel, FFields.Blue));
      to[x * 4 + 1] = static_cast<std::uint8_t>(Channel(pixel, FFields.Green));
      to[x * 4 + 2] = static_cast<std::uint8_t>(Channel(pixel, FFields.Red));
    }
  }

  TStream& FStream;
  std::int64_t FStart;
  std::int64_t FOffset = 0;
  std::vector<std::uint8_t> FHeader;
  std::uint32_t FCompression = cpNone;
  bool FTopDown = false;
  TFields FFields{};
  TDib FDib;
};

}  // namespace

TDib ReadBmp(TStream& stream) { return TReadBmp(stream).File(); }
TDib ReadBmpResource(TStream& stream) { return TReadBmp(stream).Picture(); }

}  // namespace vcl
