// TMainForm: the designer's window.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "ide/actionwindow.h"
#include "ide/fieldswindow.h"
#include "ide/formdesigner.h"
#include "ide/inspector.h"
#include "ide/menuwindow.h"
#include "ide/openforms.h"
#include "ide/packages.h"
#include "ide/palette.h"
#include "ide/recovery.h"
#include "ide/settings.h"
#include "ide/structure.h"
#include "ide/structurecollection.h"
#include "vcl/designintf/environment.h"
#include "vcl/vcl.h"

namespace ide {

/// What the program was started with.
struct TStart {
  std::string SettingsFile;
  /// Packages instead of those of the settings.
  std::vector<std::string> Packages;
  /// The form to open; empty for a new one.
  std::string FileName;
};

/// The form of mainform.dfm. The sources hold a group of its work each: mainform.cpp the form and
/// what its parts tell it, mainform_file.cpp files, mainform_forms.cpp which form is worked on,
/// mainform_commands.cpp the menu's commands.
class TMainForm : public vcl::TForm, public vcl::TEnvironment {
 public:
  explicit TMainForm(vcl::TComponent* owner);
  ~TMainForm() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Loads the packages and opens the form.
  void Begin(const TStart& start, TPackages& packages);
  /// Opens a form file and works on it from now on; a file that is open is shown. What is wrong
  /// with it is among the messages; false when it could not be opened.
  bool Open(const std::string& fileName);
  /// Writes or updates the C++ unit beside the form file. What there is to know is among the
  /// messages; false when it could not be written.
  bool WriteUnit();

  /// Of the form that is worked on.
  TFormDesigner& FormDesigner() { return *FDesigner; }
  TOpenForms& Forms() { return *FForms; }
  const TPackages& Packages() const { return *FPackages; }
  vcl::TListBox& MessageList() { return *Messages; }
  TObjectInspector& Inspector() { return *FInspector; }
  TComponentPalette& Palette() { return *FPalette; }
  TStructureTree& Structure() { return *FStructure; }
  TCollectionWindow& Items() { return *FItems; }
  TMenuWindow& MenuWindow() { return *FMenus; }
  TActionWindow& ActionWindow() { return *FActions; }
  TFieldsWindow& FieldsWindow() { return *FFields; }

  vcl::TMainMenu& MainMenu() override { return *MainMenuBar; }
  vcl::TDesigner* ActiveDesigner() override { return FDesigner; }
  void SaveFiles() override;
  std::vector<std::string> RememberedFiles() const override;
  void ForgetFile(const std::string& fileName) override;

 private:
  // What the form file fills.
  vcl::TPanel* PalettePanel = nullptr;
  vcl::TPanel* SidePanel = nullptr;
  vcl::TSplitter* SideSplitter = nullptr;
  vcl::TListBox* Messages = nullptr;
  vcl::TStatusBar* StatusBar = nullptr;
  vcl::TMainMenu* MainMenuBar = nullptr;
  vcl::TMenuItem* RecentItem = nullptr;
  vcl::TMenuItem* UndoItem = nullptr;
  vcl::TMenuItem* RedoItem = nullptr;
  vcl::TMenuItem* CutItem = nullptr;
  vcl::TMenuItem* CopyItem = nullptr;
  vcl::TMenuItem* PasteItem = nullptr;
  vcl::TMenuItem* DeleteItem = nullptr;
  vcl::TMenuItem* FrontItem = nullptr;
  vcl::TMenuItem* BackItem = nullptr;
  vcl::TMenuItem* TabOrderItem = nullptr;
  vcl::TMenuItem* LockItem = nullptr;
  vcl::TMenuItem* GridItem = nullptr;
  vcl::TMenuItem* SnapItem = nullptr;
  vcl::TOpenDialog* OpenDialog = nullptr;
  vcl::TSaveDialog* SaveDialog = nullptr;
  vcl::TTimer* AutosaveTimer = nullptr;
  vcl::TPopupMenu* DesignMenu = nullptr;
  vcl::TMenuItem* WindowMenu = nullptr;

