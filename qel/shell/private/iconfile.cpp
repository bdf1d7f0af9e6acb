// Reading icons: the resources of a program, with a look at every place before it is read.
#include "qel/shell/private/iconfile.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <optional>
#include <string_view>
#include <vector>

#include "qel/shell/private/folders.h"
#include "vcl/graphics/icon.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/streams.h"

namespace qel {
namespace {

constexpr std::uint32_t MostBytes = 256u << 20;  // Of resources.

/// What is damaged; never seen outside.
struct TDamaged {};

/// Bytes of a file, of which none is read that is not there.
class TBytes {
 public:
  explicit TBytes(std::string_view bytes) : FBytes(bytes) {}
  std::uint32_t Word(std::size_t at) const { return Byte(at) | Byte(at + 1) << 8; }
  std::uint32_t Long(std::size_t at) const { return Word(at) | Word(at + 2) << 16; }
  std::string_view Part(std::size_t at, std::size_t size) const {
    if (at > FBytes.size() || size > FBytes.size() - at) throw TDamaged();
    return FBytes.substr(at, size);
  }

 private:
  std::uint32_t Byte(std::size_t at) const {
    if (at >= FBytes.size()) throw TDamaged();
    return static_cast<unsigned char>(FBytes[at]);
  }
  std::string_view FBytes;
};

std::string ReadPart(vcl::TStream& file, std::uint32_t at, std::uint32_t size) {
  const auto whole = static_cast<std::uint64_t>(file.Size());
  if (at > whole) throw TDamaged();
  std::string bytes(static_cast<std::size_t>(std::min<std::uint64_t>(size, whole - at)), '\0');
  file.SetPosition(at);
  file.ReadBuffer(bytes.data(), static_cast<std::int64_t>(bytes.size()));
  return bytes;
}

/// The resources of a program: a tree of types, names and languages, whose leaves say where the
/// bytes are.
class TResources {
 public:
  /// Where the numbers are that the system's records of a program hold.
  explicit TResources(vcl::TStream& file) {
    constexpr std::uint32_t headSize = 4096, sectionSize = 40;
    const std::string head = ReadPart(file, 0, 64);
    const std::uint32_t start = TBytes(head).Long(60);
    const std::string records = ReadPart(file, start, headSize);
    const TBytes pe(records);
    if (!head.starts_with("MZ") || pe.Long(0) != IMAGE_NT_SIGNATURE) throw TDamaged();
    const bool wide = pe.Word(24) == IMAGE_NT_OPTIONAL_HDR64_MAGIC;
    FAddress = pe.Long(wide ? 152 : 136);
    std::size_t section = 24 + pe.Word(20);
    for (std::uint32_t i = 0; i < pe.Word(6); ++i, section += sectionSize) {
      const std::uint32_t address = pe.Long(section + 12), size = pe.Long(section + 16);
      if (FAddress == 0 || FAddress < address || FAddress - address >= size) continue;
      if (size > MostBytes) throw TDamaged();
      const std::uint32_t before = FAddress - address;
      FData = ReadPart(file, pe.Long(section + 20) + before, size - before);
      return;
    }
    throw TDamaged();
  }

  /// The bytes by their numbers of all resources of the type, in their order.
  std::vector<std::pair<std::uint32_t, std::string_view>> OfType(std::uint32_t type) const {
    std::vector<std::pair<std::uint32_t, std::string_view>> found;
    for (const auto& [number, branch] : Entries(0)) {
      if (number != type || !IsBranch(branch)) continue;
      for (const auto& [name, languages] : Entries(branch & ~BranchBit)) {
        const auto leaf = Leaf(languages);
        if (leaf) found.emplace_back(name, *leaf);
      }
    }
    return found;
  }

 private:
  static constexpr std::uint32_t BranchBit = 0x80000000;
  static bool IsBranch(std::uint32_t place) { return (place & BranchBit) != 0; }

  std::vector<std::pair<std::uint32_t, std::uint32_t>> Entries(std::size_t at) const {
    const TBytes data(FData);
    const std::uint32_t count = data.Word(at + 12) + data.Word(at + 14);
    std::vector<std::pair<std::uint32_t, std::uint32_t>> entries;
    for (std::uint32_t i = 0; i < count; ++i) {
      const std::size_t entry = at + 16 + 8 * std::size_t{i};
      entries.emplace_back(data.Long(entry), data.Long(entry + 4));
    }
    return entries;
  }
  /// What is there in the first language; nothing where that is damaged.
  std::optional<std::string_view> Leaf(std::uint32_t place) const try {
    if (IsBranch(place)) {
      const auto languages = Entries(place & ~BranchBit);
      if (languages.empty() || IsBranch(languages.front().second)) return std::nullopt;
      place = languages.front().second;
    }
    const TBytes data(FData);
    const std::uint32_t address = data.Long(place);
    if (address < FAddress) return std::nullopt;
    return data.Part(address - FAddress, data.Long(place + 4));
  } catch (const TDamaged&) {
    return std::nullopt;
  }

  std::string FData;
  std::uint32_t FAddress = 0;
};

/// The system's functions do not write there.
BYTE* BytesOf(std::string& bytes) { return reinterpret_cast<BYTE*>(bytes.data()); }

/// A group names the images of one icon: six bytes, and fourteen for each.
bool IsWholeGroup(std::string_view group) {
  return group.size() >= 6 && 6 + 14 * std::size_t{TBytes(group).Word(4)} <= group.size();
}

void ReadProgram(vcl::TStream& file, int size, int most,
                 const std::function<void(vcl::TOwnedIcon icon)>& each) {
  const TResources resources(file);
  std::map<std::uint32_t, std::string_view> images;
  for (const auto& [number, bytes] : resources.OfType(3)) images.emplace(number, bytes);
  for (const auto& [number, bytes] : resources.OfType(14)) {
    if (most <= 0) return;
    if (!IsWholeGroup(bytes)) continue;
    std::string group(bytes);
    const int wanted =
        ::LookupIconIdFromDirectoryEx(BytesOf(group), TRUE, size, size, LR_DEFAULTCOLOR);
    const auto image = images.find(static_cast<std::uint32_t>(wanted));
    // Smaller than its head it cannot be drawn.
    if (image == images.end() || image->second.size() < sizeof(BITMAPINFOHEADER)) continue;
    std::string copy(image->second);
    vcl::TOwnedIcon icon(::CreateIconFromResourceEx(BytesOf(copy), static_cast<DWORD>(copy.size()),
                                                    TRUE, 0x00030000, size, size, 0));
    if (!icon) continue;
    each(std::move(icon));
    --most;
  }
}

void ReadIconFile(vcl::TStream& file, int size,
                  const std::function<void(vcl::TOwnedIcon icon)>& each) {
  vcl::TIcon icon;
  icon.LoadFromStream(file);
  icon.SetSize(size, size);
  each(vcl::TOwnedIcon(::CopyIcon(icon.Handle())));
}

}  // namespace

void ReadIcons(const std::string& fileName, int size, int most,
               const std::function<void(vcl::TOwnedIcon icon)>& each) try {
  const folders::TNoErrorBoxes quiet;
  vcl::TFileStream file(fileName, vcl::fmOpenRead | vcl::fmShareDenyNone);
  const bool program = ReadPart(file, 0, 2) == "MZ";
  file.SetPosition(0);
  program ? ReadProgram(file, size, most, each) : ReadIconFile(file, size, each);
} catch (const TDamaged&) {
  return;
} catch (const vcl::Exception&) {
  return;
}

}  // namespace qel
