// Reading and writing lists of addresses.
#include "qel/mail/private/mailaddresses.h"

#include <algorithm>

#include "qel/mail/private/encodedwords.h"
#include "vcl/rtl/text.h"

namespace qel {
namespace {

constexpr std::string_view Special = "()<>[]:;@\\,.\"";

/// Reads one address after the other.
class TAddressReader {
 public:
  explicit TAddressReader(std::string_view text) : FText(text) {}

  std::vector<TMailAddress> Read() {
    for (; FAt < FText.size(); ++FAt) Take(FText[FAt]);
    EndAddress();
    return std::move(FFound);
  }

 private:
  void Take(char c) {
    switch (c) {
      case '"': return TakeQuoted();
      case '(': return TakeComment();
      case '<': return TakeBracketed();
      case ',':
      case ';': return EndAddress();
      case ':':
        // What stands before it names a group, unless it belongs to a domain in brackets.
        if (FBracket.empty() && FPlain.find('[') == FPlain.npos) return FPlain.clear();
        break;
      default: break;
    }
    FPlain += c;
  }
  void TakeQuoted() {
    // The local part of an address may stand in quotes, which then belong to it.
    const std::size_t begin = FAt++;
    std::string text;
    for (; FAt < FText.size() && FText[FAt] != '"'; ++FAt) {
      if (FText[FAt] == '\\' && FAt + 1 < FText.size()) ++FAt;
      text += FText[FAt];
    }
    const bool local = FAt + 1 < FText.size() && FText[FAt + 1] == '@';
    if (local) {
      FPlain.append(FText.substr(begin, FAt + 1 - begin));
    } else {
      FPlain += text;
      FQuoted = true;
    }
  }
  void TakeComment() {
    std::string text;
    for (int depth = 0; FAt < FText.size(); ++FAt) {
      const char c = FText[FAt];
      if (c == '(' && depth++ == 0) continue;
      if (c == ')' && --depth == 0) break;
      if (c == '\\' && FAt + 1 < FText.size()) ++FAt;
      text += FText[FAt];
    }
    FComment = text;
  }
  void TakeBracketed() {
    const std::size_t end = FText.find('>', FAt);
    std::string address(FText.substr(FAt + 1, end == FText.npos ? end : end - FAt - 1));
    // A route may stand before the address (RFC 5322, 4.4).
    if (const std::size_t route = address.rfind(':');
        address.starts_with('@') && route != address.npos) {
      address.erase(0, route + 1);
    }
    std::erase_if(address, [](char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; });
    FBracket = address;
    FHasBracket = true;
    FAt = std::min(end, FText.size() - 1);
  }
  void EndAddress() {
    const std::string plain(vcl::Trim(FPlain));
    TMailAddress found;
    if (FHasBracket) {
      found = {DecodeWords(plain), FBracket};
    } else if (!plain.empty() && !FQuoted) {
      found = {DecodeWords(FComment), plain};
      // Only in quotes a blank belongs to it.
      if (plain.find('"') == plain.npos) std::erase(found.Address, ' ');
    }
    if (!found.Address.empty()) FFound.push_back(std::move(found));
    FPlain.clear();
    FComment.clear();
    FBracket.clear();
    FHasBracket = FQuoted = false;
  }

  std::string_view FText;
  std::size_t FAt = 0;
  std::string FPlain, FComment, FBracket;
  bool FHasBracket = false, FQuoted = false;
  std::vector<TMailAddress> FFound;
};

std::string Quoted(const std::string& name) {
  if (name.find_first_of(Special) == name.npos) return name;
  std::string text = "\"";
  for (const char c : name) {
    if (c == '"' || c == '\\') text += '\\';
    text += c;
  }
  return text + '"';
}

std::string Phrase(const std::string& name) {
  const std::string encoded = EncodeWords(name, true);
  return encoded == name ? Quoted(name) : encoded;
}

std::string Join(const std::vector<TMailAddress>& addresses,
                 std::string (*write)(const std::string&)) {
  std::string text;
  for (const TMailAddress& each : addresses) {
    if (!text.empty()) text += ", ";
    text +=
        each.Name.empty() ? each.Address : vcl::Concat(write(each.Name), " <", each.Address, ">");
  }
  return text;
}

}  // namespace

std::vector<TMailAddress> ReadAddresses(std::string_view text) {
  return TAddressReader(text).Read();
}

std::string WriteAddresses(const std::vector<TMailAddress>& addresses) {
  return Join(addresses, Phrase);
}

std::string ShowAddresses(const std::vector<TMailAddress>& addresses) {
  return Join(addresses, Quoted);
}

}  // namespace qel
