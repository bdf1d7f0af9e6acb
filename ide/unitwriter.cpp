// Writing a unit anew, and bringing one up to date without touching what the user wrote.
#include "ide/unitwriter.h"

#include <algorithm>
#include <set>
#include <utility>

#include "ide/cppkeywords.h"
#include "ide/unitparts.h"
#include "vcl/rtl/text.h"

namespace ide {

using namespace vcl;
using TSort = TClassMember::TSort;

namespace {

// What is written.

std::string FieldLine(const TUnitField& field) {
  return Concat("  ", field.Classes.front(), "* ", field.Name, " = nullptr;\n");
}
std::string HandlerLine(const TUnitHandler& handler) {
  return Concat("  void ", handler.Name, "(", handler.Parameters, ");\n");
}
std::string TableLine(const TUnitForm& form, std::string_view sort, const std::string& name) {
  return Concat("vcl::", sort, "<&", form.ClassName, "::", name, ">(\"", name, "\"),");
}
std::string Stub(const TUnitForm& form, const TUnitHandler& handler) {
  return Concat("void ", form.ClassName, "::", handler.Name, "(", handler.Parameters, ") {\n}\n");
}

/// A class without fields, handlers and lines in its table, to be brought up to date.
std::string NewHeader(const TUnitForm& form) {
  return Concat("// ", form.ClassName, ": the form of ", form.UnitName, ".dfm.\n#pragma once\n\n",
                form.BaseHeader.empty() ? "" : Concat("#include \"", form.BaseHeader, "\"\n"),
                "#include \"vcl/vcl.h\"\n\nclass ", form.ClassName, " : public ", form.Base,
                " {\n public:\n  explicit ", form.ClassName,
                "(vcl::TComponent* owner);\n  static const vcl::TClass& Class();\n"
                "  const vcl::TClass& ClassType() const override { return Class(); }\n\n"
                " private:\n};\n");
}
std::string NewSource(const TUnitForm& form) {
  const std::string& name = form.ClassName;
  // The base's form file is not the last one.
  const std::string owner =
      form.BaseHeader.empty() ? "owner" : Concat("vcl::InheritedBy<", name, ">(owner)");
  return Concat("#include \"", form.UnitName, ".h\"\n\nconst vcl::TClass& ", name,
                "::Class() {\n  static const vcl::TClass info = vcl::Describe<", name, ", ",
                form.Base, ">(\n      \"", name, "\", \"", form.UnitName,
                "\",\n      {\n      });\n  return info;\n}\n\n", name, "::", name,
                "(vcl::TComponent* owner) : ", form.Base.substr(form.Base.rfind(':') + 1), "(",
                owner, ") { ", form.Loader, "(); }\n");
}

// What is refused.

void CheckName(const std::string& name, std::set<std::string>& names) {
  if (!IsValidIdent(name)) {
    throw EUnitError(Concat("\"", name, "\" can't be the name of a C++ class's member"));
  }
  if (IsCppKeyword(name)) throw EUnitError(Concat("\"", name, "\" is a word of C++ itself"));
  if (!names.insert(UpperCase(name)).second) {
    throw EUnitError(Concat("\"", name, "\" names two things of the form"));
  }
}

void CheckNames(const TUnitForm& form) {
  std::set<std::string> names;
  CheckName(form.ClassName, names);
  for (const TUnitField& field : form.Fields) CheckName(field.Name, names);
  for (const TUnitHandler& handler : form.Handlers) CheckName(handler.Name, names);
}

/// Brings one unit's two texts up to date.
class TUnitUpdate {
 public:
  TUnitUpdate(const TUnitForm& form, const std::string& header, const std::string& source)
      : FForm(form),
        FNewHeader(header.empty()),
        FHeaderText(FNewHeader ? NewHeader(form) : header),
        FHeader(form.UnitName + ".h", FHeaderText),
        FSource(form.UnitName + ".cpp", source),
        FClass(FindClass(FHeader, form.ClassName)),
        FTable(FindTable(FSource, form.ClassName)) {
    if (HasClass(FSource, form.ClassName)) {
      FSource.Refuse(0,
                     Concat("the class ", form.ClassName, " is declared here and in the header"));
    }
  }

