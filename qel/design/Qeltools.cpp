// The add-in: its menu, what each item calls, and the user's files, links and addresses.
#include "qel/design/Qeltools.h"

#include <array>
#include <cstddef>

#include "qel/design/autosave.h"
#include "qel/design/tools.h"
#include "qel/design/toolsettings.h"
#include "vcl/forms/application.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

#include <shellapi.h>

namespace qel {
namespace {

using namespace vcl;

/// The tools that the menu itself sees to, with the settings.
enum TOwnTool : std::size_t { None, AutoSave, Files, Links, Settings, Contact, OwnTools };

/// An item of the menu. Those without a procedure are the menu's own.
struct TTool {
  const char* Caption;
  void (*Run)(TEnvironment&);
  const char* Hint;
  TOwnTool Own = None;
};

constexpr TTool Tools[] = {
    {"Activate Screensaver", &ActivateScreenSaver, "Starts the screen saver"},
    {"Non-Visual Components", &ShowNonVisualComponents,
     "Lists the components that are no controls, and hides their icons"},
    {"Paste Comments...", &PasteComments, "Makes C++ comments of the text on the clipboard"},
    {"Auto Save Files", nullptr, "Saves the open forms every few minutes", AutoSave},
    {"Clean Project Paths", &CleanProjectPaths, "Forgets files that are no longer there"},
    {"Search && Replace Text", &SearchAndReplace, "Replaces a text in all components of the form"},
    {"Repair Component Names", &RepairComponentNames,
     "Renames components whose names no C++ class can have"},
    {"Ini File Explorer", &ExploreIniFile, "Shows the sections and values of an INI file"},
    {"View Clipboard Contents", &ViewClipboard, "Shows what is on the clipboard"},
    {"View Ascii Table", &ViewAsciiTable, "Shows the characters and their numbers"},
    {"Generate Table Source", &GenerateTableSource,
     "Writes the C++ source that defines the fields of a data set"},
    {"My Personal Files", nullptr, "Opens one of your files", Files},
    {"My Personal Links", nullptr, "Opens one of your links", Links},
    {"Properties...", nullptr, "Sets your files, links and addresses", Settings},
    {"Contact QEL", nullptr, "", Contact},
    {"About QEL", &ShowToolsAbout, "Says what the library is"},
};

/// The ways to contact, and what goes in front of an address that says no protocol.
constexpr struct {
  const char* Caption;
  std::string TQELToolSettings::*Address;
  const char* Protocol;
} Contacts[] = {
    {"Home page", &TQELToolSettings::HomePage, "http://"},
    {"Send e-mail", &TQELToolSettings::Mail, "mailto:"},
    {"Pager", &TQELToolSettings::Pager, "mailto:"},
};

/// The system answers with a number of at most 32 when it cannot open the file or address.
void Open(const std::string& target) {
  constexpr INT_PTR lastError = 32;
  const HINSTANCE answer = ::ShellExecuteW(
      Application()->Handle(), nullptr, ToUtf16(target).c_str(), nullptr, nullptr, SW_SHOWNORMAL);
  if (reinterpret_cast<INT_PTR>(answer) <= lastError) {
    throw EInOutError(Concat("'", target, "' cannot be opened"));
  }
}

TMenuItem* AddItem(TMenuItem& menu, const std::string& caption, TNotifyEvent click) {
  auto* item = new TMenuItem(&menu);
  item->SetCaption(caption);
  item->OnClick = std::move(click);
  menu.Add(item);
  return item;
}

void Disable(TMenuItem& item, const std::string& reason) {
  item.SetEnabled(false);
  item.SetHint(reason);
}

class TQELTools : public TExpert {
 public:
  explicit TQELTools(TEnvironment& environment)
      : FEnvironment(environment),
        FSettings(LoadToolSettings()),
        FAutoSave(environment),
        FMenu(nullptr) {
    FMenu.SetCaption("QEL &Tools");
    for (const TTool& tool : Tools) AddTool(tool);
    FOwn[AutoSave]->OnClick = {this, &TQELTools::ChooseAutoSave};
    FOwn[Settings]->OnClick = {this, &TQELTools::EditProperties};
    FAutoSave.SetMinutes(FSettings.AutoSave);
    FillLists();
    environment.MainMenu().Items()->Add(&FMenu);
  }

 private:
  void AddTool(const TTool& tool) {
    TMenuItem* item = AddItem(FMenu, tool.Caption, nullptr);
    item->SetHint(tool.Hint);
    if (tool.Run) item->OnClick = [this, run = tool.Run](TObject*) { run(FEnvironment); };
    if (tool.Own != None) FOwn[tool.Own] = item;
  }

  void FillLists() {
    FillLinks(*FOwn[Files], FSettings.Files);
    FillLinks(*FOwn[Links], FSettings.Links);
    TMenuItem& contact = *FOwn[Contact];
    contact.Clear();
    for (const auto& [caption, address, protocol] : Contacts) {
      AddContact(contact, caption, FSettings.*address, protocol);
    }
  }

  static void FillLinks(TMenuItem& menu, const std::vector<TQELToolLink>& links) {
    menu.Clear();
    for (const auto& [caption, target] : links) {
      AddItem(menu, caption, [target = target](TObject*) { Open(target); });
    }
    if (links.empty()) Disable(*AddItem(menu, "[ EMPTY ]", nullptr), "Properties adds entries");
  }

  static void AddContact(TMenuItem& menu, const char* caption, const std::string& address,
                         const char* protocol) {
    const bool whole = address.find(':') != std::string::npos;
    const std::string target = whole ? address : protocol + address;
    TMenuItem* item = AddItem(menu, caption, [target](TObject*) { Open(target); });
    if (address.empty()) Disable(*item, "No address is set: see Properties");
  }

  void EditProperties(TObject*) {
    TQELToolSettings settings = FSettings;
    if (!EditToolSettings(settings)) return;
    Keep(settings);
    FillLists();
  }

  void ChooseAutoSave(TObject*) {
    if (!FAutoSave.Choose()) return;
    TQELToolSettings settings = FSettings;
    settings.AutoSave = FAutoSave.Minutes();
    Keep(settings);
  }

  void Keep(const TQELToolSettings& settings) {
    SaveToolSettings(settings);
    FSettings = settings;
  }

  TEnvironment& FEnvironment;
  TQELToolSettings FSettings;
  TQELAutoSave FAutoSave;
  TMenuItem FMenu;
  std::array<TMenuItem*, OwnTools> FOwn{};
};

std::unique_ptr<TExpert> MakeTools(TEnvironment& environment) {
  return std::make_unique<TQELTools>(environment);
}

}  // namespace

void RegisterTools() { RegisterExpertClass({"TQELTools", &MakeTools}); }

}  // namespace qel
