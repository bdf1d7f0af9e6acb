// The page of dialogs: each is shown by a button, and what it answers is listed.
#include "demos/gallery/dialogspage.h"

#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"

namespace gallery {

using namespace vcl;

const TClass& TDialogsPage::Class() {
  using T = TDialogsPage;
  static const TClass info =
      Describe<T, TFrame>("gallery::TDialogsPage", "demos/gallery/dialogspage.h",
                          {
                              Field<&T::Question>("Question"),
                              Field<&T::Countdown>("Countdown"),
                              Field<&T::Selection>("Selection"),
                              Field<&T::Message>("Message"),
                              Field<&T::About>("About"),
                              Field<&T::Folders>("Folders"),
                              Field<&T::Tips>("Tips"),
                              Field<&T::Password>("Password"),
                              Field<&T::Access>("Access"),
                              Field<&T::Page>("Page"),
                              Field<&T::Answers>("Answers"),
                              Method<&T::QuestionClick>("QuestionClick"),
                              Method<&T::CountdownClick>("CountdownClick"),
                              Method<&T::SelectionClick>("SelectionClick"),
                              Method<&T::TipsClick>("TipsClick"),
                              Method<&T::MessageClick>("MessageClick"),
                              Method<&T::AboutClick>("AboutClick"),
                              Method<&T::FoldersClick>("FoldersClick"),
                              Method<&T::PasswordClick>("PasswordClick"),
                              Method<&T::PasswordCheck>("PasswordCheck"),
                              Method<&T::AccessClick>("AccessClick"),
                              Method<&T::SplashClick>("SplashClick"),
                              Method<&T::PageClick>("PageClick"),
                          });
  return info;
}

TDialogsPage::TDialogsPage(TComponent* owner) : TFrame(owner) { LoadFrame(); }

TDialogsPage::~TDialogsPage() { AnnounceEnd(); }

void TDialogsPage::Tell(const std::string& answer) { Answers->Lines()->Add(answer); }

void TDialogsPage::QuestionClick(TObject*) {
  const bool yes = Question->Execute();
  Tell(Concat("The question: button ", std::to_string(Question->Result()),
              yes ? ", which is a yes" : ", which is none"));
}

void TDialogsPage::CountdownClick(TObject*) {
  Countdown->Execute();
  Tell(Concat("The countdown: button ", std::to_string(Countdown->Result())));
}

void TDialogsPage::SelectionClick(TObject*) {
  if (!Selection->Execute()) return Tell("The choice: none");
  Tell("The choice: " + Selection->Options()->Strings(Selection->ItemIndex()));
}

void TDialogsPage::TipsClick(TObject*) {
  Tips->Execute();
  Tell(Tips->ShowAtStart() ? "Tips are shown at the start" : "Tips are not shown at the start");
}

void TDialogsPage::MessageClick(TObject*) {
  Tell(Message->Execute() ? "The system's message: yes" : "The system's message: no");
}

void TDialogsPage::AboutClick(TObject*) { About->Execute(); }

void TDialogsPage::FoldersClick(TObject*) {
  Tell(Folders->Execute() ? "The folder: " + Folders->Folder() : "The folder: none");
}

void TDialogsPage::PasswordClick(TObject*) {
  if (Password->Execute()) return Tell("The password: right, of " + Password->Username());
  Tell("The password: none. " + Password->LastError());
}

void TDialogsPage::PasswordCheck(TObject*, bool& ok) { ok = Password->Password() == "open"; }

void TDialogsPage::AccessClick(TObject*) {
  // A form file would hold its hash, which takes its time to make.
  if (Access->Code().empty()) Access->ChangeCode("1234");
  Tell(Access->Execute() ? "The code: right, and for 30 seconds nobody is asked again"
                         : "The code: none. " + Access->LastError());
}

/// One of the form file would be seen while the gallery starts.
void TDialogsPage::SplashClick(TObject*) {
  if (!Splash) {
    Splash = new qel::TQELSplashScreen(this);
    Splash->SetMessage("The gallery is starting");
    Splash->SetPercentage(60);
  }
  Splash->Execute();
}

void TDialogsPage::PageClick(TObject*) {
  if (!Page->Execute()) return Tell("The page: none. " + Page->LastError());
  Tell(Concat("The page: ", Page->PaperName(), ", ", std::to_string(Page->PaperWidth() / 100),
              " x ", std::to_string(Page->PaperHeight() / 100), " mm"));
}

}  // namespace gallery