  // The form and its parts.
  void FormShow(vcl::TObject* sender);
  void FormCloseQuery(vcl::TObject* sender, bool& canClose);
  void MenuClick(vcl::TObject* sender);
  void AutosaveTimerTick(vcl::TObject* sender);
  void LoadPackages(const TStart& start);
  void TakePackages();
  void FormChanged(TFormDesigner& designer);
  void RootGoing();
  void SelectionChanged();
  void TakeDesigner(TFormDesigner* designer);
  void ShowSelected();
  void ShowTitle();
  void TakeTool();
  void Tell(const std::string& message);
  void ShowDesignMenu(vcl::TPoint screen);
  void AddVerbs();
  bool DesignKey(WPARAM key);
  void ApplicationMessage(MSG& message, bool& handled);

  // Which form is worked on.
  TFormDesigner& AddForm();
  void ListenTo(TFormDesigner& designer);
  void WorkOn(TFormDesigner& designer);
  /// A new form, frame or data module, of a name that no other has unless one is given.
  void New(const vcl::TClass& sort, const std::string& name = {});
  void WorkOnNew(TFormDesigner& designer);
  void NewInherited(const std::string& ancestorFile);
  bool CloseForm();
  bool MayEnd();
  void CloseFormClick(vcl::TObject* sender);
  void NextFormClick(vcl::TObject* sender);
  void PreviousFormClick(vcl::TObject* sender);
  void WindowMenuClick(vcl::TObject* sender);

  // Files.
  void NewClick(vcl::TObject* sender);
  void NewInheritedClick(vcl::TObject* sender);
  void NewFrameClick(vcl::TObject* sender);
  void NewModuleClick(vcl::TObject* sender);
  void InsertFrameClick(vcl::TObject* sender);
  void OpenClick(vcl::TObject* sender);
  void RecentFileClick(vcl::TObject* sender);
  void SaveClick(vcl::TObject* sender);
  void SaveAsClick(vcl::TObject* sender);
  void WriteUnitClick(vcl::TObject* sender);
  void ExitClick(vcl::TObject* sender);
  bool Save();
  bool SaveAs();
  bool SaveIn(const std::string& fileName);
  bool OpenFile(const std::string& fileName, bool copy);
  bool MayReplace(const std::string& fileName);
  void CheckFiles();
  void OfferFile(TFormDocument& document);
  static bool WantsCopy(const std::string& fileName);
  void OfferLost();
  void NoteCopies();
  bool MayLoseChanges();
  void Remember(const std::string& fileName);
  void ShowRecentFiles();

  // Commands.
  void CommandClick(vcl::TObject* sender);
  void TabOrderClick(vcl::TObject* sender);
  void CreationClick(vcl::TObject* sender);
  void ClearMessagesClick(vcl::TObject* sender);
  void PackagesClick(vcl::TObject* sender);
  void PreviewClick(vcl::TObject* sender);
  void AboutClick(vcl::TObject* sender);

  void Dispatch(vcl::TMessage& message) override;

  TPackages* FPackages = nullptr;
  std::unique_ptr<TSettings> FSettings;
  std::unique_ptr<TRecovery> FRecovery;
  TObjectInspector* FInspector;
  TComponentPalette* FPalette;
  TStructureTree* FStructure;
  TCollectionWindow* FItems;
  TMenuWindow* FMenus;
  TActionWindow* FActions;
  TFieldsWindow* FFields;
  std::vector<TDesignerPart*> FParts;  // All six of them.
  std::unique_ptr<TOpenForms> FForms;
  TFormDesigner* FDesigner = nullptr;  // The active one of them.
  std::vector<std::unique_ptr<vcl::TExpert>> FExperts;
  std::size_t FTriedExperts = 0;  // Of the registered ones.
};

}  // namespace ide
