// Edits and memos: typing, selection, lines, and what outlives a window.
#include "tests/vcl/standardform.h"

#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

class Edits : public TStandardForm {};

TEST_F(Edits, TypingKeepsToTheSettings) {
  auto* limited = Make<TEdit>(10, 10);
  limited->SetMaxLength(3);
  auto* capitals = Make<TEdit>(10, 40);
  capitals->SetCharCase(ecUpperCase);
  auto* locked = Make<TEdit>(10, 70);
  locked->SetReadOnly(true);
  ShowForm();
  const std::pair<TEdit*, const char*> cases[] = {
      {limited, "abc"}, {capitals, "ABCDE"}, {locked, ""}};
  for (const auto& [edit, text] : cases) {
    edit->SetFocus();
    Type("abcde");
    EXPECT_EQ(edit->Text(), text);
  }
  limited->SetText("longer by code");
  EXPECT_EQ(limited->Text(), "longer by code");
  EXPECT_THROW(limited->SetMaxLength(-1), EArgumentOutOfRangeException);
}

TEST_F(Edits, SelectionCountsUtf16UnitsAndEndsInsideTheText) {
  auto* edit = Make<TEdit>(10, 10);
  edit->SetText("Grüße 😀!");
  for (int window = 0; window < 2; ++window) {
    edit->SetSelStart(6);
    edit->SetSelLength(2);
    EXPECT_EQ(edit->SelText(), "😀") << "window: " << window;
    edit->SetSelStart(100);
    EXPECT_EQ(edit->SelStart(), 9);
    edit->SetSelStart(-5);
    edit->SetSelLength(100);
    EXPECT_EQ(edit->SelLength(), 9);
    edit->HandleNeeded();
  }
  edit->SetSelStart(0);
  edit->SetSelLength(5);
  edit->SetSelText("Hallo");
  EXPECT_EQ(edit->Text(), "Hallo 😀!");
  edit->SetSelStart(0);
  edit->SetSelLength(6);
  edit->ClearSelection();
  EXPECT_EQ(edit->Text(), "😀!");
}

TEST_F(Edits, StateOutlivesTheWindow) {
  auto* edit = Make<TEdit>(10, 10);
  ShowForm();
  edit->SetFocus();
  Type("hello");
  edit->SetSelStart(1);
  edit->SetSelLength(3);
  edit->RecreateWnd();
  EXPECT_EQ(edit->Text(), "hello");
  EXPECT_EQ(edit->SelStart(), 1);
  EXPECT_EQ(edit->SelText(), "ell");
  EXPECT_TRUE(edit->Modified());
  EXPECT_TRUE(edit->Focused());
}

TEST_F(Edits, TheKeyboardsFocusSelectsAllAndAClickDoesNot) {
  auto* first = Make<TEdit>(10, 10);
  auto* second = Make<TEdit>(10, 40);
  second->SetText("selected");
  ShowForm();
  first->SetFocus();
  Key(VK_TAB);
  EXPECT_TRUE(second->Focused());
  EXPECT_EQ(second->SelText(), "selected");
  first->SetFocus();
  Click(*second);
  EXPECT_TRUE(second->Focused());
  EXPECT_EQ(second->SelText(), "");
}

TEST_F(Edits, TheHeightFollowsTheFontAndTheBorderIsOneOfTwo) {
  auto* edit = Make<TEdit>(10, 10);
  const int height = edit->Height();
  edit->Font()->SetSize(24);
  EXPECT_GT(edit->Height(), 2 * height - 8);
  edit->SetAutoSize(false);
  edit->SetHeight(7);
  edit->Font()->SetSize(8);
  EXPECT_EQ(edit->Height(), 7);
  EXPECT_THROW(edit->SetBorderStyle(bsSizeable), EArgumentOutOfRangeException);
  const TPropInfo* border = TEdit::Class().FindPublished("BorderStyle");
  EXPECT_EQ(border->Type->Max, 1);
  EXPECT_THROW(border->Set(*edit, std::int64_t{bsSizeable}), EPropertyError);
}

