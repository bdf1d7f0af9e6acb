// The reference as one HTML page, which is searched by a script of its own.
#include <string_view>

#include "tools/qelref/reference.h"

namespace qelref {
namespace {

constexpr std::string_view Head = R"html(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width">
<title>Reference</title>
<style>
body { margin: 0; font: 15px/1.45 sans-serif; color: #222; background: #fff; display: flex; }
nav { width: 17em; height: 100vh; position: sticky; top: 0; flex: none; overflow: auto;
  box-sizing: border-box; padding: 1em; background: #f3f4f6; border-right: 1px solid #ccc; }
nav input { width: 100%; box-sizing: border-box; padding: .4em; font: inherit; }
nav a { display: block; color: #14508c; text-decoration: none; }
nav h2 { font-size: 1em; margin: 1em 0 .2em; }
main { padding: 1em 2em; min-width: 0; max-width: 70em; }
section { border-top: 1px solid #ddd; padding-bottom: 1em; }
h3 { margin: .8em 0 .2em; }
p { margin: .3em 0; }
.place { color: #666; }
table { border-collapse: collapse; width: 100%; margin-top: .6em; }
th, td { text-align: left; vertical-align: top; padding: .25em .6em .25em 0;
  border-bottom: 1px solid #eee; }
td:first-child { font-weight: bold; }
code { font: 13px/1.4 monospace; }
[hidden] { display: none; }
</style>
</head>
<body>
)html";

/// A class stays when its name or sentence has all the words, then with all its lines; else with
/// those lines that have them, together with the class's name.
constexpr std::string_view Script = R"html(<script>
const search = document.getElementById('search');
const none = document.getElementById('none');
const has = (text, words) => words.every(word => text.includes(word));
const classes = Array.from(document.querySelectorAll('section'), section => ({
  section,
  link: document.querySelector('nav a[href="#' + section.id + '"]'),
  text: section.dataset.text.toLowerCase(),
  rows: Array.from(section.querySelectorAll('tbody tr'), row => ({
    row, text: (section.id + '.' + row.textContent).toLowerCase() })),
}));
function find() {
  const words = search.value.toLowerCase().split(/\s+/).filter(word => word);
  let count = 0;
  for (const each of classes) {
    const whole = has(each.text, words);
    let found = whole;
    for (const { row, text } of each.rows) {
      row.hidden = !whole && !has(text, words);
      found = found || !row.hidden;
    }
    each.section.hidden = each.link.hidden = !found;
    if (found) ++count;
  }
  none.hidden = count > 0;
}
search.addEventListener('input', find);
find();
</script>
</body>
</html>
)html";

std::string Escaped(std::string_view text) {
  std::string escaped;
  for (const char c : text) {
    switch (c) {
      case '&': escaped += "&amp;"; break;
      case '<': escaped += "&lt;"; break;
      case '>': escaped += "&gt;"; break;
      case '"': escaped += "&quot;"; break;
      default: escaped += c;
    }
  }
  return escaped;
}

std::string Code(std::string_view text) { return "<code>" + Escaped(text) + "</code>"; }

std::string Cell(const std::string& html) { return "<td>" + html + "</td>"; }

std::string Row(const TEntry& entry) {
  return "<tr>" + Cell(Escaped(entry.Name)) + Cell(Code(entry.Type)) +
         Cell(entry.Default ? Code(*entry.Default) : std::string()) +
         Cell(Escaped(entry.Sentence) + (entry.Stored ? "" : " <i>Not stored.</i>")) + "</tr>\n";
}

bool Has(const TReference& reference, const std::string& className) {
  for (const TClassReference& each : reference.Classes) {
    if (each.Name == className) return true;
  }
  return false;
}

std::string Ancestor(const TReference& reference, const TClassReference& aClass) {
  if (aClass.Ancestor.empty()) return {};
  const std::string name = Code(aClass.Ancestor);
  const bool here = Has(reference, aClass.Ancestor);
  return "Descends from " +
         (here ? "<a href=\"#" + aClass.Ancestor + "\">" + name + "</a>" : name) + ". ";
}

std::string Section(const TReference& reference, const TClassReference& aClass) {
  std::string text = "<section id=\"" + aClass.Name + "\" data-text=\"" +
                     Escaped(aClass.Name + " " + aClass.Sentence) + "\">\n<h3>" + aClass.Name +
                     "</h3>\n<p>" + Escaped(aClass.Sentence) + "</p>\n<p class=\"place\">" +
                     Ancestor(reference, aClass) + "Header " + Code(aClass.Header) + ".";
  if (aClass.Page) text += " On the palette page \"" + Escaped(*aClass.Page) + "\".";
  text += "</p>\n";
  if (!aClass.Published.empty()) {
    text +=
        "<table><thead><tr><th>Property</th><th>Type</th><th>Default</th><th>What it is</th>"
        "</tr></thead>\n<tbody>\n" +
        Joined(aClass.Published, "", Row) + "</tbody></table>\n";
  }
  return text + "</section>\n";
}

std::string Links(const TReference& reference, const char* title, bool library) {
  std::string text = std::string("<h2>") + title + "</h2>\n";
  for (const TClassReference& each : reference.Classes) {
    if (each.FromLibrary != library) continue;
    text += "<a href=\"#" + each.Name + "\">" + each.Name + "</a>\n";
  }
  return text;
}

}  // namespace

std::string ToHtml(const TReference& reference) {
  std::string text(Head);
  text +=
      "<nav>\n<input id=\"search\" type=\"search\" placeholder=\"Search\" autofocus>\n" +
      Links(reference, "Package", false) + Links(reference, "Class library", true) +
      "</nav>\n<main>\n<h1>Reference</h1>\n<p id=\"none\" hidden>Nothing has these words.</p>\n";
  for (const TClassReference& each : reference.Classes) text += Section(reference, each);
  text += "</main>\n";
  return text += Script;
}

}  // namespace qelref
