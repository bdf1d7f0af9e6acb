// The actions of files, of the program's end, and of its help: what they do.
#include "vcl/stdactions/fileactions.h"

#include "vcl/rtl/win32.h"

#include <shellapi.h>

#include <cstdint>

#include "vcl/forms/application.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"

namespace vcl {

// Those that ask for a file.

const TClass& TFileDialogAction::Class() {
  using T = TFileDialogAction;
  static const TClass info =
      Describe<T, TStandardAction>("vcl::TFileDialogAction", "vcl/stdactions/stdactions.h",
                                   {
                                       Event<&T::BeforeExecute>("BeforeExecute"),
                                       Event<&T::OnAccept>("OnAccept"),
                                       Event<&T::OnCancel>("OnCancel"),
                                   });
  return info;
}

const TClass& TFileOpen::Class() {
  static const TClass info = Describe<TFileOpen, TFileDialogAction>(
      "vcl::TFileOpen", "vcl/stdactions/stdactions.h",
      {
          Property<&TFileOpen::Dialog, &TFileOpen::SetDialog>("Dialog"),
      });
  return info;
}

const TClass& TFileSaveAs::Class() {
  static const TClass info = Describe<TFileSaveAs, TFileDialogAction>(
      "vcl::TFileSaveAs", "vcl/stdactions/stdactions.h",
      {
          Property<&TFileSaveAs::Dialog, &TFileSaveAs::SetDialog>("Dialog"),
      });
  return info;
}

TFileOpen::TFileOpen(TComponent* owner)
    : TFileDialogAction(owner, "&Open...", "Opens a file", vcl::ShortCut('O', {ssCtrl})) {}

TFileSaveAs::TFileSaveAs(TComponent* owner)
    : TFileDialogAction(owner, "Save &as...", "Saves in another file",
                        vcl::ShortCut('S', {ssCtrl, ssShift})) {}

TFileDialogAction::~TFileDialogAction() {
  AnnounceEnd();
  SetFileDialog(nullptr);
}

void TFileDialogAction::SetFileDialog(TOpenDialog* dialog) {
  if (FDialog) FDialog->RemoveFreeNotification(this);
  FDialog = dialog;
  if (dialog) dialog->FreeNotification(this);
}

void TFileDialogAction::Notification(TComponent* component, TOperation operation) {
  TStandardAction::Notification(component, operation);
  if (operation == opRemove && component == FDialog) FDialog = nullptr;
}

bool TFileDialogAction::HandlesTarget(const TComponent& target) const { return &target == FDialog; }

void TFileDialogAction::ExecuteTarget(TComponent& target) {
  const TWatch watch(this);
  const TWatch dialog(&target);
  BeforeExecute(this);
  if (watch.Gone() || dialog.Gone()) return;
  const bool accepted = dynamic_cast<TOpenDialog&>(target).Execute();
  if (watch.Gone()) return;
  if (accepted) {
    OnAccept(this);
  } else {
    OnCancel(this);
  }
}

// The end.

const TClass& TFileExit::Class() {
  static const TClass info =
      Describe<TFileExit, TStandardAction>("vcl::TFileExit", "vcl/stdactions/stdactions.h", {});
  return info;
}

TFileExit::TFileExit(TComponent* owner) : TStandardAction(owner, "E&xit", "Ends the program") {}

TComponent* TFileExit::FixedTarget() const { return Application()->MainForm(); }

bool TFileExit::HandlesTarget(const TComponent& target) const {
  return &target == Application()->MainForm();
}

void TFileExit::ExecuteTarget(TComponent& target) { dynamic_cast<TCustomForm&>(target).Close(); }

// Help.

const TClass& THelpContents::Class() {
  using T = THelpContents;
  static const TClass info = Describe<T, TStandardAction>(
      "vcl::THelpContents", "vcl/stdactions/stdactions.h",
      {
          Property<&T::FileName, &T::SetFileName>("FileName").Default(""),
      });
  return info;
}

THelpContents::THelpContents(TComponent* owner)
    : TStandardAction(owner, "&Contents", "Shows the help", TShortCut(VK_F1)) {}

TComponent* THelpContents::FixedTarget() const { return Application(); }

bool THelpContents::HandlesTarget(const TComponent& target) const {
  return &target == Application() && !FFileName.empty();
}

void THelpContents::ExecuteTarget(TComponent& /*target*/) {
  // Answers above 32 are successes; see ShellExecute.
  constexpr std::intptr_t lastError = 32;
  const HINSTANCE answer =
      ::ShellExecuteW(Application()->Handle(), L"open", ToUtf16(FFileName).c_str(), nullptr,
                      nullptr, SW_SHOWNORMAL);
  if (reinterpret_cast<std::intptr_t>(answer) <= lastError) {
    throw EInOutError(Concat("The help \"", FFileName, "\" can't be shown"));
  }
}

}  // namespace vcl
