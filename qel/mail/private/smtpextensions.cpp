// Reading a server's extensions from its words.
#include "qel/mail/private/smtpextensions.h"

#include <algorithm>
#include <charconv>

#include "vcl/rtl/text.h"

namespace qel {
namespace {

/// The words of a line, in capitals. "AUTH=" is how old servers begin theirs.
std::vector<std::string> WordsOf(const std::string& line) {
  std::string text = vcl::UpperCase(line);
  if (text.starts_with("AUTH=")) text[4] = ' ';
  std::vector<std::string> words;
  for (std::size_t at = 0; (at = text.find_first_not_of(' ', at)) != text.npos;) {
    const std::size_t end = std::min(text.find(' ', at), text.size());
    words.push_back(text.substr(at, end - at));
    at = end;
  }
  return words;
}

void Take(const std::vector<std::string>& words, TSmtpExtensions& extensions) {
  const std::string& name = words.front();
  extensions.StartTls |= name == "STARTTLS";
  extensions.Pipelining |= name == "PIPELINING";
  extensions.EightBit |= name == "8BITMIME";
  extensions.Utf8 |= name == "SMTPUTF8";
  if (name == "AUTH") {
    extensions.Auth.insert(extensions.Auth.end(), words.begin() + 1, words.end());
  }
  if (name == "SIZE") {
    extensions.Size = true;
    if (words.size() > 1) {
      const std::string& size = words[1];
      std::from_chars(size.data(), size.data() + size.size(), extensions.MaxSize);
    }
  }
}

}  // namespace

TSmtpExtensions ReadExtensions(const std::vector<std::string>& lines) {
  TSmtpExtensions extensions;
  for (std::size_t i = 1; i < lines.size(); ++i) {
    const std::vector<std::string> words = WordsOf(lines[i]);
    if (!words.empty()) Take(words, extensions);
  }
  return extensions;
}

}  // namespace qel
