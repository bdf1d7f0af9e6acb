// The reference as JSON.
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
         ",\"stored\":" + (entry.Stored ? "true" : "false") +
         ",\"sentence\":" + Quoted(entry.Sentence) + "}";
}

std::string ClassJson(const TClassReference& reference) {
  return "{\"name\":" + Quoted(reference.Name) + ",\"ancestor\":" + Quoted(reference.Ancestor) +
         ",\"page\":" + QuotedOrNull(reference.Page) + ",\"unit\":" + Quoted(reference.Unit) +
         ",\"header\":" + Quoted(reference.Header) + ",\"sentence\":" + Quoted(reference.Sentence) +
         ",\"published\":[\n    " + Joined(reference.Published, ",\n    ", EntryJson) + "]}";
}

std::string NamesJson(const std::vector<std::string>& names) {
  return "[" + Joined(names, ",", Quoted) + "]";
}

std::string PageJson(const TPageReference& page) {
  return "{\"name\":" + Quoted(page.Name) + ",\"classes\":" + NamesJson(page.Classes) + "}";
}

std::string PropertyEditorJson(const TPropertyEditorReference& each) {
  return "{\"editor\":" + Quoted(each.Editor) + ",\"type\":" + Quoted(each.Type) +
         ",\"class\":" + Quoted(each.Class) + ",\"property\":" + Quoted(each.Property) +
         ",\"attributes\":" + NamesJson(each.Attributes) + "}";
}

std::string ComponentEditorJson(const TComponentEditorReference& each) {
  return "{\"editor\":" + Quoted(each.Editor) + ",\"class\":" + Quoted(each.Class) +
         ",\"verbs\":" + NamesJson(each.Verbs) + "}";
}

template <class Items, class ToText>
std::string ListJson(const char* name, const Items& items, ToText toText) {
  return Quoted(name) + ":[\n  " + Joined(items, ",\n  ", toText) + "]";
}

}  // namespace

std::string ToJson(const TReference& reference) {
  return "{" + ListJson("pages", reference.Pages, PageJson) + ",\n" +
         ListJson("propertyEditors", reference.PropertyEditors, PropertyEditorJson) + ",\n" +
         ListJson("componentEditors", reference.ComponentEditors, ComponentEditorJson) + ",\n" +
         ListJson("classes", reference.Classes, ClassJson) + "}\n";
}

}  // namespace qelref
