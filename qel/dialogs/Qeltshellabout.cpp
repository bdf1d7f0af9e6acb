// TQELShellAbout: its table, and the box.
#include "qel/dialogs/Qeltshellabout.h"

#include "qel/dialogs/private/systemhelp.h"
#include "vcl/dialogs/commondialog.h"
#include "vcl/forms/application.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

// Behind win32.h, on which it stands.
#include <shellapi.h>

namespace qel {

/// The system's box, modal as its other dialogs are.
class TQELShellAbout::TBox : public vcl::TCommonDialog {
 public:
  explicit TBox(const TQELShellAbout& about) : TCommonDialog(nullptr), FAbout(about) {}
  ~TBox() override { AnnounceEnd(); }
  bool Execute() override {
    // Copies: the component may be freed while the box is up.
    const auto title =
        vcl::ToUtf16(FAbout.FTitle.empty() ? vcl::Application()->Title() : FAbout.FTitle);
    const auto text = vcl::ToUtf16(FAbout.FText);
    const HICON icon = FAbout.ShownIcon();
    return Run([&](HWND owner) { return ::ShellAboutW(owner, title.c_str(), text.c_str(), icon); });
  }

 private:
  const TQELShellAbout& FAbout;
};

const vcl::TClass& TQELShellAbout::Class() {
  using T = TQELShellAbout;
  using namespace vcl;
  static const TClass info =
      Describe<T, TQELHelpDialog>("qel::TQELShellAbout", "qel/dialogs/Qeltshellabout.h",
                                  {
                                      Property<&T::Icon, &T::SetIcon>("Icon"),
                                      Property<&T::Text, &T::SetText>("Text"),
                                      Property<&T::Title, &T::SetTitle>("Title"),
                                  });
  return info;
}

TQELShellAbout::TQELShellAbout(vcl::TComponent* owner)
    : TQELHelpDialog(owner),
      FIcon(std::make_unique<vcl::TIcon>()),
      FBox(std::make_unique<TBox>(*this)) {}

TQELShellAbout::~TQELShellAbout() { AnnounceEnd(); }

HICON TQELShellAbout::ShownIcon() const {
  return (FIcon->Empty() ? vcl::Application()->Icon() : FIcon.get())->Handle();
}

bool TQELShellAbout::Execute() {
  TQELHelpDialog::Execute();
  const TSystemHelp help(*this);
  return FBox->Execute();
}

}  // namespace qel
