#include "ide/packagesdialog.h"

#include "host/rtl/text.h"
#include "host/vcl/dialogs.h"
#include "host/vcl/vcl.h"

namespace ide {

using namespace vcl;

namespace {

class TPackagesForm : public TForm {
 public:
  using TLoad = std::function<std::string(const std::string&)>;

  TPackagesForm(const TPackages& packages, const TLoad& load)
      : TForm(nullptr), FPackages(packages), FLoad(load), FList(new TMemo(this)) {
    constexpr int width = 520;
    constexpr int height = 260;
    SetCaption("Packages");
    SetBorderStyle(bsDialog);
    SetPosition(poScreenCenter);
    SetClientWidth(width);
    SetClientHeight(height);
    FList->SetParent(this);
    FList->SetBounds(8, 8, width - 16, height - 49);
    FList->SetReadOnly(true);
    FList->SetScrollBars(ssVertical);
    AddButton("&Load...", width - 176)->OnClick = TNotifyEvent([this](TObject*) { LoadOther(); });
    TButton* close = AddButton("Close", width - 88);
    close->SetModalResult(mrOk);
    close->SetCancel(true);
    ShowAll();
  }

 private:
  TButton* AddButton(const std::string& caption, int left) {
    auto* button = new TButton(this);
    button->SetParent(this);
    button->SetCaption(caption);
    button->SetBounds(left, ClientHeight() - 33, 80, 25);
    return button;
  }
  void ShowAll() {
    FList->Lines()->Clear();
    for (const auto& each : FPackages.Entries()) {
      FList->Lines()->Add(each->Error.empty() ? each->FileName : each->Error);
    }
  }
  void LoadOther() {
    TOpenDialog dialog(nullptr);
    dialog.SetFilter("Packages (*.dll)|*.dll|All files (*.*)|*.*");
    if (!dialog.Execute()) return;
    const std::string error = FLoad(dialog.FileName());
    ShowAll();
    if (!error.empty()) MessageDlg(error, mtError, {mbOK});
  }

  const TPackages& FPackages;
  TLoad FLoad;
  TMemo* FList;
};

}  // namespace

void ShowPackages(const TPackages& packages,
                  const std::function<std::string(const std::string& fileName)>& load) {
  TPackagesForm(packages, load).ShowModal();
}

}  // namespace ide
