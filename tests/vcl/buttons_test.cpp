// Buttons, check boxes, radio buttons and labels: clicks, keys, groups.
#include "tests/vcl/standardform.h"

#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

class Buttons : public TStandardForm {};

TEST_F(Buttons, EnterAndEscapeFindTheirs) {
  auto* edit = Make<TEdit>(10, 10);
  auto* ok = Make<TButton>(10, 50);
  auto* cancel = Make<TButton>(100, 50);
  auto* other = Make<TButton>(200, 50);
  ok->SetDefault(true);
  cancel->SetCancel(true);
  std::string heard;
  ok->OnClick = [&](TObject*) { heard += "ok "; };
  cancel->OnClick = [&](TObject*) { heard += "cancel "; };
  other->OnClick = [&](TObject*) { heard += "other "; };
  ShowForm();
  edit->SetFocus();
  Key(VK_RETURN);
  Key(VK_ESCAPE);
  other->SetFocus();
  Key(VK_RETURN);
  const auto style = [](TButton* button) {
    return ::GetWindowLongW(button->Handle(), GWL_STYLE) & BS_TYPEMASK;
  };
  EXPECT_EQ(style(other), BS_DEFPUSHBUTTON);
  EXPECT_EQ(style(ok), BS_PUSHBUTTON);
  edit->SetFocus();
  EXPECT_EQ(style(ok), BS_DEFPUSHBUTTON);
  Key(VK_RETURN);
  EXPECT_EQ(heard, "ok cancel other ok ");
}

TEST_F(Buttons, CheckBoxesGoThroughTheirStates) {
  auto* box = Make<TCheckBox>(10, 10);
  int clicks = 0;
  box->OnClick = [&](TObject*) { ++clicks; };
  ShowForm();
  Click(*box);
  EXPECT_TRUE(box->Checked());
  EXPECT_EQ(::SendMessageW(box->Handle(), BM_GETCHECK, 0, 0), BST_CHECKED);
  Key(VK_SPACE);
  EXPECT_EQ(box->State(), cbUnchecked);
  box->SetAllowGrayed(true);
  Key(VK_SPACE);
  EXPECT_EQ(box->State(), cbGrayed);
  EXPECT_EQ(clicks, 3);
  box->RecreateWnd();
  EXPECT_EQ(::SendMessageW(box->Handle(), BM_GETCHECK, 0, 0), BST_INDETERMINATE);
  box->SetChecked(true);
  EXPECT_EQ(clicks, 4);
  box->SetChecked(true);
  EXPECT_EQ(clicks, 4);
  EXPECT_THROW(box->SetAlignment(taCenter), EArgumentOutOfRangeException);
}

TEST_F(Buttons, OneRadioButtonOfAParentIsChecked) {
  auto* group = Make<TGroupBox>(200, 10);
  TRadioButton* outside[] = {Make<TRadioButton>(10, 10), Make<TRadioButton>(10, 40)};
  TRadioButton* inside[] = {Make<TRadioButton>(10, 20, group), Make<TRadioButton>(10, 50, group)};
  inside[1]->SetCaption("&Second");
  ShowForm();
  outside[0]->SetChecked(true);
  inside[0]->SetChecked(true);
  Click(*outside[1]);
  EXPECT_FALSE(outside[0]->Checked());
  EXPECT_TRUE(outside[1]->Checked());
  EXPECT_TRUE(inside[0]->Checked());
  KeyWith(VK_MENU, 'S');
  EXPECT_TRUE(inside[1]->Checked());
  EXPECT_TRUE(inside[1]->Focused());
  EXPECT_FALSE(inside[0]->Checked());
  EXPECT_EQ(::SendMessageW(inside[0]->Handle(), BM_GETCHECK, 0, 0), BST_UNCHECKED);
  Key(VK_UP);
  EXPECT_TRUE(inside[0]->Focused());
  EXPECT_TRUE(inside[0]->Checked());
  EXPECT_TRUE(inside[0]->TabStop());
  EXPECT_FALSE(inside[1]->TabStop());
}

TEST_F(Buttons, AcceleratorsOfLabelsAndGroupsFocusOthers) {
  auto* label = Make<TLabel>(10, 10);
  label->SetCaption("&Name");
  auto* edit = Make<TEdit>(10, 30);
  label->SetFocusControl(edit);
  auto* group = Make<TGroupBox>(10, 100);
  group->SetCaption("&Group");
  auto* inside = Make<TCheckBox>(10, 20, group);
  ShowForm();
  KeyWith(VK_MENU, 'G');
  EXPECT_TRUE(inside->Focused());
  KeyWith(VK_MENU, 'N');
  EXPECT_TRUE(edit->Focused());
  delete edit;
  EXPECT_EQ(label->FocusControl(), nullptr);
  KeyWith(VK_MENU, 'N');
}

TEST_F(Buttons, LabelsFitTheirText) {
  auto* label = Make<TLabel>(10, 10);
  label->SetCaption("M");
  const int one = label->Width();
  const int line = label->Height();
  label->SetCaption("MMMM");
  EXPECT_NEAR(label->Width(), 4 * one, 4);
  label->SetCaption("&MMMM");
  EXPECT_NEAR(label->Width(), 4 * one, 4);
  label->SetShowAccelChar(false);
  EXPECT_GT(label->Width(), 4 * one);
  label->SetCaption("");
  EXPECT_EQ(label->Height(), line);
  label->SetCaption("M\nM");
  EXPECT_EQ(label->Height(), 2 * line);
  label->SetAlignment(taRightJustify);
  const int right = label->Left() + label->Width();
  label->SetCaption("MMMMMM");
  EXPECT_EQ(label->Left() + label->Width(), right);
  label->SetAutoSize(false);
  label->SetWidth(200);
  label->SetCaption("M");
  EXPECT_EQ(label->Width(), 200);
}

TEST_F(Buttons, LabelsPaintWhereTheirLayoutPutsTheText) {
  auto* label = Make<TLabel>(0, 0);
  label->SetAutoSize(false);
  label->SetBounds(0, 0, 100, 60);
  label->SetColor(clYellow);
  label->Font()->SetColor(clBlack);
  label->SetCaption("\xE2\x96\x88\xE2\x96\x88");  // Two full blocks.
  ShowForm();
  EXPECT_LT(Find(clBlack).Right, 50);
  EXPECT_LT(Find(clBlack).Bottom, 25);
  ASSERT_FALSE(Find(clBlack).Empty());
  label->SetLayout(tlCenter);
  label->SetAlignment(taCenter);
  EXPECT_NEAR(Find(clBlack).Left, 100 - Find(clBlack).Right, 4);
  EXPECT_NEAR(Find(clBlack).Top, 60 - Find(clBlack).Bottom, 6);
  label->SetLayout(tlBottom);
  label->SetAlignment(taRightJustify);
  EXPECT_GT(Find(clBlack).Left, 50);
  EXPECT_GT(Find(clBlack).Top, 35);
}

}  // namespace
}  // namespace vcl
