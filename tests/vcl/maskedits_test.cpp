// Edits with masks and with labels: keys, the clipboard and the caret in cells, and labels in form
// files.
#include "tests/support/texts.h"
#include "tests/vcl/standardform.h"
#include "vcl/forms/standardclasses.h"
#include "vcl/transfer/clipboard.h"

namespace vcl {
namespace {

class MaskEdits : public TStandardForm {
 protected:
  TRecreatable<TMaskEdit>* MakeMasked(const char* mask) {
    auto* edit = Make<TMaskEdit>(10, 10);
    edit->SetEditMask(mask);
    Make<TEdit>(10, 60);
    ShowForm();
    edit->SetFocus();
    edit->SetSelStart(0);
    return edit;
  }
};

TEST_F(MaskEdits, WhatIsTypedGoesIntoTheCells) {
  auto* edit = MakeMasked("(00)_>LL;0");
  int changes = 0;
  edit->OnChange = [&](TObject*) { ++changes; };
  EXPECT_TRUE(edit->IsMasked());
  EXPECT_EQ(edit->EditText(), "(__) __");
  Type("1x2a");
  EXPECT_EQ(edit->EditText(), "(12) A_");
  EXPECT_EQ(edit->Text(), "12A");
  EXPECT_EQ(edit->SelStart(), 6);
  EXPECT_EQ(changes, 3);
  Key(VK_BACK);
  Key(VK_BACK);
  EXPECT_EQ(edit->EditText(), "(1_) __") << "over the literals";
  Key(VK_LEFT);
  EXPECT_EQ(edit->SelStart(), 1);
  Key(VK_DELETE);
  EXPECT_EQ(edit->Text(), "");
  Key(VK_RIGHT);
  Key(VK_RIGHT);
  EXPECT_EQ(edit->SelStart(), 5);
  Type("b");
  KeyWith(VK_CONTROL, 'Z');
  EXPECT_EQ(edit->EditText(), "(__) __") << "taken back";
  edit->SetReadOnly(true);
  Type("1");
  EXPECT_EQ(edit->Text(), "");
}

TEST_F(MaskEdits, TheClipboardAndInputMethodsFillCells) {
  auto* edit = MakeMasked("00/00/00");
  const std::string empty = edit->EditText();
  Clipboard()->SetAsText("24-1205");
  edit->PasteFromClipboard();
  EXPECT_EQ(edit->Text(), edit->EditText());
  EXPECT_EQ(edit->EditText().substr(0, 2), "24");
  EXPECT_EQ(edit->EditText().substr(3, 2), "12");
  edit->SelectAll();
  edit->CutToClipboard();
  EXPECT_EQ(edit->EditText(), empty);
  EXPECT_EQ(Clipboard()->AsText().substr(0, 2), "24");
  edit->SetSelStart(1);
  ::SendMessageW(edit->Handle(), WM_IME_CHAR, L'7', 1);
  testinput::Pump();
  EXPECT_EQ(edit->EditText().substr(0, 5), "_7/__") << "an input method's character";
  edit->SetSelStart(0);
  edit->SetSelLength(4);
  edit->SetSelText("8x9");
  EXPECT_EQ(edit->EditText(), "89/__/__") << "a text put into the window";
  edit->RecreateWnd();
  EXPECT_EQ(edit->EditText(), "89/__/__");
}

TEST_F(MaskEdits, AnIncompleteTextKeepsTheFocusUntilItIsTakenBack) {
  auto* edit = MakeMasked("00:00;1;_");
  edit->SetText("12:30");
  edit->Perform(CM_ENTER);
  edit->SetSelStart(4);
  Key(VK_BACK);
  EXPECT_THROW(edit->ValidateEdit(), EMaskError);
  Key(VK_TAB);
  EXPECT_EQ(std::exchange(Errors, {}),
            "'12:_0' is not complete: the mask 00:00;1;_ requires a character at place 4");
  EXPECT_TRUE(edit->Focused());
  EXPECT_EQ(edit->SelStart(), 3);
  Key(VK_ESCAPE);
  EXPECT_EQ(edit->Text(), "12:30");
  Key(VK_TAB);
  EXPECT_FALSE(edit->Focused());
  edit->SetText("");
  edit->SetFocus();
  Key(VK_TAB);
  EXPECT_FALSE(edit->Focused()) << "what the user has not changed is not asked";
}

TEST_F(MaskEdits, AMaskIsChangedWithTheTextAndAMalformedOneRefused) {
  auto* edit = Make<TMaskEdit>(10, 10);
  edit->SetText("12");
  edit->SetEditMask("0-0;0");
  EXPECT_EQ(edit->EditText(), "1-2");
  EXPECT_THROW(edit->SetEditMask("0;7"), EMaskError);
  EXPECT_EQ(edit->EditMask(), "0-0;0");
  edit->SetEditMask("");
  EXPECT_FALSE(edit->IsMasked());
  EXPECT_EQ(edit->EditText(), "12");
  RegisterStandardClasses();
  edit->SetEditMask("!99;0;*");
  edit->SetText("7");
  edit->SetName("Masked");
  const std::string text = FormText(&Form);
  EXPECT_THAT(text, ::testing::HasSubstr("EditMask = '!99;0;*'"));
  EXPECT_THAT(text, ::testing::HasSubstr("Text = '7'"));
  TForm read(nullptr);
  ReadForm(text, &read);
  const auto* again = dynamic_cast<TMaskEdit*>(read.FindComponent("Masked"));
  ASSERT_TRUE(again);
  EXPECT_EQ(again->EditText(), "*7");
}

TEST_F(MaskEdits, ALabelIsAPartOfItsEdit) {
  RegisterStandardClasses();
  auto* edit = Make<TLabeledEdit>(100, 100);
  edit->SetName("Labelled");
  edit->EditLabel()->SetCaption("&Street");
  ShowForm();
  const TBoundLabel& label = *edit->EditLabel();
  const auto place = [&](TLabelPosition position) {
    edit->SetLabelPosition(position);
    return label.BoundsRect();
  };
  EXPECT_EQ(place(lpAbove).BottomRight().Y, edit->Top() - 3);
  EXPECT_EQ(label.Left(), edit->Left());
  EXPECT_EQ(place(lpBelow).Top, edit->Top() + edit->Height() + 3);
  EXPECT_EQ(place(lpLeft).Right, edit->Left() - 3);
  EXPECT_EQ(place(lpRight).Left, edit->Left() + edit->Width() + 3);
  edit->SetLabelSpacing(10);
  edit->SetLeft(50);
  EXPECT_EQ(label.Left(), 50 + edit->Width() + 10);
  edit->SetLabelPosition(lpLeft);
  edit->EditLabel()->SetCaption("A much longer &street");
  EXPECT_EQ(label.BoundsRect().Right, 40);
  edit->SetEnabled(false);
  EXPECT_FALSE(label.Enabled());
  edit->Hide();
  EXPECT_FALSE(label.Visible());

  edit->EditLabel()->Font()->SetColor(clRed);
  const std::string text = FormText(&Form);
  EXPECT_THAT(text, ::testing::HasSubstr("EditLabel.Caption = 'A much longer &street'"));
  EXPECT_THAT(text, ::testing::HasSubstr("EditLabel.Font.Color = clRed"));
  EXPECT_THAT(text, ::testing::Not(::testing::HasSubstr("EditLabel.Left")));
  TForm read(nullptr);
  ReadForm(text, &read);
  const auto* again = dynamic_cast<TLabeledEdit*>(read.FindComponent("Labelled"));
  ASSERT_TRUE(again);
  EXPECT_EQ(again->EditLabel()->Caption(), "A much longer &street");
  EXPECT_EQ(again->EditLabel()->BoundsRect(), label.BoundsRect());
  EXPECT_EQ(again->EditLabel()->Parent(), &read);
  EXPECT_EQ(read.ComponentCount(), 1) << "the label is its edit's";
  Form.ScaleBy(2, 1);
  EXPECT_EQ(edit->LabelSpacing(), 20);
  EXPECT_EQ(label.BoundsRect().Right, edit->Left() - 20);
  delete edit->EditLabel();
  edit->SetLeft(5);
  EXPECT_FALSE(edit->EditLabel());
}

}  // namespace
}  // namespace vcl
