// The page of texts and bars: the tool bar shows what the text under the cursor is like, and
// changes what is selected.
#include "demos/gallery/editingpage.h"

#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"

namespace gallery {

using namespace vcl;

const TClass& TEditingPage::Class() {
  using T = TEditingPage;
  static const TClass info =
      Describe<T, TFrame>("gallery::TEditingPage", "demos/gallery/editingpage.h",
                          {
                              Field<&T::RichText>("RichText"),
                              Field<&T::BoldButton>("BoldButton"),
                              Field<&T::ItalicButton>("ItalicButton"),
                              Field<&T::UnderlineButton>("UnderlineButton"),
                              Field<&T::LeftButton>("LeftButton"),
                              Field<&T::CenterButton>("CenterButton"),
                              Field<&T::RightButton>("RightButton"),
                              Field<&T::BulletsButton>("BulletsButton"),
                              Field<&T::TextColor>("TextColor"),
                              Field<&T::ColorList>("ColorList"),
                              Field<&T::SampleTabs>("SampleTabs"),
                              Field<&T::TabText>("TabText"),
                              Method<&T::StyleClick>("StyleClick"),
                              Method<&T::ParagraphClick>("ParagraphClick"),
                              Method<&T::SizeClick>("SizeClick"),
                              Method<&T::ColorChange>("ColorChange"),
                              Method<&T::ColorListClick>("ColorListClick"),
                              Method<&T::SelectionChange>("SelectionChange"),
                              Method<&T::TabChange>("TabChange"),
                          });
  return info;
}

TEditingPage::TEditingPage(TComponent* owner) : TFrame(owner) {
  LoadFrame();
  TabChange(nullptr);
}

TEditingPage::~TEditingPage() { AnnounceEnd(); }

/// What is written has looks, which only a window keeps.
void TEditingPage::SetParent(TWinControl* parent) {
  TFrame::SetParent(parent);
  if (parent && RichText->Text().empty()) WriteSample();
}

void TEditingPage::WriteSample() {
  RichText->SetRtf(R"({\rtf1\ansi{\colortbl;\red0\green0\blue128;\red128\green0\blue0;})"
                   R"(\pard\qc\cf1\b\fs28 A rich edit\par)"
                   R"(\pard\ql\cf0\b0\fs18 Its text has fonts, colours and styles of its own;\par)"
                   R"(\pard\qr\cf2\i its paragraphs stand left, right or in the middle.\par})");
}

void TEditingPage::StyleClick(TObject*) {
  TFontStyles style;
  if (BoldButton->Down()) style.Include(fsBold);
  if (ItalicButton->Down()) style.Include(fsItalic);
  if (UnderlineButton->Down()) style.Include(fsUnderline);
  RichText->SelAttributes().SetStyle(style);
}

void TEditingPage::ParagraphClick(TObject*) {
  RichText->Paragraph().SetAlignment(CenterButton->Down()  ? taCenter
                                     : RightButton->Down() ? taRightJustify
                                                           : taLeftJustify);
  RichText->Paragraph().SetNumbering(BulletsButton->Down() ? nsBullet : nsNone);
}

/// The tag of each line of the menu is its size in points.
void TEditingPage::SizeClick(TObject* sender) {
  RichText->SelAttributes().SetSize(static_cast<int>(dynamic_cast<TMenuItem&>(*sender).Tag()));
}

void TEditingPage::ColorChange(TObject*) {
  RichText->SelAttributes().SetColor(TextColor->Selected());
}

void TEditingPage::ColorListClick(TObject*) {
  TextColor->SetSelected(ColorList->Selected());
  ColorChange(ColorList);
}

void TEditingPage::SelectionChange(TObject*) {
  const TFontStyles style = RichText->SelAttributes().Style();
  BoldButton->SetDown(style.Has(fsBold));
  ItalicButton->SetDown(style.Has(fsItalic));
  UnderlineButton->SetDown(style.Has(fsUnderline));
  TToolButton* const alignments[] = {LeftButton, RightButton, CenterButton};
  alignments[RichText->Paragraph().Alignment()]->SetDown(true);
  BulletsButton->SetDown(RichText->Paragraph().Numbering() == nsBullet);
  TextColor->SetSelected(RichText->SelAttributes().Color());
}

void TEditingPage::TabChange(TObject*) {
  const int tab = SampleTabs->TabIndex();
  TabText->SetCaption(tab < 0
                          ? std::string()
                          : Concat("One area for all tabs: ", SampleTabs->Tabs()->Strings(tab)));
}

}  // namespace gallery
