// Finding the calls of Describe and the lines that they are given.
#include "tools/doccomments/tables.h"

#include <map>
#include <utility>

#include "tools/doccomments/tokens.h"

namespace doccomments {
namespace {

class TTableReader {
 public:
  explicit TTableReader(std::string_view source) : FTokens(TokensOf(source)) {}

  std::vector<TTable> Read() {
    for (FAt = 0; FAt < FTokens.size(); ++FAt) {
      if (Is(0, "using") && Is(2, "=")) {
        FAliases[Text(1)] = Text(3);
      } else if (Is(0, "Describe") && Is(1, "<")) {
        Table();
      } else if ((Is(0, "Property") || Is(0, "ReadOnly") || Is(0, "Event")) && Is(1, "<")) {
        Line();
      }
    }
    return std::move(FTables);
  }

 private:
  bool Is(std::size_t ahead, std::string_view text) const {
    return FAt + ahead < FTokens.size() && FTokens[FAt + ahead].Is(text);
  }
  std::string Text(std::size_t ahead) const {
    return FAt + ahead < FTokens.size() ? FTokens[FAt + ahead].Text : std::string();
  }

  /// Describe<T, Parent>("name", "header", ...
  void Table() {
    while (FAt < FTokens.size() && !Is(0, "(")) ++FAt;
    if (!IsLiteral(1) || !IsLiteral(3)) return;
    FTables.push_back({Text(1), Text(3), {}});
  }

  bool IsLiteral(std::size_t ahead) const {
    return FAt + ahead < FTokens.size() && FTokens[FAt + ahead].Kind == TToken::TKind::Text;
  }

  /// Property<&T::Getter, &T::Setter>("name")
  void Line() {
    TTableLine line;
    std::string path;
    for (FAt += 2; FAt < FTokens.size() && !Is(0, "("); ++FAt) {
      if (Is(0, "&") || Is(0, ",")) continue;
      if (!Is(0, ">")) path += Text(0);
      if (Is(1, ",") || Is(1, ">")) Take(std::exchange(path, {}), line);
    }
    if (FTables.empty() || !IsLiteral(1)) return;
    line.Name = Text(1);
    FTables.back().Lines.push_back(std::move(line));
  }

  void Take(const std::string& path, TTableLine& line) {
    const std::size_t end = path.rfind("::");
    if (end == std::string::npos) return;
    line.Class = path.substr(0, end);
    const auto alias = FAliases.find(line.Class);
    if (alias != FAliases.end()) line.Class = alias->second;
    line.Members.push_back(path.substr(end + 2));
  }

  std::vector<TToken> FTokens;
  std::size_t FAt = 0;
  std::map<std::string, std::string> FAliases;
  std::vector<TTable> FTables;
};

}  // namespace

std::vector<TTable> TablesOf(std::string_view source) { return TTableReader(source).Read(); }

}  // namespace doccomments
