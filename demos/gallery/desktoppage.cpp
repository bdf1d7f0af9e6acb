// The page of components over the screen, the clipboard, keys, mouse and session.
#include "demos/gallery/desktoppage.h"

#include "vcl/rtl/properties.h"

namespace gallery {

using namespace vcl;

const TClass& TDesktopPage::Class() {
  using T = TDesktopPage;
  static const TClass info =
      Describe<T, TFrame>("gallery::TDesktopPage", "demos/gallery/desktoppage.h",
                          {
                              Field<&T::Clip>("Clip"),
                              Field<&T::Screen>("Screen"),
                              Field<&T::Mouse>("Mouse"),
                              Field<&T::Keys>("Keys"),
                              Field<&T::Saver>("Saver"),
                              Field<&T::Paper>("Paper"),
                              Field<&T::Ending>("Ending"),
                              Field<&T::Drives>("Drives"),
                              Field<&T::Aborts>("Aborts"),
                              Field<&T::Events>("Events"),
                              Field<&T::PaperDialog>("PaperDialog"),
                              Field<&T::History>("History"),
                              Field<&T::Shot>("Shot"),
                              Field<&T::KeepCheck>("KeepCheck"),
                              Field<&T::HideCheck>("HideCheck"),
                              Field<&T::BlockCheck>("BlockCheck"),
                              Field<&T::DisplayCheck>("DisplayCheck"),
                              Field<&T::KeyLabel>("KeyLabel"),
                              Field<&T::GrowCombo>("GrowCombo"),
                              Field<&T::RegionCheck>("RegionCheck"),
                              Field<&T::Told>("Told"),
                              Method<&T::ClipChange>("ClipChange"),
                              Method<&T::MouseIdle>("MouseIdle"),
                              Method<&T::KeysPress>("KeysPress"),
                              Method<&T::KeysTaken>("KeysTaken"),
                              Method<&T::SaverStart>("SaverStart"),
                              Method<&T::SaverStop>("SaverStop"),
                              Method<&T::DriveInsert>("DriveInsert"),
                              Method<&T::AbortsIllegalAbort>("AbortsIllegalAbort"),
                              Method<&T::DriveRemove>("DriveRemove"),
                              Method<&T::EventsActivate>("EventsActivate"),
                              Method<&T::EventsDeactivate>("EventsDeactivate"),
                              Method<&T::EventsDisplayChange>("EventsDisplayChange"),
                              Method<&T::EventsSettingsChange>("EventsSettingsChange"),
                              Method<&T::HistoryDblClick>("HistoryDblClick"),
                              Method<&T::CaptureClick>("CaptureClick"),
                              Method<&T::DrawClick>("DrawClick"),
                              Method<&T::RestoreClick>("RestoreClick"),
                              Method<&T::SnapClick>("SnapClick"),
                              Method<&T::CheckClick>("CheckClick"),
                              Method<&T::GrowClick>("GrowClick"),
                              Method<&T::PaperClick>("PaperClick"),
                              Method<&T::BackClick>("BackClick"),
                              Method<&T::LockClick>("LockClick"),
                              Method<&T::LogOffClick>("LogOffClick"),
                              Method<&T::TrayClick>("TrayClick"),
                          });
  return info;
}

TDesktopPage::TDesktopPage(TComponent* owner) : TFrame(owner) {
  LoadFrame();
  GrowCombo->SetItemIndex(qel::wsFormMiddle);
}

TDesktopPage::~TDesktopPage() { AnnounceEnd(); }

void TDesktopPage::Tell(const std::string& text) { Told->Lines()->Add(text); }

// The clipboard.

void TDesktopPage::ClipChange(TObject*) {
  History->Items()->Clear();
  for (int i = 0; i < Clip->Kept(); ++i) {
    const std::string text = Clip->History(i).AsText();
    History->Items()->Add(text.empty() ? "(no text)" : std::string(CutUtf8(text, 80)));
  }
}

void TDesktopPage::HistoryDblClick(TObject*) {
  if (History->ItemIndex() >= 0) Clip->Recall(History->ItemIndex());
}

// The screen.

void TDesktopPage::CaptureClick(TObject*) {
  TBitmap picture;
  Screen->CaptureForm(ParentForm(), picture);
  Shot->Picture()->Assign(&picture);
}

void TDesktopPage::DrawClick(TObject*) {
  const TPoint at = Shot->ClientToScreen({0, 0});
  TCanvas* canvas = Screen->Canvas();
  canvas->Pen()->SetColor(clRed);
  canvas->Pen()->SetWidth(5);
  canvas->Brush()->SetStyle(bsClear);
  canvas->Ellipse(at.X, at.Y, at.X + Shot->Width(), at.Y + Shot->Height());
}

void TDesktopPage::RestoreClick(TObject*) { Screen->Restore(); }

// The mouse and the keys.

void TDesktopPage::SnapClick(TObject* sender) {
  Mouse->SnapTo(Shot);
  Mouse->SnapTo(dynamic_cast<TControl*>(sender));
}

void TDesktopPage::CheckClick(TObject*) {
  Mouse->SetConfineTo(KeepCheck->Checked() ? this : nullptr);
  Mouse->SetHide(HideCheck->Checked());
  Keys->SetBlocked(BlockCheck->Checked() ? qel::TQELBlockedKeys{qel::skAltF4}
                                         : qel::TQELBlockedKeys{});
  Saver->SetPrevent(DisplayCheck->Checked());
}

void TDesktopPage::KeysPress(TObject*, qel::TQELSystemKey* key) {
  KeyLabel->SetCaption(Concat(key->DisplayName(), " was pressed ", std::to_string(++FPressed),
                              " times, in whatever program"));
}

void TDesktopPage::KeysTaken(TObject*, qel::TQELSystemKey*) {
  KeyLabel->SetCaption(Keys->LastError());
}

void TDesktopPage::MouseIdle(TObject*) { Tell("The mouse has rested for ten seconds"); }

// A form that grows.

void TDesktopPage::GrowClick(TObject*) {
  TForm form(nullptr);
  form.SetCaption("It shrinks when it is closed");
  form.SetBounds(0, 0, ScaledPixels(360), ScaledPixels(240));
  form.SetPosition(poScreenCenter);
  auto* explode = new qel::TQELFormExplode(&form);
  explode->SetOnShowType(static_cast<qel::TQELWipeType>(GrowCombo->ItemIndex()));
  explode->SetOnCloseType(explode->OnShowType());
  explode->SetStyle(RegionCheck->Checked() ? qel::esRegion : qel::esFrame);
  explode->SetTime(400);
  form.ShowModal();
}

// The desktop and the session.

void TDesktopPage::PaperClick(TObject*) {
  if (!PaperDialog->Execute()) return;
  Paper->SetFilename(PaperDialog->FileName());
  Tell(Paper->Execute() ? "The desktop shows it until the gallery ends" : Paper->LastError());
}

void TDesktopPage::BackClick(TObject*) {
  if (!Paper->Restore()) Tell(Paper->LastError());
}

void TDesktopPage::EndSession(qel::TQELExitWindowsAction action) {
  Ending->SetAction(action);
  if (!Ending->Execute() && !Ending->LastError().empty()) Tell(Ending->LastError());
}

void TDesktopPage::LockClick(TObject*) { EndSession(qel::ewLock); }
void TDesktopPage::LogOffClick(TObject*) { EndSession(qel::ewLogOff); }

void TDesktopPage::TrayClick(TObject*) {
  if (!Drives->Open('D')) Tell(Drives->LastError());
}

// What is told.

void TDesktopPage::SaverStart(TObject*) { Tell("The screen saver has come"); }
void TDesktopPage::SaverStop(TObject*) { Tell("The screen saver has gone"); }
// It tells while the page is read, of a start that was killed or has crashed.
void TDesktopPage::AbortsIllegalAbort(TObject*, TDateTime started, int process) {
  Tell(Concat("The gallery of ", DateTimeToStr(started), ", process ", IntToStr(process),
              ", was not ended properly"));
}

void TDesktopPage::DriveInsert(TObject*, char drive) {
  Tell(Concat("In drive ", std::string(1, drive), " there is something"));
}
void TDesktopPage::DriveRemove(TObject*, char drive) {
  Tell(Concat("In drive ", std::string(1, drive), " there is nothing"));
}
void TDesktopPage::EventsActivate(TObject*) { Tell("The application is active"); }
void TDesktopPage::EventsDeactivate(TObject*) { Tell("Another application is active"); }
void TDesktopPage::EventsDisplayChange(TObject*) { Tell("The screens have changed"); }
void TDesktopPage::EventsSettingsChange(TObject*, const std::string& section) {
  Tell(Concat("The user has changed settings: ", section));
}

}  // namespace gallery
