// What of a form its unit names, and writing the unit's two files.
#include "ide/formunit.h"

#include "ide/cpptext.h"
#include "ide/standins.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/files.h"
#include "vcl/rtl/keptdata.h"
#include "vcl/rtl/text.h"

namespace ide {

using namespace vcl;

namespace {

/// False when the component, or what is inside it, was not understood.
bool IsKnown(const TComponent& component) {
  const TKeptData* kept = component.Kept();
  return !IsStandIn(component) && (!kept || (kept->Properties.empty() && kept->Children.empty()));
}

/// What a form's unit includes for a class: one header for all of this library's.
std::string HeaderOf(const TClass& type) {
  return type.Header().starts_with("vcl/") ? "vcl/vcl.h" : type.Header();
}

void AddField(TComponent& component, TUnitForm& form) {
  const TClass& type = component.ClassType();
  TUnitField field{component.Name(), {type.CppName()}, HeaderOf(type)};
  for (const TClass* each = type.Parent(); each; each = each->Parent()) {
    field.Classes.push_back(each->Name());
  }
  form.Fields.push_back(std::move(field));
}

std::string ReadPresent(const std::string& fileName) {
  return ReadWholeFile(fileName).value_or(std::string());
}

void Replace(const std::string& fileName, const std::string& before, const std::string& contents) {
  if (before != contents) ReplaceWholeFile(fileName, contents);
}

}  // namespace

TUnitForm UnitFormOf(TComponent& root, const THandlers& handlers, const std::string& unitName,
                     std::vector<std::string>& notes) {
  TUnitForm form;
  form.ClassName = root.FileClassName();
  form.UnitName = unitName;
  form.Incomplete = !IsKnown(root);
  for (int i = 0; i < root.ComponentCount(); ++i) {
    TComponent& component = *root.Components(i);
    if (!IsKnown(component)) form.Incomplete = true;
    if (component.Name().empty() || IsStandIn(component)) continue;
    if (root.ClassType().FindPublished(component.Name())) {
      throw EUnitError(Concat("The component ", component.Name(),
                              " would hide the form's property of that name"));
    }
    AddField(component, form);
  }
  if (form.Incomplete) {
    notes.push_back("The form holds what the designer doesn't know; nothing is removed");
  }
  for (const auto& [name, event] : handlers.All(root)) {
    form.Handlers.push_back({name, std::string(event->TypeName()), std::string(event->Parameters)});
  }
  return form;
}

std::vector<std::string> WriteUnitFiles(TComponent& root, const THandlers& handlers,
                                        const std::string& formFile) {
  const std::string headerFile = ChangeFileExt(formFile, ".h");
  const std::string sourceFile = ChangeFileExt(formFile, ".cpp");
  const std::string unit = ChangeFileExt(ExtractFileName(formFile), {});
  std::vector<std::string> notes;
  const TUnitForm form = UnitFormOf(root, handlers, unit, notes);
  const std::string header = ReadPresent(headerFile), source = ReadPresent(sourceFile);
  TUnitTexts texts = WriteUnit(form, header, source);
  // The header last: a source alone, as a broken attempt leaves it, can be brought up to date.
  Replace(sourceFile, source, texts.Source);
  Replace(headerFile, header, texts.Header);
  notes.insert(notes.end(), texts.Notes.begin(), texts.Notes.end());
  return notes;
}

}  // namespace ide
