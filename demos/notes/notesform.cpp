// TNotesForm: beginning and ending, the tray, other copies of the program, and options.
#include "demos/notes/notesform.h"

#include "demos/common/commandline.h"
#include "vcl/forms/application.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace notes {

using namespace vcl;

namespace {

constexpr UINT WM_BEGIN = WM_APP + 1;         // The window is there: what waits for it may begin.
constexpr UINT WM_OPENWANTED = WM_APP + 2;    // Another copy wants a file opened.
constexpr ULONG_PTR FileToOpen = 0x4E6F7465;  // What a copy sends.

}  // namespace

const TClass& TNotesForm::Class() {
  using T = TNotesForm;
  static const TClass info =
      Describe<T, TForm>("notes::TNotesForm", "demos/notes/notesform.h",
                         {
                             Field<&T::Editor>("Editor"),
                             Field<&T::StatusBar>("StatusBar"),
                             Field<&T::WordWrapItem>("WordWrapItem"),
                             Field<&T::StatusBarItem>("StatusBarItem"),
                             Field<&T::OpenDialog>("OpenDialog"),
                             Field<&T::SaveDialog>("SaveDialog"),
                             Field<&T::FontDialog>("FontDialog"),
                             Field<&T::PageSetupDialog>("PageSetupDialog"),
                             Field<&T::PrintDialog>("PrintDialog"),
                             Field<&T::RecoveryTimer>("RecoveryTimer"),
                             Field<&T::Guard>("Guard"),
                             Field<&T::Settings>("Settings"),
                             Field<&T::WindowSaver>("WindowSaver"),
                             Field<&T::RecentFiles>("RecentFiles"),
                             Field<&T::Tray>("Tray"),
                             Method<&T::FormShow>("FormShow"),
                             Method<&T::FormResize>("FormResize"),
                             Method<&T::FormCloseQuery>("FormCloseQuery"),
                             Method<&T::FormClose>("FormClose"),
                             Method<&T::WindowsRestored>("WindowsRestored"),
                             Method<&T::WordWrapClick>("WordWrapClick"),
                             Method<&T::FontClick>("FontClick"),
                             Method<&T::StatusBarClick>("StatusBarClick"),
                             Method<&T::OptionsClick>("OptionsClick"),
                             Method<&T::AboutClick>("AboutClick"),
                             Method<&T::TrayShowClick>("TrayShowClick"),
                             Method<&T::ExitClick>("ExitClick"),
                             Method<&T::GuardExceeded>("GuardExceeded"),
                             Method<&T::NewClick>("NewClick"),
                             Method<&T::OpenClick>("OpenClick"),
                             Method<&T::SaveClick>("SaveClick"),
                             Method<&T::SaveAsClick>("SaveAsClick"),
                             Method<&T::RecentClick>("RecentClick"),
                             Method<&T::FilesDropped>("FilesDropped"),
                             Method<&T::PageSetupClick>("PageSetupClick"),
                             Method<&T::PreviewClick>("PreviewClick"),
                             Method<&T::PrintClick>("PrintClick"),
                             Method<&T::RecoveryTimerTick>("RecoveryTimerTick"),
                             Method<&T::EditorChange>("EditorChange"),
                             Method<&T::FindClick>("FindClick"),
                             Method<&T::FindNextClick>("FindNextClick"),
                         });
  return info;
}

TNotesForm::TNotesForm(TComponent* owner)
    : TForm(owner), FRecovery(demos::CommandLine().SettingsFolder) {
  LoadForm();
  ReadOptions(*Settings, FOptions, *Editor->Font());
  FFormat.LineEnds = FOptions.NewLineEnds;
  ApplyOptions();
  FFind = new TFindForm(Application());
  FFind->OnNext = {this, &TNotesForm::FindNextClick};
  Application()->OnHint = [this](TObject*) { Tell(Application()->Hint()); };
  Application()->OnIdle = [this](TObject*, bool&) { UpdateStatus(); };
}

TNotesForm::~TNotesForm() {
  Application()->OnHint.Clear();
  Application()->OnIdle.Clear();
}

// Before the components are told the same, and use their stores.
void TNotesForm::Loaded() {
  TForm::Loaded();
  for (qel::TQELDataStore* store :
       {Settings->DataStore(), WindowSaver->FormStore(), RecentFiles->MRUStore()}) {
    qel::TQELIniFile& file = *store->Inifile();
    file.SetFilename(demos::CommandLine().SettingsFolder + "\\" + file.Filename());
  }
}

void TNotesForm::WndProc(TMessage& message) {
  switch (message.Msg) {
    case WM_BEGIN: return Begin();
    case WM_OPENWANTED: return OpenNextWanted();
    case WM_ENABLE:  // A dialog has come or gone.
      TForm::WndProc(message);
      if (!FWanted.empty()) ::PostMessageW(Handle(), WM_OPENWANTED, 0, 0);
      return;
    case WM_COPYDATA:
      TakeFromCopy(*reinterpret_cast<const COPYDATASTRUCT*>(message.LParam));
      message.Result = TRUE;
      return;
    default: return TForm::WndProc(message);
  }
}

// Beginning and ending.

