// What of a form its unit names, and writing the unit's two files.
#include "ide/formunit.h"

#include "ide/ancestors.h"
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

/// The field of a frame whose class is that of a form file in the folder gets that class.
void AddField(TComponent& component, const std::string& folder, TUnitForm& form) {
  const TClass& type = component.ClassType();
  TUnitField field{component.Name(), {type.CppName()}, HeaderOf(type)};
  for (const TClass* each = type.Parent(); each; each = each->Parent()) {
    field.Classes.push_back(each->Name());
  }
  if (component.Inline() && component.FileClassName() != type.Name()) {
    const TAncestorFile file = FindFormFile(folder, component.FileClassName(), form.ClassName);
    field.Classes.insert(field.Classes.begin(), file.ClassName);
    field.Header = HeaderBeside(file.FileName);
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

std::string HeaderBeside(const std::string& formFile) {
  return ChangeFileExt(ExtractFileName(formFile), ".h");
}

TUnitForm UnitFormOf(TComponent& root, const THandlers& handlers, const std::string& formFile,
                     const TUnitAncestor& ancestor, std::vector<std::string>& notes) {
  TUnitForm form;
  form.Base = ancestor.ClassName;
  form.BaseHeader = ancestor.Header;
  form.Loader = ancestor.Loader;
  form.ClassName = root.FileClassName();
  form.UnitName = ChangeFileExt(ExtractFileName(formFile), {});
  const std::string folder = ExtractFileDir(formFile);
  form.Incomplete = !IsKnown(root);
  for (int i = 0; i < root.ComponentCount(); ++i) {
    TComponent& component = *root.Components(i);
    if (!IsKnown(component)) form.Incomplete = true;
    if (component.Name().empty() || IsStandIn(component)) continue;
    if (ancestor.Form && ancestor.Form->FindComponent(component.Name())) continue;
    if (root.ClassType().FindPublished(component.Name())) {
      throw EUnitError(Concat("The component ", component.Name(),
                              " would hide the form's property of that name"));
    }
    AddField(component, folder, form);
  }
  if (form.Incomplete) {
    notes.push_back("The form holds what the designer doesn't know; nothing is removed");
  }
  for (const auto& [name, event] : handlers.All(root)) {
    if (handlers.Inherited().contains(name)) continue;
    form.Handlers.push_back({name, std::string(event->TypeName()), std::string(event->Parameters)});
  }
  return form;
}

std::vector<std::string> WriteUnitFiles(TComponent& root, const THandlers& handlers,
                                        const std::string& formFile,
                                        const TUnitAncestor& ancestor) {
  const std::string headerFile = ChangeFileExt(formFile, ".h");
  const std::string sourceFile = ChangeFileExt(formFile, ".cpp");
  std::vector<std::string> notes;
  const TUnitForm form = UnitFormOf(root, handlers, formFile, ancestor, notes);
  const std::string header = ReadPresent(headerFile), source = ReadPresent(sourceFile);
  TUnitTexts texts = WriteUnit(form, header, source);
  // The header last: a source alone, as a broken attempt leaves it, can be brought up to date.
  Replace(sourceFile, source, texts.Source);
  Replace(headerFile, header, texts.Header);
  notes.insert(notes.end(), texts.Notes.begin(), texts.Notes.end());
  return notes;
}

}  // namespace ide
