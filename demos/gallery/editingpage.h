// TEditingPage: the page of tool bars, texts with attributes, masks, bands and sections.
#pragma once

#include "vcl/forms/frames.h"
#include "vcl/vcl.h"

namespace gallery {

/// The frame of editingpage.dfm.
class TEditingPage : public vcl::TFrame {
 public:
  explicit TEditingPage(vcl::TComponent* owner);
  ~TEditingPage() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  void SetParent(vcl::TWinControl* parent) override;

 private:
  // What the form file fills.
  vcl::TRichEdit* RichText = nullptr;
  vcl::TToolButton* BoldButton = nullptr;
  vcl::TToolButton* ItalicButton = nullptr;
  vcl::TToolButton* UnderlineButton = nullptr;
  vcl::TToolButton* LeftButton = nullptr;
  vcl::TToolButton* CenterButton = nullptr;
  vcl::TToolButton* RightButton = nullptr;
  vcl::TToolButton* BulletsButton = nullptr;
  vcl::TColorBox* TextColor = nullptr;
  vcl::TColorListBox* ColorList = nullptr;
  vcl::TTabControl* SampleTabs = nullptr;
  vcl::TLabel* TabText = nullptr;

  void WriteSample();
  void StyleClick(vcl::TObject*);
  void ParagraphClick(vcl::TObject*);
  void SizeClick(vcl::TObject* sender);
  void ColorChange(vcl::TObject*);
  void ColorListClick(vcl::TObject*);
  void SelectionChange(vcl::TObject*);
  void TabChange(vcl::TObject*);
};

}  // namespace gallery
