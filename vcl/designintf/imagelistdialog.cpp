// The form in which the pictures of an image list are edited.
#include "vcl/designintf/imagelistdialog.h"

#include <algorithm>
#include <memory>
#include <vector>

#include "vcl/designintf/componenteditor.h"
#include "vcl/dialogs/dialogs.h"
#include "vcl/forms/forms.h"
#include "vcl/forms/module.h"
#include "vcl/graphics/picture.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/stdctrls/button.h"
#include "vcl/stdctrls/label.h"
#include "vcl/stdctrls/listview.h"

namespace vcl {
namespace {

class TImageListForm : public TForm {
 public:
  explicit TImageListForm(const TImageList& images);
  ~TImageListForm() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  TImageList* Images = nullptr;
  TListView* View = nullptr;
  TLabel* CountLabel = nullptr;

 private:
  void AddClick(TObject*);
  void DeleteClick(TObject*);
  void UpClick(TObject*) { MoveBy(-1); }
  void DownClick(TObject*) { MoveBy(1); }
  void ClearClick(TObject*);
  void FilesDropped(TObject*, const std::vector<std::string>& files, TPoint);
  void ViewKey(TObject*, std::uint16_t& key, TShiftState shift);
  void AddFiles(const std::vector<std::string>& files);
  void MoveBy(int step);
  void List(int selected);
};

const TClass& TImageListForm::Class() {
  using T = TImageListForm;
  static const TClass info = Describe<T, TForm>(
      "vcl::TImageListForm", "vcl/designintf/imagelistdialog.h",
      {Field<&T::Images>("Images"), Field<&T::View>("View"), Field<&T::CountLabel>("CountLabel"),
       Method<&T::AddClick>("AddClick"), Method<&T::DeleteClick>("DeleteClick"),
       Method<&T::UpClick>("UpClick"), Method<&T::DownClick>("DownClick"),
       Method<&T::ClearClick>("ClearClick"), Method<&T::FilesDropped>("FilesDropped"),
       Method<&T::ViewKey>("ViewKey")});
  return info;
}

TImageListForm::TImageListForm(const TImageList& images) : TForm(nullptr) {
  LoadForm(ModuleOf(&Class()));
  Images->Assign(&images);
  List(0);
}

TImageListForm::~TImageListForm() { AnnounceEnd(); }

/// Shows the pictures with their indexes, and selects one.
void TImageListForm::List(int selected) {
  {
    const TUpdating updating(*View->Items());
    View->Items()->Clear();
    for (int i = 0; i < Images->Count(); ++i) {
      TListItem* item = View->Items()->Add();
      item->SetCaption(IntToStr(i));
      item->SetImageIndex(i);
    }
  }
  selected = std::min(selected, Images->Count() - 1);
  if (selected >= 0) {
    View->SetItemIndex(selected);
    View->SetItemFocused(View->Selected());
    View->Selected()->MakeVisible(false);
  }
  const int count = Images->Count();
  CountLabel->SetCaption(Concat(IntToStr(count), count == 1 ? " image of " : " images of ",
                                IntToStr(Images->Width()), " x ", IntToStr(Images->Height()),
                                " pixels"));
}

void TImageListForm::AddClick(TObject*) {
  TOpenDialog dialog(nullptr);
  dialog.SetFilter(
      "Pictures (*.bmp;*.gif;*.ico;*.jpg;*.jpeg;*.png)|*.bmp;*.gif;*.ico;*.jpg;*.jpeg;*.png|"
      "All files (*.*)|*.*");
  dialog.SetOptions(
      {ofHideReadOnly, ofPathMustExist, ofFileMustExist, ofEnableSizing, ofAllowMultiSelect});
  if (!dialog.Execute()) return;
  std::vector<std::string> files;
  for (int i = 0; i < dialog.Files()->Count(); ++i) files.push_back(dialog.Files()->Strings(i));
  AddFiles(files);
}

void TImageListForm::FilesDropped(TObject*, const std::vector<std::string>& files, TPoint) {
  AddFiles(files);
}

void TImageListForm::AddFiles(const std::vector<std::string>& files) {
  const int first = Images->Count();
  std::string refused;
  for (const std::string& file : files) {
    try {
      TPicture picture;
      picture.LoadFromFile(file);
      if (auto* icon = dynamic_cast<TIcon*>(picture.Graphic())) {
        icon->SetSize(Images->Width(), Images->Height());
      }
      if (picture.Graphic()) Images->AddGraphic(*picture.Graphic());
    } catch (const Exception& error) {
      refused += Concat(refused.empty() ? "" : "\n", file, ": ", error.what());
    }
  }
  List(first);
  if (!refused.empty()) MessageDlg(refused, mtError, {mbOK});
}

void TImageListForm::DeleteClick(TObject*) {
  const int first = View->ItemIndex();
  for (int i = Images->Count() - 1; i >= 0; --i) {
    if (View->Items()->Items(i)->Selected()) Images->Delete(i);
  }
  if (first >= 0) List(first);
}

void TImageListForm::ClearClick(TObject*) {
  Images->Clear();
  List(0);
}

void TImageListForm::MoveBy(int step) {
  const int from = View->ItemIndex();
  const int to = from + step;
  if (from < 0 || to < 0 || to >= Images->Count()) return;
  Images->Move(from, to);
  List(to);
}

void TImageListForm::ViewKey(TObject*, std::uint16_t& key, TShiftState) {
  constexpr std::uint16_t deleteKey = 0x2E;  // VK_DELETE
  if (key == deleteKey) DeleteClick(nullptr);
}

/// The command of an image list in the designer.
class TImageListEditor : public TComponentEditor {
 public:
  using TComponentEditor::TComponentEditor;
  int GetVerbCount() const override { return 1; }
  std::string GetVerb(int) const override { return "Edit images..."; }
  void ExecuteVerb(int) override {
    auto& images = dynamic_cast<TImageList&>(Component());
    if (EditImages(Concat("Images of ", images.Name()), images)) Designer().Modified();
  }
};

}  // namespace

bool EditImages(const std::string& title, TImageList& images) {
  TImageListForm form(images);
  form.SetCaption(title);
  if (form.ShowModal() != mrOk) return false;
  images.Assign(form.Images);
  return true;
}

void RegisterImageListEditor() {
  RegisterComponentEditor(TImageList::Class(),
                          ComponentEditorClass<TImageListEditor>("TImageListEditor"));
}

}  // namespace vcl