void TNotesForm::FormShow(TObject*) { ::PostMessageW(Handle(), WM_BEGIN, 0, 0); }

void TNotesForm::Begin() {
  EnterTray();
  OfferUnsaved();
  OpenIfWanted(demos::CommandLine().FileName);
}

// Without a shell there is no tray, and the taskbar has to do.
void TNotesForm::EnterTray() {
  try {
    Tray->SetEnabled(true);
  } catch (const EOutOfResources& error) {
    Tray->SetEnabled(false);
    Tell(error.Message());
  }
}

void TNotesForm::FormCloseQuery(TObject*, bool& canClose) {
  if (Application()->SessionEnding()) {
    canClose = KeepUnsaved();  // Nobody can be asked.
    return;
  }
  if (FOptions.CloseToTray && Tray->Enabled() && !FExiting) {
    canClose = false;
    return Application()->Minimize();
  }
  FExiting = false;
  canClose = MayLoseText();
}

// The components store what they remember when the form has closed, or its end. Where they can't,
// that must not keep the program from ending.
void TNotesForm::FormClose(TObject*, TCloseAction&) {
  try {
    SaveOptions();
  } catch (const Exception& error) {
    WindowSaver->FormStore()->SetEnabled(false);
    RecentFiles->MRUStore()->SetEnabled(false);
    if (Application()->SessionEnding()) return;
    MessageDlg(Concat("What Notes remembers cannot be stored: ", error.what()), mtWarning, {mbOK});
  }
}

void TNotesForm::ExitClick(TObject*) {
  FExiting = true;
  Close();
}

void TNotesForm::TrayShowClick(TObject*) {
  Application()->Restore();
  Application()->BringToFront();
}

// Other copies.

// This copy ends soon: the other one opens what this one was started with.
void TNotesForm::GuardExceeded(TObject*, int) {
  const std::string& fileName = demos::CommandLine().FileName;
  const HWND other = fileName.empty() ? nullptr : ::FindWindowW(L"TNotesForm", nullptr);
  if (!other) return;
  std::string text = ExpandFileName(fileName);
  COPYDATASTRUCT data{FileToOpen, static_cast<DWORD>(text.size()), text.data()};
  constexpr UINT patience = 5000;
  ::SendMessageTimeoutW(other, WM_COPYDATA, 0, reinterpret_cast<LPARAM>(&data), SMTO_ABORTIFHUNG,
                        patience, nullptr);
}

void TNotesForm::TakeFromCopy(const COPYDATASTRUCT& data) {
  if (data.dwData != FileToOpen) return;
  OpenLater({{static_cast<const char*>(data.lpData), data.cbData}});
}

void TNotesForm::FilesDropped(TObject*, const std::vector<std::string>& files, TPoint) {
  OpenLater(files);
}

// The program that they come from waits for the answer, so the files are opened afterwards, one
// after another.
void TNotesForm::OpenLater(const std::vector<std::string>& files) {
  FWanted.insert(FWanted.end(), files.begin(), files.end());
  ::PostMessageW(Handle(), WM_OPENWANTED, 0, 0);
}

// Not while a dialog is up: the window hears when that has gone.
void TNotesForm::OpenNextWanted() {
  if (FWanted.empty() || !::IsWindowEnabled(Handle())) return;
  const std::string fileName = FWanted.front();
  FWanted.erase(FWanted.begin());
  if (!FWanted.empty()) ::PostMessageW(Handle(), WM_OPENWANTED, 0, 0);
  OpenIfWanted(fileName);
}

// Options.

void TNotesForm::ApplyOptions() {
  WordWrapItem->SetChecked(FOptions.WordWrap);
  Editor->SetWordWrap(FOptions.WordWrap);
  Editor->SetScrollBars(FOptions.WordWrap ? ssVertical : ssBoth);
  RecoveryTimer->SetInterval(static_cast<std::uint32_t>(FOptions.KeepSeconds) * 1000);
}

void TNotesForm::SaveOptions() { WriteOptions(*Settings, FOptions, *Editor->Font()); }

void TNotesForm::WordWrapClick(TObject*) {
  FOptions.WordWrap = !FOptions.WordWrap;
  ApplyOptions();
  SaveOptions();
}

void TNotesForm::FontClick(TObject*) {
  FontDialog->SetFont(Editor->Font());
  if (!FontDialog->Execute()) return;
  Editor->SetFont(FontDialog->Font());
  SaveOptions();
}

void TNotesForm::OptionsClick(TObject*) {
  TOptionsForm form(nullptr);
  form.Show(FOptions);
  if (form.ShowModal() != mrOk) return;
  form.Take(FOptions);
  ApplyOptions();
  SaveOptions();
}

void TNotesForm::AboutClick(TObject*) { TAboutForm(nullptr).ShowModal(); }

void TNotesForm::StatusBarClick(TObject*) {
  StatusBar->SetVisible(!StatusBar->Visible());
  StatusBarItem->SetChecked(StatusBar->Visible());
}

// The status bar may have come back hidden.
void TNotesForm::WindowsRestored(TObject*) { StatusBarItem->SetChecked(StatusBar->Visible()); }

}  // namespace notes