TEST_F(Edits, TheBorderHasDepthAsTheParentHas) {
  auto* panel = Make<TPanel>(10, 10);
  auto* edit = Make<TEdit>(2, 2, panel);
  auto* own = Make<TListBox>(2, 24, panel);
  own->SetCtl3D(true);
  const auto deep = [](TWinControl* control) {
    return (::GetWindowLongW(control->Handle(), GWL_EXSTYLE) & WS_EX_CLIENTEDGE) != 0;
  };
  ShowForm();
  edit->SetText("kept");
  EXPECT_TRUE(deep(edit));
  edit->Font()->SetSize(20);
  const int height = edit->Height();
  Form.SetCtl3D(false);
  EXPECT_FALSE(deep(edit));
  EXPECT_EQ(edit->Height(), height - 2);
  EXPECT_EQ(edit->Text(), "kept");
  EXPECT_TRUE(edit->ParentCtl3D());
  EXPECT_TRUE(deep(own));
  own->SetParentCtl3D(true);
  EXPECT_FALSE(deep(own));
  EXPECT_TRUE(::GetWindowLongW(own->Handle(), GWL_STYLE) & WS_BORDER);
  edit->SetCtl3D(true);
  EXPECT_TRUE(deep(edit));
  edit->SetParent(&Form);
  EXPECT_TRUE(edit->Ctl3D());
  const TPropInfo* published = TEdit::Class().FindPublished("Ctl3D");
  EXPECT_TRUE(published->NeedsWriting(*edit));
  EXPECT_FALSE(published->NeedsWriting(*own));
}

/// The operations on lines, with the text that they leave in a memo.
TEST_F(Edits, LinesAreTheTextOfAMemo) {
  const std::tuple<const char*, std::function<void(TStrings&)>, const char*> cases[] = {
      {"", [](TStrings& lines) { lines.Add("a"); }, "a\r\n"},
      {"a", [](TStrings& lines) { lines.Add("b"); }, "a\r\nb\r\n"},
      {"a\r\n", [](TStrings& lines) { lines.Add("ü"); }, "a\r\nü\r\n"},
      {"ü\r\nb", [](TStrings& lines) { lines.Insert(1, "x"); }, "ü\r\nx\r\nb"},
      {"a\r\nb\r\nc", [](TStrings& lines) { lines.Delete(1); }, "a\r\nc"},
      {"a\r\nb", [](TStrings& lines) { lines.Delete(1); }, "a\r\n"},
      {"😀a\r\nb", [](TStrings& lines) { lines.SetStrings(1, "lang"); }, "😀a\r\nlang"},
      {"a\r\nb", [](TStrings& lines) { lines.Exchange(0, 1); }, "b\r\na\r\n"},
      {"a\r\nb", [](TStrings& lines) { lines.Clear(); }, ""},
      {"a", [](TStrings& lines) { lines.SetCommaText("x,y"); }, "x\r\ny\r\n"},
  };
  for (bool window : {false, true}) {
    for (const auto& [before, act, after] : cases) {
      auto* memo = Make<TMemo>(10, 10);
      if (window) memo->HandleNeeded();
      memo->SetText(before);
      act(*memo->Lines());
      EXPECT_EQ(memo->Text(), after) << "from " << before << ", window: " << window;
      delete memo;
    }
  }
}

TEST_F(Edits, LinesFollowWhatTheUserTypesAndRefuseWhatIsNone) {
  auto* memo = Make<TMemo>(10, 10);
  memo->SetMaxLength(5);
  ShowForm();
  memo->SetFocus();
  EXPECT_EQ(memo->Lines()->Count(), 0);
  Type("ab");
  Key(VK_RETURN);
  Type("cd");
  EXPECT_EQ(memo->Lines()->CommaText(), "ab,c");
  memo->Lines()->Add("no limit for code");
  EXPECT_EQ(memo->Lines()->Strings(2), "no limit for code");
  EXPECT_THROW(memo->Lines()->Strings(3), EStringListError);
  EXPECT_THROW(memo->Lines()->Delete(-1), EStringListError);
  EXPECT_THROW(memo->Lines()->Insert(4, ""), EStringListError);
  EXPECT_THROW(memo->Lines()->SetObjects(0, memo), EInvalidOperation);
  memo->RecreateWnd();
  EXPECT_EQ(memo->Lines()->Count(), 3);
}

TEST_F(Edits, TabAndEnterBelongToAMemoThatWantsThem) {
  auto* memo = Make<TMemo>(10, 10);
  auto* next = Make<TEdit>(10, 150);
  auto* ok = Make<TButton>(10, 200);
  ok->SetDefault(true);
  int clicks = 0;
  ok->OnClick = [&](TObject*) { ++clicks; };
  ShowForm();
  memo->SetFocus();
  memo->SetWantTabs(true);
  Type("a");
  Key(VK_TAB);
  Key(VK_RETURN);
  EXPECT_EQ(memo->Text(), "a\t\r\n");
  EXPECT_EQ(clicks, 0);
  memo->SetWantTabs(false);
  memo->SetWantReturns(false);
  Key(VK_RETURN);
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(memo->Text(), "a\t\r\n");
  Key(VK_TAB);
  EXPECT_TRUE(next->Focused());
  memo->SetWantReturns(true);
  memo->SetFocus();
  Key(VK_TAB);
  EXPECT_TRUE(next->Focused());
  EXPECT_EQ(memo->Text(), "a\t\r\n");
}

}  // namespace
}  // namespace vcl
