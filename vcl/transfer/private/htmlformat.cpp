// Writing and reading the record of HTML.
#include "vcl/transfer/private/htmlformat.h"

#include <charconv>
#include <optional>

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/text.h"

namespace vcl {

namespace {

constexpr std::string_view Before = "<html><body>\r\n<!--StartFragment-->";
constexpr std::string_view Behind = "<!--EndFragment-->\r\n</body></html>";
constexpr std::size_t Digits = 10;

/// The lines of offsets, which are equally long whatever the numbers are.
std::string Head(std::size_t startHtml, std::size_t htmlSize, std::size_t startPiece,
                 std::size_t pieceSize, const std::string& url) {
  const auto line = [](std::string_view key, std::size_t value) {
    const std::string digits = std::to_string(value);
    return Concat(key, std::string(Digits - digits.size(), '0'), digits, "\r\n");
  };
  std::string head = Concat(
      "Version:0.9\r\n", line("StartHTML:", startHtml), line("EndHTML:", startHtml + htmlSize),
      line("StartFragment:", startPiece), line("EndFragment:", startPiece + pieceSize));
  if (!url.empty()) head += Concat("SourceURL:", url, "\r\n");
  return head;
}

/// The value of a line of the head, which ends where the page begins.
std::optional<std::string_view> ValueOf(std::string_view bytes, std::string_view key) {
  std::size_t at = 0;
  while (at < bytes.size() && bytes[at] != '<') {
    const std::size_t end = std::min(bytes.find_first_of("\r\n", at), bytes.size());
    const std::string_view line = bytes.substr(at, end - at);
    if (line.starts_with(key)) return line.substr(key.size());
    at = std::min(bytes.find_first_not_of("\r\n", end), bytes.size());
  }
  return std::nullopt;
}

std::optional<std::size_t> OffsetOf(std::string_view bytes, std::string_view key) {
  const auto value = ValueOf(bytes, key);
  if (!value || *value == "-1") return std::nullopt;  // Some pages give no place of their own.
  std::size_t offset = 0;
  const auto [end, error] = std::from_chars(value->data(), value->data() + value->size(), offset);
  if (error != std::errc() || end != value->data() + value->size() || offset > bytes.size()) {
    throw EConvertError(Concat("The HTML's ", key, *value, " is no place in its ",
                               std::to_string(bytes.size()), " bytes"));
  }
  return offset;
}

}  // namespace

std::string EncodeHtml(const THtmlPiece& piece) {
  // A line break would end the head's line, and with it begin another one.
  if (piece.SourceUrl.find_first_of("\r\n<") != std::string::npos) {
    throw EConvertError(Concat("No address of a page: ", piece.SourceUrl));
  }
  const std::size_t head = Head(0, 0, 0, 0, piece.SourceUrl).size();
  const std::size_t page = Before.size() + piece.Html.size() + Behind.size();
  return Concat(Head(head, page, head + Before.size(), piece.Html.size(), piece.SourceUrl), Before,
                piece.Html, Behind);
}

THtmlPiece DecodeHtml(std::string_view bytes) {
  bytes = bytes.substr(0, bytes.find('\0'));
  auto start = OffsetOf(bytes, "StartFragment:");
  auto end = OffsetOf(bytes, "EndFragment:");
  if (!start || !end) {
    start = OffsetOf(bytes, "StartHTML:");
    end = OffsetOf(bytes, "EndHTML:");
  }
  if (!start || !end || *end < *start) {
    throw EConvertError("The HTML does not say where it begins and ends");
  }
  return {std::string(bytes.substr(*start, *end - *start)),
          std::string(ValueOf(bytes, "SourceURL:").value_or(""))};
}

}  // namespace vcl
