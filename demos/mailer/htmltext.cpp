// Reading the texts between the tags of a page.
#include "demos/mailer/htmltext.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <optional>

#include "vcl/rtl/text.h"

namespace mailer {
namespace {

constexpr std::string_view Blanks = " \t\r\n\f";

struct TEntity {
  std::string_view Name;
  const char* Text;
};
constexpr TEntity Entities[] = {
    {"amp", "&"},    {"lt", "<"},    {"gt", ">"},     {"quot", "\""},  {"apos", "'"},
    {"nbsp", " "},   {"auml", "ä"},  {"ouml", "ö"},   {"uuml", "ü"},   {"Auml", "Ä"},
    {"Ouml", "Ö"},   {"Uuml", "Ü"},  {"szlig", "ß"},  {"euro", "€"},   {"copy", "©"},
    {"reg", "®"},    {"ndash", "–"}, {"mdash", "—"},  {"hellip", "…"}, {"bull", "•"},
    {"lsquo", "‘"},  {"rsquo", "’"}, {"ldquo", "“"},  {"rdquo", "”"},  {"bdquo", "„"},
    {"laquo", "«"},  {"raquo", "»"}, {"eacute", "é"}, {"egrave", "è"}, {"agrave", "à"},
    {"ccedil", "ç"}, {"trade", "™"}, {"middot", "·"}, {"shy", ""},     {"zwnj", ""},
};

std::string Small(std::string_view text) {
  std::string small(text);
  for (char& c : small) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return small;
}

/// What the reference, without "&" and ";", stands for; nothing when it is none.
std::optional<std::string> EntityText(std::string_view name) {
  if (name.starts_with('#')) {
    const bool hexadecimal = name.size() > 1 && (name[1] == 'x' || name[1] == 'X');
    name.remove_prefix(hexadecimal ? 2 : 1);
    std::uint32_t number = 0;
    const char* const end = name.data() + name.size();
    if (std::from_chars(name.data(), end, number, hexadecimal ? 16 : 10).ptr != end) {
      return std::nullopt;
    }
    return vcl::Utf8(number);
  }
  const auto found = std::ranges::find(Entities, name, &TEntity::Name);
  return found == std::end(Entities) ? std::nullopt : std::optional<std::string>(found->Text);
}

std::string WithoutEntities(std::string_view text) {
  constexpr std::size_t longest = 10;
  std::string plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const std::size_t end = text[i] == '&' ? text.find(';', i) : text.npos;
    if (end != text.npos && end - i <= longest) {
      if (const auto found = EntityText(text.substr(i + 1, end - i - 1))) {
        plain += *found;
        i = end;
        continue;
      }
    }
    plain += text[i];
  }
  return plain;
}

/// The value of a tag's attribute; empty without one.
std::string Attribute(std::string_view tag, const std::string& name) {
  const std::string small = Small(tag);
  for (std::size_t at = 0; (at = small.find(name, at)) != small.npos; at += name.size()) {
    const bool begins = at > 0 && Blanks.find(small[at - 1]) != Blanks.npos;
    std::size_t value = small.find_first_not_of(Blanks, at + name.size());
    if (!begins || value == small.npos || small[value] != '=') continue;
    value = small.find_first_not_of(Blanks, value + 1);
    if (value == small.npos) return {};
    const char quote = small[value];
    const bool quoted = quote == '"' || quote == '\'';
    const std::size_t end = quoted ? tag.find(quote, value + 1) : tag.find_first_of(Blanks, value);
    const std::size_t begin = value + (quoted ? 1 : 0);
    return WithoutEntities(tag.substr(begin, end == tag.npos ? end : end - begin));
  }
  return {};
}

class TPageReader {
 public:
  explicit TPageReader(std::string_view html) : FHtml(html) {}

  std::string Read() {
    while (!FHtml.empty()) {
      const std::size_t tag = std::min(FHtml.find('<'), FHtml.size());
      AddText(WithoutEntities(FHtml.substr(0, tag)));
      FHtml.remove_prefix(tag);
      if (!FHtml.empty()) TakeTag();
    }
    return std::string(vcl::Trim(FText)) + "\r\n";
  }

 private:
  void TakeTag() {
    if (FHtml.starts_with("<!--")) return SkipTo("-->");
    const std::size_t end = FHtml.find('>');
    // A lone "<" is only that.
    if (end == FHtml.npos || FHtml.size() < 2 || Blanks.find(FHtml[1]) != Blanks.npos) {
      FText += '<';
      FHtml.remove_prefix(1);
      return;
    }
    const std::string_view tag = FHtml.substr(1, end - 1);
    FHtml.remove_prefix(end + 1);
    Act(Small(tag.substr(0, tag.find_first_of(" \t\r\n\f/", 1))), tag);
  }
  void SkipTo(std::string_view end) {
    const std::size_t at = FHtml.find(end);
    FHtml.remove_prefix(at == FHtml.npos ? FHtml.size() : at + end.size());
  }
  void Act(const std::string& name, std::string_view tag) {
    constexpr std::array<std::string_view, 16> paragraphs{
        "p",  "/p",  "h1", "/h1", "h2",    "/h2",    "h3",         "/h3",
        "ul", "/ul", "ol", "/ol", "table", "/table", "blockquote", "/blockquote"};
    if (name == "script" || name == "style" || name == "head" || name == "title") {
      SkipTo("</" + name);
      SkipTo(">");
    } else if (name == "br" || name == "/tr" || name == "div" || name == "/div") {
      NewLine(1);
    } else if (std::ranges::find(paragraphs, name) != paragraphs.end()) {
      NewLine(2);
    } else if (name == "li") {
      NewLine(1);
      FText += "- ";
    } else if (name == "td" || name == "th") {
      AddText(" ");
    } else if (name == "img") {
      AddText(Attribute(tag, "alt"));
    } else if (name == "a") {
      FLink = Attribute(tag, "href");
      FLinkBegin = FText.size();
    } else if (name == "/a") {
      EndLink();
    }
  }
  /// The target stands behind a link whose text does not say it.
  void EndLink() {
    const bool outside = FLink.starts_with("http") || FLink.starts_with("mailto:");
    const std::size_t begin = std::min(FLinkBegin, FText.size());
    if (outside && FText.find(FLink, begin) == FText.npos)
      FText.append(" <").append(FLink).append(">");
    FLink.clear();
  }
  /// Several blanks are one, and none begins a line.
  void AddText(const std::string& text) {
    for (const char c : text) {
      const bool blank = Blanks.find(c) != Blanks.npos;
      if (!blank) {
        FText += c;
      } else if (!FText.empty() && FText.back() != ' ' && FText.back() != '\n') {
        FText += ' ';
      }
    }
  }
  void NewLine(int count) {
    if (FText.empty()) return;
    while (FText.ends_with(' ')) FText.pop_back();
    int there = 0;
    for (std::size_t i = FText.size(); i > 0 && (FText[i - 1] == '\n' || FText[i - 1] == '\r');
         --i) {
      there += FText[i - 1] == '\n' ? 1 : 0;
    }
    for (; there < count; ++there) FText += "\r\n";
  }

  std::string_view FHtml;
  std::string FText, FLink;
  std::size_t FLinkBegin = 0;
};

}  // namespace

std::string HtmlToText(std::string_view html) { return TPageReader(html).Read(); }

}  // namespace mailer
