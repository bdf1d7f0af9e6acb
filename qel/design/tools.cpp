// The tools that show lists or act at once: components without a window, names, paths, INI files,
// the ASCII table.
#include "qel/design/tools.h"

#include <filesystem>

#include "qel/core/Qelcomponent.h"
#include "qel/design/toollist.h"
#include "vcl/controls/control.h"
#include "vcl/dialogs/dialogs.h"
#include "vcl/forms/application.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/inifile.h"
#include "vcl/rtl/strings.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace qel {

using namespace vcl;

vcl::TDesigner& DesignerInFront(TEnvironment& environment) {
  if (TDesigner* designer = environment.ActiveDesigner()) return *designer;
  throw EInvalidOperation("No form is open in the designer");
}

namespace {

template <class Wanted>
std::vector<TComponent*> ComponentsOf(const TDesigner& designer, const Wanted& wanted) {
  std::vector<TComponent*> components;
  const TComponent& root = designer.Root();
  for (int i = 0; i < root.ComponentCount(); ++i) {
    if (wanted(*root.Components(i))) components.push_back(root.Components(i));
  }
  return components;
}

std::vector<std::string> LinesOf(const TStrings& list) {
  std::vector<std::string> lines;
  for (int i = 0; i < list.Count(); ++i) lines.push_back(list.Strings(i));
  return lines;
}

std::string Describe(const TComponent& component) {
  return Concat("Name: ", component.Name(), "\nClass: ", component.ClassName(),
                "\nUnit: ", component.ClassType().Unit());
}

}  // namespace

void ActivateScreenSaver(TEnvironment&) {
  ::PostMessageW(Application()->Handle(), WM_SYSCOMMAND, SC_SCREENSAVE, 0);
}

void ShowNonVisualComponents(TEnvironment& environment) {
  TDesigner& designer = DesignerInFront(environment);
  const auto found = ComponentsOf(designer, [](const TComponent& component) {
    return !dynamic_cast<const TControl*>(&component) && !component.HasParent();
  });
  const auto at = [&](int index) { return found[static_cast<std::size_t>(index)]; };
  TQELToolList list{"Non-Visual Components", {}, [&](int index) { return Describe(*at(index)); }};
  for (const TComponent* each : found) list.Lines.push_back(each->Name());
  list.Action = "&Select";
  list.Act = [&](int index) { designer.SetSelection({at(index)}); };
  list.Switch = "S&how their icons on the form";
  list.Switched = designer.ShowNonVisual();
  list.OnSwitch = [&](bool show) { designer.SetShowNonVisual(show); };
  ShowToolList(list);
}

void RepairComponentNames(TEnvironment& environment) {
  TDesigner& designer = DesignerInFront(environment);
  const auto problemOf = [&](const TComponent& component) {
    return designer.NameProblem(component, component.Name());
  };
  const auto wrong = ComponentsOf(
      designer, [&](const TComponent& component) { return !problemOf(component).empty(); });
  TQELToolList list{"Repair Component Names", {}, [&](int index) {
                      const TComponent& component = *wrong[static_cast<std::size_t>(index)];
                      return Concat(problemOf(component), ".\n", Describe(component));
                    }};
  for (const TComponent* each : wrong) {
    list.Lines.push_back(
        Concat(each->Name().empty() ? "(no name)" : each->Name(), ": ", each->ClassName()));
  }
  list.Action = "&Rename them all";
  list.Act = [&](int) {
    for (TComponent* each : wrong) each->SetName(designer.UniqueName(each->ClassName()));
    designer.Modified();
  };
  ShowToolList(list);
}

namespace {

/// A name without a folder may be found wherever the program looks for it.
bool IsGone(const std::string& fileName) {
  const std::filesystem::path path(ToUtf16(fileName));
  std::error_code error;
  return path.is_absolute() &&
         std::filesystem::status(path, error).type() == std::filesystem::file_type::not_found;
}

}  // namespace

void CleanProjectPaths(TEnvironment& environment) {
  std::vector<std::string> gone = environment.RememberedFiles();
  std::erase_if(gone, [](const std::string& each) { return !IsGone(each); });
  TQELToolList list{"Clean Project Paths", gone, [&](int index) {
                      return Concat("The designer remembers a file that is no longer there:\n",
                                    gone[static_cast<std::size_t>(index)]);
                    }};
  list.Action = "&Forget them all";
  list.Act = [&](int) {
    for (const std::string& each : gone) environment.ForgetFile(each);
  };
  ShowToolList(list);
}

void ExploreIniFile(TEnvironment&) {
  TOpenDialog dialog(nullptr);
  dialog.SetFilter("INI Files (*.ini)|*.ini|All Files (*.*)|*.*");
  dialog.SetOptions({ofHideReadOnly, ofFileMustExist, ofPathMustExist});
  if (!dialog.Execute()) return;
  const TIniFile file(dialog.FileName());
  TStringList sections;
  file.ReadSections(sections);
  ShowToolList(
      {Concat("Ini File Explorer - ", dialog.FileName()), LinesOf(sections), [&](int index) {
         TStringList values;
         file.ReadSectionValues(sections.Strings(index), values);
         return values.Text();
       }});
}

namespace {

constexpr int AsciiCharacters = 128;

constexpr const char* ControlNames[] = {
    "NUL", "SOH", "STX", "ETX", "EOT", "ENQ", "ACK", "BEL", "BS",  "HT",  "LF",
    "VT",  "FF",  "CR",  "SO",  "SI",  "DLE", "DC1", "DC2", "DC3", "DC4", "NAK",
    "SYN", "ETB", "CAN", "EM",  "SUB", "ESC", "FS",  "GS",  "RS",  "US",  "SPACE",
};

/// The character itself, or the name of one that cannot be seen (RFC 20).
std::string AsciiName(int code) {
  if (code < static_cast<int>(std::size(ControlNames))) return ControlNames[code];
  return code == AsciiCharacters - 1 ? "DEL" : std::string(1, static_cast<char>(code));
}

}  // namespace

void ViewAsciiTable(TEnvironment&) {
  TQELToolList list{"Ascii Table", {}, [](int code) {
                      return Concat("Character: ", AsciiName(code), "\nDecimal: ", IntToStr(code),
                                    "\nHexadecimal: $", IntToHex(static_cast<unsigned>(code), 2),
                                    "\nIn a form file: #", IntToStr(code));
                    }};
  for (int code = 0; code < AsciiCharacters; ++code) {
    const std::string number = IntToStr(code);
    list.Lines.push_back(Concat(std::string(3 - number.size(), ' '), number, "  $",
                                IntToHex(static_cast<unsigned>(code), 2), "  ", AsciiName(code)));
  }
  ShowToolList(list);
}

void ShowToolsAbout(TEnvironment&) { TQELAbout().Showabout(); }

}  // namespace qel