  TUnitTexts Run() {
    for (const TTableEntry& entry : FTable.Entries) RemoveGone(entry);
    for (const TUnitField& field : FForm.Fields) Update(field);
    for (const TUnitHandler& handler : FForm.Handlers) Update(handler);
    if (FNewHeader) DeclareOthers();
    InsertDeclarations();
    InsertLines();
    InsertStubs();
    return {FHeaderEdits.Apply(FHeader.Text()), FSourceEdits.Apply(FSource.Text()), FNotes};
  }

 private:
  // What the form has.
  bool IsOfForm(const TTableEntry& entry) const {
    const auto named = [&](const auto& each) { return SameText(each.Name, entry.Name); };
    return entry.Sort == TSort::Field ? std::ranges::any_of(FForm.Fields, named)
                                      : std::ranges::any_of(FForm.Handlers, named);
  }
  const TTableEntry* EntryOf(const std::string& name) const {
    const auto found = std::ranges::find_if(
        FTable.Entries, [&](const TTableEntry& entry) { return SameText(entry.Name, name); });
    return found == FTable.Entries.end() ? nullptr : &*found;
  }
  /// The member of that name; raises EUnitError when it is of the other sort.
  const TClassMember* MemberOf(const std::string& name, TSort sort) const {
    const TClassMember* member = FClass.Find(name);
    if (member && member->Sort != sort) {
      FHeader.Refuse(FHeader[member->First].Begin,
                     Concat(name, " is something else here than in the form"));
    }
    return member;
  }

  // What is gone.
  void RemoveGone(const TTableEntry& entry) {
    if (FForm.Incomplete || IsOfForm(entry)) return;
    const bool comma = FSource.Is(entry.Last + 1, ",");
    FSourceEdits.Remove(FSource, FSource[entry.First].Begin,
                        FSource[entry.Last + (comma ? 1 : 0)].End);
    entry.Sort == TSort::Field ? RemoveField(entry) : RemoveHandler(entry);
  }
  void RemoveField(const TTableEntry& entry) {
    if (const TClassMember* member = FClass.Find(entry.Name)) RemoveMember(*member);
    if (FHeader.Uses(entry.Name) + FSource.Uses(entry.Name) > 2) {
      Note(Concat(entry.Name, " is gone from the form, and the unit still uses it"));
    }
  }
  void RemoveHandler(const TTableEntry& entry) {
    const TClassMember* member = FClass.Find(entry.Name);
    const TMethodBody body = FindBody(FSource, FForm.ClassName, entry.Name);
    if (!member || !IsForgotten(entry.Name, body)) {
      Note(Concat("No event of the form calls ", entry.Name, " any more; the method is kept"));
      return;
    }
    RemoveMember(*member);
    const std::size_t begin = FSource[body.First].Begin, line = FSource.LineBegin(begin);
    const std::size_t blank = line == 0 ? 0 : FSource.LineBegin(line - 1);
    const bool apart = FSource.BeginsLine(begin) && FSource.RestOfLine(blank) == line &&
                       Trim(FSource.Text().substr(blank, line - blank)).empty();
    if (apart) FSourceEdits.Replace(blank, line, {});
    FSourceEdits.Remove(FSource, begin, FSource[body.Close].End);
  }
  /// True for a handler that nobody has written anything for: its body is empty, and only its
  /// declaration, its definition and its line in the table name it.
  bool IsForgotten(const std::string& name, const TMethodBody& body) const {
    if (!body) return false;
    const std::size_t begin = FSource[body.Open].End;
    const std::string_view inside = FSource.Text().substr(begin, FSource[body.Close].Begin - begin);
    return Trim(inside).empty() && FHeader.Uses(name) + FSource.Uses(name) == 3;
  }
  void RemoveMember(const TClassMember& member) {
    RefuseShared(member);
    FHeaderEdits.Remove(FHeader, FHeader[member.First].Begin, FHeader[member.Last].End);
  }
  void RefuseShared(const TClassMember& member) const {
    if (!member.Shared) return;
    FHeader.Refuse(FHeader[member.First].Begin,
                   Concat(member.Name, " is declared together with others; give it its own line"));
  }

