// Finding records as one types, pictures and long texts, with real input.
#include "tests/dbcontrols/dataform.h"
#include "vcl/graphics/bitmap.h"
#include "vcl/graphics/canvas.h"
#include "vcl/rtl/files.h"
#include "vcl/transfer/clipboard.h"

namespace qel {
namespace {

using testinput::PumpUntil;

class Views : public TDataForm {};

// Finding.

TEST_F(Views, AnIndexLookupGoesToTheFirstRecordThatBeginsSo) {
  for (const char* name : {"Bert", "Berta", "berg", "Anna", "Zoe"}) {
    Data.AppendRecord({std::string(name)});
  }
  auto* edit = MakeBound<TQELDBIndexLookup>("Name", 10, 10);
  int missed = 0;
  edit->OnNotFound = [&](vcl::TObject*) { ++missed; };
  ShowForm();
  edit->SetFocus();
  const auto foundBy = [&](const std::string& text) {
    Data.Last();
    edit->SelectAll();
    Type(text);
    return Value("Name");
  };
  EXPECT_EQ(foundBy("be"), "Bert") << "in the records' own order";
  EXPECT_EQ(foundBy("bert"), "Bert");
  EXPECT_EQ(foundBy("berta"), "Berta");
  Data.SetIndexFieldNames("Name");
  EXPECT_EQ(foundBy("be"), "berg");
  EXPECT_EQ(foundBy("ann"), "Ann");
  EXPECT_EQ(foundBy("anna"), "Anna");
  Data.SetIndexFieldNames("Name DESC");
  EXPECT_EQ(foundBy("be"), "Berta");
  EXPECT_EQ(missed, 0);
  EXPECT_EQ(foundBy("ax"), "Anna") << "where the letter before it has led";
  EXPECT_EQ(missed, 1);
  edit->SetText("berg");
  EXPECT_EQ(Value("Name"), "Anna") << "code searches by Find";
  edit->SetDataField("Count");
  EXPECT_EQ(foundBy("50"), "B&b") << "numbers as they are shown";
  edit->SetDataField("None");
  EXPECT_FALSE(edit->Find("x"));
  Data.Close();
  EXPECT_FALSE(edit->Find("x"));
}

// Pictures.

class Pictures : public TDataForm {
 protected:
  Pictures() : View(MakeBound<TQELDBImageView>("Photo", 10, 10)) {
    View->SetBounds(10, 10, 100, 60);
    ShowForm();
  }
  ~Pictures() override { ::DeleteFileW(L"view-in.bmp"), ::DeleteFileW(L"view-out.bmp"); }
  static void SavePicture(const char* name) {
    vcl::TBitmap bitmap(200, 40);
    bitmap.Canvas()->Brush()->SetColor(vcl::clRed);
    bitmap.Canvas()->FillRect({0, 0, 200, 40});
    bitmap.SaveToFile(name);
  }
  TQELDBImageView* View;
};

TEST_F(Pictures, WhatIsNoneShowsItsSize) {
  EXPECT_EQ(View->Accessible().Value, "2 bytes");
  Data.Next();
  EXPECT_EQ(View->Accessible().Value, "") << "Null";
  View->SetDataField("Name");
  EXPECT_EQ(View->Accessible().Value, "3 bytes");
}

TEST_F(Pictures, ComeFromFilesAndGoThere) {
  SavePicture("view-in.bmp");
  View->LoadFromFile("view-in.bmp");
  EXPECT_EQ(Data.State(), vcl::dsEdit);
  const vcl::TRect seen = Find(vcl::clRed);
  EXPECT_NEAR(seen.Width(), 5 * seen.Height(), 5) << "in proportion";
  EXPECT_LE(seen.Right, 110);
  View->SaveToFile("view-out.bmp");
  EXPECT_EQ(vcl::ReadWholeFile("view-out.bmp"), vcl::ReadWholeFile("view-in.bmp"));
  Data.Post();
  View->SetFocus();
  KeyWith(VK_CONTROL, 'X');
  Data.Post();
  EXPECT_TRUE(Data.FieldByName("Photo")->IsNull());
  EXPECT_THROW(View->SaveToFile("view-out.bmp"), vcl::EDatabaseError);
  EXPECT_EQ(vcl::ReadWholeFile("view-out.bmp"), vcl::ReadWholeFile("view-in.bmp")) << "kept";
  KeyWith(VK_CONTROL, 'V');
  EXPECT_FALSE(Find(vcl::clRed).Empty());
  Key(VK_ESCAPE);
  EXPECT_TRUE(Find(vcl::clRed).Empty());
  Data.Cancel();
  View->SetReadOnly(true);
  EXPECT_THROW(View->LoadFromFile("view-in.bmp"), vcl::EDatabaseError);
  EXPECT_EQ(Data.State(), vcl::dsBrowse);
}

// Long texts.

class Memos : public TDataForm {
 protected:
  Memos() : View(MakeBound<TQELDBMemoView>("Notes", 10, 10)) {
    View->SetEditInWindow(true);
    ShowForm();
  }
  /// Opens the window by a double click and types there.
  void InWindow(std::vector<WORD> keys) {
    const testinput::TKeysWhen typing([&] { return vcl::Screen()->ActiveForm() != &Form; },
                                      std::move(keys));
    View->Perform(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, 5));
  }
  TQELDBMemoView* View;
};

TEST_F(Memos, AWindowTakesLongTexts) {
  InWindow({'X', VK_TAB, VK_TAB, VK_SPACE});
  EXPECT_EQ(View->Text(), "xone");
  EXPECT_EQ(Data.State(), vcl::dsEdit);
  EXPECT_EQ(Value("Notes"), "one") << "as what is typed, it waits to be written";
  View->SetFocus();
  Key(VK_ESCAPE);
  EXPECT_EQ(View->Text(), "one");
  Data.Cancel();
  InWindow({'X', VK_TAB, VK_TAB, VK_SPACE});
  Data.Post();
  EXPECT_EQ(Value("Notes"), "xone");
  InWindow({'Y', VK_ESCAPE});
  EXPECT_EQ(Data.State(), vcl::dsBrowse);
  View->SetReadOnly(true);
  InWindow({'Y', VK_ESCAPE});
  EXPECT_EQ(View->Text(), "xone");
  View->SetReadOnly(false);
  View->SetEditInWindow(false);
  View->Perform(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, 5));
  EXPECT_EQ(vcl::Screen()->ActiveForm(), &Form);
}

TEST_F(Memos, ATextForAnotherRecordIsRefusedAloud) {
  // While the window is open, another record comes up.
  vcl::Application()->OnIdle = [&](vcl::TObject*, bool&) {
    if (vcl::Screen()->ActiveForm() != &Form && Data.RecNo() == 1) Data.Next();
  };
  EXPECT_THROW(InWindow({'X', VK_TAB, VK_TAB, VK_SPACE}), vcl::EDatabaseError);
  vcl::Application()->OnIdle = nullptr;
  EXPECT_EQ(Data.RecNo(), 2);
  EXPECT_EQ(View->Text(), "");
}

}  // namespace
}  // namespace qel
