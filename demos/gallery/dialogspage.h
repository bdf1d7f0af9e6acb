// TDialogsPage: the page of dialogs that are components.
#pragma once

#include "qel/qel.h"
#include "vcl/forms/frames.h"
#include "vcl/vcl.h"

namespace gallery {

/// The frame of dialogspage.dfm.
class TDialogsPage : public vcl::TFrame {
 public:
  explicit TDialogsPage(vcl::TComponent* owner);
  ~TDialogsPage() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

 private:
  // What the form file fills.
  qel::TQELMsgDlg* Question = nullptr;
  qel::TQELMsgDlg* Countdown = nullptr;
  qel::TQELMsgSelect* Selection = nullptr;
  qel::TQELMsgBox* Message = nullptr;
  qel::TQELShellAbout* About = nullptr;
  qel::TQELFolderBrowser* Folders = nullptr;
  qel::TQELTipTricks* Tips = nullptr;
  qel::TQELPasswordDlg* Password = nullptr;
  qel::TQELQueryAccess* Access = nullptr;
  qel::TQELPageSetupDialog* Page = nullptr;
  vcl::TMemo* Answers = nullptr;

  qel::TQELSplashScreen* Splash = nullptr;  // Made when it is first wanted.

  void QuestionClick(vcl::TObject*);
  void CountdownClick(vcl::TObject*);
  void SelectionClick(vcl::TObject*);
  void TipsClick(vcl::TObject*);
  void MessageClick(vcl::TObject*);
  void AboutClick(vcl::TObject*);
  void FoldersClick(vcl::TObject*);
  void PasswordClick(vcl::TObject*);
  void PasswordCheck(vcl::TObject*, bool& ok);
  void AccessClick(vcl::TObject*);
  void SplashClick(vcl::TObject*);
  void PageClick(vcl::TObject*);
  void Tell(const std::string& answer);
};

}  // namespace gallery