  // What is there or comes.
  void Update(const TUnitField& field) {
    const TClassMember* member = MemberOf(field.Name, TSort::Field);
    if (field.Classes.empty() && !member) {
      Note(Concat("The header of the class of ", field.Name, " is not known; declare it by hand"));
      return;
    }
    if (!EntryOf(field.Name)) FNewFieldLines.push_back(TableLine(FForm, "Field", field.Name));
    if (member && (field.Classes.empty() || Accepts(field, *member))) return;
    FHeaders.insert(field.Header);
    if (!member) {
      FNewFields += FieldLine(field);
      return;
    }
    RefuseShared(*member);
    FHeaderEdits.Replace(FHeader[member->First].Begin, FHeader[member->Star].End,
                         field.Classes.front() + "*");
  }
  /// True when the field is declared as a pointer to the component's class or an ancestor.
  bool Accepts(const TUnitField& field, const TClassMember& member) const {
    const std::string_view declared = FHeader[member.Star - 1].Text;
    return std::ranges::any_of(field.Classes, [&](const std::string& name) {
      return name.substr(name.rfind(':') + 1) == declared;
    });
  }
  void Update(const TUnitHandler& handler) {
    if (handler.Parameters.empty()) {
      Note(Concat(handler.Name, " handles an event of the unknown type ", handler.EventType,
                  "; write its declaration, its line in the table and its body by hand"));
      return;
    }
    if (!EntryOf(handler.Name)) FNewMethodLines.push_back(TableLine(FForm, "Method", handler.Name));
    if (MemberOf(handler.Name, TSort::Method)) return;
    FNewHandlers += HandlerLine(handler);
    if (!FindBody(FSource, FForm.ClassName, handler.Name)) FStubs.push_back(Stub(FForm, handler));
  }

  /// What the source holds and the form doesn't name.
  void DeclareOthers() {
    for (const TMethod& each : FindMethods(FSource, FForm.ClassName)) {
      const bool handler = std::ranges::any_of(FForm.Handlers, [&](const TUnitHandler& other) {
        return SameText(other.Name, each.Name);
      });
      if (!handler) FNewHandlers += Concat("  void ", each.Name, each.Parameters, ";\n");
    }
  }

  // Places of what comes.

  /// The last declaration of a field or handler of the table.
  const TClassMember* LastMember(TSort sort) const {
    const TClassMember* last = nullptr;
    for (const TClassMember& member : FClass.Members) {
      if (member.Sort == sort && EntryOf(std::string(member.Name))) last = &member;
    }
    return last;
  }
  /// Where lines of the class begin that are to follow the token.
  void InsertAfter(std::size_t token, const std::string& lines) {
    const std::size_t end = FHeader[token].End, rest = FHeader.RestOfLine(end);
    FHeaderEdits.Insert(rest, rest == end ? "\n" + lines : lines);
  }
  void InsertDeclarations() {
    InsertHeaders();
    const TClassMember* field = LastMember(TSort::Field);
    const TClassMember* handler = LastMember(TSort::Method);
    std::string first = FNewFields, second = FNewHandlers;
    if (field && !first.empty()) InsertAfter(field->Last, std::exchange(first, {}));
    if (handler && !second.empty()) InsertAfter(handler->Last, std::exchange(second, {}));
    if (first.empty() && second.empty()) return;
    const bool apart = !second.empty() && (field || !first.empty());
    const std::string lines = Concat(first, apart ? "\n" : "", second);
    if (field) {
      InsertAfter(field->Last, lines);
    } else if (FClass.PrivateLabel) {
      InsertAfter(FClass.PrivateLabel, handler ? lines + "\n" : lines);
    } else {
      const std::size_t close = FHeader[FClass.Close].Begin;
      const bool ownLine = FHeader.BeginsLine(close);
      FHeaderEdits.Insert(ownLine ? FHeader.LineBegin(close) : close,
                          Concat(ownLine ? "" : "\n", " private:\n", lines));
    }
  }
  void InsertHeaders() {
    std::size_t last = 0;
    bool found = false;
    for (std::size_t i = 0; i < FHeader.Count(); ++i) {
      if (FHeader[i].Sort != TCppToken::TSort::Directive) continue;
      const std::string_view line = FHeader[i].Text;
      const bool include = line.find("include") != std::string_view::npos;
      if (include || line.find("pragma once") != std::string_view::npos) last = i, found = true;
      std::erase_if(FHeaders, [&](const std::string& header) {
        return include && line.find(Concat("\"", header, "\"")) != std::string_view::npos;
      });
    }
    std::string lines;
    for (const std::string& header : FHeaders) lines += Concat("#include \"", header, "\"\n");
    if (lines.empty()) return;
    found ? InsertAfter(last, lines) : FHeaderEdits.Insert(0, lines);
  }

