// Forms inside the main form: where they stand, which one is in front, how they go.
#include <gmock/gmock.h>

#include "tests/vcl/testinput.h"

#include "vcl/rtl/win32.h"

namespace {

using namespace vcl;
using testinput::PumpUntil;

class Mdi : public testing::Test {
 protected:
  Mdi() {
    Main->SetFormStyle(fsMDIForm);
    Main->SetBounds(50, 60, 700, 500);
    auto* bar = new TPanel(Main);
    bar->SetParent(Main);
    bar->SetHeight(30);
    bar->SetAlign(alTop);
    Main->Show();
    PumpUntil([&] { return Main->Active(); });
  }
  ~Mdi() override { delete Main; }
  TForm* Child(const char* caption) {
    auto* form = new TForm(Main);
    form->SetCaption(caption);
    form->SetBounds(10, 20, 200, 150);
    auto* edit = new TEdit(form);
    edit->SetParent(form);
    form->SetFormStyle(fsMDIChild);
    testinput::Pump();
    return form;
  }

  TForm* Main = Application()->CreateForm<TForm>();
};

TEST_F(Mdi, ChildrenStandInTheMainFormBelowItsBars) {
  RECT client;
  ::GetWindowRect(Main->ClientHandle(), &client);
  EXPECT_EQ(TRect(client).TopLeft(), Main->ClientToScreen({0, 30}));
  EXPECT_EQ(TRect(client).Height(), Main->ClientHeight() - 30);
  TForm* const form = Child("a");
  EXPECT_EQ(::GetParent(form->Handle()), Main->ClientHandle());
  EXPECT_TRUE(::IsWindowVisible(form->Handle()));
  EXPECT_EQ(form->BoundsRect(), Bounds(10, 20, 200, 150));
  EXPECT_THROW(form->ShowModal(), EInvalidOperation);
  Main->SetHeight(400);
  ::GetWindowRect(Main->ClientHandle(), &client);
  EXPECT_EQ(TRect(client).Height(), Main->ClientHeight() - 30);
}

TEST_F(Mdi, OneOfThemIsInFront) {
  TForm* const a = Child("a");
  TForm* const b = Child("b");
  EXPECT_EQ(Main->MDIChildCount(), 2);
  EXPECT_EQ(Main->MDIChildren(0), a);
  EXPECT_EQ(Main->MDIChildren(1), b);
  EXPECT_EQ(Main->MDIChildren(2), nullptr);
  EXPECT_EQ(Main->ActiveMDIChild(), b);
  EXPECT_TRUE(b->Active());
  EXPECT_FALSE(a->Active());
  EXPECT_EQ(::GetFocus(), b->ActiveControl()->Handle());
  Main->Next();
  EXPECT_EQ(Main->ActiveMDIChild(), a);
  EXPECT_TRUE(a->Active());
  EXPECT_EQ(::GetFocus(), a->ActiveControl()->Handle());
  testinput::SendKey(VK_CONTROL, true);
  testinput::TypeKey(VK_F6);
  testinput::SendKey(VK_CONTROL, false);
  EXPECT_TRUE(PumpUntil([&] { return Main->ActiveMDIChild() == b; }));
}

TEST_F(Mdi, TheyAreArranged) {
  TForm* const a = Child("a");
  TForm* const b = Child("b");
  Main->Cascade();
  EXPECT_LT(a->Left(), b->Left());
  EXPECT_LT(a->Top(), b->Top());
  for (const TTileMode mode : {tbHorizontal, tbVertical}) {
    Main->SetTileMode(mode);
    Main->Tile();
    EXPECT_EQ(a->Left() == b->Left(), mode == tbHorizontal);
    EXPECT_EQ(a->Top() == b->Top(), mode == tbVertical);
    EXPECT_EQ(Main->TileMode(), mode);
  }
  const auto place = [a] {
    RECT rect;
    ::GetWindowRect(a->Handle(), &rect);
    return TRect(rect);
  };
  a->SetWindowState(wsMinimized);
  Main->ArrangeIcons();
  const TRect arranged = place();
  ::SetWindowPos(a->Handle(), nullptr, 77, 11, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  EXPECT_NE(place(), arranged);
  Main->ArrangeIcons();
  EXPECT_EQ(place(), arranged);
}

TEST_F(Mdi, ClosedTheyAreMinimizedOrWhatTheirHandlerSays) {
  TForm* const a = Child("a");
  TForm* const b = Child("b");
  b->Close();
  EXPECT_EQ(b->WindowState(), wsMinimized);
  EXPECT_EQ(Main->MDIChildCount(), 2);
  b->Hide();
  EXPECT_FALSE(b->HandleAllocated());
  EXPECT_EQ(Main->ActiveMDIChild(), a);
  b->SetWindowState(wsMaximized);
  b->Show();
  EXPECT_TRUE(::IsZoomed(b->Handle()));
  b->OnClose = [](TObject*, TCloseAction& action) { action = caFree; };
  b->Close();
  EXPECT_TRUE(PumpUntil([&] { return Main->MDIChildCount() == 1; }));
  EXPECT_EQ(Main->ActiveMDIChild(), a);
  a->SetFormStyle(fsNormal);
  EXPECT_EQ(Main->MDIChildCount(), 0);
  EXPECT_EQ(::GetAncestor(a->Handle(), GA_PARENT), ::GetDesktopWindow());
}

TEST_F(Mdi, TheirWindowsComeBackWithTheMainForms) {
  TForm* const a = Child("a");
  Main->SetBorderStyle(bsSingle);
  EXPECT_EQ(::GetParent(a->Handle()), Main->ClientHandle());
  EXPECT_TRUE(::IsWindowVisible(a->Handle()));
  Main->SetFormStyle(fsNormal);
  EXPECT_EQ(Main->ClientHandle(), nullptr);
  EXPECT_FALSE(a->HandleAllocated());
  EXPECT_EQ(Main->ActiveMDIChild(), nullptr);
  EXPECT_THROW(Child("b"), EInvalidOperation);
}

}  // namespace
