// Character sets by the C library (iconv).
#include <iconv.h>

#include <algorithm>
#include <array>
#include <cerrno>

#include "qel/mail/private/charsetsystem.h"

namespace qel {
namespace {

class TConverter {
 public:
  explicit TConverter(const std::string& charset) : FHandle(iconv_open("UTF-8", charset.c_str())) {}
  ~TConverter() {
    if (Known()) iconv_close(FHandle);
  }
  TConverter(const TConverter&) = delete;
  TConverter& operator=(const TConverter&) = delete;
  bool Known() const { return reinterpret_cast<std::intptr_t>(FHandle) != -1; }

  void Convert(std::string_view bytes, std::string& text) {
    char* from = const_cast<char*>(bytes.data());
    std::size_t left = bytes.size();
    while (left > 0) {
      const bool stuck = !Step(&from, &left, text) && errno != E2BIG;
      if (!stuck || left == 0) continue;
      text += "\xEF\xBF\xBD";
      ++from;
      --left;
    }
    Step(nullptr, nullptr, text);
  }

 private:
  bool Step(char** from, std::size_t* left, std::string& text) {
    std::array<char, 4096> chunk;
    char* to = chunk.data();
    std::size_t room = chunk.size();
    const bool done = iconv(FHandle, from, left, &to, &room) != static_cast<std::size_t>(-1);
    text.append(chunk.data(), to);
    return done;
  }

  iconv_t FHandle;
};

}  // namespace

bool SystemCharsetToUtf8(std::string_view bytes, const std::string& charset, std::string& text) {
  // The library takes options behind slashes, and an empty name for the user's own set.
  const bool name = !charset.empty() && std::ranges::all_of(charset, [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-' || c == '_' || c == '.' ||
           c == ':' || c == '+';
  });
  TConverter converter(name ? charset : "-");
  if (!converter.Known()) return false;
  text.clear();
  converter.Convert(bytes, text);
  return true;
}

}  // namespace qel