  /// New fields follow the table's last field, handlers its last line.
  void InsertLines() {
    const TTableEntry* field = nullptr;
    for (const TTableEntry& entry : FTable.Entries) {
      if (entry.Sort == TSort::Field) field = &entry;
    }
    InsertLines(FNewFieldLines, field ? field->Last : FTable.Open);
    InsertLines(FNewMethodLines, FTable.Close - 1);
  }
  void InsertLines(const std::vector<std::string>& lines, std::size_t after) {
    if (lines.empty()) return;
    if (FSource.Is(after + 1, ",")) ++after;
    const bool comma = !FSource.Is(after, ",") && after != FTable.Open;
    std::size_t end = FSource[after].End;
    if (comma) FSourceEdits.Insert(end, ",");
    const std::size_t rest = FSource.RestOfLine(end);
    std::string text = rest == end ? "\n" : "";
    for (const std::string& line : lines) text += Concat("          ", line, "\n");
    if (rest == end && text.ends_with('\n')) text.pop_back();
    FSourceEdits.Insert(rest, text);
  }

  /// At the end of the source, or of the namespace that the class is in.
  void InsertStubs() {
    if (FStubs.empty()) return;
    const std::size_t brace = EndOfNamespace(FSource, FTable.Open);
    const bool inside = brace < FSource.Count();
    const std::string_view text = FSource.Text();
    const std::size_t at =
        inside ? (FSource.BeginsLine(FSource[brace].Begin) ? FSource.LineBegin(FSource[brace].Begin)
                                                           : FSource[brace].Begin)
               : text.size();
    const std::size_t last = at == 0 ? 0 : FSource.LineBegin(at - 1);
    const bool blank = inside && Trim(text.substr(last, at - last)).empty();
    std::string lines = at > 0 && text[at - 1] != '\n' ? "\n" : "";
    for (const std::string& stub : FStubs) lines += blank ? stub + "\n" : "\n" + stub;
    FSourceEdits.Insert(at, lines);
  }

  void Note(std::string note) { FNotes.push_back(std::move(note)); }

  const TUnitForm& FForm;
  const bool FNewHeader;
  const std::string FHeaderText;
  TCppText FHeader, FSource;
  TClassPart FClass;
  TTablePart FTable;
  TTextEdits FHeaderEdits, FSourceEdits;
  std::set<std::string> FHeaders;
  std::string FNewFields, FNewHandlers;
  std::vector<std::string> FNewFieldLines, FNewMethodLines, FStubs;
  std::vector<std::string> FNotes;
};

}  // namespace

TUnitTexts WriteUnit(const TUnitForm& form, const std::string& header, const std::string& source) {
  CheckNames(form);
  if (source.empty() && !header.empty()) {
    throw EUnitError(Concat(form.UnitName, ".h is there, and ", form.UnitName, ".cpp is not"));
  }
  return TUnitUpdate(form, header, source.empty() ? NewSource(form) : source).Run();
}

}  // namespace ide
