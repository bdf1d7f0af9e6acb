#include "design/tools.h"

#include "core/Qelcomponent.h"
#include "design/toollist.h"
#include "host/rtl/convert.h"
#include "host/rtl/exceptions.h"
#include "host/rtl/inifile.h"
#include "host/rtl/strings.h"
#include "host/rtl/text.h"
#include "host/vcl/application.h"
#include "host/vcl/control.h"
#include "host/vcl/dialogs.h"

namespace qel {

using namespace vcl;

namespace {

TDesigner& ActiveDesigner(TEnvironment& environment) {
  if (TDesigner* designer = environment.ActiveDesigner()) return *designer;
  throw EInvalidOperation("No form is open in the designer");
}

std::vector<TComponent*> ComponentsOf(const TDesigner& designer,
                                      bool (*wanted)(const TComponent& component)) {
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
  return Concat("Name: ", component.Name(), "\r\nClass: ", component.ClassName(),
                "\r\nUnit: ", component.ClassType().Unit());
}

}  // namespace

void ActivateScreenSaver(TEnvironment&) {
  ::PostMessageW(Application()->Handle(), WM_SYSCOMMAND, SC_SCREENSAVE, 0);
}

void ShowNonVisualComponents(TEnvironment& environment) {
  TDesigner& designer = ActiveDesigner(environment);
  const auto found = ComponentsOf(designer, [](const TComponent& component) {
    return dynamic_cast<const TControl*>(&component) == nullptr;
  });
  TQELToolList list{"Non-Visual Components", {}, [&](int index) {
                      return Describe(*found[static_cast<std::size_t>(index)]);
                    }};
  for (const TComponent* each : found) list.Lines.push_back(each->Name());
  list.Action = "&Select";
  list.Act = [&](int index) { designer.SetSelection({found[static_cast<std::size_t>(index)]}); };
  ShowToolList(list);
}

void RepairComponentNames(TEnvironment& environment) {
  TDesigner& designer = ActiveDesigner(environment);
  const auto unnamed =
      ComponentsOf(designer, [](const TComponent& component) { return component.Name().empty(); });
  TQELToolList list{"Repair Component Names", {}, [&](int index) {
                      return Concat("It has no name, so that no handler can reach it.\r\n",
                                    Describe(*unnamed[static_cast<std::size_t>(index)]));
                    }};
  for (const TComponent* each : unnamed) list.Lines.push_back(each->ClassName());
  list.Action = "&Name them all";
  list.Act = [&](int) {
    for (TComponent* each : unnamed) each->SetName(designer.UniqueName(each->ClassName()));
    designer.Modified();
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
                      return Concat("Character: ", AsciiName(code), "\r\nDecimal: ", IntToStr(code),
                                    "\r\nHexadecimal: $", IntToHex(static_cast<unsigned>(code), 2),
                                    "\r\nIn a form file: #", IntToStr(code));
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
