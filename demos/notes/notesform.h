// TNotesForm: the main window, a text and what can be done with it.
#pragma once

#include <string>
#include <vector>

#include "demos/notes/dialogs.h"
#include "demos/notes/options.h"
#include "demos/notes/recovery.h"
#include "demos/notes/textfile.h"
#include "qel/core/Qeltstoredata.h"
#include "qel/services/Qeltformsaver.h"
#include "qel/services/Qeltmrumenu.h"
#include "qel/services/Qeltonlyone.h"
#include "qel/services/Qeltsystemtray.h"
#include "vcl/dialogs/dialogs.h"
#include "vcl/forms/forms.h"
#include "vcl/menus/menus.h"
#include "vcl/printing/printdialogs.h"
#include "vcl/rtl/win32.h"
#include "vcl/stdctrls/comctrls.h"
#include "vcl/stdctrls/extctrls.h"
#include "vcl/stdctrls/stdctrls.h"

namespace notes {

/// The form of notes.dfm. The sources hold a group of its work each: notesform.cpp the form itself
/// and its options, notesform_file.cpp files, printing and unsaved text, notesform_edit.cpp editing
/// and what the status bar says.
class TNotesForm : public vcl::TForm {
 public:
  explicit TNotesForm(vcl::TComponent* owner);
  ~TNotesForm() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Shows a file's text. Raises EInOutError, and keeps the text that is shown.
  void Open(const std::string& fileName);
  /// Draws the text's pages, for a preview or on paper.
  void DrawPages(vcl::TObject* sender, vcl::TPrintDocument& document);

 protected:
  void Loaded() override;
  void WndProc(vcl::TMessage& message) override;

 private:
  // What the form file fills.
  vcl::TMemo* Editor = nullptr;
  vcl::TStatusBar* StatusBar = nullptr;
  vcl::TMenuItem* WordWrapItem = nullptr;
  vcl::TMenuItem* StatusBarItem = nullptr;
  vcl::TOpenDialog* OpenDialog = nullptr;
  vcl::TSaveDialog* SaveDialog = nullptr;
  vcl::TFontDialog* FontDialog = nullptr;
  vcl::TPageSetupDialog* PageSetupDialog = nullptr;
  vcl::TPrintDialog* PrintDialog = nullptr;
  vcl::TTimer* RecoveryTimer = nullptr;
  qel::TQELOnlyOne* Guard = nullptr;
  qel::TQELStoreData* Settings = nullptr;
  qel::TQELFormSaver* WindowSaver = nullptr;
  qel::TQELMRUMenu* RecentFiles = nullptr;
  qel::TQELSystemTray* Tray = nullptr;

  // The form and its options.
  void FormShow(vcl::TObject* sender);
  void FormResize(vcl::TObject* sender);
  void FormCloseQuery(vcl::TObject* sender, bool& canClose);
  void FormClose(vcl::TObject* sender, vcl::TCloseAction& action);
  void WindowsRestored(vcl::TObject* sender);
  void Begin();
  void EnterTray();
  void ApplyOptions();
  void SaveOptions();
  void WordWrapClick(vcl::TObject* sender);
  void FontClick(vcl::TObject* sender);
  void StatusBarClick(vcl::TObject* sender);
  void OptionsClick(vcl::TObject* sender);
  void AboutClick(vcl::TObject* sender);
  void TrayShowClick(vcl::TObject* sender);
  void ExitClick(vcl::TObject* sender);
  // Other copies of the program.
  void GuardExceeded(vcl::TObject* sender, int instances);
  void TakeFromCopy(const COPYDATASTRUCT& data);
  void OpenLater(const std::vector<std::string>& files);
  void OpenNextWanted();

  // Files and unsaved text.
  void NewClick(vcl::TObject* sender);
  void OpenClick(vcl::TObject* sender);
  void SaveClick(vcl::TObject* sender);
  void SaveAsClick(vcl::TObject* sender);
  void RecentClick(vcl::TObject* sender, std::string fileName);
  void FilesDropped(vcl::TObject* sender, const std::vector<std::string>& files,
                    vcl::TPoint position);
  void PageSetupClick(vcl::TObject* sender);
  void PreviewClick(vcl::TObject* sender);
  void PrintClick(vcl::TObject* sender);
  void RecoveryTimerTick(vcl::TObject* sender);
  void OpenIfWanted(const std::string& fileName);
  bool Save();
  bool SaveAs();
  bool SaveIn(const std::string& fileName);
  bool MayLoseText();
  void ShowText(const std::string& fileName, const TText& text);
  void Remember(const std::string& fileName);
  /// False when what is unsaved is not safe.
  bool KeepUnsaved();
  void OfferUnsaved();
  std::string DocumentName() const;

  // Editing, and the status bar.
  void EditorChange(vcl::TObject* sender);
  void FindClick(vcl::TObject* sender);
  void FindNextClick(vcl::TObject* sender);
  void Tell(const std::string& message);
  void UpdateStatus();
  std::string CaretText() const;
  void ShowPanel(int panel, const std::string& text);

  /// When a file was written, and its size: another program's writing shows in them.
  struct TStamp {
    FILETIME Written{};
    DWORD Size = 0;
    bool operator==(const TStamp& other) const;
  };
  static TStamp StampOf(const std::string& fileName);

  TOptions FOptions;
  TRecovery FRecovery;
  TFindForm* FFind = nullptr;  // The application's.
  std::string FFileName;       // Empty for a text that has none yet.
  TTextFormat FFormat;
  TStamp FStamp;
  std::vector<std::string> FWanted;  // What other copies were started with.
  bool FExiting = false;             // The user wants an end, not the tray.
  int FChanges = 0;
  int FKeptChanges = 0;  // Those that are in the recovery file.
  int FShownCaret = -1;
  int FShownChanges = -1;
};

}  // namespace notes
