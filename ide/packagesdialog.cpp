// The form that lists the packages, loads others, and leaves some out at the next start.
#include "ide/packagesdialog.h"

#include "vcl/dialogs/dialogs.h"
#include "vcl/rtl/text.h"
#include "vcl/vcl.h"

namespace ide {

using namespace vcl;

namespace {

class TPackagesForm : public TForm {
 public:
  using TLoad = std::function<std::string(const std::string&)>;

  TPackagesForm(TPackages& packages, const TLoad& load)
      : TForm(nullptr), FPackages(packages), FLoad(load), FList(new TListBox(this)) {
    constexpr int width = 520;
    constexpr int height = 260;
    SetCaption("Packages");
    SetBorderIcons({biSystemMenu});
    SetPosition(poScreenCenter);
    SetClientWidth(width);
    SetClientHeight(height);
    FList->SetParent(this);
    FList->SetBounds(8, 8, width - 16, height - 49);
    FList->SetAnchors({akLeft, akTop, akRight, akBottom});
    AddButton("&Remove", width - 264)->OnClick = TNotifyEvent([this](TObject*) { Remove(); });
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
    button->SetAnchors({akRight, akBottom});
    return button;
  }
  static std::string LineOf(const TPackageEntry& entry) {
    const std::string line = entry.Error.empty() ? entry.FileName : entry.Error;
    return entry.Wanted ? line : Concat(line, " (removed: not there after the next start)");
  }
  void ShowAll() {
    FList->Items()->Clear();
    for (const auto& each : FPackages.Entries()) FList->Items()->Add(LineOf(*each));
  }
  /// What is loaded stays so: the forms may hold its components.
  void Remove() {
    const int line = FList->ItemIndex();
    if (line < 0) return;
    TPackageEntry& entry = *FPackages.Entries()[static_cast<std::size_t>(line)];
    entry.Wanted = !entry.Wanted;
    ShowAll();
    FList->SetItemIndex(line);
  }
  void LoadOther() {
    TOpenDialog dialog(nullptr);
    dialog.SetFilter("Packages (*.dll)|*.dll|All files (*.*)|*.*");
    if (!dialog.Execute()) return;
    const std::string error = FLoad(dialog.FileName());
    ShowAll();
    if (!error.empty()) MessageDlg(error, mtError, {mbOK});
  }

  TPackages& FPackages;
  TLoad FLoad;
  TListBox* FList;
};

}  // namespace

void ShowPackages(TPackages& packages,
                  const std::function<std::string(const std::string& fileName)>& load) {
  TPackagesForm(packages, load).ShowModal();
}

}  // namespace ide
