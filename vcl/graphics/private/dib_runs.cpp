// The run-length codes of BMP files (BI_RLE8 and BI_RLE4, Win32: "Bitmap Compression").
#include <string>

#include "vcl/graphics/private/dib.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/text.h"

namespace vcl {
namespace {

enum TEscape : std::uint8_t { escEndOfLine = 0, escEndOfPicture = 1, escDelta = 2 };

class TUnpacker {
 public:
  TUnpacker(std::span<const std::uint8_t> coded, TDib& dib) : FCoded(coded), FDib(dib) {}

  void Run() {
    while (!FEnded && !Complete()) {
      const std::uint8_t count = Next();
      const std::uint8_t value = Next();
      if (count > 0) {
        Repeat(count, value);
      } else if (value <= escDelta) {
        Escape(value);
      } else {
        Literal(value);
      }
    }
  }

 private:
  /// All rows are there; some writers then leave out the end's mark.
  bool Complete() const { return FAt == FCoded.size() && FY >= FDib.Height - (FX == FDib.Width); }

  std::uint8_t Next() {
    if (FAt == FCoded.size()) {
      throw EInvalidGraphic(Concat("The bitmap is cut off: its run-length codes end in row ",
                                   std::to_string(FY), " of ", std::to_string(FDib.Height)));
    }
    return FCoded[FAt++];
  }

  void Escape(std::uint8_t escape) {
    if (escape == escEndOfPicture) {
      FEnded = true;
    } else if (escape == escEndOfLine) {
      MoveTo(0, FY + 1);
    } else {
      const int dx = Next();
      const int dy = Next();
      MoveTo(FX + dx, FY + dy);
    }
  }

  void MoveTo(int x, int y) {
    if (x > FDib.Width || y > FDib.Height) Outside(x, y);
    FX = x;
    FY = y;
  }

  void Repeat(int count, std::uint8_t value) {
    for (int i = 0; i < count; ++i)
      Put(FDib.BitCount == 8 ? value : i % 2 ? value & 15 : value >> 4);
  }

  /// Pixels one by one, padded to 16 bits.
  void Literal(int count) {
    const std::size_t begin = FAt;
    std::uint8_t value = 0;
    for (int i = 0; i < count; ++i) {
      if (FDib.BitCount == 8 || i % 2 == 0) value = Next();
      Put(FDib.BitCount == 8 ? value : i % 2 ? value & 15 : value >> 4);
    }
    if ((FAt - begin) % 2) Next();
  }

  void Put(int index) {
    if (FX >= FDib.Width || FY >= FDib.Height) Outside(FX, FY);
    // The codes begin with the bottom row, as the pixels in memory do.
    std::uint8_t* row = FDib.Bits.data() + FDib.Stride() * static_cast<std::size_t>(FY);
    if (FDib.BitCount == 8) {
      row[FX] = static_cast<std::uint8_t>(index);
    } else {
      row[FX / 2] = static_cast<std::uint8_t>(row[FX / 2] | index << (FX % 2 ? 0 : 4));
    }
    ++FX;
  }

  [[noreturn]] void Outside(int x, int y) const {
    throw EInvalidGraphic(Concat("The bitmap is damaged: its run-length codes lead to column ",
                                 std::to_string(x), ", row ", std::to_string(y), " of ",
                                 std::to_string(FDib.Width), " by ", std::to_string(FDib.Height),
                                 " pixels"));
  }

  std::span<const std::uint8_t> FCoded;
  TDib& FDib;
  std::size_t FAt = 0;
  int FX = 0;
  int FY = 0;
  bool FEnded = false;
};

}  // namespace

void UnpackRuns(std::span<const std::uint8_t> coded, TDib& dib) { TUnpacker(coded, dib).Run(); }

}  // namespace vcl
