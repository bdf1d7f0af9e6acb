#include <cstdio>

#include "tools/qelref/reference.h"

namespace qelref {
namespace {

/// A JSON string (RFC 8259).
std::string Quoted(const std::string& text) {
  std::string quoted = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') {
      quoted += '\\';
      quoted += c;
    } else if (static_cast<unsigned char>(c) < ' ') {
      char escape[8];
      std::snprintf(escape, sizeof escape, "\\u%04x", c);
      quoted += escape;
    } else {
      quoted += c;
    }
  }
  return quoted + '"';
}

std::string QuotedOrNull(const std::optional<std::string>& text) {
  return text ? Quoted(*text) : "null";
}

std::string EntryJson(const TEntry& entry) {
  return "{\"name\":" + Quoted(entry.Name) + ",\"kind\":" + Quoted(entry.Kind) +
         ",\"type\":" + Quoted(entry.Type) + ",\"default\":" + QuotedOrNull(entry.Default) +
         ",\"stored\":" + (entry.Stored ? "true" : "false") + "}";
}

template <class Items, class ToText>
std::string Joined(const Items& items, const char* separator, ToText toText) {
  std::string joined;
  for (const auto& item : items) {
    if (!joined.empty()) joined += separator;
    joined += toText(item);
  }
  return joined;
}

std::string ClassJson(const TClassReference& reference) {
  return "{\"name\":" + Quoted(reference.Name) + ",\"ancestor\":" + Quoted(reference.Ancestor) +
         ",\"page\":" + QuotedOrNull(reference.Page) + ",\"unit\":" + Quoted(reference.Unit) +
         ",\"published\":[\n    " + Joined(reference.Published, ",\n    ", EntryJson) + "]}";
}

}  // namespace

std::string ToJson(const std::vector<TClassReference>& classes) {
  return "{\"classes\":[\n  " + Joined(classes, ",\n  ", ClassJson) + "]}\n";
}

}  // namespace qelref
