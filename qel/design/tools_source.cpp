// The tools that make text for C++ sources. It goes to the clipboard, for whatever editor the
// sources are written in.
#include <iterator>

#include "qel/design/toollist.h"
#include "qel/design/tools.h"
#include "vcl/db/dataset.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/strings.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/valuetext.h"
#include "vcl/transfer/clipboard.h"

namespace qel {

using namespace vcl;

namespace {

/// A way to write a comment; the end of a line comment is that of its line.
struct TCommentStyle {
  const char* Caption;
  const char* Begin;
  const char* Line;
  const char* End;
};
constexpr TCommentStyle CommentStyles[] = {
    {"// Line comments", "", "// ", ""},
    {"/// Documentation", "", "/// ", ""},
    {"/* Block comment */", "/*\n", " * ", " */\n"},
};

/// A line as part of a comment that it cannot end, nor lengthen by a backslash at its end.
std::string InComment(std::string line) {
  for (std::size_t at = 0; (at = line.find("*/", at)) != std::string::npos;)
    line.insert(at + 1, " ");
  if (line.ends_with('\\')) line += " .";
  return line;
}

std::string Commented(const std::string& text, const TCommentStyle& style) {
  TStringList lines;
  lines.SetText(text);
  std::string comment = style.Begin;
  for (int i = 0; i < lines.Count(); ++i) {
    const std::string line = style.Line + InComment(lines.Strings(i));
    comment.append(line, 0, line.find_last_not_of(' ') + 1) += '\n';
  }
  return comment + style.End;
}

void ShowSources(const std::string& caption, std::vector<std::string> lines,
                 const std::function<std::string(int)>& source) {
  TQELToolList list{caption, std::move(lines), source};
  list.Action = "&Copy";
  list.Act = [&](int index) { Clipboard()->SetAsText(source(index)); };
  ShowToolList(list);
}

}  // namespace

void PasteComments(TEnvironment&) {
  const std::string text = Clipboard()->AsText();
  std::vector<std::string> styles;
  for (const TCommentStyle& each : CommentStyles) {
    if (!text.empty()) styles.push_back(each.Caption);
  }
  ShowSources("Paste Comments", std::move(styles),
              [&](int index) { return Commented(text, CommentStyles[index]); });
}

namespace {

/// A C++ string literal.
std::string Literal(const std::string& text) {
  std::string literal = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') literal += '\\';
    literal += c;
  }
  return literal + '"';
}

std::string DefinitionOf(const TFieldDef& field) {
  std::string text =
      Concat("  fields.Add(", Literal(field.Name()),
             ", vcl::", ValueToText(TypeInfoOf<TFieldType>(), std::int64_t{field.DataType()}));
  if (field.Size() > 0 || field.Required()) text += ", " + IntToStr(field.Size());
  return Concat(text, field.Required() ? ", true" : "", ");\n");
}

std::string SourceOf(const TDataSet& table) {
  const TFieldDefs& fields = *table.FieldDefs();
  if (fields.Count() == 0) return "// It has no fields: open it first, or define them.\n";
  std::string source =
      Concat("void Define", table.Name(), "(vcl::TDataSet& table) {\n",
             "  vcl::TFieldDefs& fields = *table.FieldDefs();\n", "  fields.Clear();\n");
  for (int i = 0; i < fields.Count(); ++i) source += DefinitionOf(*fields.Items(i));
  return source + "}\n";
}

}  // namespace

void GenerateTableSource(TEnvironment& environment) {
  const TComponent& root = DesignerInFront(environment).Root();
  std::vector<const TDataSet*> tables;
  std::vector<std::string> names;
  for (int i = 0; i < root.ComponentCount(); ++i) {
    const auto* table = dynamic_cast<const TDataSet*>(root.Components(i));
    if (!table) continue;
    tables.push_back(table);
    names.push_back(Concat(table->Name(), ": ", table->ClassName()));
  }
  ShowSources("Generate Table Source", std::move(names),
              [&](int index) { return SourceOf(*tables[static_cast<std::size_t>(index)]); });
}

}  // namespace qel
