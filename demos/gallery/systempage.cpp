// The page of services: facts of the system, times, sounds, sayings, texts with names.
#include "demos/gallery/systempage.h"

#include "vcl/rtl/properties.h"

namespace gallery {

using namespace vcl;

const TClass& TSystemPage::Class() {
  using T = TSystemPage;
  static const TClass info =
      Describe<T, TFrame>("gallery::TSystemPage", "demos/gallery/systempage.h",
                          {
                              Field<&T::Details>("Details"),
                              Field<&T::Volume>("Volume"),
                              Field<&T::Version>("Version"),
                              Field<&T::Resources>("Resources"),
                              Field<&T::Minutes>("Minutes"),
                              Field<&T::Jokes>("Jokes"),
                              Field<&T::Texts>("Texts"),
                              Field<&T::Sound>("Sound"),
                              Field<&T::Startup>("Startup"),
                              Field<&T::TopMost>("TopMost"),
                              Field<&T::Aspect>("Aspect"),
                              Field<&T::Sizes>("Sizes"),
                              Field<&T::Hook>("Hook"),
                              Field<&T::Menu>("Menu"),
                              Field<&T::SoundDialog>("SoundDialog"),
                              Field<&T::MinutesLabel>("MinutesLabel"),
                              Field<&T::TemplateEdit>("TemplateEdit"),
                              Field<&T::ExpandedLabel>("ExpandedLabel"),
                              Field<&T::TopMostCheck>("TopMostCheck"),
                              Field<&T::AspectCheck>("AspectCheck"),
                              Field<&T::SizesCheck>("SizesCheck"),
                              Field<&T::MenuCheck>("MenuCheck"),
                              Field<&T::SizeLabel>("SizeLabel"),
                              Field<&T::Told>("Told"),
                              Method<&T::DetailsClick>("DetailsClick"),
                              Method<&T::VolumeClick>("VolumeClick"),
                              Method<&T::VersionClick>("VersionClick"),
                              Method<&T::ResourcesClick>("ResourcesClick"),
                              Method<&T::ResourcesLow>("ResourcesLow"),
                              Method<&T::MinutesTrigger>("MinutesTrigger"),
                              Method<&T::SoundClick>("SoundClick"),
                              Method<&T::SoundFinished>("SoundFinished"),
                              Method<&T::JokeClick>("JokeClick"),
                              Method<&T::StartupClick>("StartupClick"),
                              Method<&T::TemplateChange>("TemplateChange"),
                              Method<&T::WindowClick>("WindowClick"),
                              Method<&T::WindowSized>("WindowSized"),
                              Method<&T::HelloClick>("HelloClick"),
                          });
  return info;
}

TSystemPage::TSystemPage(TComponent* owner) : TFrame(owner) { LoadFrame(); }

TSystemPage::~TSystemPage() { AnnounceEnd(); }

void TSystemPage::Tell(const std::string& text) { Told->Lines()->SetText(text); }

void TSystemPage::DetailsClick(TObject*) { Tell(Details->AsText()); }

void TSystemPage::VolumeClick(TObject*) {
  Volume->Refresh();
  if (!Volume->Ready()) return Tell(Volume->Root() + " is not ready");
  Tell(Concat(Volume->Root(), "\nName: ", Volume->VolumeName(),
              "\nSerial number: ", Volume->SerialNumber(), "\nFile system: ", Volume->FileSystem(),
              "\nSize: ", std::to_string(Volume->TotalSize()),
              " MB\nFree: ", std::to_string(Volume->FreeSize()), " MB"));
}

void TSystemPage::VersionClick(TObject*) {
  Version->SetFilename("kernel32.dll");
  if (!Version->HasVersion()) return Tell(Version->Filename() + " says nothing about itself");
  Tell(Concat(Version->FileDescription(), "\n", Version->FileVersion(), "\n",
              Version->LegalCopyright()));
}

void TSystemPage::ResourcesClick(TObject*) {
  Tell(Concat("Memory free: ", std::to_string(Resources->MemoryFree()), " of ",
              std::to_string(Resources->MemorySize()),
              " MB\nPage file free: ", std::to_string(Resources->PageFileFree()), " of ",
              std::to_string(Resources->PageFileSize()),
              " MB\nGDI handles: ", std::to_string(Resources->GDIHandles()),
              "\nUser handles: ", std::to_string(Resources->UserHandles()),
              "\nKernel handles: ", std::to_string(Resources->KernelHandles())));
}

void TSystemPage::ResourcesLow(TObject*, qel::TQELResource, int value) {
  Tell(Concat("GDI handles run low: ", std::to_string(value)));
}

void TSystemPage::MinutesTrigger(TObject*, qel::TQELTrigger*) {
  MinutesLabel->SetCaption(TimeToStr(Now()));
}

void TSystemPage::SoundClick(TObject*) {
  if (Sound->Playing()) return Sound->Stop();
  if (!SoundDialog->Execute()) return;
  Sound->SetWaveFile(SoundDialog->FileName());
  if (!Sound->Execute()) Tell(Sound->LastError());
}

void TSystemPage::SoundFinished(TObject*) { Tell("The sound is over"); }

void TSystemPage::JokeClick(TObject*) { Jokes->Execute(); }

void TSystemPage::StartupClick(TObject*) {
  const bool active = Startup->Active();
  const char* const question = active ? "Shall the gallery no longer start with the session?"
                                      : "Shall the gallery start with each session?";
  if (MessageDlg(question, mtConfirmation, {mbYes, mbNo}) != mrYes) return;
  if (!(active ? Startup->Remove() : Startup->Install())) return Tell(Startup->LastError());
  Tell(active ? "The gallery does not start with the session" : Startup->Line());
}

void TSystemPage::TemplateChange(TObject*) {
  ExpandedLabel->SetCaption(Texts->Expand(TemplateEdit->Text()));
}

void TSystemPage::WindowClick(TObject*) {
  TopMost->SetActive(TopMostCheck->Checked());
  Aspect->SetActive(AspectCheck->Checked());
  Sizes->SetActive(SizesCheck->Checked());
  Menu->SetActive(MenuCheck->Checked());
}

void TSystemPage::WindowSized(TObject*, TMessage&) {
  const TCustomForm& form = *Hook->Form();
  SizeLabel->SetCaption(
      Concat(std::to_string(form.Width()), " x ", std::to_string(form.Height()), " pixels"));
}

void TSystemPage::HelloClick(TObject*) { Tell("Hello from the system menu"); }

}  // namespace gallery
